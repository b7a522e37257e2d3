#pragma once

#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/TextTypes.h"
#include "platform/velmora/ButtonEx.h"

namespace velmora {

/// A button with a caption, in a font for each kind of state.
///
/// `FontHovered` and `FontDisabled` begin as copies of `Font` (the disabled one in the grey of the system).
/// When `Font` changes, each of their attributes that was the same changes with it, so that a new size or
/// name reaches all three, and a colour of their own stays.
class TCustomButtonExWithCaption : public TCustomButtonEx {
public:
    explicit TCustomButtonExWithCaption(TComponent* AOwner);
    ~TCustomButtonExWithCaption() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The font of all states but the normal and the disabled one.
    [[nodiscard]] TFont& GetFontHovered() const { return FFontHovered; }
    void SetFontHovered(const TFont& value) { FFontHovered.Assign(&value); }
    [[nodiscard]] TFont& GetFontDisabled() const { return FFontDisabled; }
    void SetFontDisabled(const TFont& value) { FFontDisabled.Assign(&value); }
    /// Where the caption stands between the left and the right margin; taCenter at first.
    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment value) { Change(FAlignment, value); }
    /// Pixels between the button's edges and the caption: left and right (4 at first), above and below (2),
    /// and more on the left (0).
    [[nodiscard]] int GetTextMarginHorizontal() const { return FTextMargin.Width; }
    void SetTextMarginHorizontal(int value) { Change(FTextMargin.Width, value); }
    [[nodiscard]] int GetTextMarginVertical() const { return FTextMargin.Height; }
    void SetTextMarginVertical(int value) { Change(FTextMargin.Height, value); }
    [[nodiscard]] int GetTextMarginLeft() const { return FTextMarginLeft; }
    void SetTextMarginLeft(int value) { Change(FTextMarginLeft, value); }
    /// Pixels by which the caption moves right and down while the button is pressed or switched on; 1 and 1
    /// at first.
    [[nodiscard]] int GetTextOffsetDownHorizontal() const { return FTextOffsetDown.X; }
    void SetTextOffsetDownHorizontal(int value) { Change(FTextOffsetDown.X, value); }
    [[nodiscard]] int GetTextOffsetDownVertical() const { return FTextOffsetDown.Y; }
    void SetTextOffsetDownVertical(int value) { Change(FTextOffsetDown.Y, value); }

    [[nodiscard]] bool IsFontHoveredStored() const { return !FFontHovered.Equals(GetFont()); }
    [[nodiscard]] bool IsFontDisabledStored() const { return !FFontDisabled.Equals(GetFont()); }

protected:
    void Dispatch(TMessage& message) override;
    /// Draws the background, the caption, and the focus frame when it is to show.
    void Paint() override;
    /// Draws the caption into the rectangle, by the flags of the Windows DrawText function for its place, and
    /// moves the rectangle's top to below what it drew.
    virtual void DrawCaption(UINT Flags, TRect& Rect);
    /// The font of the present state.
    [[nodiscard]] const TFont& GetStateFont() const;
    /// The area of the caption in the present state.
    [[nodiscard]] TRect GetCaptionRect() const;

private:
    void FollowFont();

    mutable TFont FFontHovered;
    mutable TFont FFontDisabled;
    TFont FFormerFont;  ///< As `Font` was before its last change.
    TAlignment FAlignment = taCenter;
    TSize FTextMargin{4, 2};
    int FTextMarginLeft = 0;
    TPoint FTextOffsetDown{1, 1};
};

}  // namespace velmora
