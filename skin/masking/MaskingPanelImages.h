#pragma once

#include <array>

#include "skin/Namespace.h"
#include "skin/UnitQV7SkinConsts.h"
#include "skin/masking/PictureMaskingPanel.h"

namespace qv7skin {

/// A masking panel whose frame consists of the pictures of eight image controls that the host fills. It masks
/// only when all eight are there and none is empty.
class TMaskingPanelImages : public TCustomPictureMaskingPanel {
public:
    using TCustomPictureMaskingPanel::TCustomPictureMaskingPanel;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    // The pieces, not owned. "Middle" pieces are stretched between the corners.
    TImage* ImageTopLeft = nullptr;
    TImage* ImageTopMiddle = nullptr;
    TImage* ImageTopRight = nullptr;
    TImage* ImageLeftMiddle = nullptr;
    TImage* ImageRightMiddle = nullptr;
    TImage* ImageBottomLeft = nullptr;
    TImage* ImageBottomMiddle = nullptr;
    TImage* ImageBottomRight = nullptr;

    /// Raises EInvalidOperation while a picture is missing.
    [[nodiscard]] std::unique_ptr<TBitmap> CreateMask(TSize Size) override;
    void Mask() override;

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    using TField = TImage* TMaskingPanelImages::*;
    static const std::array<TField, AllFramePositions.size()>& ImageFields();
    [[nodiscard]] bool HasAllPictures() const;
};

}  // namespace qv7skin
