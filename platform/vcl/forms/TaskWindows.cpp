#include "platform/vcl/forms/TaskWindows.h"

namespace vcl {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

}  // namespace

TTaskWindowsDisabled::TTaskWindowsDisabled(HWND except) {
    ::EnumThreadWindows(::GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&FWindows));
    std::erase(FWindows, except);
    for (const HWND window : FWindows)
        ::EnableWindow(window, FALSE);
}

void TTaskWindowsDisabled::Enable() {
    for (const HWND window : FWindows) {
        // It may have been destroyed, and its number given to a window of another thread.
        if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
            ::EnableWindow(window, TRUE);
    }
    FWindows.clear();
}

}  // namespace vcl
