#pragma once

#include "platform/vcl/core/WindowsApi.h"

// What the controls report to the process-wide state of the mouse; users of the framework need Mouse.h only.
// The state is our own, since asking the system for capture and pointer costs more than handling an event.

namespace vcl {

class TControl;
class TWinControl;

/// The control that has the capture through this window (a child without a window, or the window's own), or
/// null when the window has none that was taken with `SetCaptureControl`.
[[nodiscard]] TControl* CaptureInside(const TWinControl& window);
/// The system took the capture from the window.
void CaptureLost(const TWinControl& window);
/// The pointer moved over the window; `target` is the control under it, null when it is outside while the
/// mouse is captured.
void PointerMovedTo(TWinControl& window, TControl* target);
/// The system told that the pointer left the window.
void PointerLeft(TWinControl& window);
/// The control is hidden, disabled or moved to another parent: the pointer leaves it and its children.
void PointerLosesControl(TControl& control);
/// The control is being freed.
void ForgetControl(const TControl& control);
/// The window is being destroyed.
void ForgetWindow(HWND window);

}  // namespace vcl
