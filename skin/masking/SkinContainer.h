#pragma once

#include <memory>

#include "platform/vcl/stdctrls/Panel.h"
#include "skin/Namespace.h"

namespace qv7skin {

class TMaskingPanelImagesFromResource;

/// A white panel that rounds its own corners with the skin's frame; the base of framed editors.
class TCustomQV7SkinContainer : public TCustomPanel {
public:
    explicit TCustomQV7SkinContainer(TComponent* AOwner);
    ~TCustomQV7SkinContainer() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Whether the frame is made for white surroundings instead of the skin's background.
    [[nodiscard]] bool GetWhiteBackground() const;
    void SetWhiteBackground(bool Value);

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void Resize() override;

private:
    std::unique_ptr<TMaskingPanelImagesFromResource> FMaskingPanel;  // made with the first paint
    bool FWhiteBackground = false;
};

}  // namespace qv7skin
