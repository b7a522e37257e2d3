#pragma once

#include "platform/tms/GlowButtonAppearance.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/PushControl.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace tms {

/// What a click does: raise `OnClick`, or switch the button on and off as well.
enum class TAdvButtonStyle { absButton, absToggle };
using enum TAdvButtonStyle;

/// Where the picture stands beside the caption.
enum class TButtonLayout { blGlyphLeft, blGlyphTop, blGlyphRight, blGlyphBottom };
using enum TButtonLayout;

/// Sender, and the width and height in pixels that a button with `AutoSize` is about to take; the handler may
/// change both.
using TSetButtonSizeEvent = TEvent<void(TObject*, int&, int&)>;

/// A glossy button: a border, a face of two gradients in the colours of its state, a glow from below under
/// the mouse, a picture beside the caption. It implements without publishing; what form files hold is up to
/// descendants.
class TAdvGlowButton : public TPushControl {
public:
    explicit TAdvGlowButton(TComponent* AOwner);
    ~TAdvGlowButton() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised when `AutoSize` takes a size for the content.
    TSetButtonSizeEvent OnSetButtonSize;

    [[nodiscard]] const TGlowButtonAppearance& GetAppearance() const { return FAppearance; }
    [[nodiscard]] TGlowButtonAppearance& Appearance() { return FAppearance; }
    void SetAppearance(const TGlowButtonAppearance& value) { FAppearance.Assign(&value); }
    /// A switched on toggle button shows the colours "checked", a push button that is `Down` those of "down".
    [[nodiscard]] TAdvButtonStyle GetStyle() const { return FStyle; }
    void SetStyle(TAdvButtonStyle value);
    /// Whether the corners are round; true at first.
    [[nodiscard]] bool GetRounded() const { return FRounded; }
    void SetRounded(bool value);
    /// Whether the parent shows in round corners as it paints itself, rather than the button's colour.
    [[nodiscard]] bool GetTransparent() const { return GetParentBackground(); }
    void SetTransparent(bool value);
    /// Shown beside the caption, half faded while the button is disabled.
    [[nodiscard]] const TPicture& GetPicture() const { return FPicture; }
    [[nodiscard]] TPicture& Picture() { return FPicture; }
    void SetPicture(const TPicture& value) { FPicture.Assign(&value); }
    [[nodiscard]] TButtonLayout GetLayout() const { return FLayout; }
    void SetLayout(TButtonLayout value);
    /// Pixels between picture and caption; 4 at first.
    [[nodiscard]] int GetSpacing() const { return FSpacing; }
    void SetSpacing(int value);
    void SetAutoSize(bool value) override;

protected:
    void Dispatch(TMessage& message) override;
    void Loaded() override;
    [[nodiscard]] bool Toggles() const override { return FStyle == absToggle; }
    /// Two clicks stay two clicks unless a handler waits for a double one.
    [[nodiscard]] bool WantsDoubleClicks() const override { return OnDblClick.IsAssigned(); }
    bool CanAutoSize(int& newWidth, int& newHeight) override;
    void Paint() override;
    /// Where caption and picture stand between the edges; the default is the middle.
    [[nodiscard]] virtual TAlignment GetContentAlignment() const { return taCenter; }
    /// The colours of the present state.
    [[nodiscard]] TGlowGroup GetColorGroup() const;

private:
    struct TContent;

    void SelectCaptionFont(TCanvas& canvas) const;
    [[nodiscard]] TContent MeasureContent(TCanvas& canvas) const;
    void PlaceContent(TContent& content) const;
    void DrawPicture(const TRect& rect);
    void ContentChanged();

    TGlowButtonAppearance FAppearance;
    TPicture FPicture;
    TAdvButtonStyle FStyle = absButton;
    TButtonLayout FLayout = blGlyphLeft;
    int FSpacing = 4;
    bool FRounded = true;
};

}  // namespace tms

template <>
struct vcl::TEnumNames<tms::TAdvButtonStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct vcl::TEnumNames<tms::TButtonLayout> {
    static std::span<const wchar_t* const> Names();
};
