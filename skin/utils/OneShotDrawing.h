#pragma once

#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCanvas;
}  // namespace vcl

namespace qv7skin {

/// Draws a bitmap in its own size at (X, Y) and leaves out its pixels of the transparent colour. Needs no
/// preparation; for pictures that are drawn often `TTransparentBitmap` is faster. Null and empty bitmaps draw
/// nothing.
///
/// Raises EAssertionFailed with the message of the step that the system refused, such as "BitBlt: Copy
/// background of main dc" for a canvas that can't be read.
void DrawTransparentBitmap(TCanvas& Canvas, TBitmap* Bitmap, int X, int Y, TColor TransparentColor);
/// The same, cut to Width and Height; 0 means the bitmap's own. Nothing is scaled.
void DrawTransparentBitmap(TCanvas& Canvas, TBitmap* Bitmap, int X, int Y, int Width, int Height,
                           TColor TransparentColor);

}  // namespace qv7skin
