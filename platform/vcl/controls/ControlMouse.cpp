#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/ControlParts.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

bool TControl::GetMouseCapture() const {
    return GetCaptureControl() == this;
}

void TControl::SetMouseCapture(bool value) {
    if (GetMouseCapture() != value) SetCaptureControl(value ? this : nullptr);
}

bool TControl::GetMouseInClient() const {
    return GetMouseControl() == this;
}

void TControl::SendCancelMode() {
    TParentForm* form = GetParentForm(this);
    TWinControl* active = form ? form->GetActiveControl() : nullptr;
    if (active && active != this) active->Perform(CM_CANCELMODE, 0, this);
}

void TControl::WmMouseDown(TMessage& message, TMouseButton button, bool isDouble) {
    const TLifeGuard guard(*this);
    if (button == mbLeft) SendCancelMode();
    if (!guard.IsAlive()) return;
    DefaultHandler(message);
    if (!guard.IsAlive()) return;
    if (button == mbLeft) {
        if (ControlStyle.Contains(csCaptureMouse)) SetMouseCapture(true);
        if (!guard.IsAlive()) return;
        if (ControlStyle.Contains(csClickEvents)) {
            if (isDouble)
                DblClick();
            else
                SetControlState(csClicked, true);
        }
        if (!guard.IsAlive()) return;
    }
    DoMouseDown(message, button, isDouble ? TShiftState{ssDouble} : TShiftState{});
}

void TControl::DoMouseDown(const TMessage& message, TMouseButton button, TShiftState shift) {
    if (ControlStyle.Contains(csNoStdEvents)) return;
    const TPoint p = message.Pos();
    MouseDown(button, KeysToShiftState(message.Keys()) + shift, p.X, p.Y);
}

void TControl::WmMouseUp(TMessage& message, TMouseButton button) {
    const TLifeGuard guard(*this);
    const TPoint p = message.Pos();
    const WORD keys = message.Keys();
    DefaultHandler(message);
    if (!guard.IsAlive()) return;
    if (button == mbLeft) {
        if (ControlStyle.Contains(csCaptureMouse) && GetMouseCapture()) SetMouseCapture(false);
        if (!guard.IsAlive()) return;
        if (IsControlState(csClicked)) {
            SetControlState(csClicked, false);
            if (GetClientRect().Contains(p)) Click();
            if (!guard.IsAlive()) return;
        }
    }
    if (!ControlStyle.Contains(csNoStdEvents)) MouseUp(button, KeysToShiftState(keys), p.X, p.Y);
}

void TControl::WmMouseMove(TMessage& message) {
    const TLifeGuard guard(*this);
    DefaultHandler(message);
    if (!guard.IsAlive() || ControlStyle.Contains(csNoStdEvents)) return;
    const TPoint p = message.Pos();
    MouseMove(KeysToShiftState(message.Keys()), p.X, p.Y);
}

void TControl::WmCancelMode(TMessage& message) {
    const TLifeGuard guard(*this);
    DefaultHandler(message);
    if (!guard.IsAlive() || !GetMouseCapture()) return;
    CancelPress();
    SetMouseCapture(false);
}

void TControl::CmMouseEnterLeave(TMessage& message, bool enter) {
    const TLifeGuard guard(*this);
    // The parents hear of it too, with the control that it is about.
    if (FParent) {
        const LPARAM about = message.LParam ? message.LParam : reinterpret_cast<LPARAM>(this);
        FParent->Perform(message.Msg, 0, about);
    }
    if (!guard.IsAlive() || message.LParam) return;
    if (enter)
        MouseEnter();
    else
        MouseLeave();
}

void TControl::MouseEnter() {
    OnMouseEnter(this);
}

void TControl::MouseLeave() {
    OnMouseLeave(this);
}

void TControl::Click() {
    const TBasicAction* action = GetAction();
    // A handler of the control's own goes before the action.
    const bool own = OnClick.IsAssigned() && (!action || OnClick != action->GetOnExecute());
    if (!own && FActionLink && !IsInState(csDesigning))
        FActionLink->Execute(this);
    else
        OnClick(this);
}

void TControl::DblClick() {
    OnDblClick(this);
}

void TControl::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    OnMouseDown(this, button, shift, x, y);
}

void TControl::MouseMove(TShiftState shift, int x, int y) {
    OnMouseMove(this, shift, x, y);
}

void TControl::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
    OnMouseUp(this, button, shift, x, y);
}

TMouseActivate TControl::MouseActivate(TMouseButton button, TShiftState shift, int x, int y, UINT hitTest) {
    TMouseActivate result = maDefault;
    OnMouseActivate(this, button, shift, x, y, hitTest, result);
    return result;
}

void TControl::CmMouseWheel(TMessage& message) {
    const auto shift = TShiftState::FromBits(message.Keys());
    const TLifeGuard guard(*this);
    TWinControl* parent = FParent;
    if (DoMouseWheel(shift, message.WheelDelta(), message.Pos())) {
        message.Result = 1;
        return;
    }
    if (guard.IsAlive() && parent && parent == FParent)
        message.Result = parent->Perform(CM_MOUSEWHEEL, message.WParam, message.LParam);
}

bool TControl::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
    const TLifeGuard guard(*this);
    bool handled = false;
    OnMouseWheel(this, shift, wheelDelta, mousePos, handled);
    if (handled || !guard.IsAlive()) return true;
    // Fine wheels turn in small steps: whole notches make the up and down events.
    FWheelRest += wheelDelta;
    while (FWheelRest <= -WHEEL_DELTA || FWheelRest >= WHEEL_DELTA) {
        const bool up = FWheelRest > 0;
        FWheelRest += up ? -WHEEL_DELTA : WHEEL_DELTA;
        handled = up ? DoMouseWheelUp(shift, mousePos) : DoMouseWheelDown(shift, mousePos);
        if (!guard.IsAlive()) return true;
    }
    return handled;
}

bool TControl::DoMouseWheelDown(TShiftState shift, TPoint mousePos) {
    bool handled = false;
    OnMouseWheelDown(this, shift, mousePos, handled);
    return handled;
}

bool TControl::DoMouseWheelUp(TShiftState shift, TPoint mousePos) {
    bool handled = false;
    OnMouseWheelUp(this, shift, mousePos, handled);
    return handled;
}

void TControl::DoContextPopup(TPoint mousePos, bool& handled) {
    OnContextPopup(this, mousePos, handled);
}

void TControl::WmContextMenu(TMessage& message) {
    if (IsInState(csDesigning)) return DefaultHandler(message);
    const TLifeGuard guard(*this);
    TPoint screen = message.Pos();
    TPoint client = screen;
    const bool byKeyboard = screen == TPoint{-1, -1};
    if (!byKeyboard) {
        client = ScreenToClient(screen);
        if (!GetClientRect().Contains(client)) return DefaultHandler(message);
    }
    bool handled = false;
    DoContextPopup(client, handled);
    message.Result = handled;
    if (handled || !guard.IsAlive()) return;
    TContextMenu* menu = GetPopupMenuAt(client);
    // Editors of the system would show a menu of their own. Parts without a window leave it to their whole,
    // which asked them.
    const bool asksWhole = !menu && dynamic_cast<TWinControl*>(this);
    if (TControl* holder = asksWhole ? MenuHolderOf(*this) : nullptr; holder && holder != this) {
        message.Result = holder->Perform(WM_CONTEXTMENU, message.WParam, message.LParam);
        return;
    }
    if (!menu || !menu->GetAutoPopup()) return DefaultHandler(message);
    SendCancelMode();
    if (!guard.IsAlive()) return;
    menu->SetPopupComponent(this);
    if (byKeyboard) screen = ClientToScreen({0, 0});
    message.Result = 1;
    menu->Popup(screen.X, screen.Y);
}

}  // namespace vcl
