#include "tests/support/TestWindow.h"

#include "tests/support/Pump.h"

namespace test {
namespace {

constexpr const wchar_t* ClassName = L"TestWindow";

void RegisterOnce(WNDPROC procedure) {
    static const ATOM atom = [=] {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.style = CS_DBLCLKS;
        description.lpfnWndProc = procedure;
        description.hInstance = GetModuleHandleW(nullptr);
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        description.lpszClassName = ClassName;
        return RegisterClassExW(&description);
    }();
    (void)atom;
}

}  // namespace

TestWindow::TestWindow(const RECT& bounds, Handler handler) : FHandler(std::move(handler)) {
    RegisterOnce(Procedure);
    CreateWindowExW(0, ClassName, L"Test", WS_POPUP | WS_CLIPCHILDREN, bounds.left, bounds.top,
                    bounds.right - bounds.left, bounds.bottom - bounds.top, nullptr, nullptr,
                    GetModuleHandleW(nullptr), this);
    ShowWindow(FHandle, SW_SHOW);
    SetForegroundWindow(FHandle);
    UpdateWindow(FHandle);
    PumpAll();
}

TestWindow::~TestWindow() {
    if (FHandle) DestroyWindow(FHandle);
    PumpAll();
}

POINT TestWindow::ToScreen(int x, int y) const {
    POINT point{x, y};
    ClientToScreen(FHandle, &point);
    return point;
}

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<TestWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->FHandle = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<TestWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    const std::optional<LRESULT> answer =
        self->FHandler ? self->FHandler(message, wParam, lParam) : std::nullopt;
    if (message == WM_NCDESTROY) {
        self->FHandle = nullptr;
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    }
    return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace test
