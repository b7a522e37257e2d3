#pragma once

namespace vcl {

class TControl;
class TWinControl;

/// The control that this one is a part of, such as the frame around an editor; null for one that stands for
/// itself. Parts belong to their frame, or stand where a program can't put controls.
[[nodiscard]] TWinControl* WholeOf(const TControl& part);
/// The nearest one of the control and those that it is a part of that has a popup menu; null without any.
[[nodiscard]] TControl* MenuHolderOf(TControl& control);

}  // namespace vcl
