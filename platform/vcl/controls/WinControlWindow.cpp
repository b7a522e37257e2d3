#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/StateScope.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/controls/WindowTable.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {
namespace {

HINSTANCE ThisModule() {
    static const HINSTANCE module = ModuleOfAddress(reinterpret_cast<const void*>(&FindControl));
    return module;
}

/// Looked up once: the system asks for the size of cursors each time, which costs more than the rest of
/// making the parameters.
HCURSOR ArrowCursor() {
    static const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    return arrow;
}

[[noreturn]] void RaiseNoWindow(const String& className) {
    throw EOSError(Format(L"A window of class %s can't be made (error %d)", className,
                          static_cast<int>(::GetLastError())));
}

}  // namespace

HWND TWinControl::GetHandle() {
    HandleNeeded();
    return FHandle;
}

void TWinControl::HandleNeeded() {
    if (FHandle) return;
    if (GetParent()) GetParent()->HandleNeeded();
    // Making the parent's window may have shown its children.
    if (!FHandle) CreateHandle();
}

void TWinControl::SetParentWindow(HWND value) {
    if (GetParent() || value == FParentWindow) return;
    FParentWindow = value;
    if (FHandle && value) {
        ::SetParent(FHandle, value);
    } else if (FHandle) {
        DestroyHandle();
    } else {
        UpdateControlState();
    }
}

void TWinControl::CreateParams(TCreateParams& params) {
    params.Caption = StoredText();
    params.Style = WS_CHILD | WS_CLIPSIBLINGS;
    if (ControlStyle.Contains(csAcceptsControls)) {
        params.Style |= WS_CLIPCHILDREN;
        params.ExStyle |= WS_EX_CONTROLPARENT;
    }
    if (!IsInState(csDesigning) && !GetEnabled()) params.Style |= WS_DISABLED;
    if (FTabStop) params.Style |= WS_TABSTOP;
    const TRect place = WindowPlace(GetBoundsRect());
    params.X = place.Left;
    params.Y = place.Top;
    params.Width = place.Width();
    params.Height = place.Height();
    params.WndParent = GetParent() ? GetParent()->GetHandle() : FParentWindow;
    params.WindowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    params.WindowClass.lpfnWndProc = ::DefWindowProcW;
    params.WindowClass.hInstance = ThisModule();
    params.WindowClass.hCursor = ArrowCursor();
    params.WinClassName = ClassName();
}

void TWinControl::CreateSubClass(TCreateParams& params, const wchar_t* controlClass) {
    constexpr UINT OwnDcStyles = CS_OWNDC | CS_CLASSDC | CS_PARENTDC;
    WNDCLASSW base{};
    if (!::GetClassInfoW(nullptr, controlClass, &base) && !::GetClassInfoW(ThisModule(), controlClass, &base))
        RaiseNoWindow(controlClass);
    params.WindowClass = base;
    params.WindowClass.style &= ~(OwnDcStyles | CS_GLOBALCLASS);
    params.WindowClass.hbrBackground = nullptr;
}

void TWinControl::CreateWindowHandle(const TCreateParams& params) {
    const TWindowCreation creation(this);
    FHandle = ::CreateWindowExW(params.ExStyle, params.WinClassName.c_str(), params.Caption.c_str(),
                                params.Style, params.X, params.Y, params.Width, params.Height,
                                params.WndParent, nullptr, ThisModule(), params.Param);
}

void TWinControl::CreateWnd() {
    const bool comesShown = std::exchange(FComesShown, false);
    TCreateParams params;
    CreateParams(params);
    if ((params.Style & WS_CHILD) && !params.WndParent) RaiseNoParentWindow();
    if ((params.Style & WS_CHILD) && comesShown) params.Style |= WS_VISIBLE;
    FDefWndProc = params.WindowClass.lpfnWndProc;
    params.WinClassName = RegisterControlClass(params, &TWinControl::WindowProcedure);
    {
        const TStateScope creating(*this, csCreating);
        CreateWindowHandle(params);
    }
    if (!FHandle) RaiseNoWindow(params.WinClassName);
    TakeWindowBounds();
    Perform(WM_SETFONT, reinterpret_cast<WPARAM>(GetFont().GetHandle()), 1);
    if (GetAutoSize()) AdjustSize();
}

void TWinControl::CreateHandle() {
    if (FHandle || IsControlState(csCreating)) return;
    const TLifeGuard guard(*this);
    const TSize formerFrame = FrameSize();
    CreateWnd();
    if (!guard.IsAlive() || !FHandle) return;
    const TRect client = GetClientRect();
    FFrame = {GetWidth() - client.Width(), GetHeight() - client.Height()};
    FFrameKnown = true;
    // A frame that was not known before is no change of size to the children.
    for (int i = 0; i < GetControlCount(); ++i) {
        TSize& parent = GetControl(i)->FAnchorBase.Parent;
        parent.Width += formerFrame.Width - FFrame.Width;
        parent.Height += formerFrame.Height - FFrame.Height;
    }
    PlaceInZOrder();
    Realign();
    if (guard.IsAlive() && !IsInState(csLoading)) Resize();
}

void TWinControl::DestroyWnd() {
    // A window of the system keeps the text itself.
    if (IsSystemClass()) TControl::SetTextBuf(GetTextBuf());
    FreeControlDeviceContexts();
    DestroyWindowHandle();
}

void TWinControl::DestroyWindowHandle() {
    const TStateScope destroying(*this, csDestroyingHandle);
    const HWND window = FHandle;
    if (!window) return;
    const TLifeGuard guard(*this);
    ::DestroyWindow(window);
    DetachWindow(window);
    if (!guard.IsAlive()) return;
    FHandle = nullptr;
    FShowing = false;
    FFocused = false;
}

void TWinControl::DestroyHandle() {
    if (!FHandle) return;
    const TLifeGuard guard(*this);
    for (std::size_t i = 0; guard.IsAlive() && i < FWinControls.size(); ++i)
        FWinControls[i]->DestroyHandle();
    if (guard.IsAlive() && FHandle) DestroyWnd();
}

void TWinControl::CmRecreateWnd() {
    if (!FHandle) return;
    const TLifeGuard guard(*this);
    const bool wasFocused = Focused();
    {
        const TStateScope recreating(*this, csRecreating);
        DestroyHandle();
    }
    if (guard.IsAlive()) UpdateControlState();
    if (guard.IsAlive() && wasFocused && FHandle) ::SetFocus(FHandle);
}

bool TWinControl::IsSystemClass() const {
    return FDefWndProc && FDefWndProc != &::DefWindowProcW;
}

String TWinControl::GetTextBuf() const {
    if (!FHandle || !IsSystemClass()) return TControl::GetTextBuf();
    const auto length = static_cast<std::size_t>(::SendMessageW(FHandle, WM_GETTEXTLENGTH, 0, 0));
    String text(length + 1, L'\0');
    const auto got = ::SendMessageW(FHandle, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(got));
    return text;
}

void TWinControl::SetTextBuf(const String& value) {
    TControl::SetTextBuf(value);
    if (FHandle) ::SendMessageW(FHandle, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(value.c_str()));
}

void TWinControl::PlaceInZOrder() {
    if (!GetParent()) return;
    // The system puts a new window below its siblings, so nothing is to do while all below it have none.
    HWND above = HWND_TOP;
    bool belowMe = true;
    bool someBelow = false;
    for (TWinControl* sibling : GetParent()->FWinControls) {
        if (sibling == this) {
            belowMe = false;
        } else if (belowMe) {
            someBelow = someBelow || sibling->FHandle;
        } else if (sibling->FHandle) {
            above = sibling->FHandle;
            break;
        }
    }
    if (!someBelow) return;
    ::SetWindowPos(FHandle, above, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace vcl
