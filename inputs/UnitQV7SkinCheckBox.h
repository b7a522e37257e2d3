#pragma once

#include "inputs/Namespace.h"
#include "platform/flatstyle/FlatCheckBox.h"

namespace qv7skin {

/// The skin's check box.
class TQV7SkinCheckBox : public TFlatCheckBox {
public:
    explicit TQV7SkinCheckBox(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Pixels of the caption on one line, in the control's font.
    [[nodiscard]] int GetTextWidth();
    /// Gives the control the width that its sign and its caption need.
    void AutoSizeNow();

protected:
    void DrawCheckRect() override;
};

}  // namespace qv7skin
