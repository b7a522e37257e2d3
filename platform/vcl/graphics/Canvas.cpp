#include "platform/vcl/graphics/Canvas.h"

#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

// The state of a canvas: its device context and what is selected into it. CanvasDrawing.cpp draws.

namespace vcl {
namespace {

/// The Windows raster operation of a pen mode.
int RasterOperation(TPenMode mode) {
    static constexpr int operations[] = {R2_BLACK,       R2_WHITE,      R2_NOP,         R2_NOT,
                                         R2_COPYPEN,     R2_NOTCOPYPEN, R2_MERGEPENNOT, R2_MASKPENNOT,
                                         R2_MERGENOTPEN, R2_MASKNOTPEN, R2_MERGEPEN,    R2_NOTMERGEPEN,
                                         R2_MASKPEN,     R2_NOTMASKPEN, R2_XORPEN,      R2_NOTXORPEN};
    return operations[static_cast<int>(mode)];
}

}  // namespace

const TMetaClass& TCanvas::StaticClass() {
    static const TMetaClass meta = DefineClass<TCanvas>(L"TCanvas", TPersistent::StaticClass());
    return meta;
}

TCanvas::TCanvas() = default;

TCanvas::~TCanvas() {
    RestoreObjects();
}

HDC TCanvas::GetHandle() {
    if (!FHandle) {
        CreateHandle();
        if (!FHandle) throw EInvalidOperation(L"Canvas does not allow drawing");
    }
    return FHandle;
}

void TCanvas::SetHandle(HDC value) {
    if (FHandle == value) return;
    RestoreObjects();
    FHandle = value;
}

void TCanvas::Refresh() {
    RestoreObjects();
}

void TCanvas::RestoreObjects() {
    const TSelected former = std::exchange(FSelected, TSelected{});
    if (!FHandle) return;
    for (const HGDIOBJ object : {former.OldFont, former.OldPen, former.OldBrush})
        if (object) ::SelectObject(FHandle, object);
}

void TCanvas::Select(HGDIOBJ object, HGDIOBJ& old) {
    const HGDIOBJ former = ::SelectObject(FHandle, object);
    if (!old) old = former;
}

void TCanvas::NeedFont() {
    const TSharedFont& font = FFont.GetShared();
    if (FSelected.Font == font) return;
    Select(font->Get(), FSelected.OldFont);
    FSelected.Font = font;
}

void TCanvas::NeedPen() {
    const TSharedPen& pen = FPen.GetShared();
    if (FSelected.Pen != pen) {
        Select(pen->Get(), FSelected.OldPen);
        FSelected.Pen = pen;
    }
    const int operation = RasterOperation(FPen.GetMode());
    if (FSelected.PenMode != operation) {
        ::SetROP2(FHandle, operation);
        FSelected.PenMode = operation;
    }
    NeedGround();
}

void TCanvas::NeedBrush() {
    const TSharedBrush& brush = FBrush.GetShared();
    if (FSelected.HasBrush && FSelected.Brush == brush) return;
    Select(FBrush.GetHandle(), FSelected.OldBrush);
    FSelected.Brush = brush;
    FSelected.HasBrush = true;
}

void TCanvas::NeedGround() {
    const TColor color = ColorToRGB(FBrush.GetColor());
    const int mode = FBrush.GetStyle() == bsSolid ? OPAQUE : TRANSPARENT;
    SetGround(color, mode);
}

void TCanvas::SetGround(TColor color, int mode) {
    if (FSelected.GroundColor != color) {
        ::SetBkColor(FHandle, color);
        FSelected.GroundColor = color;
    }
    if (FSelected.GroundMode != mode) {
        ::SetBkMode(FHandle, mode);
        FSelected.GroundMode = mode;
    }
}

void TCanvas::SetTextColor(TColor color) {
    if (FSelected.TextColor == color) return;
    ::SetTextColor(FHandle, color);
    FSelected.TextColor = color;
}

void TCanvas::NeedText() {
    NeedFont();
    NeedGround();
    SetTextColor(ColorToRGB(FFont.GetColor()));
}

TCanvasStateScope::TCanvasStateScope(TCanvas& canvas)
    : FCanvas(canvas), FHandle(canvas.GetHandle()), FLevel(::SaveDC(FHandle)), FSelected(canvas.FSelected) {}

TCanvasStateScope::~TCanvasStateScope() {
    // The canvas may have lost the context meanwhile, when its bitmap changed; that one is gone.
    if (!FLevel || FCanvas.FHandle != FHandle) return;
    ::RestoreDC(FHandle, FLevel);
    FCanvas.FSelected = std::move(FSelected);
}

}  // namespace vcl
