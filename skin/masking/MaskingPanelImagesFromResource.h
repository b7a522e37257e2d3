#pragma once

#include "skin/Namespace.h"
#include "skin/masking/PictureMaskingPanel.h"

namespace qv7skin {

class TNinePartBitmaps;

/// A masking panel whose frame is the skin's own: rounded corners with a shade, on the skin's background
/// colour or on white.
class TMaskingPanelImagesFromResource : public TCustomPictureMaskingPanel {
public:
    explicit TMaskingPanelImagesFromResource(TComponent* AOwner);
    ~TMaskingPanelImagesFromResource() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] bool GetWhiteBackground() const { return FWhiteBackground; }
    /// Chooses the frame for white surroundings ("MASKWHITE") or for the skin's background ("MASK").
    void SetWhiteBackground(bool Value);

    [[nodiscard]] std::unique_ptr<TBitmap> CreateMask(TSize Size) override;
    void Mask() override;

private:
    std::unique_ptr<TNinePartBitmaps> FPieces;  // loaded with the first mask, for the next sizes
    bool FWhiteBackground = false;
};

}  // namespace qv7skin
