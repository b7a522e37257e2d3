#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace vcl {

bool TControl::IsShown() const {
    return FVisible || (IsInState(csDesigning) && !ControlStyle.Contains(csNoDesignVisible));
}

void TControl::Invalidate() {
    InvalidateControl(FVisible, ControlStyle.Contains(csOpaque));
}

void TControl::InvalidateControl(bool isVisible, bool isOpaque) {
    if (!FParent || !FParent->HandleAllocated()) return;
    if (!isVisible && !(IsInState(csDesigning) && !ControlStyle.Contains(csNoDesignVisible))) return;
    // Where the parent paints everything itself, or the control covers its place, nothing is erased.
    const bool erase = !isOpaque && !FParent->ControlStyle.Contains(csOpaque);
    const RECT area = GetBoundsRect();
    ::InvalidateRect(FParent->WindowHandle(), &area, erase);
}

void TControl::Update() {
    if (FParent) FParent->Update();
}

void TControl::Repaint() {
    if (!FParent || !FParent->HandleAllocated() || !IsShown() || !FParent->GetShowing()) return;
    if (!ControlStyle.Contains(csOpaque)) {
        Invalidate();
        return Update();
    }
    const TWindowDC dc(FParent->WindowHandle());
    ::IntersectClipRect(dc.Get(), FLeft, FTop, FLeft + FWidth, FTop + FHeight);
    // What lies above it is painted with it.
    FParent->PaintControls(dc.Get(), this);
}

HDC TControl::GetDeviceContext(HWND& window) {
    if (!FParent) RaiseNoParentWindow();
    const HDC dc = FParent->GetDeviceContext(window);
    POINT origin{};
    ::GetViewportOrgEx(dc, &origin);
    ::SetViewportOrgEx(dc, origin.x + FLeft, origin.y + FTop, nullptr);
    ::IntersectClipRect(dc, 0, 0, FWidth, FHeight);
    return dc;
}

}  // namespace vcl
