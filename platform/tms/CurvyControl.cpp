#include "platform/tms/CurvyControl.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"

namespace tms {

const TMetaClass& TCurvyControl::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCurvyControl>(L"TCurvyControl", TCustomControl::StaticClass());
    return meta;
}

TCurvyControl::TCurvyControl(TComponent* AOwner) : TCustomControl(AOwner) {
    // What lies behind the corners is the parent's.
    ControlStyle.Include(csParentBackground);
    ControlStyle.Include(csReplicatable);
    SetDoubleBuffered(true);
    SetColor(clWhite);
}

void TCurvyControl::SetRounding(int value) {
    value = std::max(value, 0);
    if (value == FRounding) return;
    FRounding = value;
    Invalidate();
}

void TCurvyControl::SetBorderColor(TColor value) {
    if (value == FBorderColor) return;
    FBorderColor = value;
    Invalidate();
}

void TCurvyControl::SetFocusBorderColor(TColor value) {
    if (value == FFocusBorderColor) return;
    FFocusBorderColor = value;
    if (FFocusInside) Invalidate();
}

void TCurvyControl::SetFocusColor(TColor value) {
    if (value == FFocusColor) return;
    FFocusColor = value;
    if (FFocusInside) LookChanged();
}

TCurvyLook TCurvyControl::GetLook() const {
    TCurvyLook look{GetColor(), FBorderColor, FRounding};
    if (FFocusInside && FFocusBorderColor != clNone) look.Border = FFocusBorderColor;
    if (FFocusInside && FFocusColor != clNone) look.Color = FFocusColor;
    return look;
}

void TCurvyControl::Paint() {
    DrawCurvyFrame(GetCanvas(), GetClientRect(), GetLook());
}

void TCurvyControl::DoEnter() {
    FFocusInside = true;
    LookChanged();
    TCustomControl::DoEnter();
}

void TCurvyControl::DoExit() {
    FFocusInside = false;
    LookChanged();
    TCustomControl::DoExit();
}

void TCurvyControl::Resize() {
    // Both round ends move.
    Invalidate();
    TCustomControl::Resize();
}

void TCurvyControl::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TCustomControl::Dispatch(message);
    if (!guard.IsAlive()) return;
    if (message.Msg == CM_COLORCHANGED) LookChanged();
    if (message.Msg == CM_ENABLEDCHANGED || message.Msg == CM_TEXTCHANGED) Invalidate();
}

}  // namespace tms
