#include "skin/masking/MaskPanel.h"

#include <utility>

#include "platform/vcl/graphics/Regions.h"

namespace qv7skin {

void TMaskPanel::SetShape(TRegionHandle shape) {
    HandleNeeded();
    FShape = std::move(shape);
    GiveShapeToWindow();
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
