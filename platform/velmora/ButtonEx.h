#pragma once

#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/stdctrls/PushControl.h"
#include "platform/velmora/Namespace.h"

namespace velmora {

/// How a button stands to the user; the order of the images in an image list of states.
enum class TButtonExState {
    bexNormal,
    bexDisabled,
    bexPressed,
    bexHovered,
    bexDown,         ///< Switched on.
    bexDownHovered,  ///< Switched on, and the mouse is on it.
};
inline constexpr int ButtonExStateCount = 6;

/// What a click does: raise `OnClick`, or switch the button on and off as well.
enum class TButtonExStyle { bxsPush, bxsToggle };

using enum TButtonExState;
using enum TButtonExStyle;

/// A button that shows an image for each of its states, or the system's push button where it has none.
class TCustomButtonEx : public TPushControl {
public:
    explicit TCustomButtonEx(TComponent* AOwner);
    ~TCustomButtonEx() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after each change of `State`, when the new one shows already.
    TNotifyEvent OnStateChange;

    [[nodiscard]] TButtonExState GetState() const;
    [[nodiscard]] TButtonExStyle GetButtonStyle() const { return FButtonStyle; }
    void SetButtonStyle(TButtonExStyle value) { FButtonStyle = value; }
    /// Whether the second press of two quick ones raises `OnDblClick` instead of counting as a click; false
    /// at first.
    [[nodiscard]] bool GetAllowDblClick() const { return FAllowDblClick; }
    void SetAllowDblClick(bool value) { FAllowDblClick = value; }
    /// Whether the space bar works the button; true at first.
    [[nodiscard]] bool GetClickOnSpace() const { return FClickOnSpace; }
    void SetClickOnSpace(bool value) { FClickOnSpace = value; }
    /// Whether the focus shows as a frame; true at first.
    [[nodiscard]] bool GetDrawFocusedRect() const { return FDrawFocusedRect; }
    void SetDrawFocusedRect(bool value);
    /// Whether the button looks hovered while it has the focus; false at first.
    [[nodiscard]] bool GetDrawHoveredIfFocused() const { return FDrawHoveredIfFocused; }
    void SetDrawHoveredIfFocused(bool value);
    /// Pixels between the button's edges and the focus frame; 3 and 3 at first.
    [[nodiscard]] int GetFocusedRectMarginHorizontal() const { return FFocusedRectMargin.Width; }
    void SetFocusedRectMarginHorizontal(int value) { Change(FFocusedRectMargin.Width, value); }
    [[nodiscard]] int GetFocusedRectMarginVertical() const { return FFocusedRectMargin.Height; }
    void SetFocusedRectMarginVertical(int value) { Change(FFocusedRectMargin.Height, value); }
    /// An image for each state, in the order of `TButtonExState`; not owned. Of a shorter list the pressed
    /// image stands for the states of a switched on button, and the first one for the rest.
    [[nodiscard]] TCustomImageList* GetImageList() const { return FImageList; }
    virtual void SetImageList(TCustomImageList* value);
    /// Whether images take the button's size instead of standing in its middle; false at first.
    [[nodiscard]] bool GetStretchImage() const { return FStretchImage; }
    void SetStretchImage(bool value) { Change(FStretchImage, value); }

protected:
    void Notification(TComponent* component, TOperation operation) override;
    void StateChanged() override;
    [[nodiscard]] bool Toggles() const override { return FButtonStyle == bxsToggle; }
    [[nodiscard]] bool WantsDoubleClicks() const override { return FAllowDblClick; }
    [[nodiscard]] bool WantsSpace() const override { return FClickOnSpace; }
    [[nodiscard]] bool IsHotWhenFocused() const override { return FDrawHoveredIfFocused; }
    [[nodiscard]] bool ShowsFocus() const override { return FDrawFocusedRect; }

    /// Draws the background, then the focus frame when it is to show.
    void Paint() override;
    /// Draws all that lies below caption and focus frame: the image of the state, else a push button.
    virtual void DrawBackground();
    /// Draws the focus frame inside the margins; the default is the system's.
    virtual void DrawFocusRect();
    /// The images of the states; the default is `ImageList`.
    [[nodiscard]] virtual const TCustomImageList* GetStateImages() const { return FImageList; }
    /// The client area without the margins of the focus frame.
    [[nodiscard]] TRect GetFocusRect() const;
    /// True for the states in which the button's face is pushed in.
    [[nodiscard]] bool IsSunken() const;

    /// Tells `DrawBackground` to paint from the image list.
    bool FPaintFromImageList = false;

    /// Sets a field that shows, and repaints when it changes.
    template <class T>
    void Change(T& field, const T& value) {
        if (field == value) return;
        field = value;
        Invalidate();
    }

private:
    [[nodiscard]] int ImageIndexOfState(int imageCount) const;
    void DrawStateImage(const TCustomImageList& images);
    void DrawPushButton();

    TCustomImageList* FImageList = nullptr;
    TChangeLink FImageLink;
    TSize FFocusedRectMargin{3, 3};
    TButtonExStyle FButtonStyle = bxsPush;
    bool FAllowDblClick = false;
    bool FClickOnSpace = true;
    bool FDrawFocusedRect = true;
    bool FDrawHoveredIfFocused = false;
    bool FStretchImage = false;
};

}  // namespace velmora

template <>
struct vcl::TEnumNames<velmora::TButtonExState> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct vcl::TEnumNames<velmora::TButtonExStyle> {
    static std::span<const wchar_t* const> Names();
};
