#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

/// True for the bytes of a binary form file, with or without the header of a resource file.
[[nodiscard]] bool IsFormBinary(std::span<const std::byte> bytes);

/// Reads a binary form file. Raises EFormError.
[[nodiscard]] TFormDocument ParseFormBinary(std::span<const std::byte> bytes, const String& fileName = {});
/// Reads the first form in the bytes, sets `length` to the number of bytes that it takes, and leaves alone
/// what follows.
[[nodiscard]] TFormDocument ParseFormBinary(std::span<const std::byte> bytes, const String& fileName,
                                            std::size_t& length);

/// Writes a binary form file. Of several ways to store a value the smallest is taken, so that writing what
/// was read from such a file gives the same bytes again. Raises EFormError for a name that is too long.
[[nodiscard]] std::vector<std::byte> FormToBinary(const TFormDocument& document);
/// Puts the header of a resource file (`RCDATA`) of that name in front of a binary form.
[[nodiscard]] std::vector<std::byte> WrapInResource(std::span<const std::byte> form, const String& name);

}  // namespace vcl
