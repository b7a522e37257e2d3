#include "skin/utils/TransparentBitmap.h"

#include <cstring>
#include <optional>
#include <utility>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/Assertions.h"
#include "skin/utils/Tone.h"

namespace qv7skin {
namespace {

/// What the pair of raster operations makes of a pixel: what shows through the mask, and the picture.
std::uint32_t Mixed(std::uint32_t ground, const std::uint8_t* mask, const std::uint8_t* picture) {
    std::uint32_t m, p;
    std::memcpy(&m, mask, sizeof m);
    std::memcpy(&p, picture, sizeof p);
    return (ground & m) | p;
}

void MixRow(std::uint8_t* to, int pixelSize, const std::uint8_t* mask, const std::uint8_t* picture,
            int width) {
    if (pixelSize == 4) {
        for (int x = 0; x < width; ++x, to += 4, mask += 4, picture += 4) {
            std::uint32_t ground;
            std::memcpy(&ground, to, sizeof ground);
            ground = Mixed(ground, mask, picture);
            std::memcpy(to, &ground, sizeof ground);
        }
        return;
    }
    for (int x = 0; x < width; ++x, to += 3, mask += 4, picture += 4) {
        std::uint16_t low;
        std::memcpy(&low, to, sizeof low);
        const std::uint32_t mixed = Mixed(low | std::uint32_t{to[2]} << 16, mask, picture);
        low = static_cast<std::uint16_t>(mixed);
        std::memcpy(to, &low, sizeof low);
        to[2] = static_cast<std::uint8_t>(mixed >> 16);
    }
}

/// Does in the memory of a bitmap what copying first the mask, then the picture does on any canvas.
void MixInto(const TDirectBits& target, const TConstBitmapBits& mask, const TConstBitmapBits& picture,
             const TRect& dest, const TRect& source) {
    const int dx = dest.Left - source.Left, dy = dest.Top - source.Top;
    TRect area = source.Intersect({0, 0, picture.Width, picture.Height});
    area.Offset(dx, dy);
    area = area.Intersect(target.Clip);
    for (int y = area.Top; y < area.Bottom; ++y)
        MixRow(target.Bits.Pixel(area.Left, y), target.Bits.BytesPerPixel, mask.Pixel(area.Left - dx, y - dy),
               picture.Pixel(area.Left - dx, y - dy), area.Width());
}

}  // namespace

TTransparentBitmap::TTransparentBitmap(TColor ATransparentColor)
    : FBitmap(std::make_unique<TBitmap>()),
      FMask(std::make_unique<TBitmap>()),
      FTransparentColor(ATransparentColor) {}

TTransparentBitmap::~TTransparentBitmap() = default;

void TTransparentBitmap::SetTransparentColor(TColor Value) {
    AssertInGraphicsUtils(GetEmpty(), L"Set TransparentColor first, then assign Bitmap", 822);
    FTransparentColor = Value;
}

void TTransparentBitmap::SetBitmap(const TBitmap* Source) {
    FBitmap->Assign(Source);
    if (!Source) return;
    FBitmap->SetPixelFormat(
        pf32bit);  // copied by raster operation, this takes a fifth of the time of 24 bits
    MakeMask();
    MakeTransparentColorBlack();
}

void TTransparentBitmap::MakeMask() {
    FMask->SetPixelFormat(pf32bit);
    FMask->SetSize(GetWidth(), GetHeight());
    const TConstBitmapBits picture = std::as_const(*FBitmap).ReadBits();
    const TBitmapBits mask = FMask->WriteBits();
    for (int y = 0; y < picture.Height; ++y)
        for (int x = 0; x < picture.Width; ++x)
            mask.SetColor(x, y, picture.GetColor(x, y) == FTransparentColor ? clWhite : clBlack);
}

void TTransparentBitmap::MakeTransparentColorBlack() {
    ReplaceColor(FBitmap.get(), FTransparentColor, clBlack);
}

int TTransparentBitmap::GetWidth() const {
    return FBitmap->GetWidth();
}

int TTransparentBitmap::GetHeight() const {
    return FBitmap->GetHeight();
}

bool TTransparentBitmap::GetEmpty() const {
    return FBitmap->GetEmpty();
}

void TTransparentBitmap::Draw(TCanvas& Canvas, int X, int Y) const {
    const int width = GetWidth(), height = GetHeight();
    CopyMasked(Canvas, TRect::OfSize(X, Y, width, height), TRect(0, 0, width, height));
}

void TTransparentBitmap::DrawCentered(TCanvas& Canvas, const TRect& Rect, int XOffset) const {
    Draw(Canvas, Rect.Left + XOffset, Rect.Top + (Rect.Height() - GetHeight()) / 2);
}

void TTransparentBitmap::DrawClipped(TCanvas& Canvas, int SourceLeft, int SourceTop,
                                     const TRect& Dest) const {
    CopyMasked(Canvas, Dest, TRect::OfSize(SourceLeft, SourceTop, GetWidth(), GetHeight()));
}

void TTransparentBitmap::CopyMasked(TCanvas& canvas, const TRect& dest, const TRect& source) const {
    if (GetEmpty()) return canvas.SetCopyMode(cmSrcPaint);
    const bool isScaled = dest.Width() != source.Width() || dest.Height() != source.Height();
    if (isScaled || !MixDirectly(canvas, dest, source)) {
        canvas.SetCopyMode(cmSrcAnd);
        canvas.CopyRect(dest, *FMask, source);
        canvas.SetCopyMode(cmSrcPaint);
        canvas.CopyRect(dest, *FBitmap, source);
    }
    canvas.SetCopyMode(cmSrcPaint);
}

bool TTransparentBitmap::MixDirectly(TCanvas& canvas, const TRect& dest, const TRect& source) const {
    const auto target = canvas.DirectBits();
    if (!target) return false;
    canvas.DrawDirectly([&](HDC) {
        MixInto(*target, std::as_const(*FMask).ReadBits(), std::as_const(*FBitmap).ReadBits(), dest, source);
    });
    return true;
}

}  // namespace qv7skin
