#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
}

namespace qv7skin {

/// Copies the rectangle of `source` to (x, y) of `dest` and fades it toward the colour: each component
/// becomes (1 - alpha) of the colour's and alpha of the source's, rounded to the nearest, ties to even. An
/// alpha of 1 or more copies. Both bitmaps get 24 bits per pixel when fading; what lies outside of either is
/// left out.
void Fade(TBitmap& dest, TColor color, int x, int y, long double alpha, TBitmap& source,
          const TRect& sourceRect);

}  // namespace qv7skin
