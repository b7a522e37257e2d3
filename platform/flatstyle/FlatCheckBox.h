#pragma once

#include "platform/flatstyle/FlatToggle.h"

namespace flatstyle {

/// A check box with a flat square; a click turns it over.
class TFlatCheckBox : public TFlatToggle {
public:
    using TFlatToggle::TFlatToggle;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    [[nodiscard]] bool CheckedAfterClick() const override { return !GetChecked(); }
    [[nodiscard]] int AccessibleRole() const override { return ROLE_SYSTEM_CHECKBUTTON; }
    void DrawSign() override { DrawCheckRect(); }
    /// Draws the square with its mark.
    virtual void DrawCheckRect();
};

}  // namespace flatstyle
