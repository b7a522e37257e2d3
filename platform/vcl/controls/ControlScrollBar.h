#pragma once

#include "platform/vcl/core/Persistent.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {

class TScrollingWinControl;
struct TMessage;

enum class TScrollBarKind { sbHorizontal, sbVertical };
/// How the system draws a scroll bar; all look the same where the system knows only one style.
enum class TScrollBarStyle { ssRegular, ssFlat, ssHotTrack };
using enum TScrollBarKind;
using enum TScrollBarStyle;

template <>
struct TEnumNames<TScrollBarKind> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TScrollBarStyle> {
    static std::span<const wchar_t* const> Names();
};

/// One scroll bar of a scrolling control: which part of the content is seen along one axis. All lengths are
/// pixels of the content and may exceed 32,767; the control frees it.
///
/// It shows when it is switched on (`Visible`) and the content (`Range`) does not fit.
class TControlScrollBar : public TPersistent {
public:
    TControlScrollBar(TScrollingWinControl& control, TScrollBarKind kind) : FControl(control), FKind(kind) {}
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Takes over the settings of another scroll bar, without its position.
    void Assign(const TPersistent* source) override;

    [[nodiscard]] TScrollBarKind GetKind() const { return FKind; }
    /// How far the content can move: `Range` less the client size; 0 when it fits or the bar is switched off.
    [[nodiscard]] int GetMaxPosition() const { return FMaxPosition; }
    /// True while the system shows the bar.
    [[nodiscard]] bool IsScrollBarVisible() const { return FShown; }

    /// The first pixel of the content that is seen, kept within 0 and `GetMaxPosition`; moves the content.
    [[nodiscard]] int GetPosition() const { return FPosition; }
    void SetPosition(int value);
    /// The size of the content. The control sets it while `AutoScroll` is on; setting it ends that.
    [[nodiscard]] int GetRange() const { return FRange; }
    void SetRange(int value);
    /// Off: the bar does not show, and the content stays at its beginning.
    [[nodiscard]] bool GetVisible() const { return FVisible; }
    void SetVisible(bool value);
    /// Pixels that stay free behind the last child when the control finds the range.
    [[nodiscard]] int GetMargin() const { return FMargin; }
    void SetMargin(int value);

    /// Pixels that an arrow scrolls by; with `Smooth` a tenth of a page, whatever was set.
    [[nodiscard]] int GetIncrement() const;
    void SetIncrement(int value) { FIncrement = value; }
    /// Pixels that a click beside the thumb scrolls by: nine tenths of what is seen.
    [[nodiscard]] int GetPageIncrement() const;
    [[nodiscard]] bool GetSmooth() const { return FSmooth; }
    void SetSmooth(bool value) { FSmooth = value; }
    /// Whether the content follows the thumb while it is dragged, or only its release.
    [[nodiscard]] bool GetTracking() const { return FTracking; }
    void SetTracking(bool value) { FTracking = value; }

    // Looks that the system's own bars do not have to choose; kept for form files and descendants.
    /// Pixels of an arrow, of the bar's width and of the thumb; 0 is the system's.
    [[nodiscard]] int GetButtonSize() const { return FButtonSize; }
    void SetButtonSize(int value) { FButtonSize = value; }
    [[nodiscard]] int GetSize() const { return FSize; }
    void SetSize(int value) { FSize = value; }
    [[nodiscard]] int GetThumbSize() const { return FThumbSize; }
    void SetThumbSize(int value) { FThumbSize = value; }
    [[nodiscard]] TScrollBarStyle GetStyle() const { return FStyle; }
    void SetStyle(TScrollBarStyle value) { FStyle = value; }
    [[nodiscard]] TColor GetColor() const { return FColor; }
    /// Also ends `ParentColor`.
    void SetColor(TColor value);
    [[nodiscard]] bool GetParentColor() const { return FParentColor; }
    void SetParentColor(bool value) { FParentColor = value; }

    [[nodiscard]] bool IsColorStored() const { return !FParentColor; }
    [[nodiscard]] bool IsIncrementStored() const { return !FSmooth; }
    [[nodiscard]] bool IsRangeStored() const;

private:
    friend class TScrollingWinControl;

    void HandleMessage(const TMessage& message);
    /// Takes over whether the bar shows, and how much of the content is seen.
    void Show(bool shown, int page);
    void Tell(const SCROLLINFO& info);
    [[nodiscard]] int TrackedPosition(WORD packed) const;
    [[nodiscard]] int SystemBar() const { return FKind == sbVertical ? SB_VERT : SB_HORZ; }

    TScrollingWinControl& FControl;
    TScrollBarKind FKind;
    TScrollBarStyle FStyle = ssRegular;
    TColor FColor = clBtnHighlight;
    int FIncrement = 8;
    int FMargin = 0;
    int FPosition = 0;
    int FRange = 0;
    int FPage = 0;
    int FMaxPosition = 0;
    int FButtonSize = 0;
    int FSize = 0;
    int FThumbSize = 0;
    bool FParentColor = true;
    bool FSmooth = false;
    bool FTracking = false;
    bool FVisible = true;
    bool FShown = false;
    HWND FToldWindow = nullptr;  ///< The window that knows the values below.
    SCROLLINFO FTold{};
};

}  // namespace vcl
