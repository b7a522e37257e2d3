#include "platform/vcl/core/Strings.h"

#include "platform/vcl/core/WindowsApi.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>

namespace vcl {
namespace {

constexpr wchar_t Replacement = 0xFFFD;

/// Windows counts in int; the texts of a user interface are far below that.
int LengthOf(StringView text) {
    return static_cast<int>(text.size());
}

constexpr wchar_t AsciiUpper(wchar_t c) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - (L'a' - L'A')) : c;
}

String MapCase(StringView text, DWORD mapping) {
    String result(text);
    if (!result.empty())
        LCMapStringW(LOCALE_INVARIANT, mapping, text.data(), LengthOf(text), result.data(), LengthOf(text));
    return result;
}

std::optional<unsigned> DigitValue(wchar_t c, unsigned base) {
    unsigned value = base;
    if (c >= L'0' && c <= L'9')
        value = c - L'0';
    else if (const wchar_t upper = AsciiUpper(c); upper >= L'A' && upper <= L'F')
        value = upper - L'A' + 10;
    return value < base ? std::optional(value) : std::nullopt;
}

std::optional<std::uint64_t> ParseDigits(StringView digits, unsigned base) {
    if (digits.empty()) return std::nullopt;
    std::uint64_t result = 0;
    for (const wchar_t c : digits) {
        const auto digit = DigitValue(c, base);
        if (!digit || result > (std::numeric_limits<std::uint64_t>::max() - *digit) / base)
            return std::nullopt;
        result = result * base + *digit;
    }
    return result;
}

/// Takes `prefix` off the front of the text, ignoring case; false when it does not stand there.
bool SkipPrefix(StringView& text, StringView prefix) {
    if (!SameText(text.substr(0, prefix.size()), prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// The bytes that the UTF-8 sequence at the front of `text` takes, and its code point; a malformed one counts
/// for as many bytes as can't be the start of another sequence.
struct TDecoded {
    char32_t Code;
    std::size_t Length;
};

TDecoded DecodeUtf8(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 && lead <= 0xF4  ? 4
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xC2 && lead < 0xE0 ? 2
                                                             : 0;
    if (length == 0) return {Replacement, 1};
    // The second byte's limits exclude overlong forms, surrogates and what lies above U+10FFFF.
    const unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    char32_t code = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= text.size()) return {Replacement, i};
        const unsigned next = byte(i);
        if (next < (i == 1 ? low : 0x80u) || next > (i == 1 ? high : 0xBFu)) return {Replacement, i};
        code = (code << 6) | (next & 0x3F);
    }
    return {code, length};
}

}  // namespace

String FromUtf8(std::string_view text) {
    String result;
    result.reserve(text.size());
    while (!text.empty()) {
        const TDecoded decoded = DecodeUtf8(text);
        if (decoded.Code >= 0x10000) {
            result += static_cast<wchar_t>(0xD7C0 + (decoded.Code >> 10));
            result += static_cast<wchar_t>(0xDC00 + (decoded.Code & 0x3FF));
        } else {
            result += static_cast<wchar_t>(decoded.Code);
        }
        text.remove_prefix(decoded.Length);
    }
    return result;
}

std::string ToUtf8(StringView text) {
    std::string result;
    result.reserve(text.size());
    const auto tail = [&result](char32_t code, int shift) {
        result += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (code >= 0xD800 && code < 0xE000) {
            const bool paired =
                code < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
            code = paired ? 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00) : Replacement;
        }
        if (code < 0x80) {
            result += static_cast<char>(code);
        } else if (code < 0x800) {
            result += static_cast<char>(0xC0 | (code >> 6));
            tail(code, 0);
        } else if (code < 0x10000) {
            result += static_cast<char>(0xE0 | (code >> 12));
            tail(code, 6);
            tail(code, 0);
        } else {
            result += static_cast<char>(0xF0 | (code >> 18));
            tail(code, 12);
            tail(code, 6);
            tail(code, 0);
        }
    }
    return result;
}

bool SameText(StringView a, StringView b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] == b[i]) continue;
        if (a[i] >= 0x80 || b[i] >= 0x80)
            return CompareStringOrdinal(a.data() + i, LengthOf(a) - static_cast<int>(i), b.data() + i,
                                        LengthOf(b) - static_cast<int>(i), TRUE) == CSTR_EQUAL;
        if (AsciiUpper(a[i]) != AsciiUpper(b[i])) return false;
    }
    return true;
}

int CompareText(StringView a, StringView b) {
    if (a.empty() || b.empty()) return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
    return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, a.data(), LengthOf(a), b.data(),
                          LengthOf(b)) -
           CSTR_EQUAL;
}

String Trim(StringView text) {
    while (!text.empty() && text.front() <= L' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() <= L' ')
        text.remove_suffix(1);
    return String(text);
}

String UpperCase(StringView text) {
    return MapCase(text, LCMAP_UPPERCASE);
}

String LowerCase(StringView text) {
    return MapCase(text, LCMAP_LOWERCASE);
}

String IntToStr(std::int64_t value) {
    std::array<char, 24> digits;
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), end};
}

std::int64_t StrToIntDef(StringView text, std::int64_t fallback) {
    constexpr std::uint64_t greatest = std::numeric_limits<std::int64_t>::max();
    while (!text.empty() && text.front() <= L' ')
        text.remove_prefix(1);
    const bool negative = SkipPrefix(text, L"-");
    if (!negative) SkipPrefix(text, L"+");
    const bool hexadecimal = SkipPrefix(text, L"$") || SkipPrefix(text, L"0x");
    const auto digits = ParseDigits(text, hexadecimal ? 16 : 10);
    if (!digits) return fallback;
    // All 64 bits may be written in hexadecimal, as colours with their system flag are.
    if (!hexadecimal && *digits > greatest + (negative ? 1 : 0)) return fallback;
    return static_cast<std::int64_t>(negative ? 0 - *digits : *digits);
}

std::vector<String> SplitLines(StringView text) {
    std::vector<String> lines;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(L"\r\n");
        lines.emplace_back(text.substr(0, end));
        if (end == StringView::npos) break;
        const bool pair = text[end] == L'\r' && end + 1 < text.size() && text[end + 1] == L'\n';
        text.remove_prefix(end + (pair ? 2 : 1));
    }
    return lines;
}

}  // namespace vcl
