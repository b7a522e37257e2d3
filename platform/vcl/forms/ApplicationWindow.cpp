#include "platform/vcl/forms/ApplicationWindow.h"

#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/forms/Application.h"

namespace vcl {
namespace {

constexpr const wchar_t* WindowClassName = L"TApplication";

HINSTANCE ThisModule() {
    return ModuleOfAddress(reinterpret_cast<const void*>(&WindowClassName));
}

}  // namespace

TApplicationWindow::TApplicationWindow(TApplication& application) : FApplication(application) {
    WNDCLASSW description{};
    description.lpfnWndProc = WindowProcedure;
    description.hInstance = ThisModule();
    description.lpszClassName = WindowClassName;
    ::RegisterClassW(&description);
    FHandle = ::CreateWindowExW(WS_EX_TOOLWINDOW, WindowClassName, application.GetTitle().c_str(), WS_POPUP,
                                0, 0, 0, 0, nullptr, nullptr, ThisModule(), nullptr);
    if (!FHandle) throw EOSError(L"The application's window can't be made");
    ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    TLedger::Count("window", +1);
}

TApplicationWindow::~TApplicationWindow() {
    ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, 0);
    ::DestroyWindow(FHandle);
    ::UnregisterClassW(WindowClassName, ThisModule());
    TLedger::Count("window", -1);
}

void TApplicationWindow::WakeForReleasedForms() const {
    ::PostMessageW(FHandle, CM_RELEASE, 0, 0);
}

LRESULT CALLBACK TApplicationWindow::WindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                     LPARAM lParam) {
    auto* self = reinterpret_cast<TApplicationWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self) self->Handle(message);
    return ::DefWindowProcW(window, message, wParam, lParam);
}

void TApplicationWindow::Handle(UINT message) {
    try {
        if (message == CM_RELEASE) FApplication.FreeReleasedForms();
        if (message == WM_SETTINGCHANGE) FApplication.RaiseSettingChange();
    } catch (...) {
        FApplication.HandleException(&FApplication);
    }
}

}  // namespace vcl
