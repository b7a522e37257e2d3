#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/controls/WindowTable.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {
namespace {

int& MessageDepth() {
    static int depth = 0;
    return depth;
}

/// Knows when the outermost message has been handled.
class TMessageScope {
public:
    TMessageScope() { ++MessageDepth(); }
    ~TMessageScope() {
        if (--MessageDepth() == 0) FreeControlDeviceContexts();
    }
    TMessageScope(const TMessageScope&) = delete;
    TMessageScope& operator=(const TMessageScope&) = delete;
};

void HandOver(std::exception_ptr error) noexcept {
    try {
        AppServices().HandleException(error);
    } catch (...) {
        // Nobody is left to tell.
    }
}

}  // namespace

LRESULT CALLBACK TWinControl::WindowProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam) {
    TWinControl* control = FindControl(window);
    if (!control) {
        control = TWindowCreation::Take();
        if (!control) return ::DefWindowProcW(window, msg, wParam, lParam);
        AttachWindow(window, control);
        control->FHandle = window;
    }
    const TMessageScope scope;
    TMessage message{msg, wParam, lParam, 0};
    std::exception_ptr error;
    try {
        control->SendTo(message);
    } catch (...) {
        error = std::current_exception();
    }
    // From here on the control may be gone.
    if (msg == WM_NCDESTROY) {
        if (TWinControl* dead = FindControl(window)) dead->WindowGone();
        DetachWindow(window);
    }
    if (error) HandOver(error);
    return message.Result;
}

void TWinControl::WindowGone() {
    FHandle = nullptr;
    FShowing = false;
    FFocused = false;
    CaptureLost(*this);
}

void TWinControl::WndProc(TMessage& message) {
    const TLifeGuard guard(*this);
    switch (message.Msg) {
        case WM_SETFOCUS: {
            FFocused = true;
            TParentForm* form = GetParentForm(this);
            if (form && !form->SetFocusedControl(this)) return;
            if (!guard.IsAlive()) return;
            break;
        }
        case WM_KILLFOCUS:
            FFocused = false;
            if (IsControlState(csFocusing)) return;
            break;
        case WM_NCHITTEST:
            TControl::WndProc(message);
            // A transparent window still catches the mouse for its children without windows.
            if (guard.IsAlive() && message.Result == HTTRANSPARENT &&
                ControlAtPos(ScreenToClient(message.Pos()), false))
                message.Result = HTCLIENT;
            return;
        case WM_CAPTURECHANGED:
        case WM_CANCELMODE:
        case CN_KEYDOWN:
            if (TControl* holder = CaptureInside(*this); holder && GoesToHolder(*holder, message)) return;
            break;
        default:
            if (message.Msg >= WM_MOUSEFIRST && message.Msg <= WM_MOUSELAST && IsControlMouseMsg(message))
                return;
            break;
    }
    TControl::WndProc(message);
}

/// Tells the control that holds the mouse inside this window what it has to know; true when there is nothing
/// left to do here.
bool TWinControl::GoesToHolder(TControl& holder, TMessage& message) {
    const TLifeGuard guard(*this);
    const bool isOther = &holder != this;
    switch (message.Msg) {
        case WM_CAPTURECHANGED:
            if (message.LParam == reinterpret_cast<LPARAM>(FHandle)) return false;
            CaptureLost(*this);
            if (isOther) holder.Perform(WM_CAPTURECHANGED, message.WParam, message.LParam);
            return !guard.IsAlive();
        case WM_CANCELMODE:
            if (isOther) holder.Perform(WM_CANCELMODE);
            return !guard.IsAlive();
        default:
            if (isOther) holder.SendTo(message);
            return isOther;
    }
}

void TWinControl::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_PAINT:
            return WmPaint(message);
        case WM_PRINTCLIENT:
            return WmPrintClient(message);
        case WM_ERASEBKGND:
            return WmEraseBkgnd(message);
        case WM_NCCALCSIZE:
            return WmNcCalcSize(message);
        case WM_NCPAINT:
            return WmNcPaint(message);
        case WM_WINDOWPOSCHANGED:
            return WmWindowPosChanged(message);
        case WM_SIZE:
            return WmSize(message);
        case WM_SETCURSOR:
            return WmSetCursor(message);
        case WM_MOUSEACTIVATE:
            return WmMouseActivate(message);
        case WM_MOUSELEAVE:
            return WmMouseLeave(message);
        case WM_MOUSEWHEEL:
            return WmMouseWheel(message);
        case WM_CONTEXTMENU:
            return WmContextMenuInside(message);
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (!DoKeyDown(message)) DefaultHandler(message);
            return;
        case WM_KEYUP:
        case WM_SYSKEYUP:
            if (!DoKeyUp(message)) DefaultHandler(message);
            return;
        case WM_CHAR:
            if (!DoKeyPress(message)) DefaultHandler(message);
            return;
        case WM_COMMAND:
        case WM_HSCROLL:
        case WM_VSCROLL:
            return Reflect(reinterpret_cast<HWND>(message.LParam), message);
        case WM_NOTIFY:
            return Reflect(message.As<NMHDR>()->hwndFrom, message);
        case WM_DRAWITEM:
            return Reflect(DrawItemWindow(*message.As<DRAWITEMSTRUCT>()), message);
        case WM_COMPAREITEM:
            return Reflect(message.As<COMPAREITEMSTRUCT>()->hwndItem, message);
        case WM_DELETEITEM:
            return Reflect(message.As<DELETEITEMSTRUCT>()->hwndItem, message);
        case WM_MEASUREITEM:
            return Reflect(MeasureItemWindow(*message.As<MEASUREITEMSTRUCT>()), message);
        case WM_CHARTOITEM:
        case WM_VKEYTOITEM:
            return Reflect(reinterpret_cast<HWND>(message.LParam), message);
        case WM_SYSCOLORCHANGE: {
            const TLifeGuard guard(*this);
            DefaultHandler(message);
            if (guard.IsAlive()) Perform(CM_SYSCOLORCHANGE);
            return;
        }
        case CN_KEYDOWN:
            return CnKeyDown(message);
        case CN_SYSKEYDOWN:
            return CnSysKeyDown(message);
        case CN_CHAR:
            return CnChar(message);
        case CN_SYSCHAR:
            return CnSysChar(message);
        case CN_KEYUP:
            return;
        case CM_CHILDKEY:
            if (GetParent()) GetParent()->SendTo(message);
            return;
        case CM_DIALOGKEY:
        case CM_DIALOGCHAR:
        case CM_APPSYSCOMMAND:
        case CM_FOCUSCHANGED:
            return Broadcast(message);
        case CM_ENTER:
            return DoEnter();
        case CM_EXIT:
            return DoExit();
        case CM_VISIBLECHANGED:
            return CmVisibleChanged(message);
        case CM_ENABLEDCHANGED:
            return CmEnabledChanged();
        case CM_COLORCHANGED:
            return CmColorChanged();
        case CM_FONTCHANGED:
            return CmFontChanged();
        case CM_SHOWHINTCHANGED:
            return NotifyControls(CM_PARENTSHOWHINTCHANGED);
        case CM_SHOWINGCHANGED:
            return CmShowingChanged();
        case CM_CTL3DCHANGED:
            return CmCtl3DChanged();
        case CM_PARENTCTL3DCHANGED:
            return ParentCtl3DChanged();
        case CM_DOUBLEBUFFEREDCHANGED:
            return NotifyControls(CM_PARENTDOUBLEBUFFEREDCHANGED);
        case CM_PARENTDOUBLEBUFFEREDCHANGED:
            return ParentDoubleBufferedChanged();
        case CM_BORDERCHANGED:
            return CmBorderChanged();
        case CM_RECREATEWND:
            return CmRecreateWnd();
        case CM_INVALIDATE:
            return CmInvalidate(message);
        case CM_TABSTOPCHANGED:
            return CmTabStopChanged();
        case CM_CONTROLLISTCHANGE:
            if (GetParent()) GetParent()->SendTo(message);
            return;
        case CM_SYSCOLORCHANGE: {
            const TLifeGuard guard(*this);
            Invalidate();
            NotifyControls(CM_SYSCOLORCHANGE);
            return;
        }
        default:
            TControl::Dispatch(message);
    }
}

void TWinControl::DefaultHandler(TMessage& message) {
    if (!FHandle) return TControl::DefaultHandler(message);
    switch (message.Msg) {
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
            if (DoControlMsg(reinterpret_cast<HWND>(message.LParam), message)) return;
            break;
        case CN_CTLCOLORMSGBOX:
        case CN_CTLCOLOREDIT:
        case CN_CTLCOLORLISTBOX:
        case CN_CTLCOLORBTN:
        case CN_CTLCOLORDLG:
        case CN_CTLCOLORSCROLLBAR:
        case CN_CTLCOLORSTATIC: {
            const auto dc = reinterpret_cast<HDC>(message.WParam);
            ::SetTextColor(dc, ColorToRGB(GetFont().GetColor()));
            ::SetBkColor(dc, ColorToRGB(FBrush->GetColor()));
            message.Result = reinterpret_cast<LRESULT>(FBrush->GetHandle());
            return;
        }
        case WM_SETTEXT:
            if (!IsSystemClass()) TControl::DefaultHandler(message);
            break;
        default:
            // Messages of the framework mean nothing to the system.
            if (message.Msg >= CM_BASE && message.Msg < CN_BASE + WM_USER) return;
            break;
    }
    message.Result = ::CallWindowProcW(FDefWndProc, FHandle, message.Msg, message.WParam, message.LParam);
}

bool TWinControl::DoControlMsg(HWND window, TMessage& message) {
    TWinControl* control = FindControl(window);
    if (!control) return false;
    message.Result = control->Perform(CN_BASE + message.Msg, message.WParam, message.LParam);
    return true;
}

void TWinControl::Reflect(HWND window, TMessage& message) {
    if (!DoControlMsg(window, message)) DefaultHandler(message);
}

HWND TWinControl::DrawItemWindow(const DRAWITEMSTRUCT& item) {
    return item.CtlType == ODT_MENU ? nullptr : item.hwndItem;
}

HWND TWinControl::MeasureItemWindow(const MEASUREITEMSTRUCT& item) const {
    if (item.CtlType == ODT_MENU) return nullptr;
    // The message names no window. Those that let it come later have their handle as identifier.
    if (const auto named = reinterpret_cast<HWND>(static_cast<ULONG_PTR>(item.CtlID)); FindControl(named))
        return named;
    // The others get it while they are being made.
    for (const TWinControl* child : FWinControls) {
        if (child->IsControlState(csCreating) && child->FHandle) return child->FHandle;
    }
    return nullptr;
}

}  // namespace vcl
