#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vcl {

/// Text of the framework: UTF-16, as the Windows API takes it.
using String = std::wstring;
using StringView = std::wstring_view;

/// Converts UTF-8 to UTF-16; malformed bytes become U+FFFD.
[[nodiscard]] String FromUtf8(std::string_view text);
/// Converts UTF-16 to UTF-8; unpaired surrogates become U+FFFD.
[[nodiscard]] std::string ToUtf8(StringView text);

/// Equality without regard to case, by the rules of the invariant locale.
[[nodiscard]] bool SameText(StringView a, StringView b);
/// Order without regard to case in the user's locale: negative, zero or positive.
[[nodiscard]] int CompareText(StringView a, StringView b);

/// The text without leading and trailing blanks and control characters (all up to U+0020).
[[nodiscard]] String Trim(StringView text);
[[nodiscard]] String UpperCase(StringView text);
[[nodiscard]] String LowerCase(StringView text);
[[nodiscard]] String IntToStr(std::int64_t value);
/// Parses a decimal number, or a hexadecimal one after `$` or `0x`; `fallback` for anything else.
[[nodiscard]] std::int64_t StrToIntDef(StringView text, std::int64_t fallback);

/// Fills a format text with printf-like places (`%d`, `%s`, `%x`, `%.2f`, `%%`); `%s` takes a wide string.
[[nodiscard]] String Format(const wchar_t* format, ...);

/// Splits at line breaks (CR LF, CR or LF); a trailing break adds no empty line.
[[nodiscard]] std::vector<String> SplitLines(StringView text);

}  // namespace vcl
