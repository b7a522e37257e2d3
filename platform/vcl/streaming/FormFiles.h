#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

enum class TFormFormat { Text, Binary };

/// Reads a form file of either format, which its first bytes tell. Raises EFormError.
[[nodiscard]] TFormDocument ParseForm(std::span<const std::byte> bytes, const String& fileName = {});
/// The same from a file; raises EFOpenError when it can't be opened.
[[nodiscard]] TFormDocument LoadFormFile(const String& fileName);

/// The bytes of a form file. A text with letters beyond ASCII in its names begins with the mark of UTF-8.
[[nodiscard]] std::vector<std::byte> FormToBytes(const TFormDocument& document, TFormFormat format);
/// Writes a form file; raises EFCreateError when it can't be made.
void SaveFormFile(const TFormDocument& document, const String& fileName, TFormFormat format);

}  // namespace vcl
