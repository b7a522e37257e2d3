#include "platform/vcl/core/TextEncoding.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vcl {
namespace {

constexpr std::array<unsigned char, 3> Utf8Mark{0xEF, 0xBB, 0xBF};
constexpr std::array<unsigned char, 2> Utf16Mark{0xFF, 0xFE};

/// What code page 1252 has in place of the control characters 0x80 to 0x9F.
constexpr std::array<wchar_t, 32> Ansi80To9F{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string_view AsText(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool StartsWith(std::span<const std::byte> bytes, std::span<const unsigned char> mark) {
    const auto matches = [](unsigned char a, std::byte b) { return std::byte{a} == b; };
    return bytes.size() >= mark.size() && std::ranges::equal(mark, bytes.first(mark.size()), matches);
}

/// Low bytes first; half a character at the end is lost.
String DecodeUtf16(std::span<const std::byte> bytes) {
    String text(bytes.size() / 2, L'\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<wchar_t>(std::to_integer<unsigned>(bytes[2 * i]) |
                                       std::to_integer<unsigned>(bytes[2 * i + 1]) << 8);
    return text;
}

}  // namespace

std::optional<String> DecodeUtf8(std::span<const std::byte> bytes) {
    const std::string_view text = AsText(bytes);
    if (std::ranges::all_of(text, [](unsigned char c) { return c < 0x80; }))
        return String(text.begin(), text.end());
    String decoded = FromUtf8(text);
    // Malformed bytes came out as replacement characters, which are encoded otherwise.
    if (ToUtf8(decoded) != text) return std::nullopt;
    return decoded;
}

String DecodeAnsi(std::span<const std::byte> bytes) {
    String text(bytes.size(), L'\0');
    std::ranges::transform(bytes, text.begin(), [](std::byte b) {
        const auto code = std::to_integer<std::size_t>(b);
        return code >= 0x80 && code < 0xA0 ? Ansi80To9F[code - 0x80] : static_cast<wchar_t>(code);
    });
    return text;
}

String DecodeText(std::span<const std::byte> bytes) {
    if (StartsWith(bytes, Utf16Mark)) return DecodeUtf16(bytes.subspan(Utf16Mark.size()));
    if (StartsWith(bytes, Utf8Mark)) bytes = bytes.subspan(Utf8Mark.size());
    if (auto text = DecodeUtf8(bytes)) return *std::move(text);
    return DecodeAnsi(bytes);
}

std::string EncodeText(StringView text) {
    std::string bytes(Utf8Mark.begin(), Utf8Mark.end());
    bytes += ToUtf8(text);
    return bytes;
}

bool IsWellFormed(StringView text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] < 0xD800 || text[i] > 0xDFFF) continue;
        const bool pair =
            text[i] < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
        if (!pair) return false;
        ++i;
    }
    return true;
}

}  // namespace vcl
