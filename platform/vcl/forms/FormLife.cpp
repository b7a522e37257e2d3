#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/MenuMerging.h"
#include "platform/vcl/forms/Screen.h"

// Showing, hiding, closing.

namespace vcl {
namespace {

constexpr UINT KeepPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;

int ShowCommand(TWindowState state) {
    switch (state) {
        case wsMinimized:
            return SW_SHOWMINNOACTIVE;
        case wsMaximized:
            return SW_SHOWMAXIMIZED;
        default:
            return SW_SHOWNORMAL;
    }
}

bool IsVisibleAndEnabled(HWND window) {
    return window && ::IsWindowVisible(window) && ::IsWindowEnabled(window);
}

}  // namespace

void TCustomForm::Show() {
    const TLifeGuard guard(*this);
    SetVisible(true);
    if (guard.IsAlive()) BringToFront();
}

void TCustomForm::BringToFront() {
    if (GetParent()) return TScrollingWinControl::BringToFront();
    if (!HandleAllocated() || !GetVisible()) return;
    if (::IsIconic(WindowHandle())) ::ShowWindow(WindowHandle(), SW_RESTORE);
    ::SetWindowPos(WindowHandle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void TCustomForm::SendToBack() {
    if (GetParent()) return TScrollingWinControl::SendToBack();
    if (HandleAllocated())
        ::SetWindowPos(WindowHandle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TCustomForm::CmShowingChanged() {
    if (IsInState(csDesigning) || GetParent()) {
        TMessage message{CM_SHOWINGCHANGED};
        return TScrollingWinControl::Dispatch(message);
    }
    if (FFormState.Contains(fsShowing)) throw EInvalidOperation(L"Cannot change Visible in OnShow or OnHide");
    if (GetShowing())
        ShowWindowNow();
    else
        HideWindowNow();
}

void TCustomForm::ShowWindowNow() {
    const TLifeGuard guard(*this);
    EnsureCreated();
    if (!guard.IsAlive()) return;
    FFormState.Include(fsShowing);
    try {
        DoShow();
    } catch (...) {
        Application().HandleException(this);
    }
    if (!guard.IsAlive()) return;
    if (!std::exchange(FPositioned, true)) ApplyPosition();
    FFormState.Exclude(fsShowing);
    // A form is modal or not from one time to the next.
    if (FMenu && FMenu->GetAutoMerge()) ApplyWindowMenu();
    ::ShowWindow(WindowHandle(), ShowCommand(FWindowState));
}

void TCustomForm::HideWindowNow() {
    const TLifeGuard guard(*this);
    FFormState.Include(fsShowing);
    try {
        DoHide();
    } catch (...) {
        Application().HandleException(this);
    }
    if (!guard.IsAlive()) return;
    FFormState.Exclude(fsShowing);
    UnmergeFormMenu(FMenu);
    // The end of a modal loop says itself where the activation goes.
    const bool isModal = FFormState.Contains(fsModal);
    const HWND next = !isModal && ::GetActiveWindow() == WindowHandle() ? NextActiveWindow() : nullptr;
    if (!isModal && !next) {
        ::ShowWindow(WindowHandle(), SW_HIDE);
    } else {
        ::SetWindowPos(WindowHandle(), nullptr, 0, 0, 0, 0, KeepPlace | SWP_HIDEWINDOW | SWP_NOACTIVATE);
        if (next) ::SetActiveWindow(next);
    }
}

/// The window that the user goes on with when this one disappears: its owner, or the form used before.
HWND TCustomForm::NextActiveWindow() const {
    const HWND owner = ::GetWindow(WindowHandle(), GW_OWNER);
    if (IsVisibleAndEnabled(owner)) return owner;
    for (const TCustomForm* form : Screen().Forms()) {
        if (form != this && !form->GetParent() && IsVisibleAndEnabled(form->WindowHandle()))
            return form->WindowHandle();
    }
    return nullptr;
}

void TCustomForm::DoShow() {
    OnShow(this);
}

void TCustomForm::DoHide() {
    OnHide(this);
}

bool TCustomForm::CloseQuery() {
    bool canClose = true;
    OnCloseQuery(this, canClose);
    return canClose;
}

void TCustomForm::DoClose(TCloseAction& action) {
    OnClose(this, action);
}

void TCustomForm::Close() {
    if (FFormState.Contains(fsModal)) {
        FModalResult = mrCancel;
        return;
    }
    if (FClosing) return;
    const TLifeGuard guard(*this);
    FClosing = true;
    try {
        TCloseAction action = caHide;
        if (!CloseQuery()) action = caNone;
        if (guard.IsAlive() && action != caNone) DoClose(action);
        if (guard.IsAlive() && action != caNone) CarryOut(action);
    } catch (...) {
        if (guard.IsAlive()) FClosing = false;
        throw;
    }
    if (guard.IsAlive()) FClosing = false;
}

void TCustomForm::CarryOut(TCloseAction action) {
    if (Application().GetMainForm() == this) return Application().Terminate();
    switch (action) {
        case caHide:
            return Hide();
        case caFree:
            return Release();
        case caMinimize:
            return SetWindowState(wsMinimized);
        case caNone:
            break;
    }
}

void TCustomForm::Release() {
    Application().ReleaseLater(this);
}

}  // namespace vcl
