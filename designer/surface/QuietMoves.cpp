#include "designer/surface/QuietMoves.h"

#include "designer/surface/UnclippedDC.h"
#include "platform/vcl/graphics/Regions.h"

namespace designer {
namespace {

/// True when nothing of the form shows in the window's rectangle.
bool FillsItsPlace(HWND window) {
    RECT box{};
    return ::GetWindowRgnBox(window, &box) == ERROR;
}

}  // namespace

TQuietMoves::TQuietMoves(TWinControl& form) : FForm(form) {
    const HWND window = FForm.WindowHandle();
    // What waits to be painted would be forgotten.
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::SendMessageW(window, WM_SETREDRAW, FALSE, 0);
}

TQuietMoves::~TQuietMoves() {
    if (FShown) return;
    ::SendMessageW(FForm.WindowHandle(), WM_SETREDRAW, TRUE, 0);
    ::RedrawWindow(FForm.WindowHandle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void TQuietMoves::Show() {
    const TRegionHandle touched = UnionOfRects(FTouched);
    const HWND window = FForm.WindowHandle();
    FShown = true;
    ::SendMessageW(window, WM_SETREDRAW, TRUE, 0);
    ::RedrawWindow(window, nullptr, touched.Get(), RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    // What stands on the form gets its message; the form itself is painted here.
    ::RedrawWindow(window, nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE | RDW_NOFRAME | RDW_NOCHILDREN);
    PaintForm(touched.Get());
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void TQuietMoves::PaintForm(HRGN touched) {
    const TUnclippedDC dc(FForm.WindowHandle());
    if (!dc.Get()) return;
    ::SelectClipRgn(dc.Get(), touched);
    for (const TWinControl* control : FForm.WinControls()) {
        const RECT place = control->GetBoundsRect();
        if (control->IsShown() && ::RectInRegion(touched, &place) && FillsItsPlace(control->WindowHandle()))
            ::ExcludeClipRect(dc.Get(), place.left, place.top, place.right, place.bottom);
    }
    FForm.Perform(WM_PAINT, reinterpret_cast<WPARAM>(dc.Get()));
}

}  // namespace designer
