#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

TControl* TWinControl::MouseTarget(TPoint pos) {
    if (TControl* holder = CaptureInside(*this)) return holder;
    TControl* child = FGraphicControls.empty() ? nullptr : ControlAtPos(pos, IsInState(csDesigning));
    return child ? child : this;
}

bool TWinControl::IsControlMouseMsg(TMessage& message) {
    if (message.Msg == WM_MOUSEWHEEL || message.Msg == WM_MOUSEHWHEEL) return false;
    const TLifeGuard guard(*this);
    const TPoint pos = message.Pos();
    TControl* target = MouseTarget(pos);
    if (message.Msg == WM_MOUSEMOVE && !IsInState(csDesigning)) {
        // While somebody holds the mouse it moves outside, too.
        const TRect area = target == this ? GetClientRect() : target->GetBoundsRect();
        PointerMovedTo(*this, area.Contains(pos) ? target : nullptr);
        if (!guard.IsAlive()) return true;
        target = MouseTarget(pos);
    }
    if (target == this) return false;
    TMessage inside{message.Msg, message.WParam,
                    TMessage::PackPoint({pos.X - target->GetLeft(), pos.Y - target->GetTop()}), 0};
    target->SendTo(inside);
    message.Result = inside.Result;
    // The system makes WM_CONTEXTMENU from it, which finds its way back to the child.
    if (message.Msg == WM_RBUTTONUP && guard.IsAlive()) DefaultHandler(message);
    return true;
}

void TWinControl::WmMouseLeave(TMessage& message) {
    const TLifeGuard guard(*this);
    PointerLeft(*this);
    if (guard.IsAlive()) DefaultHandler(message);
}

void TWinControl::WmSetCursor(TMessage& message) {
    const auto window = reinterpret_cast<HWND>(message.WParam);
    if (window != FHandle || static_cast<short>(LOWORD(message.LParam)) != HTCLIENT)
        return DefaultHandler(message);
    TCursor cursor = AppServices().ScreenCursor();
    if (cursor == crDefault) cursor = IsInState(csDesigning) ? crArrow : CursorUnderPointer();
    if (cursor == crDefault) return DefaultHandler(message);
    const HCURSOR handle = AppServices().CursorHandle(cursor);
    if (::GetCursor() != handle) ::SetCursor(handle);
    message.Result = 1;
}

TCursor TWinControl::CursorUnderPointer() {
    TControl* holder = CaptureInside(*this);
    if (holder && holder != this && holder->GetCursor() != crDefault) return holder->GetCursor();
    const bool anyInside = std::ranges::any_of(
        FGraphicControls, [](const TControl* control) { return control->GetCursor() != crDefault; });
    // Asking for the pointer is dear, and mostly no child has a cursor of its own.
    if (anyInside && !holder) {
        const TControl* inside = ControlAtPos(ScreenToClient(Mouse().GetCursorPos()), false);
        if (inside && inside->GetCursor() != crDefault) return inside->GetCursor();
    }
    return GetCursor();
}

void TWinControl::WmMouseActivate(TMessage& message) {
    const TLifeGuard guard(*this);
    DefaultHandler(message);
    if (!guard.IsAlive() || IsInState(csDesigning)) return;
    TMouseButton button = mbLeft;
    const UINT pressed = HIWORD(message.LParam);
    if (pressed == WM_RBUTTONDOWN) button = mbRight;
    if (pressed == WM_MBUTTONDOWN) button = mbMiddle;
    const TPoint pos = ScreenToClient(Mouse().GetCursorPos());
    const UINT hitTest = LOWORD(message.LParam);
    switch (MouseActivate(button, KeyboardShiftState(), pos.X, pos.Y, hitTest)) {
        case maDefault:
            break;
        case maActivate:
            message.Result = MA_ACTIVATE;
            break;
        case maActivateAndEat:
            message.Result = MA_ACTIVATEANDEAT;
            break;
        case maNoActivate:
            message.Result = MA_NOACTIVATE;
            break;
        case maNoActivateAndEat:
            message.Result = MA_NOACTIVATEANDEAT;
            break;
    }
}

void TWinControl::WmMouseWheel(TMessage& message) {
    const TLifeGuard guard(*this);
    if (!IsInState(csDesigning)) {
        const TShiftState shift = KeysToShiftState(message.Keys());
        const TPoint screen = message.Pos();
        TControl* inside = FGraphicControls.empty() ? nullptr : ControlAtPos(ScreenToClient(screen), false);
        if (inside && inside->DoMouseWheel(shift, message.WheelDelta(), screen)) return;
        if (!guard.IsAlive()) return;
        if (DoMouseWheel(shift, message.WheelDelta(), screen)) return;
        if (!guard.IsAlive()) return;
    }
    // The system hands it on to the parent's window.
    DefaultHandler(message);
}

void TWinControl::WmContextMenuInside(TMessage& message) {
    const TLifeGuard guard(*this);
    const TPoint screen = message.Pos();
    if (screen != TPoint{-1, -1} && !FGraphicControls.empty()) {
        if (TControl* inside = ControlAtPos(ScreenToClient(screen), false)) {
            TMessage own = message;
            inside->SendTo(own);
            if (!guard.IsAlive() || own.Result != 0) {
                message.Result = own.Result;
                return;
            }
        }
    }
    TControl::Dispatch(message);
}

}  // namespace vcl
