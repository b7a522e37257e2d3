#include "platform/vcl/controls/Mouse.h"

#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {
namespace {

struct TMouseState {
    /// Without a window, so that it gets its messages from the window of its parent.
    TControl* GraphicCapture = nullptr;
    /// The window that has the capture because of `SetCaptureControl`.
    TWinControl* Capturer = nullptr;
    TControl* Hot = nullptr;
    /// The window that the system watches for the pointer to leave.
    HWND Watched = nullptr;
};

TMouseState& State() {
    static TMouseState state;
    return state;
}

void Watch(HWND window) {
    if (State().Watched == window) return;
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window, 0};
    State().Watched = TrackMouseEvent(&track) ? window : nullptr;
}

TWinControl* WindowOf(TControl* control) {
    TWinControl* window = control->AsWinControl();
    return window ? window : control->GetParent();
}

}  // namespace

TControl* GetCaptureControl() {
    const TMouseState& state = State();
    if (state.GraphicCapture) return state.GraphicCapture;
    return state.Capturer ? state.Capturer : FindControl(::GetCapture());
}

void SetCaptureControl(TControl* control) {
    TMouseState& state = State();
    TWinControl* window = control ? WindowOf(control) : nullptr;
    if (!window) {
        const bool ours = state.Capturer != nullptr;
        state.GraphicCapture = nullptr;
        state.Capturer = nullptr;
        if (ours || FindControl(::GetCapture())) ::ReleaseCapture();
        return;
    }
    const HWND handle = window->GetHandle();
    // Taking the capture tells the former holder, which may be the same window.
    state.GraphicCapture = nullptr;
    state.Capturer = nullptr;
    ::SetCapture(handle);
    state.Capturer = window;
    if (control != window) state.GraphicCapture = control;
}

TControl* CaptureInside(const TWinControl& window) {
    const TMouseState& state = State();
    if (state.Capturer != &window) return nullptr;
    return state.GraphicCapture ? state.GraphicCapture : state.Capturer;
}

void CaptureLost(const TWinControl& window) {
    TMouseState& state = State();
    if (state.Capturer != &window) return;
    state.Capturer = nullptr;
    state.GraphicCapture = nullptr;
}

TControl* GetMouseControl() {
    return State().Hot;
}

void SetMouseControl(TControl* control) {
    TMouseState& state = State();
    if (state.Hot == control) return;
    TControl* old = std::exchange(state.Hot, control);
    if (old) old->Perform(CM_MOUSELEAVE);
    // The handler may have freed the new one or moved the pointer's place on.
    if (state.Hot == control && control) control->Perform(CM_MOUSEENTER);
}

void PointerMovedTo(TWinControl& window, TControl* target) {
    Watch(window.WindowHandle());
    SetMouseControl(target);
}

void PointerLeft(TWinControl& window) {
    TMouseState& state = State();
    if (state.Watched == window.WindowHandle()) state.Watched = nullptr;
    if (state.Hot && WindowOf(state.Hot) == &window) SetMouseControl(nullptr);
}

void PointerLosesControl(TControl& control) {
    TControl* hot = State().Hot;
    for (TControl* c = hot; c; c = c->GetParent()) {
        if (c == &control) return SetMouseControl(nullptr);
    }
}

void ForgetControl(const TControl& control) {
    TMouseState& state = State();
    if (state.Hot == &control) state.Hot = nullptr;
    if (state.GraphicCapture == &control || state.Capturer == &control) {
        state.GraphicCapture = nullptr;
        state.Capturer = nullptr;
        ::ReleaseCapture();
    }
}

void ForgetWindow(HWND window) {
    if (State().Watched == window) State().Watched = nullptr;
}

TWinControl* FindVCLWindow(TPoint screenPoint) {
    HWND window = ::WindowFromPoint(screenPoint);
    TWinControl* control = nullptr;
    while (window && !(control = FindControl(window)))
        window = ::GetParent(window);
    return control;
}

TControl* FindDragTarget(TPoint screenPoint, bool allowDisabled) {
    TWinControl* window = FindVCLWindow(screenPoint);
    if (!window) return nullptr;
    TControl* inside = window->ControlAtPos(window->ScreenToClient(screenPoint), allowDisabled);
    return inside ? inside : window;
}

TPoint TMouse::GetCursorPos() const {
    POINT p{};
    ::GetCursorPos(&p);
    return p;
}

void TMouse::SetCursorPos(TPoint value) {
    ::SetCursorPos(value.X, value.Y);
}

HWND TMouse::GetCapture() const {
    return ::GetCapture();
}

void TMouse::SetCapture(HWND value) {
    if (value)
        ::SetCapture(value);
    else
        ::ReleaseCapture();
}

bool TMouse::GetMousePresent() const {
    return ::GetSystemMetrics(SM_MOUSEPRESENT) != 0;
}

bool TMouse::GetWheelPresent() const {
    return ::GetSystemMetrics(SM_MOUSEWHEELPRESENT) != 0;
}

int TMouse::GetWheelScrollLines() const {
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    return static_cast<int>(lines);
}

TMouse& Mouse() {
    static TMouse mouse;
    return mouse;
}

}  // namespace vcl
