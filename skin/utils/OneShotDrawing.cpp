#include "skin/utils/OneShotDrawing.h"

#include <utility>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/KeyedCopy.h"
#include "skin/utils/RasterSteps.h"

namespace qv7skin {

void DrawTransparentBitmap(TCanvas& Canvas, TBitmap* Bitmap, int X, int Y, TColor TransparentColor) {
    DrawTransparentBitmap(Canvas, Bitmap, X, Y, 0, 0, TransparentColor);
}

void DrawTransparentBitmap(TCanvas& Canvas, TBitmap* Bitmap, int X, int Y, int Width, int Height,
                           TColor TransparentColor) {
    if (!Bitmap || Bitmap->GetEmpty()) return;
    if (&Canvas == &Bitmap->GetCanvas()) {
        TBitmap copy;
        copy.Assign(Bitmap);
        DrawTransparentBitmap(Canvas, &copy, X, Y, Width, Height, TransparentColor);
        return;
    }
    const TColor transparent = ColorToRGB(TransparentColor);
    const TRect dest =
        TRect::OfSize(X, Y, Width ? Width : Bitmap->GetWidth(), Height ? Height : Bitmap->GetHeight());
    const bool isPlain = Bitmap->HasByteBits() && Width >= 0 && Height >= 0;
    Canvas.DrawDirectly([&](HDC dc) {
        // Between two bitmaps in memory this makes the pixels that the raster operations would make.
        if (isPlain && CopyKeyed(Canvas, dest, std::as_const(*Bitmap).ReadBits(), transparent)) return;
        DrawTransparentSteps(dc, Bitmap->GetHandle(), X, Y, Width, Height, transparent);
    });
}

}  // namespace qv7skin
