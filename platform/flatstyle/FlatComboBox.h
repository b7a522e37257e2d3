#pragma once

#include <memory>

#include "platform/flatstyle/FlatColors.h"
#include "platform/vcl/stdctrls/ComboBox.h"

namespace vcl {
class TCanvas;
class TControlCanvas;
}  // namespace vcl

namespace flatstyle {

/// The system's combo box with a flat face: a line around it and a button with a small triangle.
///
/// Colours by index: 0 the arrow (black at first), 1 the button's face (0x00C5D6D9), 2 the lines around the
/// control and the button (0x008396A0).
class TFlatComboBox : public TCustomComboBox {
public:
    explicit TFlatComboBox(TComponent* AOwner);
    ~TFlatComboBox() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    static constexpr int ArrowColorIndex = 0;
    static constexpr int FaceColorIndex = 1;
    static constexpr int BorderColorIndex = 2;
    [[nodiscard]] TColor GetColors(int Index) const { return FColors.Get(Index); }
    void SetColors(int Index, TColor Value);
    [[nodiscard]] TColor GetColorArrow() const { return GetColors(ArrowColorIndex); }
    void SetColorArrow(TColor Value) { SetColors(ArrowColorIndex, Value); }
    [[nodiscard]] TColor GetColorArrowBackground() const { return GetColors(FaceColorIndex); }
    void SetColorArrowBackground(TColor Value) { SetColors(FaceColorIndex, Value); }
    [[nodiscard]] TColor GetColorBorder() const { return GetColors(BorderColorIndex); }
    void SetColorBorder(TColor Value) { SetColors(BorderColorIndex, Value); }
    /// Pixels of the button; 17 at first.
    [[nodiscard]] int GetButtonWidth() const { return FButtonWidth; }
    void SetButtonWidth(int Value);
    /// The surface of the client area.
    [[nodiscard]] TCanvas& GetCanvas() const;

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void PaintWindow(HDC dc) override;
    void DropDown() override;
    void CloseUp() override;

    /// The place of the button in client pixels.
    [[nodiscard]] virtual TRect GetButtonRect() const;
    /// Draws the button on `GetCanvas()`.
    virtual void PaintButton();
    /// True while the list is open, as far as the button shows it.
    [[nodiscard]] bool IsShownOpen() const { return FShownOpen; }

private:
    void PaintEntry(HDC dc, const TRect& area);
    void PlaceEditor();

    std::unique_ptr<TControlCanvas> FCanvas;
    TFlatColors<3> FColors{{clBlack, 0x00C5D6D9, 0x008396A0}};
    int FButtonWidth = 17;
    bool FShownOpen = false;
};

}  // namespace flatstyle
