#include "platform/vcl/controls/DragCapture.h"

#include <exception>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/DragSession.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/Resources.h"

namespace vcl {
namespace {

constexpr const wchar_t* WindowClassName = L"TDragCapture";

HINSTANCE ThisModule() {
    return ModuleOfAddress(reinterpret_cast<const void*>(&WindowClassName));
}

std::unique_ptr<TDragCapture>& Held() {
    static std::unique_ptr<TDragCapture> held;
    return held;
}

bool IsButtonDown() {
    return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0;
}

/// While the mouse was held no window heard of its moves; the one below the pointer gets one to catch up.
void TellWindowUnderPointer() {
    POINT pointer{};
    ::GetCursorPos(&pointer);
    const HWND window = ::WindowFromPoint(pointer);
    if (!window || ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId()) return;
    ::ScreenToClient(window, &pointer);
    ::PostMessageW(window, WM_MOUSEMOVE, 0, TMessage::PackPoint(pointer));
}

}  // namespace

TDragCapture::TDragCapture(TDragSession& session) : FSession(&session) {
    WNDCLASSW description{};
    description.lpfnWndProc = WindowProcedure;
    description.hInstance = ThisModule();
    description.lpszClassName = WindowClassName;
    ::RegisterClassW(&description);
    FHandle = ::CreateWindowExW(WS_EX_TOOLWINDOW, WindowClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                nullptr, ThisModule(), nullptr);
    if (!FHandle) throw EOSError(L"The mouse can't be held for a drag");
    TLedger::Count("window", +1);
    ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ::SetCapture(FHandle);
}

TDragCapture::~TDragCapture() {
    ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, 0);
    const bool had = ::GetCapture() == FHandle;
    if (had) ::ReleaseCapture();
    ::DestroyWindow(FHandle);
    ::UnregisterClassW(WindowClassName, ThisModule());
    TLedger::Count("window", -1);
    if (had) TellWindowUnderPointer();
}

void TDragCapture::HoldUntilRelease(std::unique_ptr<TDragCapture> capture) {
    if (!IsButtonDown() || ::GetCapture() != capture->FHandle) return;
    capture->FSession = nullptr;
    Held() = std::move(capture);
}

void TDragCapture::StopHolding() {
    Held().reset();
}

LRESULT CALLBACK TDragCapture::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (auto* self = reinterpret_cast<TDragCapture*>(::GetWindowLongPtrW(window, GWLP_USERDATA)))
        self->Handle(message, wParam, lParam);
    return ::DefWindowProcW(window, message, wParam, lParam);
}

void TDragCapture::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!FSession) {
        const bool released = (message == WM_LBUTTONUP || message == WM_RBUTTONUP) && !IsButtonDown();
        if (released || message == WM_CAPTURECHANGED) StopHolding();
        return;
    }
    try {
        FSession->MouseMessage({message, wParam, lParam, 0});
    } catch (...) {
        AppServices().HandleException(std::current_exception());
    }
}

}  // namespace vcl
