#include "platform/flatstyle/UpDownWindow.h"

#include <commctrl.h>

#include <exception>

#include "platform/flatstyle/FlatArrow.h"
#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/core/OsErrors.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace flatstyle {

void TUpDownWindow::Create(HWND parent) {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_UPDOWN_CLASS};
    ::InitCommonControlsEx(&classes);
    FWindow = ::CreateWindowExW(0, UPDOWN_CLASSW, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent, nullptr,
                                ::GetModuleHandleW(nullptr), nullptr);
    if (!FWindow) RaiseLastOSError();
    // Each step starts from the middle of a range that is never reached.
    ::SendMessageW(FWindow, UDM_SETRANGE32, static_cast<WPARAM>(-0x40000000), 0x40000000);
    ::SetWindowSubclass(FWindow, &Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
}

void TUpDownWindow::Destroy() {
    if (const HWND window = std::exchange(FWindow, nullptr)) ::DestroyWindow(window);
}

void TUpDownWindow::Place(const TRect& bounds) {
    if (FWindow)
        ::SetWindowPos(FWindow, HWND_TOP, bounds.Left, bounds.Top, bounds.Width(), bounds.Height(),
                       SWP_NOACTIVATE);
}

void TUpDownWindow::SetEnabled(bool value) {
    if (!FWindow) return;
    ::EnableWindow(FWindow, value);
    ::InvalidateRect(FWindow, nullptr, FALSE);
}

void TUpDownWindow::SetColor(TColor value) {
    FColor = value;
    if (FWindow) ::InvalidateRect(FWindow, nullptr, FALSE);
}

LRESULT CALLBACK TUpDownWindow::Procedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR self) {
    auto& owner = *reinterpret_cast<TUpDownWindow*>(self);
    switch (msg) {
        case WM_PAINT:
            try {
                owner.Paint();
            } catch (...) {
                AppServices().HandleException(std::current_exception());
            }
            return 0;
        case WM_ERASEBKGND:
            return 1;
        default:
            return ::DefSubclassProc(window, msg, wParam, lParam);
    }
}

void TUpDownWindow::Paint() {
    const TPaintDC paint(FWindow);
    TCanvas canvas;
    canvas.SetHandle(paint.Get());
    TRect client;
    ::GetClientRect(FWindow, client.AsRect());
    canvas.GetBrush().SetColor(FColor);
    canvas.FillRect(client);
    const int middle = client.Height() / 2;
    for (const bool up : {true, false}) {
        const TRect half{client.Left, up ? client.Top : middle, client.Right, up ? middle : client.Bottom};
        if (::IsWindowEnabled(FWindow))
            DrawFlatArrow(canvas, half, up, clBlack);
        else
            DrawFlatArrowEngraved(canvas, half, up, clGray, clWhite);
    }
    canvas.SetHandle(nullptr);
}

}  // namespace flatstyle
