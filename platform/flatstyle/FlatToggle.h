#pragma once

#include "platform/flatstyle/FlatColors.h"
#include "platform/vcl/controls/AccessibleControl.h"
#include "platform/vcl/stdctrls/PushControl.h"

namespace flatstyle {

/// What flat check boxes and radio buttons have in common: a sign of 13 pixels at the left, the caption
/// beside it, and whether it is checked. The space bar, the access key and clicks check it.
///
/// The sign's ground is that of editors (clWindow), so that it shows on a background of the line's colour.
///
/// Colours by index: 0 the sign's ground while the mouse or the focus is on the control (white at first), 1
/// its ground while pressed (0x00C5D6D9), 2 the mark (black), 3 the line around the sign (0x008396A0).
class TFlatToggle : public TPushControl, private TAccessibleControl {
public:
    explicit TFlatToggle(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    static constexpr int FocusedColorIndex = 0;
    static constexpr int DownColorIndex = 1;
    static constexpr int CheckColorIndex = 2;
    static constexpr int BorderColorIndex = 3;
    [[nodiscard]] TColor GetColors(int Index) const { return FColors.Get(Index); }
    void SetColors(int Index, TColor Value);
    [[nodiscard]] TColor GetColorFocused() const { return GetColors(FocusedColorIndex); }
    void SetColorFocused(TColor Value) { SetColors(FocusedColorIndex, Value); }
    [[nodiscard]] TColor GetColorDown() const { return GetColors(DownColorIndex); }
    void SetColorDown(TColor Value) { SetColors(DownColorIndex, Value); }
    [[nodiscard]] TColor GetColorCheck() const { return GetColors(CheckColorIndex); }
    void SetColorCheck(TColor Value) { SetColors(CheckColorIndex, Value); }
    [[nodiscard]] TColor GetColorBorder() const { return GetColors(BorderColorIndex); }
    void SetColorBorder(TColor Value) { SetColors(BorderColorIndex, Value); }

    [[nodiscard]] bool GetChecked() const { return FChecked; }
    /// A change by code raises `OnClick` too, except while a form file is read.
    void SetChecked(bool Value);
    void Click() override;

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    [[nodiscard]] bool CanBeChecked() const override { return true; }
    [[nodiscard]] bool IsChecked() const override { return FChecked; }
    void Check(bool value) override;
    /// What a click of the user makes of `Checked`.
    [[nodiscard]] virtual bool CheckedAfterClick() const = 0;
    /// Draws the sign on `GetCanvas()`.
    virtual void DrawSign() = 0;
    /// What screen readers call the control (ROLE_SYSTEM_...).
    [[nodiscard]] virtual int AccessibleRole() const = 0;
    /// Called before a change of `Checked` is told.
    virtual void CheckedChanged() {}

    /// The place of the sign in client pixels.
    [[nodiscard]] TRect SignRect() const;
    /// The sign's ground in the present state.
    [[nodiscard]] TColor SignGround() const;
    /// The colour of the mark in the present state.
    [[nodiscard]] TColor SignColor() const;

private:
    [[nodiscard]] TAccessibleFacts GetAccessibleFacts() const override;
    void DoAccessibleAction() override { Click(); }
    void DrawCaption();

    TFlatColors<4> FColors{{clWhite, 0x00C5D6D9, clBlack, 0x008396A0}};
    bool FChecked = false;
};

}  // namespace flatstyle
