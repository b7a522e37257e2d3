#include "platform/vcl/streaming/FormFloat.h"

#include "platform/vcl/streaming/DecimalDigits.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <string>

namespace vcl {
namespace {

constexpr int CurrencyDecimals = 4;
constexpr double CurrencyScale = 10000;
/// The digits that any 64-bit number needs at most, and those that any 80-bit number needs.
constexpr int DoubleDigits = 17;
constexpr int ExtendedDigits = 21;
/// Powers of ten beyond it make no difference: everything there is too big or zero.
constexpr int PowerLimit = 1'000'000;

/// The decimal number that a text of the form `[-]digits[.digits][E[+-]digits]` stands for, with all digits
/// written behind the first that is not zero.
TDecimal ParseDecimal(StringView text) {
    TDecimal result;
    result.Negative = !text.empty() && text.front() == L'-';
    if (result.Negative) text.remove_prefix(1);
    const std::size_t end = std::min(text.find_first_of(L"eE"), text.size());
    const std::size_t point = std::min(text.find(L'.'), end);
    for (const wchar_t c : text.substr(0, end)) {
        if (c != L'.') result.Digits += static_cast<char>(c);
    }
    const std::size_t first = std::min(result.Digits.find_first_not_of('0'), result.Digits.size());
    result.Digits.erase(0, first);
    const StringView power = text.substr(std::min(end + 1, text.size()));
    const bool negativePower = !power.empty() && power.front() == L'-';
    const std::int64_t number =
        power.empty() ? 0 : StrToIntDef(power, negativePower ? -PowerLimit : PowerLimit);
    result.Exponent = static_cast<int>(std::clamp<std::int64_t>(number, -PowerLimit, PowerLimit)) +
                      static_cast<int>(point) - 1 - static_cast<int>(first);
    return result;
}

String DecimalToText(const TDecimal& decimal) {
    String digits(decimal.Digits.begin(), decimal.Digits.end());
    if (digits.empty()) digits = L"0";
    int exponent = decimal.Digits.empty() ? 0 : decimal.Exponent;
    String power;
    // Plain notation as long as the zeros that it fills up do not look like digits of precision.
    constexpr int leastPlain = -5;
    constexpr int greatestPlain = DoubleDigits - 2;
    if (exponent < leastPlain || exponent > greatestPlain) {
        power = L"E" + IntToStr(exponent);
        exponent = 0;
    }
    if (exponent < 0) {
        digits.insert(0, static_cast<std::size_t>(-exponent), L'0');
        exponent = 0;
    }
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < whole + 1) digits.append(whole + 1 - digits.size(), L'0');
    digits.insert(whole, 1, L'.');
    return (decimal.Negative ? L"-" : L"") + digits + power;
}

/// The shortest text that is read back as the same number of that type.
template <class T>
String Shortest(T value) {
    char buffer[64];
    const auto end =
        std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::scientific);
    TDecimal decimal = ParseDecimal(String(buffer, end.ptr));
    while (!decimal.Digits.empty() && decimal.Digits.back() == '0')
        decimal.Digits.pop_back();
    decimal.Negative = std::signbit(value);
    return DecimalToText(decimal);
}

template <class T>
std::optional<T> Parse(StringView text) {
    const std::string ascii(text.begin(), text.end());
    T value = 0;
    const auto end = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    return end.ec == std::errc() ? std::optional(value) : std::nullopt;
}

String CurrencyToText(std::int64_t count) {
    const bool negative = count < 0;
    String digits =
        std::to_wstring(negative ? 0 - static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count));
    if (digits.size() <= CurrencyDecimals) digits.insert(0, CurrencyDecimals + 1 - digits.size(), L'0');
    digits.insert(digits.size() - CurrencyDecimals, 1, L'.');
    while (digits.back() == L'0' && digits[digits.size() - 2] != L'.')
        digits.pop_back();
    return (negative ? L"-" : L"") + digits;
}

std::optional<std::int64_t> TextToCurrency(StringView text) {
    if (text.find_first_of(L"eE") != StringView::npos) return std::nullopt;
    const std::size_t point = text.find(L'.');
    const std::size_t decimals = point == StringView::npos ? 0 : text.size() - point - 1;
    if (decimals > CurrencyDecimals) return std::nullopt;
    std::string digits;
    for (const wchar_t c : text) {
        if (c != L'.') digits += static_cast<char>(c);
    }
    digits.append(CurrencyDecimals - decimals, '0');
    std::int64_t count = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), count);
    return end.ec == std::errc() ? std::optional(count) : std::nullopt;
}

std::optional<TExtended> TextToExtended(StringView text) {
    const TDecimal decimal = ParseDecimal(text);
    if (decimal.Digits.size() <= DoubleDigits) {
        if (const auto value = Parse<double>(text)) return TExtended::FromDouble(*value);
    }
    return DecimalToExtended(decimal);
}

template <class T>
std::optional<TExtended> TextToNarrow(StringView text) {
    const auto value = Parse<T>(text);
    return value ? std::optional(TExtended::FromDouble(*value)) : std::nullopt;
}

}  // namespace

TExtended TExtended::FromDouble(double value) {
    constexpr int bias = 16383 + 63;
    TExtended result;
    result.SignAndExponent = std::signbit(value) ? 0x8000 : 0;
    if (value == 0) return result;
    if (!std::isfinite(value)) {
        result.SignAndExponent |= 0x7FFF;
        result.Mantissa = std::uint64_t{1} << 63 | (std::isnan(value) ? 1 : 0);
        return result;
    }
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    // Every 64-bit number is a normal one here: the exponent's range is so much greater.
    result.Mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53)) << 11;
    result.SignAndExponent = static_cast<std::uint16_t>(result.SignAndExponent | (exponent - 64 + bias));
    return result;
}

TExtended TExtended::FromInteger(std::int64_t value) {
    if (value == 0) return {};
    TExtended result;
    result.Mantissa = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    const int shift = std::countl_zero(result.Mantissa);
    result.Mantissa <<= shift;
    result.SignAndExponent = static_cast<std::uint16_t>((value < 0 ? 0x8000 : 0) | (16383 + 63 - shift));
    return result;
}

double TExtended::ToDouble() const {
    const int exponent = SignAndExponent & 0x7FFF;
    const double magnitude = std::ldexp(static_cast<double>(Mantissa), exponent - 16383 - 63);
    return IsNegative() ? -magnitude : magnitude;
}

std::optional<double> TExtended::ExactDouble() const {
    const double value = ToDouble();
    return FromDouble(value) == *this ? std::optional(value) : std::nullopt;
}

std::optional<std::int64_t> TExtended::ExactInteger() const {
    const int shift = 16383 + 63 - (SignAndExponent & 0x7FFF);
    if (Mantissa == 0) return 0;
    if (shift < 0 || shift > 63) return std::nullopt;
    const std::uint64_t magnitude = Mantissa >> shift;
    const std::uint64_t limit = std::uint64_t{1} << 63;
    if (magnitude << shift != Mantissa || magnitude > limit || (magnitude == limit && !IsNegative()))
        return std::nullopt;
    return static_cast<std::int64_t>(IsNegative() ? 0 - magnitude : magnitude);
}

bool TExtended::IsFinite() const {
    const int exponent = SignAndExponent & 0x7FFF;
    const bool leading = (Mantissa >> 63) != 0;
    return exponent != 0x7FFF && leading == (exponent != 0);
}

double TFormFloat::ToDouble() const {
    return Kind == TFormFloatKind::Currency ? Value.ToDouble() / CurrencyScale : Value.ToDouble();
}

String FormFloatToText(const TFormFloat& value) {
    switch (value.Kind) {
        case TFormFloatKind::Currency:
            return CurrencyToText(value.Value.ExactInteger().value_or(0)) + L'c';
        case TFormFloatKind::Single:
            return Shortest(static_cast<float>(value.Value.ToDouble())) + L's';
        case TFormFloatKind::Double:
            return Shortest(value.Value.ToDouble()) + L'f';
        case TFormFloatKind::Date:
            return Shortest(value.Value.ToDouble()) + L'd';
        case TFormFloatKind::Extended:
            break;
    }
    if (const auto exact = value.Value.ExactDouble()) return Shortest(*exact);
    return DecimalToText(ExtendedToDecimal(value.Value, ExtendedDigits));
}

std::optional<TFormFloat> TextToFormFloat(StringView text, wchar_t letter) {
    TFormFloat result;
    std::optional<TExtended> value;
    switch (letter) {
        case L'c':
        case L'C':
            result.Kind = TFormFloatKind::Currency;
            if (const auto count = TextToCurrency(text)) value = TExtended::FromInteger(*count);
            break;
        case L's':
        case L'S':
            result.Kind = TFormFloatKind::Single;
            value = TextToNarrow<float>(text);
            break;
        case L'f':
        case L'F':
            result.Kind = TFormFloatKind::Double;
            value = TextToNarrow<double>(text);
            break;
        case L'd':
        case L'D':
            result.Kind = TFormFloatKind::Date;
            value = TextToNarrow<double>(text);
            break;
        default:
            value = TextToExtended(text);
            break;
    }
    if (!value) return std::nullopt;
    result.Value = *value;
    return result;
}

}  // namespace vcl
