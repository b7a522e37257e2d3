#include "platform/vcl/stdctrls/ScrollBox.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/WindowBorder.h"

namespace vcl {

const TMetaClass& TScrollBox::StaticClass() {
    using C = TScrollBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TScrollBox", TScrollingWinControl::StaticClass())
            .With(PlacementRows)
            .With(ParentColorRows)
            .With(FontRows)
            .With(StateRows)
            .With(WindowRows)
            .Property(L"AutoScroll", &C::GetAutoScroll, &C::SetAutoScroll, true)
            .Property(L"BorderStyle", &C::GetBorderStyle, &C::SetBorderStyle, bsSingle)
            .Property(L"HorzScrollBar", &C::GetHorzScrollBar, &C::SetHorzScrollBar)
            .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
            .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
            .Property(L"VertScrollBar", &C::GetVertScrollBar, &C::SetVertScrollBar)
            .With(MouseRows)
            .With(ResizeRows)
            .Event(L"OnEnter", &C::OnEnter)
            .Event(L"OnExit", &C::OnExit)
            .Event(L"OnMouseWheel", &C::OnMouseWheel)
            .Event(L"OnMouseWheelDown", &C::OnMouseWheelDown)
            .Event(L"OnMouseWheelUp", &C::OnMouseWheelUp);
    return meta;
}

TScrollBox::TScrollBox(TComponent* AOwner) : TScrollingWinControl(AOwner) {
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 185, 41);
    SetAutoScroll(true);
}

void TScrollBox::SetBorderStyle(TBorderStyle value) {
    if (value == FBorderStyle) return;
    FBorderStyle = value;
    RecreateWnd();
}

void TScrollBox::CreateParams(TCreateParams& params) {
    TScrollingWinControl::CreateParams(params);
    if (FBorderStyle == bsSingle) AddWindowBorder(params, GetCtl3D());
}

TRect TScrollBox::GetFrameInsets() const {
    const TRect insets = TScrollingWinControl::GetFrameInsets();
    return FBorderStyle == bsSingle ? WithWindowBorder(insets, GetCtl3D()) : insets;
}

void TScrollBox::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TScrollingWinControl::Dispatch(message);
    // The frame is part of the window.
    if (message.Msg == CM_CTL3DCHANGED && guard.IsAlive() && FBorderStyle == bsSingle) RecreateWnd();
}

}  // namespace vcl
