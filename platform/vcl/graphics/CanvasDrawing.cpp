#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Graphic.h"

// What a canvas draws. Each operation announces itself, makes sure of its device context and of the tools
// that it needs, draws, and announces that last: a handler may free the canvas.

namespace vcl {
namespace {

const POINT* AsPoints(std::span<const TPoint> points) {
    return reinterpret_cast<const POINT*>(points.data());
}

}  // namespace

// --- Pixels and lines

TColor TCanvas::GetPixel(int x, int y) {
    return ::GetPixel(GetHandle(), x, y);
}

void TCanvas::SetPixel(int x, int y, TColor color) {
    Changing();
    ::SetPixelV(GetHandle(), x, y, ColorToRGB(color));
    Changed();
}

TPoint TCanvas::GetPenPos() {
    POINT position{};
    ::GetCurrentPositionEx(GetHandle(), &position);
    return position;
}

void TCanvas::MoveTo(int x, int y) {
    ::MoveToEx(GetHandle(), x, y, nullptr);
}

void TCanvas::LineTo(int x, int y) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    ::LineTo(dc, x, y);
    Changed();
}

void TCanvas::Polyline(std::span<const TPoint> points) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    ::Polyline(dc, AsPoints(points), static_cast<int>(points.size()));
    Changed();
}

// --- Figures

void TCanvas::Rectangle(const TRect& r) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    NeedBrush();
    ::Rectangle(dc, r.Left, r.Top, r.Right, r.Bottom);
    Changed();
}

void TCanvas::RoundRect(const TRect& r, int ellipseWidth, int ellipseHeight) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    NeedBrush();
    ::RoundRect(dc, r.Left, r.Top, r.Right, r.Bottom, ellipseWidth, ellipseHeight);
    Changed();
}

void TCanvas::Ellipse(const TRect& r) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    NeedBrush();
    ::Ellipse(dc, r.Left, r.Top, r.Right, r.Bottom);
    Changed();
}

void TCanvas::Polygon(std::span<const TPoint> points) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    NeedBrush();
    ::Polygon(dc, AsPoints(points), static_cast<int>(points.size()));
    Changed();
}

void TCanvas::Pie(const TRect& r, TPoint start, TPoint end) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    NeedBrush();
    ::Pie(dc, r.Left, r.Top, r.Right, r.Bottom, start.X, start.Y, end.X, end.Y);
    Changed();
}

void TCanvas::Chord(const TRect& r, TPoint start, TPoint end) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    NeedBrush();
    ::Chord(dc, r.Left, r.Top, r.Right, r.Bottom, start.X, start.Y, end.X, end.Y);
    Changed();
}

void TCanvas::Arc(const TRect& r, TPoint start, TPoint end) {
    Changing();
    const HDC dc = GetHandle();
    NeedPen();
    ::Arc(dc, r.Left, r.Top, r.Right, r.Bottom, start.X, start.Y, end.X, end.Y);
    Changed();
}

// --- Areas

void TCanvas::FillRect(const TRect& r) {
    Changing();
    const HDC dc = GetHandle();
    NeedGround();
    ::FillRect(dc, r.AsRect(), FBrush.GetHandle());
    Changed();
}

void TCanvas::FrameRect(const TRect& r) {
    Changing();
    const HDC dc = GetHandle();
    NeedGround();
    ::FrameRect(dc, r.AsRect(), FBrush.GetHandle());
    Changed();
}

void TCanvas::FloodFill(int x, int y, TColor color, TFillStyle style) {
    Changing();
    const HDC dc = GetHandle();
    NeedBrush();
    NeedGround();
    ::ExtFloodFill(dc, x, y, ColorToRGB(color), style == fsSurface ? FLOODFILLSURFACE : FLOODFILLBORDER);
    Changed();
}

void TCanvas::DrawFocusRect(const TRect& r) {
    Changing();
    const HDC dc = GetHandle();
    // The system takes the two colours of its pattern from here; only these make it an XOR.
    SetGround(clWhite, OPAQUE);
    SetTextColor(clBlack);
    ::DrawFocusRect(dc, r.AsRect());
    Changed();
}

// --- Pictures

void TCanvas::Draw(int x, int y, const TGraphic* graphic) {
    if (graphic) StretchDraw(TRect::OfSize(x, y, graphic->GetWidth(), graphic->GetHeight()), graphic);
}

void TCanvas::StretchDraw(const TRect& r, const TGraphic* graphic) {
    if (!graphic || graphic->GetEmpty()) return;
    Changing();
    graphic->Draw(*this, r);
    Changed();
}

void TCanvas::CopyRect(const TRect& dest, TCanvas& source, const TRect& sourceRect) {
    Changing();
    CopyFrom(dest, source.GetSourceHandle(), sourceRect, FCopyMode);
    Changed();
}

void TCanvas::CopyRect(const TRect& dest, const TBitmap& source, const TRect& sourceRect) {
    if (source.GetEmpty()) return;
    Changing();
    CopyFrom(dest, source.GetSourceDC(), sourceRect, FCopyMode);
    Changed();
}

void TCanvas::CopyFrom(const TRect& dest, HDC source, const TRect& sourceRect, TCopyMode mode) {
    const HDC dc = GetHandle();
    // What the bits of black and white sources of the system become.
    NeedGround();
    SetTextColor(ColorToRGB(FFont.GetColor()));
    if (dest.Width() == sourceRect.Width() && dest.Height() == sourceRect.Height()) {
        ::BitBlt(dc, dest.Left, dest.Top, dest.Width(), dest.Height(), source, sourceRect.Left,
                 sourceRect.Top, mode);
        return;
    }
    if (FSelected.StretchMode != COLORONCOLOR) {
        ::SetStretchBltMode(dc, COLORONCOLOR);
        FSelected.StretchMode = COLORONCOLOR;
    }
    ::StretchBlt(dc, dest.Left, dest.Top, dest.Width(), dest.Height(), source, sourceRect.Left,
                 sourceRect.Top, sourceRect.Width(), sourceRect.Height(), mode);
}

void TCanvas::BrushCopy(const TRect& dest, const TBitmap& bitmap, const TRect& sourceRect,
                        TColor transparent) {
    TBitmap part(sourceRect.Width(), sourceRect.Height(), pf32bit);
    part.GetCanvas().CopyRect(TRect::OfSize(0, 0, part.GetWidth(), part.GetHeight()), bitmap, sourceRect);
    part.SetTransparentColor(transparent);
    part.SetTransparent(true);
    FillRect(dest);
    StretchDraw(dest, &part);
}

// --- Text

void TCanvas::TextOut(int x, int y, StringView text) {
    Changing();
    const HDC dc = GetHandle();
    NeedText();
    ::ExtTextOutW(dc, x, y, 0, nullptr, text.data(), static_cast<UINT>(text.size()), nullptr);
    Changed();
}

void TCanvas::TextRect(const TRect& r, int x, int y, StringView text) {
    Changing();
    const HDC dc = GetHandle();
    NeedText();
    const UINT fill = FBrush.GetStyle() == bsClear ? 0 : ETO_OPAQUE;
    ::ExtTextOutW(dc, x, y, ETO_CLIPPED | fill, r.AsRect(), text.data(), static_cast<UINT>(text.size()),
                  nullptr);
    Changed();
}

namespace {

/// The system divides by the average width of a character to find the next tab stop.
bool HasTabStops(HDC dc) {
    TEXTMETRICW metrics{};
    return ::GetTextMetricsW(dc, &metrics) && metrics.tmAveCharWidth > 0;
}

}  // namespace

int TCanvas::TextRect(TRect& r, StringView text, UINT flags) {
    const bool measuring = (flags & DT_CALCRECT) != 0;
    if (!measuring) Changing();
    const HDC dc = GetHandle();
    if (measuring)
        NeedFont();
    else
        NeedText();
    const bool hasTabs = (flags & DT_EXPANDTABS) && text.find(L'\t') != StringView::npos;
    if (hasTabs && !HasTabStops(dc)) flags &= ~static_cast<UINT>(DT_EXPANDTABS);
    // The text is not ours to change.
    const int height = ::DrawTextW(dc, text.data(), static_cast<int>(text.size()), r.AsRect(),
                                   flags & ~static_cast<UINT>(DT_MODIFYSTRING));
    if (!measuring) Changed();
    return height;
}

TSize TCanvas::TextExtent(StringView text) {
    const HDC dc = GetHandle();
    NeedFont();
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    return size;
}

TEXTMETRICW TCanvas::TextMetrics() {
    const HDC dc = GetHandle();
    NeedFont();
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    return metrics;
}

// --- Clipping

TRect TCanvas::GetClipRect() {
    TRect clip;
    ::GetClipBox(GetHandle(), clip.AsRect());
    return clip;
}

}  // namespace vcl
