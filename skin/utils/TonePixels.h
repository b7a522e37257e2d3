#pragma once

#include <optional>

#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
}

namespace qv7skin {

/// The work of `DimBitmap`, `GrayBitmap` and `ReplaceColor` on bitmaps of any format, through the pixels of
/// the canvas. Colours that the format lacks become the nearest ones.
void DimPixels(TBitmap& bitmap, int percent);
void GrayPixels(TBitmap& bitmap, int percent, std::optional<TColor> transparent);
void ReplacePixels(TBitmap& bitmap, TColor oldColor, TColor newColor);

}  // namespace qv7skin
