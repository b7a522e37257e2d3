#pragma once

#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
}

namespace qv7skin {

/// Lightens every pixel of the bitmap: each component moves toward 255 by `Percent` of the way (100 and more:
/// all of it), rounded to the nearest, ties to even. Null and empty bitmaps stay as they are.
void DimBitmap(TBitmap* Bitmap, int Percent);

/// Turns every pixel grey: 255 less `Percent` hundredths (at most 100) of what the components' average lacks
/// of 255, and never lighter than 240. Black pixels before the first other pixel of the top row stay black.
/// Null and empty bitmaps stay as they are.
void GrayBitmap(TBitmap* Bitmap, int Percent);
/// The same, but leaves pixels of the colour `TransparentColor` as they are. The colour is compared as it
/// stands: a system colour equals no pixel.
void GrayBitmap(TBitmap* Bitmap, int Percent, TColor TransparentColor);

/// Gives all pixels of the colour `OldColor`, which is compared as it stands, the colour `NewColor`.
void ReplaceColor(TBitmap* Bitmap, TColor OldColor, TColor NewColor);

}  // namespace qv7skin
