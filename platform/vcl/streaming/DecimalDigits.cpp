#include "platform/vcl/streaming/DecimalDigits.h"

#include "platform/vcl/streaming/BigNatural.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vcl {
namespace {

// The value of an 80-bit number is its mantissa, taken as a whole number, times two to the power of its
// exponent field less this.
constexpr int Bias = 16383 + 63;
constexpr int InfiniteExponent = 0x7FFF;
// Beyond these powers of ten every number is too big, or too small to differ from zero.
constexpr int GreatestDecimal = 4932;
constexpr int SmallestDecimal = -4951;

void RoundUp(TDecimal& decimal) {
    auto digit = decimal.Digits.rbegin();
    while (digit != decimal.Digits.rend() && *digit == '9')
        *digit++ = '0';
    if (digit != decimal.Digits.rend()) {
        ++*digit;
        return;
    }
    decimal.Digits.front() = '1';
    ++decimal.Exponent;
}

/// The quotient of 64 bits of two numbers whose ratio is below 2 to the 64th, rounded half to even; 0 with
/// `overflow` set when rounding reaches 2 to the 64th.
std::uint64_t RoundedQuotient(TBigNatural numerator, TBigNatural denominator, bool& overflow) {
    denominator.ShiftLeft(63);
    std::uint64_t quotient = 0;
    for (int bit = 0; bit < 64; ++bit) {
        quotient <<= 1;
        if (numerator.Compare(denominator) >= 0) {
            numerator.Subtract(denominator);
            quotient |= 1;
        }
        numerator.ShiftLeft(1);
    }
    // What is left is the double of the remainder.
    const int half = numerator.Compare(denominator);
    overflow = false;
    if (half > 0 || (half == 0 && (quotient & 1) != 0)) overflow = ++quotient == 0;
    return quotient;
}

}  // namespace

TDecimal ExtendedToDecimal(const TExtended& value, int digits) {
    TDecimal result;
    result.Negative = value.IsNegative();
    if (value.Mantissa == 0) return result;

    const int power = std::max(value.SignAndExponent & 0x7FFF, 1) - Bias;
    TBigNatural numerator(value.Mantissa);
    TBigNatural denominator(1);
    (power > 0 ? numerator : denominator).ShiftLeft(static_cast<unsigned>(std::abs(power)));

    const int bits = static_cast<int>(std::bit_width(value.Mantissa)) - 1 + power;
    result.Exponent = static_cast<int>(std::floor(bits * 0.30102999566398120));
    (result.Exponent > 0 ? denominator : numerator)
        .MultiplyByPowerOfTen(static_cast<unsigned>(std::abs(result.Exponent)));
    TBigNatural tenfold = denominator;
    tenfold.Multiply(10);
    if (numerator.Compare(tenfold) >= 0) {
        denominator = tenfold;
        ++result.Exponent;
    }

    for (int i = 0; i < digits; ++i) {
        char digit = '0';
        while (numerator.Compare(denominator) >= 0) {
            numerator.Subtract(denominator);
            ++digit;
        }
        result.Digits += digit;
        numerator.Multiply(10);
    }
    denominator.Multiply(5);
    const int half = numerator.Compare(denominator);
    if (half > 0 || (half == 0 && (result.Digits.back() & 1) != 0)) RoundUp(result);
    return result;
}

std::optional<TExtended> DecimalToExtended(const TDecimal& decimal) {
    TExtended result;
    result.SignAndExponent = decimal.Negative ? 0x8000 : 0;
    if (decimal.Digits.empty() || decimal.Exponent < SmallestDecimal) return result;
    if (decimal.Exponent > GreatestDecimal) return std::nullopt;

    TBigNatural numerator(0);
    for (const char digit : decimal.Digits) {
        numerator.Multiply(10);
        numerator.Add(static_cast<std::uint32_t>(digit - '0'));
    }
    TBigNatural denominator(1);
    const int scale = decimal.Exponent - static_cast<int>(decimal.Digits.size()) + 1;
    (scale > 0 ? numerator : denominator).MultiplyByPowerOfTen(static_cast<unsigned>(std::abs(scale)));

    // Shifted so that the quotient has 64 bits; fewer for the smallest numbers.
    int power = static_cast<int>(numerator.BitLength()) - static_cast<int>(denominator.BitLength()) - 64;
    const auto fits = [&](int candidate) {
        TBigNatural shiftedNumerator = numerator;
        TBigNatural limit = denominator;
        if (candidate < 0) shiftedNumerator.ShiftLeft(static_cast<unsigned>(-candidate));
        limit.ShiftLeft(64 + static_cast<unsigned>(std::max(candidate, 0)));
        return shiftedNumerator.Compare(limit) < 0;
    };
    if (!fits(power)) ++power;
    power = std::max(power, 1 - Bias);
    (power > 0 ? denominator : numerator).ShiftLeft(static_cast<unsigned>(std::abs(power)));

    bool overflow = false;
    result.Mantissa = RoundedQuotient(std::move(numerator), std::move(denominator), overflow);
    if (overflow) {
        result.Mantissa = std::uint64_t{1} << 63;
        ++power;
    }
    const bool normal = (result.Mantissa >> 63) != 0;
    const int exponent = normal ? power + Bias : 0;
    if (exponent >= InfiniteExponent) return std::nullopt;
    result.SignAndExponent = static_cast<std::uint16_t>(result.SignAndExponent | exponent);
    return result;
}

}  // namespace vcl
