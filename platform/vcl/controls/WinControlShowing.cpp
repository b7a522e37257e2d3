#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Font.h"

// Visibility, and the properties that a window or the children have to follow.

namespace vcl {

void TWinControl::UpdateControlState() {
    TWinControl* top = this;
    while (top->GetParent()) {
        top = top->GetParent();
        if (!top->FShowing) return;
    }
    if (top->FParentWindow || top->AsParentForm()) UpdateShowing();
}

void TWinControl::UpdateShowing() {
    if (IsInState(csDestroying)) return;
    const TLifeGuard guard(*this);
    const bool show = IsShown() && !IsInState(csLoading);
    if (show) {
        if (!FHandle) {
            // In sight already, it would be painted before its children are there.
            const bool inSight = !GetParent() || GetParent()->GetShowing();
            FComesShown = FWinControls.empty() || !inSight;
            CreateHandle();
            if (!guard.IsAlive()) return;
        }
        // From the top down: each new window comes below its siblings by itself.
        for (std::size_t i = FWinControls.size(); i > 0; i = std::min(i - 1, FWinControls.size())) {
            FWinControls[i - 1]->UpdateShowing();
            if (!guard.IsAlive()) return;
        }
    }
    if (!FHandle || FShowing == show) return;
    FShowing = show;
    try {
        Perform(CM_SHOWINGCHANGED);
    } catch (...) {
        if (guard.IsAlive()) FShowing = !show;
        throw;
    }
}

void TWinControl::CmShowingChanged() {
    const bool isVisible = (::GetWindowLongW(FHandle, GWL_STYLE) & WS_VISIBLE) != 0;
    if (isVisible == FShowing) return;
    const UINT change = FShowing ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
    ::SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | change);
}

void TWinControl::CmVisibleChanged(TMessage&) {
    const TLifeGuard guard(*this);
    if (!GetVisible() && GetParent()) RemoveFocus(false);
    if (!guard.IsAlive()) return;
    if (!IsInState(csDesigning) || ControlStyle.Contains(csNoDesignVisible)) UpdateControlState();
}

void TWinControl::CmEnabledChanged() {
    const TLifeGuard guard(*this);
    if (!GetEnabled() && GetParent()) RemoveFocus(false);
    if (guard.IsAlive() && FHandle && !IsInState(csDesigning)) ::EnableWindow(FHandle, GetEnabled());
}

void TWinControl::CmColorChanged() {
    const TLifeGuard guard(*this);
    FBrush->SetColor(GetColor());
    Invalidate();
    if (guard.IsAlive()) NotifyControls(CM_PARENTCOLORCHANGED);
}

void TWinControl::CmFontChanged() {
    const TLifeGuard guard(*this);
    if (FHandle) Perform(WM_SETFONT, reinterpret_cast<WPARAM>(GetFont().GetHandle()), 0);
    if (guard.IsAlive()) Invalidate();
    if (guard.IsAlive()) NotifyControls(CM_PARENTFONTCHANGED);
}

void TWinControl::CmTabStopChanged() {
    if (!FHandle) return;
    LONG style = ::GetWindowLongW(FHandle, GWL_STYLE);
    style = FTabStop ? style | WS_TABSTOP : style & ~WS_TABSTOP;
    ::SetWindowLongW(FHandle, GWL_STYLE, style);
}

void TWinControl::SetDoubleBuffered(bool value) {
    FParentDoubleBuffered = false;
    if (value == FDoubleBuffered) return;
    FDoubleBuffered = value;
    Perform(CM_DOUBLEBUFFEREDCHANGED);
}

void TWinControl::SetParentDoubleBuffered(bool value) {
    if (value == FParentDoubleBuffered) return;
    FParentDoubleBuffered = value;
    if (GetParent()) Perform(CM_PARENTDOUBLEBUFFEREDCHANGED);
}

void TWinControl::ParentDoubleBufferedChanged() {
    if (!FParentDoubleBuffered || !GetParent()) return;
    const TLifeGuard guard(*this);
    SetDoubleBuffered(GetParent()->FDoubleBuffered);
    if (guard.IsAlive()) FParentDoubleBuffered = true;
}

void TWinControl::SetCtl3D(bool value) {
    if (value == FCtl3D) return;
    FCtl3D = value;
    FParentCtl3D = false;
    Perform(CM_CTL3DCHANGED);
}

void TWinControl::SetParentCtl3D(bool value) {
    if (value == FParentCtl3D) return;
    FParentCtl3D = value;
    if (GetParent()) Perform(CM_PARENTCTL3DCHANGED);
}

void TWinControl::CmCtl3DChanged() {
    const TLifeGuard guard(*this);
    if (ControlStyle.Contains(csFramed)) Perform(CM_RECREATEWND);
    if (guard.IsAlive()) NotifyControls(CM_PARENTCTL3DCHANGED);
}

void TWinControl::ParentCtl3DChanged() {
    if (!FParentCtl3D || !GetParent()) return;
    const TLifeGuard guard(*this);
    SetCtl3D(GetParent()->FCtl3D);
    if (guard.IsAlive()) FParentCtl3D = true;
}

}  // namespace vcl
