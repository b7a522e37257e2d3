#pragma once

#include "platform/flatstyle/FlatToggle.h"

namespace flatstyle {

/// A radio button with a flat circle. Of those with the same parent and the same `GroupIndex` one is checked
/// at most; the arrow keys go from one to the next and check it. The one that loses its mark raises no
/// `OnClick`.
class TFlatRadioButton : public TFlatToggle {
public:
    using TFlatToggle::TFlatToggle;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// 0 at first.
    [[nodiscard]] int GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int Value);

protected:
    void Dispatch(TMessage& message) override;
    void KeyDown(WORD& key, TShiftState shift) override;
    [[nodiscard]] bool CheckedAfterClick() const override { return true; }
    [[nodiscard]] int AccessibleRole() const override { return ROLE_SYSTEM_RADIOBUTTON; }
    void DrawSign() override { DrawRadio(); }
    void CheckedChanged() override;
    /// Draws the circle with its dot.
    virtual void DrawRadio();

private:
    [[nodiscard]] TFlatRadioButton* Neighbour(bool forward) const;
    void UncheckOthers();

    int FGroupIndex = 0;
};

}  // namespace flatstyle
