#pragma once

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

/// A windowed control whose content may be larger than its window; the base of forms and scroll boxes.
class TScrollingWinControl : public TWinControl {
public:
    explicit TScrollingWinControl(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
