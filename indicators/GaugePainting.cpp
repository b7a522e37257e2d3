#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "indicators/UnitQV7SkinGauges.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/Rounding.h"

// How a gauge draws itself. Each picture is put together in memory and copied in one step. The rectangle that
// the parts are drawn in is the bitmap without its border.

namespace qv7skin {
namespace {

TRect AreaOf(const TBitmap& bitmap) {
    return {0, 0, bitmap.GetWidth(), bitmap.GetHeight()};
}

void Fill(TCanvas& canvas, const TRect& rect, TColor color) {
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    canvas.FillRect(rect);
}

/// How many of `size` pixels stand for the percentage, without fraction.
int FillLength(int percent, int size) {
    return static_cast<int>(std::int64_t{percent} * size / 100);
}

/// Whether the sector between twelve o'clock and the ray through `start` is about a pixel wide at the rim.
bool IsThin(const TRect& disc, TPoint start) {
    const double radiusX = disc.Width() / 2.0;
    const double radiusY = disc.Height() / 2.0;
    const double x = (start.X - disc.Left) / radiusX - 1;
    const double y = (start.Y - disc.Top) / radiusY - 1;
    const double length = std::hypot(x, y);
    if (length == 0) return true;
    return std::abs(x / length * radiusX) < 1.5 && y < 0;
}

}  // namespace

void TBltBitmap::MakeLike(const TBitmap& Source) {
    SetSize(Source.GetWidth(), Source.GetHeight());
    Fill(GetCanvas(), AreaOf(*this), clWindowFrame);
}

void TQV7SkinGauge::Paint() {
    TBitmap image;
    image.SetSize(GetWidth(), GetHeight());
    Compose(image);
    GetCanvas().SetCopyMode(cmSrcCopy);
    GetCanvas().Draw(0, 0, &image);
}

void TQV7SkinGauge::PaintTo(TCanvas& Canvas, const TRect& Rect) {
    TBitmap image;
    image.SetSize(std::max(Rect.Width(), 0), std::max(Rect.Height(), 0));
    Compose(image);
    const TCopyMode former = Canvas.GetCopyMode();
    Canvas.SetCopyMode(cmSrcCopy);
    Canvas.Draw(Rect.Left, Rect.Top, &image);
    Canvas.SetCopyMode(former);
}

void TQV7SkinGauge::Compose(TBitmap& Image) const {
    if (Image.GetEmpty()) return;
    PaintBackground(Image);
    TRect rect = AreaOf(Image);
    if (FBorderStyle == bsSingle) rect.Inflate(-1, -1);
    if (rect.IsEmpty()) return;
    switch (FKind) {
        case gkText:
            PaintAsNothing(Image, rect);
            break;
        case gkHorizontalBar:
        case gkVerticalBar:
            PaintAsBar(Image, rect);
            break;
        case gkPie:
            PaintAsPie(Image, rect);
            break;
        case gkNeedle:
            PaintAsNeedle(Image, rect);
            break;
    }
    if (FShowText) PaintAsText(Image, rect);
}

/// Black: what is not painted over is the border.
void TQV7SkinGauge::PaintBackground(TBitmap& Image) const {
    TCanvas& canvas = Image.GetCanvas();
    canvas.SetCopyMode(cmBlackness);
    canvas.CopyRect(AreaOf(Image), canvas, AreaOf(Image));
    canvas.SetCopyMode(cmSrcCopy);
}

/// White letters on black turn each pixel below into its inverse.
void TQV7SkinGauge::PaintAsText(TBitmap& Image, const TRect& Rect) const {
    const String text = GetTextToPaint();
    if (text.empty()) return;
    TBltBitmap letters;
    letters.MakeLike(Image);
    PaintBackground(letters);
    TCanvas& canvas = letters.GetCanvas();
    canvas.GetBrush().SetStyle(bsClear);
    canvas.SetFont(GetFont());
    canvas.GetFont().SetColor(clWhite);
    const TSize size = canvas.TextExtent(text);
    canvas.TextOut(Rect.Left + (Rect.Width() - size.Width) / 2, Rect.Top + (Rect.Height() - size.Height) / 2,
                   text);
    Image.GetCanvas().SetCopyMode(cmSrcInvert);
    Image.GetCanvas().CopyRect(AreaOf(Image), canvas, AreaOf(Image));
    Image.GetCanvas().SetCopyMode(cmSrcCopy);
}

void TQV7SkinGauge::PaintAsNothing(TBitmap& Image, const TRect& Rect) const {
    Fill(Image.GetCanvas(), Rect, FBackColor);
}

void TQV7SkinGauge::PaintAsBar(TBitmap& Image, const TRect& Rect) const {
    Fill(Image.GetCanvas(), Rect, FBackColor);
    TRect bar = Rect;
    if (FKind == gkHorizontalBar)
        bar.Right = bar.Left + std::min(FillLength(GetPercentDone(), Rect.Width()), Rect.Width());
    else
        bar.Top = bar.Bottom - std::min(FillLength(GetPercentDone(), Rect.Height()), Rect.Height() - 1);
    if (!bar.IsEmpty()) Fill(Image.GetCanvas(), bar, FForeColor);
}

void TQV7SkinGauge::PaintAsPie(TBitmap& Image, const TRect& Rect) const {
    TCanvas& canvas = Image.GetCanvas();
    Fill(canvas, Rect, GetColor());
    canvas.GetBrush().SetColor(FBackColor);
    canvas.GetPen().SetColor(FForeColor);
    canvas.GetPen().SetWidth(1);
    canvas.Ellipse(Rect);
    const int percent = GetPercentDone();
    if (percent <= 0) return;
    const int middleX = Rect.Width() / 2;
    const int middleY = Rect.Height() / 2;
    const double angle = std::numbers::pi * (percent / 50.0 + 0.5);
    const TPoint start{Rect.Left + RoundHalfEven(middleX * (1 - std::cos(angle))),
                       Rect.Top + RoundHalfEven(middleY * (1 - std::sin(angle)))};
    const TPoint top{Rect.Left + middleX, Rect.Top};
    canvas.GetBrush().SetColor(FForeColor);
    // The system takes a sector without width for the whole disc.
    if (percent < 50 && IsThin(Rect, start)) {
        canvas.MoveTo(Rect.Left + middleX, Rect.Top + middleY);
        canvas.LineTo(top.X, top.Y);
    } else {
        canvas.Pie(Rect, start, top);
    }
}

void TQV7SkinGauge::PaintAsNeedle(TBitmap& Image, const TRect& Rect) const {
    TCanvas& canvas = Image.GetCanvas();
    Fill(canvas, Rect, GetColor());
    canvas.GetBrush().SetColor(FBackColor);
    canvas.GetPen().SetColor(FForeColor);
    canvas.GetPen().SetWidth(1);
    // The middle of the ellipse lies on the bottom line, its lower half outside.
    const int baseLine = Rect.Bottom - 1;
    {
        const TClipScope upperHalf(canvas, Rect);
        canvas.Ellipse({Rect.Left, Rect.Top, Rect.Right, baseLine + Rect.Height()});
    }
    canvas.MoveTo(Rect.Left, baseLine);
    canvas.LineTo(Rect.Right, baseLine);
    const int percent = GetPercentDone();
    if (percent <= 0) return;
    const int middle = Image.GetWidth() / 2;
    const double angle = std::numbers::pi * percent / 100;
    canvas.MoveTo(middle, baseLine);
    canvas.LineTo(RoundHalfEven(middle - std::cos(angle) * (Rect.Width() / 2)),
                  RoundHalfEven(baseLine - std::sin(angle) * (Rect.Height() - 1)));
}

}  // namespace qv7skin
