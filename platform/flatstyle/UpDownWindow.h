#pragma once

#include "platform/flatstyle/Namespace.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Color.h"

namespace flatstyle {

/// The system's pair of spin buttons with a flat face, inside another window. A press sends that window
/// UDN_DELTAPOS, again and again while it is held.
class TUpDownWindow {
public:
    TUpDownWindow() = default;
    ~TUpDownWindow() { Destroy(); }
    TUpDownWindow(const TUpDownWindow&) = delete;
    TUpDownWindow& operator=(const TUpDownWindow&) = delete;

    void Create(HWND parent);
    /// To be called before the parent window goes.
    void Destroy();
    [[nodiscard]] HWND Handle() const { return FWindow; }
    void Place(const TRect& bounds);
    void SetEnabled(bool value);
    void SetColor(TColor value);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR self);
    void Paint();

    HWND FWindow = nullptr;
    TColor FColor = clWhite;
};

}  // namespace flatstyle
