#pragma once

#include <vector>

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TPopupMenu;
struct TMessage;

/// The hidden window that owns the popup menus of the process while they are open; there as long as there are
/// popup menus.
class TPopupWindow {
public:
    /// Notes that the menu lives, or that it goes.
    static void Enter(TPopupMenu* menu);
    static void Leave(TPopupMenu* menu);
    /// The window, made when there is none yet. Raises EOSError.
    [[nodiscard]] static HWND Handle();

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam);
    static bool Offer(HWND window, TMessage& message);
};

}  // namespace vcl
