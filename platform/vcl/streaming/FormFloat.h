#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// A number of the processor's 80-bit format, as form files store it: a sign, an exponent and all 64 bits of
/// the mantissa. Kept as it is, so that no digit gets lost on compilers that know 64-bit numbers only.
struct TExtended {
    std::uint64_t Mantissa = 0;
    std::uint16_t SignAndExponent = 0;

    [[nodiscard]] static TExtended FromDouble(double value);
    /// The exact whole number.
    [[nodiscard]] static TExtended FromInteger(std::int64_t value);
    /// The nearest number of 64 bits; infinite when it is too big for them.
    [[nodiscard]] double ToDouble() const;
    /// The number as one of 64 bits when it is exactly that.
    [[nodiscard]] std::optional<double> ExactDouble() const;
    /// The number as a whole one when it is one of 64 bits.
    [[nodiscard]] std::optional<std::int64_t> ExactInteger() const;
    [[nodiscard]] bool IsNegative() const { return (SignAndExponent & 0x8000) != 0; }
    /// False for infinity, for what is not a number, and for encodings that processors do not produce.
    [[nodiscard]] bool IsFinite() const;

    friend bool operator==(const TExtended& a, const TExtended& b) = default;
};

/// The width in which a number with a fraction is stored; text form files mark all but the first by a letter.
enum class TFormFloatKind {
    Extended,  ///< 80 bits; no letter.
    Double,    ///< 64 bits; `f`.
    Single,    ///< 32 bits; `s`.
    Currency,  ///< 64 bits counting ten-thousandths; `c`.
    Date,      ///< 64 bits counting days; `d`.
};

/// A number with a fraction.
struct TFormFloat {
    TFormFloatKind Kind = TFormFloatKind::Extended;
    TExtended Value;  ///< Of a currency: its ten-thousandths.

    TFormFloat() = default;
    TFormFloat(TFormFloatKind kind, TExtended value) : Kind(kind), Value(value) {}
    explicit TFormFloat(double value) : Value(TExtended::FromDouble(value)) {}
    [[nodiscard]] double ToDouble() const;

    friend bool operator==(const TFormFloat& a, const TFormFloat& b) = default;
};

/// The text of a number: the shortest that is read back as the same number. One that is no exact 64-bit
/// number is written with 21 digits, which tells the reader to read it as precisely.
[[nodiscard]] String FormFloatToText(const TFormFloat& value);

/// Reads `[-]digits[.digits][E[+-]digits]`, with the letter of its kind or 0. Nothing when the number is too
/// big for its kind, or a currency has more than four decimals or an exponent.
[[nodiscard]] std::optional<TFormFloat> TextToFormFloat(StringView text, wchar_t letter);

}  // namespace vcl
