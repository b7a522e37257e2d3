#pragma once

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

/// A windowed control whose content may be larger than its window; the base of forms and scroll boxes.
class TScrollingWinControl : public TWinControl {
public:
    explicit TScrollingWinControl(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] bool GetAutoScroll() const { return FAutoScroll; }
    /// Whether scroll bars appear by themselves when controls lie outside of the window.
    virtual void SetAutoScroll(bool value);

protected:
    /// Called when the range or the place of the content may have changed.
    virtual void AutoScrollChanged() {}

private:
    bool FAutoScroll = false;
};

}  // namespace vcl
