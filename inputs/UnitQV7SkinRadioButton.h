#pragma once

#include "inputs/Namespace.h"
#include "platform/flatstyle/FlatRadioButton.h"

namespace qv7skin {

/// The skin's radio button.
class TQV7SkinRadioButton : public TFlatRadioButton {
public:
    explicit TQV7SkinRadioButton(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void DrawRadio() override;
};

}  // namespace qv7skin
