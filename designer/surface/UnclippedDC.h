#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/core/WindowsApi.h"

namespace designer {

/// A device context of a window's client area that reaches what the children cover, too. Without a handle
/// when the system has none to give.
class [[nodiscard]] TUnclippedDC {
public:
    explicit TUnclippedDC(HWND window)
        : FWindow(window), FDC(::GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS)) {}
    ~TUnclippedDC() {
        if (FDC) ::ReleaseDC(FWindow, FDC);
    }
    TUnclippedDC(const TUnclippedDC&) = delete;
    TUnclippedDC& operator=(const TUnclippedDC&) = delete;
    [[nodiscard]] HDC Get() const { return FDC; }

private:
    HWND FWindow;
    HDC FDC;
};

}  // namespace designer
