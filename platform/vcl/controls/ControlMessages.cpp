#include <algorithm>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

LRESULT TControl::Perform(UINT msg, WPARAM wParam, LPARAM lParam) {
    TMessage message{msg, wParam, lParam, 0};
    SendTo(message);
    return message.Result;
}

void TControl::SendTo(TMessage& message) {
    if (WindowProc)
        WindowProc(message);
    else
        WndProc(message);
}

bool TControl::IsDesignMessage(TMessage& message) {
    if (!IsInState(csDesigning)) return false;
    TParentForm* form = GetParentForm(this);
    TDesignHook* hook = form ? form->GetDesignHook() : nullptr;
    return hook && hook->IsDesignMsg(this, message);
}

void TControl::WndProc(TMessage& message) {
    if (IsDesignMessage(message)) return;
    if (message.Msg >= WM_MOUSEFIRST && message.Msg <= WM_MOUSELAST && !IsInState(csDesigning)) {
        const TLifeGuard guard(*this);
        PrepareMouseMessage(message);
        if (!guard.IsAlive() || message.Msg == WM_NULL) return;
    }
    Dispatch(message);
}

bool TControl::DragsInstead() {
    const TLifeGuard guard(*this);
    return FDragMode == dmAutomatic && (BeginAutoDrag() || !guard.IsAlive());
}

void TControl::PrepareMouseMessage(TMessage& message) {
    if (!ControlStyle.Contains(csDoubleClicks)) {
        switch (message.Msg) {
            case WM_LBUTTONDBLCLK:
                message.Msg = WM_LBUTTONDOWN;
                break;
            case WM_RBUTTONDBLCLK:
                message.Msg = WM_RBUTTONDOWN;
                break;
            case WM_MBUTTONDBLCLK:
                message.Msg = WM_MBUTTONDOWN;
                break;
            default:
                break;
        }
    }
    switch (message.Msg) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (DragsInstead()) {
                message.Msg = WM_NULL;
                return;
            }
            SetControlState(csLButtonDown, true);
            break;
        case WM_LBUTTONUP:
            SetControlState(csLButtonDown, false);
            break;
        default:
            break;
    }
    AppServices().HintMouseMessage(this, message);
}

void TControl::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_LBUTTONDOWN:
            return WmMouseDown(message, mbLeft, false);
        case WM_LBUTTONDBLCLK:
            return WmMouseDown(message, mbLeft, true);
        case WM_LBUTTONUP:
            return WmMouseUp(message, mbLeft);
        case WM_RBUTTONDOWN:
            return WmMouseDown(message, mbRight, false);
        case WM_RBUTTONDBLCLK:
            return WmMouseDown(message, mbRight, true);
        case WM_RBUTTONUP:
            return WmMouseUp(message, mbRight);
        case WM_MBUTTONDOWN:
            return WmMouseDown(message, mbMiddle, false);
        case WM_MBUTTONDBLCLK:
            return WmMouseDown(message, mbMiddle, true);
        case WM_MBUTTONUP:
            return WmMouseUp(message, mbMiddle);
        case WM_MOUSEMOVE:
            return WmMouseMove(message);
        case WM_CANCELMODE:
            return WmCancelMode(message);
        case WM_CONTEXTMENU:
            return WmContextMenu(message);
        case CM_MOUSEENTER:
            return CmMouseEnterLeave(message, true);
        case CM_MOUSELEAVE:
            return CmMouseEnterLeave(message, false);
        case CM_MOUSEWHEEL:
            return CmMouseWheel(message);
        case CM_HITTEST:
            message.Result = HTCLIENT;
            return;
        case CM_VISIBLECHANGED:
            return CmVisibleChanged(message);
        case CM_ENABLEDCHANGED:
        case CM_FONTCHANGED:
        case CM_COLORCHANGED:
        case CM_TEXTCHANGED:
            return Invalidate();
        case CM_CURSORCHANGED:
            return CmCursorChanged();
        case CM_DRAG:
            return CmDrag(message);
        case CM_PARENTCOLORCHANGED:
            return ParentColorChanged();
        case CM_PARENTFONTCHANGED:
            return ParentFontChanged();
        case CM_PARENTSHOWHINTCHANGED:
            return ParentShowHintChanged();
        case CM_SYSCOLORCHANGE:
            return Invalidate();
        default:
            DefaultHandler(message);
    }
}

void TControl::DefaultHandler(TMessage& message) {
    switch (message.Msg) {
        case WM_GETTEXT: {
            if (message.WParam == 0) return;
            const std::size_t count = std::min<std::size_t>(FText.size(), message.WParam - 1);
            wchar_t* buffer = message.As<wchar_t>();
            std::copy_n(FText.begin(), count, buffer);
            buffer[count] = L'\0';
            message.Result = static_cast<LRESULT>(count);
            return;
        }
        case WM_GETTEXTLENGTH:
            message.Result = static_cast<LRESULT>(FText.size());
            return;
        case WM_SETTEXT:
            FText = message.LParam ? message.As<const wchar_t>() : L"";
            message.Result = 1;
            return;
        default:
            return;
    }
}

void TControl::CmVisibleChanged(TMessage&) {
    if (!IsInState(csDesigning) || ControlStyle.Contains(csNoDesignVisible))
        InvalidateControl(true, FVisible && ControlStyle.Contains(csOpaque));
}

void TControl::CmCursorChanged() {
    // Only under the pointer does it show before the mouse moves again.
    TWinControl* window = AsWinControl() ? AsWinControl() : FParent;
    if (!window || !window->HandleAllocated() || GetMouseControl() != this) return;
    window->Perform(WM_SETCURSOR, reinterpret_cast<WPARAM>(window->WindowHandle()),
                    MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

}  // namespace vcl
