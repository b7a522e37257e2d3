#include "tests/support/WindowProbe.h"

#include <commctrl.h>

#include <algorithm>

namespace test {

WindowProbe::WindowProbe(HWND window) : FWindow(window) {
    SetWindowSubclass(window, Listen, reinterpret_cast<UINT_PTR>(this), reinterpret_cast<DWORD_PTR>(this));
}

WindowProbe::~WindowProbe() {
    if (FWindow) RemoveWindowSubclass(FWindow, Listen, reinterpret_cast<UINT_PTR>(this));
}

int WindowProbe::Count(UINT message) const {
    return static_cast<int>(std::count_if(FMessages.begin(), FMessages.end(),
                                          [=](const SeenMessage& seen) { return seen.Message == message; }));
}

std::vector<UINT> WindowProbe::Order(const std::vector<UINT>& wanted) const {
    std::vector<UINT> order;
    for (const SeenMessage& seen : FMessages)
        if (std::find(wanted.begin(), wanted.end(), seen.Message) != wanted.end())
            order.push_back(seen.Message);
    return order;
}

LRESULT CALLBACK WindowProbe::Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                     DWORD_PTR self) {
    auto* probe = reinterpret_cast<WindowProbe*>(self);
    probe->FMessages.push_back({message, wParam, lParam});
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, Listen, id);
        probe->FWindow = nullptr;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace test
