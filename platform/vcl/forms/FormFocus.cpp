#include "platform/vcl/controls/StateScope.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/MenuMerging.h"
#include "platform/vcl/forms/Screen.h"

// Activation of the window and the focus among its controls. `FActiveControl` is where the focus is or will
// be; `FFocusedControl` is how far CM_ENTER has come on its way from the form down to that control.

namespace vcl {
namespace {

[[noreturn]] void RaiseCannotFocus() {
    throw EInvalidOperation(L"Cannot focus a disabled or invisible window");
}

/// The child of `from` on the way down to `to`.
TWinControl* StepTowards(const TWinControl* from, TWinControl* to) {
    while (to->GetParent() != from)
        to = to->GetParent();
    return to;
}

/// Brings the control into sight in all that scrolls around it.
void ScrollToFocus(TWinControl& control) {
    const TLifeGuard guard(control);
    for (TWinControl* around = control.GetParent(); guard.IsAlive() && around; around = around->GetParent()) {
        auto* scrolling = dynamic_cast<TScrollingWinControl*>(around);
        if (scrolling && !scrolling->IsInState(csLoading)) scrolling->ScrollInView(&control);
    }
}

}  // namespace

// --- the window becomes active

void TCustomForm::WmActivate(TMessage& message) {
    const bool active = LOWORD(message.WParam) != WA_INACTIVE;
    const TLifeGuard guard(*this);
    if (IsInState(csDesigning)) return DefaultHandler(message);
    SetActive(active);
    // The system's own handling would focus the window instead of the control.
    if (guard.IsAlive() && !active) DefaultHandler(message);
}

void TCustomForm::SetActive(bool value) {
    FActive = value;
    if (!value || ::IsIconic(WindowHandle())) return;
    const TLifeGuard guard(*this);
    if (!FActiveControl) FActiveControl = FindNextControl(nullptr, true, true, false);
    MergeFormMenu(*this);
    if (!guard.IsAlive()) return;
    SetWindowFocus();
    if (guard.IsAlive()) ActiveChanged();
}

void TCustomForm::SetWindowFocus() {
    TWinControl* target = FActiveControl && FActiveControl->CanFocus() ? FActiveControl : this;
    ::SetFocus(target->GetHandle());
}

bool TCustomForm::HandFocusOn() {
    if (IsInState(csDesigning) || !FActiveControl || FActiveControl == this) return false;
    if (!FActiveControl->CanFocus() || !FActiveControl->HandleAllocated()) return false;
    ::SetFocus(FActiveControl->WindowHandle());
    return true;
}

// --- asked from outside

bool TCustomForm::CanFocus() const {
    return GetVisible() && GetEnabled() && (!GetParent() || TScrollingWinControl::CanFocus());
}

void TCustomForm::SetFocus() {
    if (GetParent()) return TScrollingWinControl::SetFocus();
    if (FActive) return;
    if (!CanFocus()) RaiseCannotFocus();
    SetWindowFocus();
}

void TCustomForm::FocusControl(TWinControl* control) {
    const TLifeGuard guard(*this);
    const bool wasActive = FActive;
    SetActiveControl(control);
    if (guard.IsAlive() && !wasActive) SetFocus();
}

void TCustomForm::SetActiveControl(TWinControl* control) {
    if (control == FActiveControl) return;
    const bool loading = IsInState(csLoading) || (control && control->IsInState(csLoading));
    if (control && !loading && (control == this || GetParentForm(control) != this || !control->CanFocus()))
        RaiseCannotFocus();
    FActiveControl = control;
    if (loading) return;
    const TLifeGuard guard(*this);
    if (FActive) SetWindowFocus();
    if (guard.IsAlive()) ActiveChanged();
}

void TCustomForm::DefocusControl(TWinControl* control, bool removing) {
    if (removing && control->ContainsControl(FFocusedControl)) FFocusedControl = control->GetParent();
    if (removing) Screen().FocusLost(control);
    if (control->ContainsControl(FActiveControl)) {
        const bool hadFocus = FActive;
        FActiveControl = nullptr;
        if (hadFocus && HandleAllocated() && !IsInState(csDestroying)) ::SetFocus(WindowHandle());
    }
}

// --- the focus moved

bool TCustomForm::SetFocusedControl(TWinControl* control) {
    ++Screen().FFocusMoves;
    if (!IsInState(csDesigning)) FActiveControl = control != this ? control : nullptr;
    const TLifeGuard guard(*this);
    const TLifeGuard controlGuard(*control);
    Screen().FocusMoved(this, control);
    if (!guard.IsAlive() || !controlGuard.IsAlive()) return false;
    if (control->IsControlState(csFocusing)) return true;
    const TStateScope focusing(*control, csFocusing);
    return MoveFocusTo(control);
}

bool TCustomForm::MoveFocusTo(TWinControl* control) {
    TScreen& screen = Screen();
    const unsigned move = screen.FFocusMoves;
    const TLifeGuard guard(*this);
    const TLifeGuard controlGuard(*control);
    const bool wasVisible = GetVisible();
    // A handler may free the form or the control, close the form, or move the focus elsewhere; then there is
    // nothing left to do.
    const auto tell = [&](TWinControl& receiver, UINT message, LPARAM parameter = 0) {
        receiver.Perform(message, 0, parameter);
        return guard.IsAlive() && controlGuard.IsAlive() && screen.FFocusMoves == move &&
               (GetVisible() || !wasVisible);
    };
    if (screen.FFocusedForm != this) {
        if (TCustomForm* former = std::exchange(screen.FFocusedForm, nullptr)) {
            if (!tell(*former, CM_DEACTIVATE)) return false;
        }
        screen.FFocusedForm = this;
        if (!tell(*this, CM_ACTIVATE)) return false;
    }
    if (!FFocusedControl) FFocusedControl = this;
    while (!FFocusedControl->ContainsControl(control)) {
        TWinControl* left = FFocusedControl;
        FFocusedControl = left->GetParent() ? left->GetParent() : this;
        if (!tell(*left, CM_EXIT)) return false;
    }
    while (FFocusedControl != control) {
        FFocusedControl = StepTowards(FFocusedControl, control);
        if (!tell(*FFocusedControl, CM_ENTER)) return false;
    }
    ScrollToFocus(*control);
    return guard.IsAlive() && controlGuard.IsAlive() &&
           tell(*this, CM_FOCUSCHANGED, reinterpret_cast<LPARAM>(control));
}

void TCustomForm::CmActivate() {
    if (FFormState.Contains(fsActivated)) return;
    FFormState.Include(fsActivated);
    Activate();
}

void TCustomForm::CmDeactivate() {
    if (!FFormState.Contains(fsActivated)) return;
    FFormState.Exclude(fsActivated);
    if (Screen().FFocusedForm == this) Screen().FFocusedForm = nullptr;
    Deactivate();
}

void TCustomForm::Activate() {
    OnActivate(this);
}

void TCustomForm::Deactivate() {
    OnDeactivate(this);
}

}  // namespace vcl
