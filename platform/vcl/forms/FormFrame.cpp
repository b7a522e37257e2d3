#include <algorithm>

#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/MenuMerging.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/Icon.h"

// The window's frame: styles, place, state, icon, menu, owner.

namespace vcl {

// --- properties

void TCustomForm::SetBorderStyle(TFormBorderStyle value) {
    if (value == FBorderStyle) return;
    FBorderStyle = value;
    if (!IsInState(csDesigning)) RecreateWnd();
}

void TCustomForm::SetBorderIcons(TBorderIcons value) {
    if (value == FBorderIcons) return;
    FBorderIcons = value;
    if (!IsInState(csDesigning)) RecreateWnd();
}

void TCustomForm::SetPosition(TPosition value) {
    if (value == FPosition) return;
    FPosition = value;
    FPositioned = false;
}

void TCustomForm::SetWindowState(TWindowState value) {
    if (value == FWindowState) return;
    FWindowState = value;
    if (IsInState(csDesigning) || !GetShowing()) return;
    static constexpr int Commands[] = {SW_RESTORE, SW_MINIMIZE, SW_SHOWMAXIMIZED};
    ::ShowWindow(WindowHandle(), Commands[static_cast<int>(value)]);
}

void TCustomForm::SetFormStyle(TFormStyle value) {
    if (value == FFormStyle) return;
    FFormStyle = value;
    if (!HandleAllocated() || IsInState(csDesigning) || GetParent()) return;
    const bool onTop = value == fsStayOnTop;
    ::SetWindowPos(WindowHandle(), onTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    // Wine leaves owned windows on top; a new window starts from its styles.
    const bool isOnTop = (::GetWindowLongW(WindowHandle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    if (isOnTop != onTop) RecreateWnd();
}

void TCustomForm::SetAlphaBlend(bool value) {
    if (value == FAlphaBlend) return;
    FAlphaBlend = value;
    ApplyAlphaBlend();
}

void TCustomForm::SetAlphaBlendValue(int value) {
    value = std::clamp(value, 0, 255);
    if (value == FAlphaBlendValue) return;
    FAlphaBlendValue = value;
    ApplyAlphaBlend();
}

void TCustomForm::SetIcon(const TIcon& value) {
    FIcon->Assign(&value);
}

bool TCustomForm::IsIconStored() const {
    return !FIcon->GetEmpty();
}

void TCustomForm::SetPopupMode(TPopupMode value) {
    if (value == FPopupMode) return;
    FPopupMode = value;
    UpdateOwnerWindow();
}

void TCustomForm::SetPopupParent(TCustomForm* value) {
    if (value == FPopupParent) return;
    if (FPopupParent) FPopupParent->RemoveFreeNotification(this);
    FPopupParent = value;
    if (value) {
        value->FreeNotification(this);
        FPopupMode = pmExplicit;
    } else if (FPopupMode == pmExplicit) {
        FPopupMode = pmNone;
    }
    UpdateOwnerWindow();
}

void TCustomForm::SetMenu(TWindowMenu* value) {
    if (value == FMenu) return;
    TWindowMenu* guest = nullptr;
    if (FMenu) {
        FMenu->RemoveFreeNotification(this);
        if (!FMenu->IsInState(csDestroying)) {
            UnmergeFormMenu(FMenu);
            guest = FMenu->GetMergedMenu();
            FMenu->SetWindowHandle(nullptr);
        }
    }
    FMenu = value;
    if (value) value->FreeNotification(this);
    ApplyWindowMenu();
    if (Application().GetMainForm() != this || IsInState(csDestroying)) return;
    // What was merged into the former menu goes with the bar.
    if (value && guest && guest->GetAutoMerge() && guest != value) value->MergeMenu(guest);
    ReviewMergedMenus();
}

// --- the window

DWORD TCustomForm::FrameStyle() const {
    const bool isChild = GetParent() || GetParentWindow();
    const DWORD system = FBorderIcons.Contains(biSystemMenu) ? DWORD{WS_SYSMENU} : 0;
    DWORD boxes = 0;
    if (system && FBorderIcons.Contains(biMinimize)) boxes |= WS_MINIMIZEBOX;
    if (system && FBorderIcons.Contains(biMaximize)) boxes |= WS_MAXIMIZEBOX;
    switch (FBorderStyle) {
        case bsNone:
            return isChild ? 0 : WS_POPUP;
        case bsSingle:
            return WS_CAPTION | system | boxes;
        case bsSizeable:
            return WS_CAPTION | WS_THICKFRAME | system | boxes;
        case bsDialog:
            return WS_POPUP | WS_CAPTION | DS_MODALFRAME | system;
        case bsToolWindow:
            return WS_CAPTION | system;
        case bsSizeToolWin:
            return WS_CAPTION | WS_THICKFRAME | system;
    }
    return 0;
}

DWORD TCustomForm::FrameExStyle() const {
    DWORD style = FFormStyle == fsStayOnTop && !GetParent() ? DWORD{WS_EX_TOPMOST} : 0;
    if (FBorderStyle == bsDialog) style |= WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE;
    if (FBorderStyle == bsToolWindow || FBorderStyle == bsSizeToolWin) style |= WS_EX_TOOLWINDOW;
    const bool hasBoxes = (FrameStyle() & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0;
    if (FBorderIcons.Contains(biHelp) && FBorderStyle != bsNone && !hasBoxes) style |= WS_EX_CONTEXTHELP;
    return style;
}

TRect TCustomForm::GetFrameInsets() const {
    RECT frame{};
    const bool hasMenu = FMenu && !GetParent() && !MergesIntoMainForm(*this) && FMenu->GetMenuHandle();
    ::AdjustWindowRectEx(&frame, FrameStyle(), hasMenu, FrameExStyle());
    return {-frame.left, -frame.top, frame.right, frame.bottom};
}

void TCustomForm::CreateParams(TCreateParams& params) {
    TScrollingWinControl::CreateParams(params);
    params.WindowClass.style = CS_DBLCLKS;
    const bool isChild = GetParent() || GetParentWindow();
    // The styles of tab stops are the boxes of a caption in top-level windows.
    if (!isChild) params.Style &= ~DWORD{WS_CHILD | WS_TABSTOP | WS_GROUP};
    params.Style |= FrameStyle();
    params.ExStyle |= FrameExStyle();
    if (isChild) {
        params.Style &= ~DWORD{WS_POPUP};
        return;
    }
    params.WndParent = GetOwnerWindow();
    const bool isOverlapped = (params.Style & WS_POPUP) == 0;
    if (!isOverlapped || IsInState(csDesigning)) return;
    if (FPosition == poDefault || FPosition == poDefaultPosOnly) params.X = params.Y = CW_USEDEFAULT;
    const bool isSizeable = FBorderStyle == bsSizeable || FBorderStyle == bsSizeToolWin;
    if (isSizeable && (FPosition == poDefault || FPosition == poDefaultSizeOnly))
        params.Width = params.Height = CW_USEDEFAULT;
}

void TCustomForm::CreateWnd() {
    TScrollingWinControl::CreateWnd();
    ApplyIcon();
    ApplyWindowMenu();
    ApplyAlphaBlend();
    TakeOwnedFormsBack();
}

void TCustomForm::DestroyWindowHandle() {
    ReleaseOwnedForms();
    UnmergeFormMenu(FMenu);
    if (FMenu && HandleAllocated()) {
        // The system would destroy the menu together with the window.
        ::SetMenu(WindowHandle(), nullptr);
        FMenu->SetWindowHandle(nullptr);
    }
    TScrollingWinControl::DestroyWindowHandle();
    FActive = false;
}

void TCustomForm::ApplyWindowMenu() {
    if (!HandleAllocated() || GetParent() || FBorderStyle == bsDialog) return;
    const bool merges = MergesIntoMainForm(*this);
    if (!merges) UnmergeFormMenu(FMenu);
    const HMENU menu = FMenu && !merges && !IsInState(csDesigning) ? FMenu->GetMenuHandle() : nullptr;
    if (::GetMenu(WindowHandle()) != menu) ::SetMenu(WindowHandle(), menu);
    if (FMenu) FMenu->SetWindowHandle(IsInState(csDesigning) ? nullptr : WindowHandle());
    if (FActive) MergeFormMenu(*this);
}

void TCustomForm::ApplyAlphaBlend() {
    if (!HandleAllocated() || GetParent() || IsInState(csDesigning)) return;
    const LONG_PTR style = ::GetWindowLongPtrW(WindowHandle(), GWL_EXSTYLE);
    const LONG_PTR wanted = FAlphaBlend ? style | WS_EX_LAYERED : style & ~LONG_PTR{WS_EX_LAYERED};
    if (wanted != style) ::SetWindowLongPtrW(WindowHandle(), GWL_EXSTYLE, wanted);
    if (FAlphaBlend)
        ::SetLayeredWindowAttributes(WindowHandle(), 0, static_cast<BYTE>(FAlphaBlendValue), LWA_ALPHA);
}

void TCustomForm::IconChanged(TObject*) {
    Perform(CM_ICONCHANGED);
}

void TCustomForm::ApplyIcon() {
    if (!HandleAllocated() || GetParent() || FBorderStyle == bsDialog) return;
    const TIcon& icon = FIcon->GetEmpty() ? Application().GetIcon() : *FIcon;
    const auto handle = reinterpret_cast<LPARAM>(icon.GetHandle());
    for (const WPARAM size : {WPARAM{ICON_BIG}, WPARAM{ICON_SMALL}}) {
        if (::SendMessageW(WindowHandle(), WM_GETICON, size, 0) != handle)
            ::SendMessageW(WindowHandle(), WM_SETICON, size, handle);
    }
}

// --- owner

HWND TCustomForm::GetOwnerWindow() const {
    const auto windowOf = [this](TCustomForm* form) {
        return form && form != this && !form->GetParent() ? form->WindowHandle() : nullptr;
    };
    HWND owner = nullptr;
    if (FPopupMode == pmExplicit) owner = windowOf(FPopupParent);
    // A modal form must not get below the form that opened it.
    if (FPopupMode == pmAuto || (FPopupMode == pmNone && FFormState.Contains(fsModal))) {
        TCustomForm* active = Screen().GetActiveForm();
        if (active && active->GetShowing()) owner = windowOf(active);
    }
    TCustomForm* main = Application().GetMainForm();
    if (!owner && main == this) return nullptr;
    if (!owner) owner = windowOf(main);
    return owner ? owner : Application().GetHandle();
}

void TCustomForm::UpdateOwnerWindow() {
    if (!HandleAllocated() || GetParent() || GetParentWindow()) return;
    const HWND owner = GetOwnerWindow();
    if (::GetWindow(WindowHandle(), GW_OWNER) != owner)
        ::SetWindowLongPtrW(WindowHandle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

/// The system destroys owned windows together with their owner. Those of other forms must outlive this
/// window, be it destroyed for good or to be made anew.
void TCustomForm::ReleaseOwnedForms() {
    if (!HandleAllocated()) return;
    const bool comesBack = IsControlState(csRecreating);
    for (TCustomForm* form : Screen().Forms()) {
        const HWND window = form->WindowHandle();
        if (form == this || !window || ::GetWindow(window, GW_OWNER) != WindowHandle()) continue;
        ::SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(Application().GetHandle()));
        if (comesBack) FReleasedForms.push_back(form);
    }
}

void TCustomForm::TakeOwnedFormsBack() {
    for (TCustomForm* form : std::exchange(FReleasedForms, {})) {
        const auto& forms = Screen().Forms();
        if (std::ranges::find(forms, form) == forms.end() || !form->HandleAllocated()) continue;
        ::SetWindowLongPtrW(form->WindowHandle(), GWLP_HWNDPARENT,
                            reinterpret_cast<LONG_PTR>(WindowHandle()));
    }
}

// --- place and state

void TCustomForm::CenterIn(const TRect& area) {
    const TRect work = Screen().GetWorkAreaRect(area);
    const int left = area.Left + (area.Width() - GetWidth()) / 2;
    const int top = area.Top + (area.Height() - GetHeight()) / 2;
    // The caption must stay within reach.
    SetBounds(std::max(left, work.Left), std::max(top, work.Top), GetWidth(), GetHeight());
}

void TCustomForm::ApplyPosition() {
    if (IsInState(csDesigning)) return;
    const auto centerOn = [this](TCustomForm* form) {
        const bool hasPlace = form && form != this && form->HandleAllocated();
        CenterIn(hasPlace ? form->GetBoundsRect() : Screen().GetWorkAreaRect());
    };
    switch (FPosition) {
        case poScreenCenter:
            return CenterIn(Screen().GetWorkAreaRect());
        case poDesktopCenter:
            return CenterIn(Screen().GetDesktopRect());
        case poMainFormCenter:
            return centerOn(Application().GetMainForm());
        case poOwnerFormCenter: {
            auto* owner = dynamic_cast<TCustomForm*>(GetOwner());
            return centerOn(owner ? owner : Application().GetMainForm());
        }
        default:
            return;
    }
}

void TCustomForm::WmSize(TMessage& message) {
    if (!IsInState(csDesigning) && !GetParent()) {
        if (message.WParam == SIZE_RESTORED) FWindowState = wsNormal;
        if (message.WParam == SIZE_MINIMIZED) FWindowState = wsMinimized;
        if (message.WParam == SIZE_MAXIMIZED) FWindowState = wsMaximized;
    }
    TScrollingWinControl::Dispatch(message);
}

void TCustomForm::WmGetMinMaxInfo(TMessage& message) {
    DefaultHandler(message);
    auto& info = *message.As<MINMAXINFO>();
    const TSizeConstraints& limits = GetConstraints();
    if (limits.GetMinWidth() > 0) info.ptMinTrackSize.x = limits.GetMinWidth();
    if (limits.GetMinHeight() > 0) info.ptMinTrackSize.y = limits.GetMinHeight();
    if (limits.GetMaxWidth() > 0) info.ptMaxTrackSize.x = limits.GetMaxWidth();
    if (limits.GetMaxHeight() > 0) info.ptMaxTrackSize.y = limits.GetMaxHeight();
}

void TCustomForm::WmSysCommand(TMessage& message) {
    const TLifeGuard guard(*this);
    const bool isMain = Application().GetMainForm() == this;
    const WPARAM command = message.WParam & 0xFFF0;
    // A bar of menus that is a control stands in for the window's own.
    if (command == SC_KEYMENU && message.LParam != VK_SPACE && !::GetMenu(WindowHandle()) &&
        Perform(CM_APPSYSCOMMAND, message.WParam, message.LParam) != 0) {
        message.Result = 0;
        return;
    }
    if (!guard.IsAlive()) return;
    const bool wasIconic = ::IsIconic(WindowHandle()) != FALSE;
    DefaultHandler(message);
    if (!guard.IsAlive() || !isMain || !HandleAllocated()) return;
    const bool isIconic = ::IsIconic(WindowHandle()) != FALSE;
    if (command == SC_MINIMIZE && isIconic && !wasIconic) Application().RaiseMinimized(true);
    if (command == SC_RESTORE && wasIconic && !isIconic) Application().RaiseMinimized(false);
}

}  // namespace vcl
