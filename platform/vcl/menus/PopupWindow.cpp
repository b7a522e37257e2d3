#include "platform/vcl/menus/PopupWindow.h"

#include <algorithm>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/menus/PopupMenu.h"

namespace vcl {
namespace {

constexpr const wchar_t* WindowClassName = L"TPopupWindow";

struct TPopupState {
    std::vector<TPopupMenu*> Menus;
    HWND Window = nullptr;
};

TPopupState& State() {
    static TPopupState state;
    return state;
}

HINSTANCE ThisModule() {
    return ModuleOfAddress(reinterpret_cast<const void*>(&WindowClassName));
}

}  // namespace

void TPopupWindow::Enter(TPopupMenu* menu) {
    State().Menus.push_back(menu);
}

void TPopupWindow::Leave(TPopupMenu* menu) {
    TPopupState& state = State();
    std::erase(state.Menus, menu);
    if (!state.Menus.empty() || !state.Window) return;
    ::DestroyWindow(std::exchange(state.Window, nullptr));
    ::UnregisterClassW(WindowClassName, ThisModule());
    TLedger::Count("window", -1);
}

HWND TPopupWindow::Handle() {
    TPopupState& state = State();
    if (state.Window) return state.Window;
    WNDCLASSW description{};
    description.lpfnWndProc = WindowProcedure;
    description.hInstance = ThisModule();
    description.lpszClassName = WindowClassName;
    ::RegisterClassW(&description);
    state.Window = ::CreateWindowExW(WS_EX_TOOLWINDOW, WindowClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                     nullptr, ThisModule(), nullptr);
    if (!state.Window) throw EOSError(L"The window of the popup menus can't be made");
    TLedger::Count("window", +1);
    return state.Window;
}

bool TPopupWindow::Offer(HWND window, TMessage& message) {
    // Handlers may free menus or make new ones.
    const std::vector<TPopupMenu*> menus = State().Menus;
    for (TPopupMenu* menu : menus) {
        const auto& living = State().Menus;
        if (std::find(living.begin(), living.end(), menu) == living.end()) continue;
        if (menu->HandleMessage(window, message)) return true;
    }
    return false;
}

LRESULT CALLBACK TPopupWindow::WindowProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam) {
    TMessage message{msg, wParam, lParam, 0};
    std::exception_ptr error;
    try {
        if (Offer(window, message)) return message.Result;
    } catch (...) {
        error = std::current_exception();
    }
    if (error) {
        try {
            AppServices().HandleException(error);
        } catch (...) {
            // Nobody is left to tell.
        }
        return message.Result;
    }
    return ::DefWindowProcW(window, msg, wParam, lParam);
}

}  // namespace vcl
