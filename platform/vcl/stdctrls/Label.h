#pragma once

#include "platform/vcl/controls/GraphicControl.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace vcl {

/// A text on a form. It has no window; its access key (the letter after '&') moves the focus to
/// `FocusControl`. `TLabel` publishes the properties.
class TCustomLabel : public TGraphicControl {
public:
    explicit TCustomLabel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment value);
    [[nodiscard]] TTextLayout GetLayout() const { return FLayout; }
    void SetLayout(TTextLayout value);
    [[nodiscard]] bool GetWordWrap() const { return FWordWrap; }
    /// Breaks lines between words at the label's width; an automatic size then changes the height only.
    void SetWordWrap(bool value);
    [[nodiscard]] bool GetShowAccelChar() const { return FShowAccelChar; }
    /// Whether '&' marks the access key (true) or is a character like all others.
    void SetShowAccelChar(bool value);
    /// The control that the access key focuses; not owned, null for none.
    [[nodiscard]] TWinControl* GetFocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* value);
    [[nodiscard]] bool GetTransparent() const;
    /// Whether what lies below shows through between the letters. An opaque label fills its area with
    /// `Color`.
    void SetTransparent(bool value);
    [[nodiscard]] TEllipsisPosition GetEllipsisPosition() const { return FEllipsisPosition; }
    /// Dots for what does not fit. A label with dots no longer changes its size by itself.
    void SetEllipsisPosition(TEllipsisPosition value);

protected:
    void Dispatch(TMessage& message) override;
    void Notification(TComponent* component, TOperation operation) override;
    void Loaded() override;
    void Paint() override;
    void AdjustSize() override { AdjustBounds(); }
    /// Gives the label the size of its text when `AutoSize` is on.
    virtual void AdjustBounds();
    /// The text to show; never without a caption of its own.
    [[nodiscard]] virtual String GetLabelText() const { return GetCaption(); }
    /// Draws the text into the rectangle, or with DT_CALCRECT in the flags measures it.
    virtual void DoDrawText(TRect& rect, unsigned flags);
    /// The space that the label needs at its present width, from (0, 0).
    [[nodiscard]] virtual TRect NeededRect(int width);
    /// The flags of the Windows DrawText function that the properties stand for, but for dots.
    [[nodiscard]] unsigned TextFlags() const;

private:
    void FollowText();
    [[nodiscard]] bool IsAccelFor(const TMessage& message) const;

    TAlignment FAlignment = taLeftJustify;
    TTextLayout FLayout = tlTop;
    TEllipsisPosition FEllipsisPosition = epNone;
    bool FWordWrap = false;
    bool FShowAccelChar = true;
    TWinControl* FFocusControl = nullptr;
};

/// The label for forms.
class TLabel : public TCustomLabel {
public:
    using TCustomLabel::TCustomLabel;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
