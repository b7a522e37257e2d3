#pragma once

#include <cstdint>
#include <initializer_list>
#include <type_traits>

namespace vcl {

/// A set of values of an enumeration whose ordinals lie between 0 and 31; a value type of one machine word.
template <class E>
class TSet {
    static_assert(std::is_enum_v<E>);

public:
    using Element = E;

    constexpr TSet() = default;
    constexpr TSet(std::initializer_list<E> elements) {
        for (const E e : elements)
            Include(e);
    }
    /// The set whose bit n stands for the element with ordinal n.
    [[nodiscard]] static constexpr TSet FromBits(std::uint32_t bits) {
        TSet result;
        result.FBits = bits;
        return result;
    }
    [[nodiscard]] constexpr std::uint32_t Bits() const { return FBits; }
    [[nodiscard]] constexpr bool Contains(E e) const { return (FBits & Bit(e)) != 0; }
    [[nodiscard]] constexpr bool ContainsAll(TSet other) const {
        return (FBits & other.FBits) == other.FBits;
    }
    [[nodiscard]] constexpr bool IsEmpty() const { return FBits == 0; }
    constexpr void Include(E e) { FBits |= Bit(e); }
    constexpr void Exclude(E e) { FBits &= ~Bit(e); }
    constexpr void Put(E e, bool present) { present ? Include(e) : Exclude(e); }

    friend constexpr TSet operator+(TSet a, TSet b) { return FromBits(a.FBits | b.FBits); }
    friend constexpr TSet operator-(TSet a, TSet b) { return FromBits(a.FBits & ~b.FBits); }
    friend constexpr TSet operator*(TSet a, TSet b) { return FromBits(a.FBits & b.FBits); }
    friend constexpr bool operator==(TSet a, TSet b) = default;

private:
    static constexpr std::uint32_t Bit(E e) { return std::uint32_t{1} << static_cast<unsigned>(e); }
    std::uint32_t FBits = 0;
};

}  // namespace vcl
