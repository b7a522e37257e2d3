#pragma once

#include <memory>

#include "platform/vcl/controls/ControlScrollBar.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

/// A windowed control whose content may be larger than its window; the base of forms and scroll boxes.
///
/// Its children move when it scrolls: their `Left` and `Top` are those of the client area, and the content's
/// origin lies at minus the positions of the scroll bars. With `AutoScroll` the ranges follow the children.
class TScrollingWinControl : public TWinControl {
public:
    explicit TScrollingWinControl(TComponent* AOwner);
    ~TScrollingWinControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TControlScrollBar& GetHorzScrollBar() const { return *FHorzScrollBar; }
    void SetHorzScrollBar(const TControlScrollBar& value) { FHorzScrollBar->Assign(&value); }
    [[nodiscard]] TControlScrollBar& GetVertScrollBar() const { return *FVertScrollBar; }
    void SetVertScrollBar(const TControlScrollBar& value) { FVertScrollBar->Assign(&value); }
    /// Whether the ranges follow the children; switching it off keeps them.
    [[nodiscard]] bool GetAutoScroll() const { return FAutoScroll; }
    void SetAutoScroll(bool value);

    /// Scrolls just so far that the control (a child, or a child's child) is seen.
    void ScrollInView(const TControl* control);
    /// Between the two the ranges stay as they are; the last `EnableAutoRange` finds them anew.
    void DisableAutoRange() { ++FAutoRangeCount; }
    void EnableAutoRange();

protected:
    friend class TControlScrollBar;

    void CreateWnd() override;
    void Dispatch(TMessage& message) override;
    void Loaded() override;
    void Resize() override;
    void AlignControls(TControl* control, TRect& rect) override;
    void AdjustClientRect(TRect& rect) override;
    /// Scrolls by as many lines as the user has chosen, down and up or, without a vertical bar, across.
    bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) override;
    /// Moves what is seen by that many pixels; the default moves pixels and children.
    virtual void ScrollContent(int dx, int dy) { ScrollBy(dx, dy); }
    /// While it answers true, a bar that shows stays, even when the content fits by now.
    [[nodiscard]] virtual bool HoldsScrollBar(TScrollBarKind) const { return false; }

private:
    class TUpdateScope;

    void UpdateScrollBars();
    void AutoScrollRange();
    [[nodiscard]] TSize SizeWithoutBars() const;
    [[nodiscard]] int RangeOfChildren(TScrollBarKind kind) const;
    bool WheelScroll(TControlScrollBar& bar, int wheelDelta);

    std::unique_ptr<TControlScrollBar> FHorzScrollBar;
    std::unique_ptr<TControlScrollBar> FVertScrollBar;
    int FAutoRangeCount = 0;
    int FWheelRest = 0;
    bool FAutoScroll = false;
    bool FUpdating = false;
};

}  // namespace vcl
