#pragma once

#include "platform/vcl/stdctrls/Image.h"
#include "skin/Namespace.h"
#include "skin/masking/MaskingPanel.h"

namespace qv7skin {

/// A masking panel that shows the picture of its mask: the common part of the two kinds that compose the mask
/// of pieces.
class TCustomPictureMaskingPanel : public TCustomMaskingPanel {
public:
    using TCustomMaskingPanel::TCustomMaskingPanel;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Masks, and shows the mask's picture; when it is masked already, only the picture is made anew.
    void Mask() override;
    void Unmask() override;
    /// Puts a new mask of the control's size into the image control.
    void DrawMaskToImage(TImage& Image);

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    TImage* FImage = nullptr;  // stands in the mask panel
};

}  // namespace qv7skin
