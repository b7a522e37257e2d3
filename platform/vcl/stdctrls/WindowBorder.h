#pragma once

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

/// Gives a window under creation the border of the system: a sunken edge, or where `ctl3D` is false a line.
void AddWindowBorder(TCreateParams& params, bool ctl3D);
/// `insets` and on each side the width, in pixels, of the border that `AddWindowBorder` gives.
[[nodiscard]] TRect WithWindowBorder(const TRect& insets, bool ctl3D);

}  // namespace vcl
