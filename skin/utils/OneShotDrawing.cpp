#include "skin/utils/OneShotDrawing.h"

#include <optional>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/PixelBytes.h"
#include "skin/utils/RasterSteps.h"

namespace qv7skin {
namespace {

template <int ToSize, int FromSize>
void CopyOpaque(std::uint8_t* to, const std::uint8_t* from, int width, TColor transparent) {
    for (int x = 0; x < width; ++x, to += ToSize, from += FromSize)
        if (const TColor color = ReadPixel(from); color != transparent) WritePixel<ToSize>(to, color);
}

/// Copies to (x, y) what has not the transparent colour, cut to `area`.
void CopyOpaque(const TBitmapBits& to, const TConstBitmapBits& from, int x, int y, const TRect& area,
                TColor transparent) {
    WithPixelSize(to.BytesPerPixel, [&]<int ToSize>() {
        WithPixelSize(from.BytesPerPixel, [&]<int FromSize>() {
            for (int row = area.Top; row < area.Bottom; ++row)
                CopyOpaque<ToSize, FromSize>(to.Pixel(area.Left, row), from.Pixel(area.Left - x, row - y),
                                             area.Width(), transparent);
        });
    });
}

/// Draws in memory, and says whether it could: between two bitmaps of 24 or 32 bits. The pixels are those
/// that the raster operations make, for a tenth of their time.
bool DrawInMemory(TCanvas& canvas, const TBitmap& bitmap, const TRect& dest, TColor transparent) {
    if (!bitmap.HasByteBits() || dest.Width() < 0 || dest.Height() < 0) return false;
    const std::optional<TDirectBits> target = canvas.DirectBits();
    if (!target) return false;
    const TConstBitmapBits from = bitmap.ReadBits();
    const TRect area = dest.Intersect(TRect::OfSize(dest.Left, dest.Top, from.Width, from.Height))
                           .Intersect(target->Clip)
                           .Intersect({0, 0, target->Bits.Width, target->Bits.Height});
    canvas.DrawDirectly([&](HDC) { CopyOpaque(target->Bits, from, dest.Left, dest.Top, area, transparent); });
    return true;
}

}  // namespace

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
    if (!DrawInMemory(Canvas, *Bitmap, dest, transparent))
        Canvas.DrawDirectly(
            [&](HDC dc) { DrawTransparentSteps(dc, Bitmap->GetHandle(), X, Y, Width, Height, transparent); });
}

}  // namespace qv7skin
