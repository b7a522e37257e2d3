#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TCanvas;
}

namespace qv7skin {

class TQV7SkinExplorerBar;
class TQV7SkinExplorerGroup;
class TQV7SkinExplorerItemCustom;

/// Marks the default colour of a focus rectangle, 0x00F0EAE7.
inline constexpr TColor clDefaultFocus = 0x20000000;

/// A place of the keyboard focus: a group's header, or one of its items.
struct TFocusIndex {
    int GroupIndex = -1;
    bool IsHeader = false;
    int ItemIndex = -1;

    friend bool operator==(const TFocusIndex&, const TFocusIndex&) = default;
};

/// The keyboard focus inside an explorer bar: where it is, where it can go, and what keys do there.
class TQV7SkinExplorerBarFocus : public TObject {
public:
    explicit TQV7SkinExplorerBarFocus(TQV7SkinExplorerBar& Bar) : FBar(&Bar) {}
    ~TQV7SkinExplorerBarFocus() override;

    /// True while the bar has the input focus.
    [[nodiscard]] bool GetFocused() const { return FFocused; }
    /// Starts at the first place, or with Shift held at the last, and repaints the bar.
    void SetFocused(bool Value);
    [[nodiscard]] const TFocusIndex& GetIndex() const { return FIndex; }
    /// The item, or the group whose header, is at the place; null otherwise.
    [[nodiscard]] TQV7SkinExplorerItemCustom* FocusedItem() const;
    [[nodiscard]] TQV7SkinExplorerGroup* FocusedGroup() const;
    /// Whether the focus is there and the bar has the input focus.
    [[nodiscard]] bool IsItemFocused(const TQV7SkinExplorerItemCustom* Item) const;
    [[nodiscard]] bool IsGroupHeaderFocused(const TQV7SkinExplorerGroup* Group) const;

    [[nodiscard]] bool IsValidItemIndex(const TFocusIndex& Index) const;
    [[nodiscard]] bool IsValidGroupIndex(const TFocusIndex& Index) const;
    [[nodiscard]] bool IsValidIndex(const TFocusIndex& Index) const;

    /// Goes to the first place, or to the last.
    void ResetIndex(bool Forward);
    /// Goes to the next or previous place, if there is one, and scrolls it into view.
    void MoveFocus(bool Forward);
    [[nodiscard]] bool CanMoveFocus(bool Forward) const;
    /// Whether Tab, with Shift as it is held now, finds another place in the bar.
    [[nodiscard]] bool WantTabs() const;
    /// Clicks the item, or opens or closes the group.
    void DoReturnKeyPress();
    /// Toggles a check box.
    void DoSpaceKeyPress();
    /// A dotted frame, 3 pixels wider than the rectangle on both sides and 1 pixel further right.
    void DrawFocusRect(TCanvas& Canvas, const TRect& Rect, TColor Color) const;

    /// The next place from `Start` on in reading order, or with `IncludeStart` that itself; group 0 without
    /// header and item when there is none.
    [[nodiscard]] TFocusIndex FindNextVisible(TFocusIndex Start, bool IncludeStart) const;
    [[nodiscard]] TFocusIndex FindPreviousVisible(TFocusIndex Start, bool IncludeStart) const;

private:
    TQV7SkinExplorerBar* FBar;
    bool FFocused = false;
    TFocusIndex FIndex;
};

}  // namespace qv7skin
