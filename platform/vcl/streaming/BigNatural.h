#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vcl {

/// A whole number of any size, with what converting between binary and decimal fractions needs.
class TBigNatural {
public:
    explicit TBigNatural(std::uint64_t value);

    void Multiply(std::uint32_t factor);
    void MultiplyByPowerOfTen(unsigned power);
    void Add(std::uint32_t value);
    /// Takes away a number that is not greater.
    void Subtract(const TBigNatural& other);
    void ShiftLeft(unsigned bits);
    [[nodiscard]] unsigned BitLength() const;
    /// Negative, zero or positive as this number is smaller than, equal to or greater than the other.
    [[nodiscard]] int Compare(const TBigNatural& other) const;

private:
    void Trim();
    std::vector<std::uint32_t> FLimbs;  ///< The least significant first; none for zero.
};

}  // namespace vcl
