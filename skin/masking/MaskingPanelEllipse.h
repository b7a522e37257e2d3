#pragma once

#include "skin/Namespace.h"
#include "skin/masking/MaskingPanel.h"

namespace qv7skin {

/// Makes a control look oval: the corners outside of the ellipse are covered with the control's own colour.
class TMaskingPanelEllipse : public TCustomMaskingPanel {
public:
    using TCustomMaskingPanel::TCustomMaskingPanel;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] std::unique_ptr<TBitmap> CreateMask(TSize Size) override;
};

}  // namespace qv7skin
