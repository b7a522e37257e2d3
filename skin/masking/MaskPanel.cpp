#include "skin/masking/MaskPanel.h"

#include <utility>

#include "platform/vcl/graphics/Regions.h"

namespace qv7skin {

void TMaskPanel::SetShape(TRegionHandle shape) {
    FShape = std::move(shape);
    if (HandleAllocated()) return GiveShapeToWindow();
    // The new window takes the shape. Making those above it may mask the control anew, which frees this
    // panel.
    HandleNeeded();
}

void TMaskPanel::CreateWnd() {
    TFlickerFreePanel::CreateWnd();
    if (FShape) GiveShapeToWindow();
}

void TMaskPanel::GiveShapeToWindow() {
    TRegionHandle copy = CopyRegion(FShape.Get());
    if (SetWindowRgn(GetHandle(), copy.Get(), TRUE)) static_cast<void>(copy.Release());  // now the window's
}

}  // namespace qv7skin
