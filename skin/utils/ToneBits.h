#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/vcl/graphics/BitmapBits.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// What a colour component becomes when lightened by `percent`, for each of its 256 values. Above 100 counts
/// as 100; below 0 darkens, down to black.
[[nodiscard]] std::array<std::uint8_t, 256> LighteningTable(int percent);
/// What a pixel's components become when greyed by `percent`, for each sum of the three. Above 100 counts as
/// 100; below 0 gives the lightest grey.
[[nodiscard]] std::array<std::uint8_t, 766> GreyingTable(int percent);

/// The work of `DimBitmap`, `GrayBitmap` and `ReplaceColor` in the memory of a 24- or 32-bit bitmap. The
/// fourth byte of each pixel that is written becomes 0.
void DimBits(const TBitmapBits& bits, int percent);
void GrayBits(const TBitmapBits& bits, int percent, std::optional<TColor> transparent);
void ReplaceInBits(const TBitmapBits& bits, TColor oldColor, TColor newColor);

}  // namespace qv7skin
