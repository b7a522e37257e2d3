#include "platform/vcl/graphics/ImageList.h"

// How an image list draws. Plain images are copied from the strip that holds them; mixed ones (selected,
// disabled, on a ground of their own) are put together in a small bitmap first.

namespace vcl {
namespace {

constexpr int FocusWeight = 64;      // a quarter of 255
constexpr int SelectedWeight = 128;  // a half

/// A light grey, the darker the colour the darker.
TColor Greyed(TColor color) {
    const int lightness = (77 * RedOf(color) + 151 * GreenOf(color) + 28 * BlueOf(color)) / 256;
    const auto grey = static_cast<std::uint8_t>(128 + lightness / 2);
    return RGBToColor(grey, grey, grey);
}

bool HasBit(const std::uint8_t* row, int x) {
    return (row[x / 8] & 0x80 >> x % 8) != 0;
}

}  // namespace

bool TCustomImageList::IsMasked(int index) const {
    return Has(index) && FMasked[static_cast<std::size_t>(index)];
}

bool TCustomImageList::GetBitmap(int index, TBitmap& bitmap) const {
    if (!Has(index)) return false;
    bitmap.SetSize(FWidth, FHeight);
    if (IsMasked(index)) bitmap.GetCanvas().FillRect({0, 0, FWidth, FHeight});
    Draw(bitmap.GetCanvas(), 0, 0, index, FDrawingStyle == dsNormal ? dsNormal : dsTransparent);
    return true;
}

void TCustomImageList::Draw(TCanvas& canvas, int x, int y, int index, bool enabled) const {
    Draw(canvas, x, y, index, FDrawingStyle, enabled);
}

void TCustomImageList::Draw(TCanvas& canvas, int x, int y, int index, TDrawingStyle style,
                            bool enabled) const {
    if (!Has(index)) return;
    const bool mixed = !enabled || style == dsSelected || style == dsFocus;
    const bool grounded = style == dsNormal && FBkColor != clNone && IsMasked(index);
    const TRect dest = TRect::OfSize(x, y, FWidth, FHeight);
    canvas.DrawDirectly([&](HDC) {
        if (mixed || grounded)
            Compose(canvas, x, y, index, style, enabled);
        else
            DrawPixels(canvas, dest, FImages, RectOf(index), index);
    });
}

/// Copies pixels that are black where the image is transparent.
void TCustomImageList::DrawPixels(TCanvas& canvas, const TRect& dest, const TBitmap& source,
                                  const TRect& part, int index) const {
    if (!IsMasked(index)) {
        canvas.CopyFrom(dest, source.GetSourceDC(), part, cmSrcCopy);
        return;
    }
    const HDC mask = FMasks.GetSourceDC();
    const HDC pixels = source.GetSourceDC();
    canvas.CopyFrom(dest, mask, RectOf(index), cmSrcAnd);
    canvas.CopyFrom(dest, pixels, part, cmSrcPaint);
}

/// Puts a mixed image together and draws it.
void TCustomImageList::Compose(TCanvas& canvas, int x, int y, int index, TDrawingStyle style,
                               bool enabled) const {
    const TRect all{0, 0, FWidth, FHeight};
    const TRect dest = TRect::OfSize(x, y, FWidth, FHeight);
    const int weight = style == dsSelected ? SelectedWeight : style == dsFocus ? FocusWeight : 0;
    const bool withBeneath = weight && FBlendColor == clNone;
    const bool grounded = style == dsNormal && FBkColor != clNone;
    FScratch.SetPixelFormat(pf32bit);
    FScratch.SetSize(FWidth, FHeight);
    if (withBeneath) FScratch.GetCanvas().CopyFrom(all, canvas.GetSourceHandle(), dest, cmSrcCopy);

    const TColor blend = ColorToRGB(FBlendColor == clDefault ? clHighlight : FBlendColor);
    const TColor ground = grounded ? ColorToRGB(FBkColor) : clBlack;
    const TConstBitmapBits image = FImages.ReadBits();
    const TBitmapBits mixed = FScratch.WriteBits();
    for (int row = 0; row < FHeight; ++row) {
        const int stripRow = index * FHeight + row;
        const auto* mask =
            IsMasked(index) ? static_cast<const std::uint8_t*>(FMasks.ScanLine(stripRow)) : nullptr;
        for (int column = 0; column < FWidth; ++column) {
            TColor color = image.GetColor(column, stripRow);
            if (!enabled) color = Greyed(color);
            if (weight) color = BlendColors(color, withBeneath ? mixed.GetColor(column, row) : blend, weight);
            mixed.SetColor(column, row, mask && HasBit(mask, column) ? ground : color);
        }
    }
    if (grounded)
        canvas.CopyFrom(dest, FScratch.GetSourceDC(), all, cmSrcCopy);
    else
        DrawPixels(canvas, dest, FScratch, all, index);
}

}  // namespace vcl
