#pragma once

#include <memory>

#include "buttons/Namespace.h"
#include "platform/tms/AdvGlowButton.h"
#include "platform/velmora/ButtonExWithCaption.h"

/// The push buttons of the skin.
namespace qv7skin {

class TSkinButtonPieces;

/// The button that is made of the skin's frames. It keeps a picture of its own size for each state in an
/// image list, and its window has the outline of the picture of the normal state: round corners.
///
/// The pictures are made when the window is, and anew whenever the size changes; a change of state makes
/// none. A button without width or height has none.
class TCustomQV7SkinButton : public TCustomButtonExWithCaption {
public:
    /// 100 x 25 pixels.
    explicit TCustomQV7SkinButton(TComponent* AOwner);
    ~TCustomQV7SkinButton() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Whether colour and style of the three caption fonts are those of the palette (true at first) or stay
    /// as the host sets them.
    [[nodiscard]] bool GetUseSkinFonts() const { return FUseSkinFonts; }
    void SetUseSkinFonts(bool Value);

protected:
    /// Makes the picture of a state and appends it to the image list.
    virtual void BuildImage(TButtonExState State);
    /// Draws the picture of a state: the state's interior colour inside the frame "SKINBUTTON" of the state.
    /// The bitmap has the size of the picture and any contents.
    virtual void BuildImage(TButtonExState State, TBitmap& Bitmap);
    /// Makes all pictures anew, and with them the window's outline; without `Force` only when there are none
    /// of the present size.
    virtual void RebuildImages(bool Force);
    /// Cuts the window to the pixels of the first picture that are not magenta.
    virtual void RebuildRegion();

    void Paint() override;
    void Resize() override;
    void Loaded() override;
    void CreateWnd() override;
    /// A dotted white rectangle. It leaves the canvas with a dotted pen and a clear brush.
    void DrawFocusRect() override;
    [[nodiscard]] const TCustomImageList* GetStateImages() const override { return FImages.get(); }

private:
    [[nodiscard]] bool HasImages() const;
    void BuildAll();
    void ApplySkinFonts();

    std::unique_ptr<TImageList> FImages;
    bool FUseSkinFonts = true;
    std::shared_ptr<const TSkinButtonPieces> FPieces;
    TBitmap* FSheet =
        nullptr;  ///< While pictures are being made: what they are drawn on, one after the other.
};

/// The glow button in the dark colours of the skin. Beside that it has the properties of the skin button that
/// its own base does not know, so that forms written for either load: they are stored, and shared, but change
/// nothing that shows. All numbers among them are one number, all switches one switch, both fonts one font.
class TCustomTMSAdvGlowButton : public TAdvGlowButton {
public:
    /// 100 x 25 pixels, not rounded, white bold Tahoma.
    explicit TCustomTMSAdvGlowButton(TComponent* AOwner);
    ~TCustomTMSAdvGlowButton() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after each change of the button's state, when the new one shows already.
    TNotifyEvent OnStateChange;

    /// Where the caption stands between the edges; taCenter at first.
    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    /// The glow button's style: bxsToggle for a button that switches over, bxsPush for all else.
    [[nodiscard]] TButtonExStyle GetButtonStyle() const;
    void SetButtonStyle(TButtonExStyle Value);

    // --- for form files of the skin button: one font ...
    [[nodiscard]] TFont& GetFontHovered() const { return *FCompatibilityFont; }
    void SetFontHovered(const TFont& Value) { FCompatibilityFont->Assign(&Value); }
    [[nodiscard]] TFont& GetFontDisabled() const { return *FCompatibilityFont; }
    void SetFontDisabled(const TFont& Value) { FCompatibilityFont->Assign(&Value); }
    // ... one number ...
    [[nodiscard]] int GetTextMarginHorizontal() const { return FCompatibilityInteger; }
    void SetTextMarginHorizontal(int Value) { FCompatibilityInteger = Value; }
    [[nodiscard]] int GetTextMarginVertical() const { return FCompatibilityInteger; }
    void SetTextMarginVertical(int Value) { FCompatibilityInteger = Value; }
    [[nodiscard]] int GetTextMarginLeft() const { return FCompatibilityInteger; }
    void SetTextMarginLeft(int Value) { FCompatibilityInteger = Value; }
    [[nodiscard]] int GetTextOffsetDownHorizontal() const { return FCompatibilityInteger; }
    void SetTextOffsetDownHorizontal(int Value) { FCompatibilityInteger = Value; }
    [[nodiscard]] int GetTextOffsetDownVertical() const { return FCompatibilityInteger; }
    void SetTextOffsetDownVertical(int Value) { FCompatibilityInteger = Value; }
    [[nodiscard]] int GetFocusedRectMarginHorizontal() const { return FCompatibilityInteger; }
    void SetFocusedRectMarginHorizontal(int Value) { FCompatibilityInteger = Value; }
    [[nodiscard]] int GetFocusedRectMarginVertical() const { return FCompatibilityInteger; }
    void SetFocusedRectMarginVertical(int Value) { FCompatibilityInteger = Value; }
    // ... and one switch.
    [[nodiscard]] bool GetUseSkinFonts() const { return FCompatibilitySwitch; }
    void SetUseSkinFonts(bool Value) { FCompatibilitySwitch = Value; }
    [[nodiscard]] bool GetAllowDblClick() const { return FCompatibilitySwitch; }
    void SetAllowDblClick(bool Value) { FCompatibilitySwitch = Value; }
    [[nodiscard]] bool GetDrawFocusedRect() const { return FCompatibilitySwitch; }
    void SetDrawFocusedRect(bool Value) { FCompatibilitySwitch = Value; }
    [[nodiscard]] bool GetDrawHoveredIfFocused() const { return FCompatibilitySwitch; }
    void SetDrawHoveredIfFocused(bool Value) { FCompatibilitySwitch = Value; }
    [[nodiscard]] bool GetStretchImage() const { return FCompatibilitySwitch; }
    void SetStretchImage(bool Value) { FCompatibilitySwitch = Value; }
    [[nodiscard]] bool GetClickOnSpace() const { return FCompatibilitySwitch; }
    void SetClickOnSpace(bool Value) { FCompatibilitySwitch = Value; }

protected:
    void StateChanged() override;
    [[nodiscard]] TAlignment GetContentAlignment() const override { return FAlignment; }

private:
    std::unique_ptr<TFont> FCompatibilityFont;
    int FCompatibilityInteger = 0;
    bool FCompatibilitySwitch = false;
    TAlignment FAlignment = taCenter;
};

/// The push button of the palette.
class TQV7SkinButton : public TCustomTMSAdvGlowButton {
public:
    using TCustomTMSAdvGlowButton::TCustomTMSAdvGlowButton;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
