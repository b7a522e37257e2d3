#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace vcl {

/// Decodes the first picture of a file with the system's decoder for the container format: 32 bits with
/// premultiplied alpha, or 24 bits. `bitmap` changes only when that succeeds. Returns the decoder's error.
[[nodiscard]] HRESULT DecodePicture(std::span<const std::byte> bytes, const GUID& container, bool withAlpha,
                                    TBitmap& bitmap);

/// Encodes a bitmap of any format; `quality` is 1 to 100, or 0 for formats without one. Returns the encoder's
/// error.
[[nodiscard]] HRESULT EncodePicture(const TBitmap& bitmap, const GUID& container, bool withAlpha, int quality,
                                    std::vector<std::byte>& bytes);

}  // namespace vcl
