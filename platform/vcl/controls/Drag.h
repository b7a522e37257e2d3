#pragma once

namespace vcl {

class TControl;
class TDragObject;

// The drag that is under way, if any; a process has one at a time. It begins with `TControl::BeginDrag`.

/// The control that is dragged, or null.
[[nodiscard]] TControl* GetDragControl();
/// The object that carries the drag, or null.
[[nodiscard]] TDragObject* GetDragObject();
/// Ends the drag without a drop, as Escape does; nothing happens when there is none.
void CancelDrag();
/// Asks the control below the pointer again, as if the pointer had moved there: for targets whose content
/// moves by itself. Nothing happens when there is no drag, or one that waits for its threshold.
void RepeatDragOver();

}  // namespace vcl
