#include "skin/surfaces/FlickerFreePaintBox.h"

#include <cstring>
#include <optional>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/ScopedValue.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Fade.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {
namespace {

/// Fills a rectangle with the colour of the brush: in memory, which takes half the time of asking the system.
void FillRows(TBitmap& bitmap, const TRect& rect) {
    TCanvas& canvas = bitmap.GetCanvas();
    const std::optional<TDirectBits> direct = canvas.DirectBits();
    if (!direct) return canvas.FillRect(rect);
    const TRect area = rect.Intersect(direct->Clip);
    if (area.IsEmpty()) return;
    const TBitmapBits& bits = direct->Bits;
    const TColor color = ColorToRGB(canvas.GetBrush().GetColor());
    canvas.DrawDirectly([&](HDC) {
        for (int x = area.Left; x < area.Right; ++x)
            bits.SetColor(x, area.Top, color);
        const std::size_t length = static_cast<std::size_t>(area.Width()) * bits.BytesPerPixel;
        for (int y = area.Top + 1; y < area.Bottom; ++y)
            std::memcpy(bits.Pixel(area.Left, y), bits.Pixel(area.Left, area.Top), length);
    });
}

}  // namespace

const TMetaClass& TFlickerFreePaintBox::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TFlickerFreePaintBox>(L"TFlickerFreePaintBox", TCustomControl::StaticClass());
    return meta;
}

TFlickerFreePaintBox::TFlickerFreePaintBox(TComponent* AOwner) : TCustomControl(AOwner) {
    SetParentFont(true);
    SetDoubleBuffered(true);
    SetTabStop(false);
    FBuffer = TFlickerFreePaintBox::CreateBuffer();
}

TFlickerFreePaintBox::~TFlickerFreePaintBox() = default;

std::shared_ptr<TBitmap> TFlickerFreePaintBox::CreateBuffer() const {
    auto buffer = std::make_shared<TBitmap>();
    buffer->SetPixelFormat(pf24bit);
    buffer->GetCanvas().GetBrush().SetColor(GetColor());
    buffer->SetSize(GetWidth(), GetHeight());
    return buffer;
}

void TFlickerFreePaintBox::RenewBuffer() {
    FBuffer = CreateBuffer();
    FNeedsPaint = true;
}

void TFlickerFreePaintBox::Resize() {
    if (!FPainting) RenewBuffer();
    TCustomControl::Resize();
}

void TFlickerFreePaintBox::DoFFPaint() {
    OnFFPaint(this, FBuffer.get());
}

void TFlickerFreePaintBox::ReAssignBufferFont() {
    FBuffer->GetCanvas().SetFont(GetFont());
}

void TFlickerFreePaintBox::Repaint() {
    if (!IsInState(csDesigning) && PaintBuffer({0, 0, FBuffer->GetWidth(), FBuffer->GetHeight()})) PaintNow();
}

TFlickerFreePaintBox::TPartScope::TPartScope(TBitmap& buffer, const TRect& part) : FBuffer(buffer) {
    ::IntersectClipRect(buffer.GetCanvas().GetHandle(), part.Left, part.Top, part.Right, part.Bottom);
}

TFlickerFreePaintBox::TPartScope::~TPartScope() {
    ::SelectClipRgn(FBuffer.GetCanvas().GetHandle(), nullptr);
}

void TFlickerFreePaintBox::RepaintPart(const TRect& Part) {
    if (FNeedsPaint || FDeformed) return Repaint();
    if (IsInState(csDesigning)) return;
    const std::shared_ptr<TBitmap> painted = FBuffer;
    {
        const TPartScope clip(*painted, Part);
        if (!PaintBuffer(Part)) return;
    }
    ShowPart(Part);
}

void TFlickerFreePaintBox::ShowPart(const TRect& Part) {
    if (FNeedsPaint || FDeformed || !HandleAllocated()) return Invalidate();
    CopyPart(Part);
}

bool TFlickerFreePaintBox::PaintBuffer(const TRect& part) {
    ReAssignBufferFont();
    FBuffer->GetCanvas().GetBrush().SetColor(GetColor());
    FillRows(*FBuffer, part);

    // Whoever paints may change the control's size, which makes a new buffer, or free the control.
    const TLifeGuard guard(*this);
    const std::shared_ptr<TBitmap> painted = FBuffer;
    DoFFPaint();
    if (!guard.IsAlive()) return false;
    FNeedsPaint = FBuffer != painted;
    if (FNeedsPaint) Invalidate();
    return !FNeedsPaint;
}

void TFlickerFreePaintBox::InvalidateBuffer() {
    FNeedsPaint = true;
    Invalidate();
}

void TFlickerFreePaintBox::ApplyDeform(long double ScaleX, long double ScaleY, long double Alpha) {
    FScaleX = ScaleX;
    FScaleY = ScaleY;
    FAlpha = Alpha;
    FDeformed = true;
    PaintNow();
}

void TFlickerFreePaintBox::NoDeform() {
    FDeformed = false;
    PaintNow();
}

void TFlickerFreePaintBox::PaintNow() {
    // A window out of sight is painted when it appears.
    if (HandleAllocated() && ::IsWindowVisible(WindowHandle())) Paint();
}

void TFlickerFreePaintBox::Paint() {
    ReAssignBufferFont();
    if (IsInState(csDesigning))
        PaintDesign();
    else if (FNeedsPaint)
        Repaint();
    else if (!FDeformed)
        ShowBuffer();
    else
        ShowDeformed();
}

void TFlickerFreePaintBox::PaintDesign() {
    TCanvas& canvas = GetCanvas();
    canvas.GetPen().SetStyle(psDash);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColor());
    canvas.Rectangle(0, 0, GetWidth(), GetHeight());
}

void TFlickerFreePaintBox::ShowBuffer() {
    CopyPart({0, 0, FBuffer->GetWidth(), FBuffer->GetHeight()});
}

void TFlickerFreePaintBox::CopyPart(const TRect& part) {
    CopyToCanvas(part, *FBuffer, part);
}

void TFlickerFreePaintBox::CopyToCanvas(const TRect& dest, const TBitmap& source, const TRect& sourceRect) {
    const TScopedValue painting(FPainting, true);
    GetCanvas().CopyRect(dest, source, sourceRect);
}

void TFlickerFreePaintBox::ShowDeformed() {
    const TScopedValue painting(FPainting, true);
    const TRect whole(0, 0, FBuffer->GetWidth(), FBuffer->GetHeight());
    const int right = RoundHalfEven(whole.Right * FScaleX);
    const int bottom = RoundHalfEven(whole.Bottom * FScaleY);
    TBitmap faded(whole.Right, whole.Bottom, pf24bit);
    Fade(faded, GetColor(), 0, 0, FAlpha, *FBuffer, whole);

    TCanvas& canvas = GetCanvas();
    canvas.StretchDraw({0, 0, right, bottom}, &faded);
    FillBeside(right, bottom);
}

void TFlickerFreePaintBox::FillBeside(int right, int bottom) {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(GetColor());
    const TRect strips[] = {{right, 0, GetWidth(), GetHeight()}, {0, bottom, GetWidth(), GetHeight()}};
    for (const TRect& strip : strips)
        if (!strip.IsEmpty()) canvas.FillRect(strip);
}

void TFlickerFreePaintBox::Dispatch(TMessage& message) {
    if (message.Msg == WM_ERASEBKGND)
        message.Result = 1;  // the buffer covers everything
    else
        TCustomControl::Dispatch(message);
}

}  // namespace qv7skin
