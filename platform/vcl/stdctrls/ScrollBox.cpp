#include "platform/vcl/stdctrls/ScrollBox.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"

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
    if (FBorderStyle != bsSingle) return;
    if (GetCtl3D())
        params.ExStyle |= WS_EX_CLIENTEDGE;
    else
        params.Style |= WS_BORDER;
}

TRect TScrollBox::GetFrameInsets() const {
    TRect insets = TScrollingWinControl::GetFrameInsets();
    if (FBorderStyle != bsSingle) return insets;
    const int width = ::GetSystemMetrics(GetCtl3D() ? SM_CXEDGE : SM_CXBORDER);
    return {insets.Left + width, insets.Top + width, insets.Right + width, insets.Bottom + width};
}

void TScrollBox::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TScrollingWinControl::Dispatch(message);
    // The frame is part of the window.
    if (message.Msg == CM_CTL3DCHANGED && guard.IsAlive() && FBorderStyle == bsSingle) RecreateWnd();
}

}  // namespace vcl
