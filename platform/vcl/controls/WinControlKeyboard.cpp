#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {
namespace {

/// Which answer to WM_GETDLGCODE keeps the key for the control; 0 for keys that are no dialog keys.
LRESULT DialogCodeOf(WORD key) {
    switch (key) {
        case VK_TAB:
            return DLGC_WANTTAB;
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
            return DLGC_WANTARROWS;
        case VK_RETURN:
        case VK_EXECUTE:
        case VK_ESCAPE:
        case VK_CANCEL:
            return DLGC_WANTALLKEYS;
        default:
            return 0;
    }
}

}  // namespace

bool TWinControl::PreviewedByForm(TMessage& message) {
    TParentForm* form = GetParentForm(this);
    return form && &form->FormControl() != this && form->GetKeyPreview() && form->PreviewKey(message);
}

namespace {

/// Opens the popup menu of the focus by Shift+F10; false for other keys. Left to the system the release of
/// F10 would go on to the window's menu.
bool OpensContextMenu(const TMessage& message) {
    const bool isKey = message.Msg == WM_SYSKEYDOWN && message.CharCode() == VK_F10;
    if (!isKey || KeyDataToShiftState(message.KeyData()) != TShiftState{ssShift}) return false;
    const HWND focus = ::GetFocus();
    if (focus) ::SendMessageW(focus, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(focus), LPARAM{-1});
    return true;
}

}  // namespace

bool TWinControl::DoKeyDown(TMessage& message) {
    const TLifeGuard guard(*this);
    if (PreviewedByForm(message) || !guard.IsAlive()) return true;
    if (!ControlStyle.Contains(csNoStdEvents)) {
        WORD key = message.CharCode();
        KeyDown(key, KeyDataToShiftState(message.KeyData()));
        message.WParam = key;
        if (key == 0 || !guard.IsAlive()) return true;
    }
    return OpensContextMenu(message);
}

bool TWinControl::DoKeyUp(TMessage& message) {
    const TLifeGuard guard(*this);
    if (PreviewedByForm(message) || !guard.IsAlive()) return true;
    if (ControlStyle.Contains(csNoStdEvents)) return false;
    WORD key = message.CharCode();
    KeyUp(key, KeyDataToShiftState(message.KeyData()));
    message.WParam = key;
    return key == 0 || !guard.IsAlive();
}

bool TWinControl::DoKeyPress(TMessage& message) {
    const TLifeGuard guard(*this);
    if (PreviewedByForm(message) || !guard.IsAlive()) return true;
    if (ControlStyle.Contains(csNoStdEvents)) return false;
    auto character = static_cast<wchar_t>(message.CharCode());
    KeyPress(character);
    message.WParam = character;
    return character == 0 || !guard.IsAlive();
}

void TWinControl::KeyDown(WORD& key, TShiftState shift) {
    OnKeyDown(this, key, shift);
}

void TWinControl::KeyPress(wchar_t& key) {
    OnKeyPress(this, key);
}

void TWinControl::KeyUp(WORD& key, TShiftState shift) {
    OnKeyUp(this, key, shift);
}

bool TWinControl::IsMenuKey(TMessage& message) {
    if (IsInState(csDesigning)) return false;
    const TLifeGuard guard(*this);
    for (TControl* c = this; c; c = c->GetParent()) {
        if (!c->GetPopupMenu()) continue;
        if (c->GetPopupMenu()->IsShortCut(message) || !guard.IsAlive()) return true;
    }
    TParentForm* form = GetParentForm(this);
    return (form && form->IsShortCut(message)) || AppServices().IsShortCut(message);
}

void TWinControl::CnKeyDown(TMessage& message) {
    const TLifeGuard guard(*this);
    message.Result = 1;
    if (IsMenuKey(message) || !guard.IsAlive()) return;
    if (!IsInState(csDesigning)) {
        if (Perform(CM_CHILDKEY, message.CharCode(), this) != 0 || !guard.IsAlive()) return;
        const LRESULT wanted = DialogCodeOf(message.CharCode());
        if (wanted != 0 && Perform(CM_WANTSPECIALKEY, message.CharCode()) == 0 &&
            (Perform(WM_GETDLGCODE) & wanted) == 0 && OfferToForm(CM_DIALOGKEY, message))
            return;
    }
    message.Result = 0;
}

void TWinControl::CnSysKeyDown(TMessage& message) {
    const TLifeGuard guard(*this);
    message.Result = 1;
    if (IsMenuKey(message) || !guard.IsAlive()) return;
    if (!IsInState(csDesigning)) {
        if (Perform(CM_CHILDKEY, message.CharCode(), this) != 0 || !guard.IsAlive()) return;
        if (OfferToForm(CM_DIALOGKEY, message)) return;
    }
    message.Result = 0;
}

void TWinControl::CnChar(TMessage& message) {
    if (IsInState(csDesigning)) return;
    if ((Perform(WM_GETDLGCODE) & DLGC_WANTCHARS) == 0 && OfferToForm(CM_DIALOGCHAR, message))
        message.Result = 1;
}

void TWinControl::CnSysChar(TMessage& message) {
    // Alt and the space bar open the window's own menu.
    if (!IsInState(csDesigning) && message.CharCode() != VK_SPACE && OfferToForm(CM_DIALOGCHAR, message))
        message.Result = 1;
}

bool TWinControl::OfferToForm(UINT msg, const TMessage& key) {
    TParentForm* form = GetParentForm(this);
    // One that a handler of the key closed has no control that could take it.
    return form && form->FormControl().GetVisible() &&
           form->FormControl().Perform(msg, key.WParam, key.LParam) != 0;
}

}  // namespace vcl
