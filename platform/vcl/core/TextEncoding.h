#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// The text of bytes in UTF-8; nothing when they are malformed.
[[nodiscard]] std::optional<String> DecodeUtf8(std::span<const std::byte> bytes);
/// The text of bytes in the code page 1252, the same on every machine; the five bytes that it leaves open
/// become control characters.
[[nodiscard]] String DecodeAnsi(std::span<const std::byte> bytes);
/// The text of a file: UTF-16 or UTF-8 after its mark, UTF-8 also where it is well-formed; code page 1252
/// else.
[[nodiscard]] String DecodeText(std::span<const std::byte> bytes);
/// The bytes of a text file: UTF-8 after its mark.
[[nodiscard]] std::string EncodeText(StringView text);
/// True when UTF-8 can hold the text: all surrogates stand in pairs.
[[nodiscard]] bool IsWellFormed(StringView text);

}  // namespace vcl
