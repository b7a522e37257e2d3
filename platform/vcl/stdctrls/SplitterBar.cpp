#include "platform/vcl/stdctrls/SplitterBar.h"

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {
namespace {

/// The client area of a window without regard to the windows on it.
class TOverlayDC {
public:
    explicit TOverlayDC(HWND window)
        : FWindow(window), FDC(::GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS)) {}
    ~TOverlayDC() {
        if (FDC) ::ReleaseDC(FWindow, FDC);
    }
    TOverlayDC(const TOverlayDC&) = delete;
    TOverlayDC& operator=(const TOverlayDC&) = delete;
    [[nodiscard]] HDC Get() const { return FDC; }

private:
    HWND FWindow;
    HDC FDC;
};

TBrushHandle MakeDottedBrush() {
    static constexpr WORD rows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    const TBitmapHandle pattern(CheckHandle(::CreateBitmap(8, 8, 1, 1, rows)));
    return TBrushHandle(CheckHandle(::CreatePatternBrush(pattern.Get())));
}

}  // namespace

void InvertSplitterBar(TWinControl& parent, const TRect& bar, bool dotted) {
    if (!parent.HandleAllocated()) return;
    const TOverlayDC dc(parent.WindowHandle());
    if (!dc.Get()) return;
    if (!dotted) {
        ::PatBlt(dc.Get(), bar.Left, bar.Top, bar.Width(), bar.Height(), DSTINVERT);
        return;
    }
    const TBrushHandle brush = MakeDottedBrush();
    const TSelectObject selected(dc.Get(), brush.Get());
    // White inverts, black leaves what is there.
    ::SetTextColor(dc.Get(), RGB(0, 0, 0));
    ::SetBkColor(dc.Get(), RGB(255, 255, 255));
    ::PatBlt(dc.Get(), bar.Left, bar.Top, bar.Width(), bar.Height(), PATINVERT);
}

}  // namespace vcl
