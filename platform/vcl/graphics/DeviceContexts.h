#pragma once

#include <utility>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// A memory device context compatible with `like`, or with the screen when that is null. Raises
/// EOutOfResources.
[[nodiscard]] TMemoryDC CreateMemoryDC(HDC like = nullptr);

/// The device context of a window's client area, of the whole window, or of the screen (no window); released
/// at the end of its life. Raises EOutOfResources when there is none to be had.
class [[nodiscard]] TWindowDC {
public:
    /// The client area of `window`; null stands for the screen.
    explicit TWindowDC(HWND window);
    /// The whole window with its frame.
    static TWindowDC OfWholeWindow(HWND window);
    TWindowDC(TWindowDC&& other) noexcept : FWindow(other.FWindow), FDC(std::exchange(other.FDC, nullptr)) {}
    TWindowDC& operator=(TWindowDC&&) = delete;
    ~TWindowDC();
    [[nodiscard]] HDC Get() const { return FDC; }
    [[nodiscard]] HWND Window() const { return FWindow; }

private:
    TWindowDC(HWND window, HDC dc);
    HWND FWindow;
    HDC FDC;
};

/// The bracket of BeginPaint and EndPaint around the handling of WM_PAINT.
class [[nodiscard]] TPaintDC {
public:
    explicit TPaintDC(HWND window);
    TPaintDC(const TPaintDC&) = delete;
    TPaintDC& operator=(const TPaintDC&) = delete;
    ~TPaintDC();
    [[nodiscard]] HDC Get() const { return FPaint.hdc; }
    /// The part that needs paint, in client pixels.
    [[nodiscard]] TRect Rect() const { return FPaint.rcPaint; }
    /// True when the background still has to be erased.
    [[nodiscard]] bool NeedsErase() const { return FPaint.fErase != FALSE; }

private:
    HWND FWindow;
    PAINTSTRUCT FPaint{};
};

/// Selects an object into a device context and selects the former one again at the end of the scope.
class [[nodiscard]] TSelectObject {
public:
    TSelectObject(HDC dc, HGDIOBJ object) : FDC(dc), FOld(::SelectObject(dc, object)) {}
    TSelectObject(const TSelectObject&) = delete;
    TSelectObject& operator=(const TSelectObject&) = delete;
    ~TSelectObject() {
        if (FOld) ::SelectObject(FDC, FOld);
    }
    /// False when the object could not be selected (a bitmap that another context holds).
    [[nodiscard]] bool IsSelected() const { return FOld != nullptr; }

private:
    HDC FDC;
    HGDIOBJ FOld;
};

/// Saves the state of a device context and restores it at the end of the scope. For a canvas take
/// `TCanvasStateScope`, which keeps the canvas informed.
class [[nodiscard]] TSaveDC {
public:
    explicit TSaveDC(HDC dc) : FDC(dc), FLevel(::SaveDC(dc)) {}
    TSaveDC(const TSaveDC&) = delete;
    TSaveDC& operator=(const TSaveDC&) = delete;
    ~TSaveDC() {
        if (FLevel) ::RestoreDC(FDC, FLevel);
    }

private:
    HDC FDC;
    int FLevel;
};

}  // namespace vcl
