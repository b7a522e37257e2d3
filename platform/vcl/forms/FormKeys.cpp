#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/forms/CustomForm.h"

// Keys that belong to the form as a whole, its menu, and the actions of its controls.

namespace vcl {
namespace {

void UpdateActionsBelow(TWinControl& parent) {
    const TLifeGuard guard(parent);
    for (int i = 0; guard.IsAlive() && i < parent.GetControlCount(); ++i) {
        TControl* control = parent.GetControl(i);
        if (!control->GetVisible()) continue;
        const TLifeGuard controlGuard(*control);
        if (TBasicAction* action = control->GetAction()) action->Update();
        if (!controlGuard.IsAlive()) continue;
        if (TWinControl* window = control->AsWinControl()) UpdateActionsBelow(*window);
    }
}

}  // namespace

bool TCustomForm::PreviewKey(TMessage& message) {
    switch (message.Msg) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return DoKeyDown(message);
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return DoKeyUp(message);
        case WM_CHAR:
            return DoKeyPress(message);
        default:
            return false;
    }
}

bool TCustomForm::WantChildKey(TWinControl*, TMessage&) {
    return false;
}

bool TCustomForm::IsShortCut(TMessage& message) {
    const TLifeGuard guard(*this);
    bool handled = false;
    OnShortCut(message, handled);
    if (handled || !guard.IsAlive()) return true;
    if (!GetEnabled()) return false;
    if (FMenu && FMenu->IsShortCut(message)) return true;
    for (int i = 0; guard.IsAlive() && i < GetComponentCount(); ++i) {
        auto* list = dynamic_cast<TCustomActionList*>(GetComponent(i));
        if (list && list->IsShortCut(message)) return true;
    }
    return !guard.IsAlive();
}

bool TCustomForm::OfferToMenu(TMessage& message) {
    // WM_COMMAND, WM_MEASUREITEM and WM_DRAWITEM come from controls, too.
    switch (message.Msg) {
        case WM_COMMAND:
            if (message.LParam != 0) return false;
            break;
        case WM_MEASUREITEM:
            if (message.As<MEASUREITEMSTRUCT>()->CtlType != ODT_MENU) return false;
            break;
        case WM_DRAWITEM:
            if (message.As<DRAWITEMSTRUCT>()->CtlType != ODT_MENU) return false;
            break;
        default:
            break;
    }
    return FMenu && FMenu->HandleMenuMessage(message);
}

void TCustomForm::CmDialogKey(TMessage& message) {
    const TShiftState shift = KeyDataToShiftState(message.KeyData());
    if (!shift.Contains(ssAlt)) {
        switch (message.CharCode()) {
            case VK_TAB:
                if (shift.Contains(ssCtrl)) break;
                message.Result = 1;
                return SelectNext(FActiveControl, !shift.Contains(ssShift), true);
            case VK_LEFT:
            case VK_UP:
            case VK_RIGHT:
            case VK_DOWN:
                if (!FActiveControl || !FActiveControl->GetParent()) break;
                message.Result = 1;
                return FActiveControl->GetParent()->SelectNext(
                    FActiveControl, message.CharCode() == VK_RIGHT || message.CharCode() == VK_DOWN, false);
            default:
                break;
        }
    }
    TScrollingWinControl::Dispatch(message);
}

void TCustomForm::UpdateActions() {
    UpdateActionsBelow(*this);
}

}  // namespace vcl
