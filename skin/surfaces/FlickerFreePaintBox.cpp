#include "skin/surfaces/FlickerFreePaintBox.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Fade.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {
namespace {

/// Sets a flag for the length of a scope.
class TFlagScope {
public:
    explicit TFlagScope(bool& flag) : FFlag(flag) { FFlag = true; }
    ~TFlagScope() { FFlag = false; }
    TFlagScope(const TFlagScope&) = delete;
    TFlagScope& operator=(const TFlagScope&) = delete;

private:
    bool& FFlag;
};

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
    MakeBuffer();
}

TFlickerFreePaintBox::~TFlickerFreePaintBox() = default;

void TFlickerFreePaintBox::MakeBuffer() {
    FBuffer = std::make_shared<TBitmap>();
    FBuffer->SetPixelFormat(pf24bit);
    FBuffer->GetCanvas().GetBrush().SetColor(GetColor());
    FBuffer->SetSize(GetWidth(), GetHeight());
}

void TFlickerFreePaintBox::Resize() {
    if (!FPainting) {
        MakeBuffer();
        FNeedsPaint = true;
    }
    TCustomControl::Resize();
}

void TFlickerFreePaintBox::DoFFPaint() {
    OnFFPaint(this, FBuffer.get());
}

void TFlickerFreePaintBox::ReAssignBufferFont() {
    FBuffer->GetCanvas().SetFont(GetFont());
}

void TFlickerFreePaintBox::Repaint() {
    if (IsInState(csDesigning)) return;
    ReAssignBufferFont();
    TCanvas& canvas = FBuffer->GetCanvas();
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect({0, 0, FBuffer->GetWidth(), FBuffer->GetHeight()});

    // Whoever paints may change the control's size, which makes a new buffer, or free the control.
    const TLifeGuard guard(*this);
    const std::shared_ptr<TBitmap> painted = FBuffer;
    DoFFPaint();
    if (!guard.IsAlive()) return;
    FNeedsPaint = FBuffer != painted;
    if (FNeedsPaint)
        Invalidate();
    else
        PaintNow();
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

/// Paints without the way round through the message queue, when there is a window to paint on.
void TFlickerFreePaintBox::PaintNow() {
    if (HandleAllocated()) Paint();
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
    const TFlagScope painting(FPainting);
    GetCanvas().Draw(0, 0, FBuffer.get());
}

void TFlickerFreePaintBox::ShowDeformed() {
    const TFlagScope painting(FPainting);
    const TRect whole(0, 0, FBuffer->GetWidth(), FBuffer->GetHeight());
    const int right = RoundHalfEven(whole.Right * FScaleX);
    const int bottom = RoundHalfEven(whole.Bottom * FScaleY);
    TBitmap faded(whole.Right, whole.Bottom, pf24bit);
    Fade(faded, GetColor(), 0, 0, FAlpha, *FBuffer, whole);

    TCanvas& canvas = GetCanvas();
    canvas.StretchDraw({0, 0, right, bottom}, &faded);
    // What the scaled picture leaves free at its right and below it, to the last pixel of the control.
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
