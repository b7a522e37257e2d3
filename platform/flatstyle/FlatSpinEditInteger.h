#pragma once

#include "platform/flatstyle/FlatColors.h"
#include "platform/flatstyle/UpDownWindow.h"
#include "platform/vcl/stdctrls/Edit.h"

namespace flatstyle {

/// An editor of the system for whole numbers, with the system's spin buttons inside. Buttons, up and down
/// keys and the wheel step by `Increment`; leaving the editor brings the number into its range. The number
/// stands in the middle of the height.
///
/// Colours by index: 0 the ground while the focus is in the editor (white at first), 1 the line around it
/// (0x008396A0), 2 the ground otherwise (0x00E1EAEB).
class TFlatSpinEditInteger : public TCustomEdit {
public:
    explicit TFlatSpinEditInteger(TComponent* AOwner);
    ~TFlatSpinEditInteger() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    static constexpr int FocusedColorIndex = 0;
    static constexpr int BorderColorIndex = 1;
    static constexpr int FlatColorIndex = 2;
    [[nodiscard]] TColor GetColors(int Index) const { return FColors.Get(Index); }
    void SetColors(int Index, TColor Value);
    [[nodiscard]] TColor GetColorFocused() const { return GetColors(FocusedColorIndex); }
    void SetColorFocused(TColor Value) { SetColors(FocusedColorIndex, Value); }
    [[nodiscard]] TColor GetColorBorder() const { return GetColors(BorderColorIndex); }
    void SetColorBorder(TColor Value) { SetColors(BorderColorIndex, Value); }
    [[nodiscard]] TColor GetColorFlat() const { return GetColors(FlatColorIndex); }
    void SetColorFlat(TColor Value) { SetColors(FlatColorIndex, Value); }

    /// The number; the least one (0 without a range) while the text is none.
    [[nodiscard]] int GetValue() const;
    void SetValue(int Value);
    /// The range; equal bounds mean that there is none.
    [[nodiscard]] int GetMinValue() const { return FMinValue; }
    void SetMinValue(int Value);
    [[nodiscard]] int GetMaxValue() const { return FMaxValue; }
    void SetMaxValue(int Value);
    /// The size of a step; 1 at first.
    [[nodiscard]] int GetIncrement() const { return FIncrement; }
    void SetIncrement(int Value) { FIncrement = Value; }
    /// Goes up (or with a negative number down) by so many steps, inside the range.
    void Step(int steps);
    /// The spin buttons' window.
    [[nodiscard]] HWND ButtonsHandle() const { return FButtons.Handle(); }

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    [[nodiscard]] TRect GetFrameInsets() const override;
    void KeyDown(WORD& key, TShiftState shift) override;
    void KeyPress(wchar_t& key) override;
    bool DoMouseWheelUp(TShiftState shift, TPoint mousePos) override;
    bool DoMouseWheelDown(TShiftState shift, TPoint mousePos) override;
    void DoEnter() override;
    void DoExit() override;

private:
    [[nodiscard]] int InRange(std::int64_t value) const;
    [[nodiscard]] int ValueIfNone() const;
    void PlaceButtons();
    void ShowGround();
    void PaintBorder();
    void PlaceText(RECT& area) const;
    [[nodiscard]] int TextTop(int height) const;
    void KeepInText(TMessage& message) const;
    [[nodiscard]] bool IsButtonMessage(const TMessage& message) const;

    TFlatColors<3> FColors{{clWhite, 0x008396A0, 0x00E1EAEB}};
    TUpDownWindow FButtons;
    int FMinValue = 0;
    int FMaxValue = 0;
    int FIncrement = 1;
    bool FFocusInside = false;
};

}  // namespace flatstyle
