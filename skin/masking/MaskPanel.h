#pragma once

#include "platform/vcl/graphics/Handles.h"
#include "skin/Namespace.h"
#include "skin/surfaces/FlickerFreePanel.h"

namespace qv7skin {

/// A panel cut to a region, which it keeps when its window is made anew.
class TMaskPanel final : public TFlickerFreePanel {
public:
    using TFlickerFreePanel::TFlickerFreePanel;

    /// Cuts the panel to the region, and repaints. Makes the window when there is none; raises
    /// EInvalidOperation when nothing can hold it.
    void SetShape(TRegionHandle shape);

protected:
    void CreateWnd() override;

private:
    void GiveShapeToWindow();
    TRegionHandle FShape;
};

}  // namespace qv7skin
