#include "platform/vcl/streaming/BigNatural.h"

#include <bit>

namespace vcl {

TBigNatural::TBigNatural(std::uint64_t value) {
    for (; value != 0; value >>= 32)
        FLimbs.push_back(static_cast<std::uint32_t>(value));
}

void TBigNatural::Trim() {
    while (!FLimbs.empty() && FLimbs.back() == 0)
        FLimbs.pop_back();
}

void TBigNatural::Multiply(std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : FLimbs) {
        carry += std::uint64_t{limb} * factor;
        limb = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
    if (carry != 0) FLimbs.push_back(static_cast<std::uint32_t>(carry));
    Trim();
}

void TBigNatural::MultiplyByPowerOfTen(unsigned power) {
    for (; power >= 9; power -= 9)
        Multiply(1'000'000'000);
    for (; power > 0; --power)
        Multiply(10);
}

void TBigNatural::Add(std::uint32_t value) {
    std::uint64_t carry = value;
    for (std::size_t i = 0; carry != 0; ++i) {
        if (i == FLimbs.size()) FLimbs.push_back(0);
        carry += FLimbs[i];
        FLimbs[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
}

void TBigNatural::Subtract(const TBigNatural& other) {
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < FLimbs.size() && (i < other.FLimbs.size() || borrow != 0); ++i) {
        const std::uint64_t taken = (i < other.FLimbs.size() ? other.FLimbs[i] : 0) + borrow;
        borrow = taken > FLimbs[i] ? 1 : 0;
        FLimbs[i] = static_cast<std::uint32_t>(FLimbs[i] - taken);
    }
    Trim();
}

void TBigNatural::ShiftLeft(unsigned bits) {
    if (FLimbs.empty()) return;
    const unsigned small = bits % 32;
    if (small != 0) {
        FLimbs.push_back(0);
        for (std::size_t i = FLimbs.size() - 1; i > 0; --i)
            FLimbs[i] = FLimbs[i] << small | FLimbs[i - 1] >> (32 - small);
        FLimbs[0] <<= small;
    }
    FLimbs.insert(FLimbs.begin(), bits / 32, 0);
    Trim();
}

unsigned TBigNatural::BitLength() const {
    if (FLimbs.empty()) return 0;
    const auto top = static_cast<unsigned>(std::bit_width(FLimbs.back()));
    return static_cast<unsigned>(FLimbs.size() - 1) * 32 + top;
}

int TBigNatural::Compare(const TBigNatural& other) const {
    if (FLimbs.size() != other.FLimbs.size()) return FLimbs.size() < other.FLimbs.size() ? -1 : 1;
    for (std::size_t i = FLimbs.size(); i-- > 0;) {
        if (FLimbs[i] != other.FLimbs[i]) return FLimbs[i] < other.FLimbs[i] ? -1 : 1;
    }
    return 0;
}

}  // namespace vcl
