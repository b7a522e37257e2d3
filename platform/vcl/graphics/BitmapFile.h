#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/vcl/graphics/BitmapImage.h"

// Windows bitmap files: https://learn.microsoft.com/windows/win32/gdi/bitmap-storage

namespace vcl {

/// Decodes a whole file: 1, 4, 8, 16, 24 or 32 bits, bottom-up or top-down, run-length encoded or with
/// channel masks, with any of the known headers. Formats that bitmaps have stay, unusual channel masks become
/// 32 bits. Raises EInvalidGraphic "Bitmap image is not valid" when anything is wrong or missing.
[[nodiscard]] TSharedImage DecodeBitmapFile(std::span<const std::byte> bytes);

/// Decodes a bitmap without its file header, as resources hold it.
[[nodiscard]] TSharedImage DecodeDib(std::span<const std::byte> bytes);

/// The bytes of a file, uncompressed and bottom-up.
[[nodiscard]] std::vector<std::byte> EncodeBitmapFile(const TBitmapImage& image);

}  // namespace vcl
