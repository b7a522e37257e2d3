#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace vcl {

/// Text of the framework: UTF-16, as the Windows API takes it.
using String = std::wstring;
using StringView = std::wstring_view;

/// Converts UTF-8 to UTF-16; malformed bytes become U+FFFD.
[[nodiscard]] String FromUtf8(std::string_view text);
/// Converts UTF-16 to UTF-8; unpaired surrogates become U+FFFD.
[[nodiscard]] std::string ToUtf8(StringView text);

/// Equality without regard to case; the same on every machine (the system's upper-case table decides).
[[nodiscard]] bool SameText(StringView a, StringView b);
/// Order without regard to case in the user's locale: negative, zero or positive.
[[nodiscard]] int CompareText(StringView a, StringView b);

/// The text without leading and trailing blanks and control characters (all up to U+0020).
[[nodiscard]] String Trim(StringView text);
/// Upper and lower case letter by letter, the same on every machine.
[[nodiscard]] String UpperCase(StringView text);
[[nodiscard]] String LowerCase(StringView text);
[[nodiscard]] String IntToStr(std::int64_t value);
/// Parses a decimal number, or a hexadecimal one after `$` or `0x`, each with leading blanks and a sign if
/// need be; `fallback` for anything else, also for what 64 bits can't hold.
[[nodiscard]] std::int64_t StrToIntDef(StringView text, std::int64_t fallback);

/// One value for a place in a format text; made by `Format` from what it is given.
class TFormatArg {
public:
    template <class T>
    requires(std::is_integral_v<T> || std::is_enum_v<T>) TFormatArg(T value)
        : FValue(TInteger{static_cast<std::int64_t>(value), Bits(value)}) {}
    TFormatArg(double value) : FValue(value) {}
    TFormatArg(const wchar_t* text) : FValue(text ? StringView(text) : StringView()) {}
    TFormatArg(StringView text) : FValue(text) {}
    TFormatArg(const String& text) : FValue(StringView(text)) {}

private:
    friend class TFormatter;
    struct TInteger {
        std::int64_t Signed;
        std::uint64_t Unsigned;  ///< The same bits in the width of the value's type.
    };
    template <class T>
    static constexpr std::uint64_t Bits(T value) {
        if constexpr (std::is_enum_v<T>)
            return Bits(static_cast<std::underlying_type_t<T>>(value));
        else if constexpr (std::is_same_v<T, bool>)
            return value;
        else
            return static_cast<std::make_unsigned_t<T>>(value);
    }
    std::variant<TInteger, double, StringView> FValue;
};

/// Fills the places of a format text in order: `%d`, `%u`, `%x`, `%X`, `%c`, `%s`, `%f`, `%e`, `%g`, with
/// flags, width and precision as in printf, and `%%`. The decimal sign is always a point. Raises
/// EConvertError when a place and its argument do not fit or an argument is missing.
[[nodiscard]] String FormatArgs(StringView format, std::span<const TFormatArg> args);
template <class... Args>
[[nodiscard]] String Format(const wchar_t* format, const Args&... args) {
    const std::array<TFormatArg, sizeof...(Args)> list{TFormatArg(args)...};
    return FormatArgs(format, list);
}

/// Splits at line breaks (CR LF, CR or LF); a trailing break adds no empty line.
[[nodiscard]] std::vector<String> SplitLines(StringView text);

}  // namespace vcl
