#include "skin/utils/OneShotDrawing.h"

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/RasterSteps.h"

namespace qv7skin {

void DrawTransparentBitmap(TCanvas& Canvas, TBitmap* Bitmap, int X, int Y, TColor TransparentColor) {
    DrawTransparentBitmap(Canvas, Bitmap, X, Y, 0, 0, TransparentColor);
}

void DrawTransparentBitmap(TCanvas& Canvas, TBitmap* Bitmap, int X, int Y, int Width, int Height,
                           TColor TransparentColor) {
    if (!Bitmap || Bitmap->GetEmpty()) return;
    DrawTransparentSteps(Canvas.GetHandle(), Bitmap->GetHandle(), X, Y, Width, Height,
                         ColorToRGB(TransparentColor));
}

}  // namespace qv7skin
