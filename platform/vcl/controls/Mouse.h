#pragma once

#include "platform/vcl/controls/ControlTypes.h"

namespace vcl {

class TControl;
class TWinControl;

/// The control that gets all mouse messages while a button is held, or null. It may be one without a window.
[[nodiscard]] TControl* GetCaptureControl();
/// Gives the capture to the control (null releases it).
void SetCaptureControl(TControl* control);

/// The control under the pointer as far as mouse messages told: the last one that got CM_MOUSEENTER and not
/// yet CM_MOUSELEAVE; null when the pointer is elsewhere.
[[nodiscard]] TControl* GetMouseControl();
/// Sends CM_MOUSELEAVE to the former control under the pointer and CM_MOUSEENTER to this one (null: none).
/// Nothing happens when it is the same.
void SetMouseControl(TControl* control);

/// The windowed control under the point (screen pixels), or the control without a window on it; null over
/// foreign windows.
[[nodiscard]] TControl* FindDragTarget(TPoint screenPoint, bool allowDisabled);
/// The windowed control of this program at the point (screen pixels), children first; null over foreign ones.
[[nodiscard]] TWinControl* FindVCLWindow(TPoint screenPoint);

/// The pointer and its settings. Obtained with `Mouse()`.
class TMouse {
public:
    /// The pointer in screen pixels. Asks the system: once per event is enough.
    [[nodiscard]] TPoint GetCursorPos() const;
    void SetCursorPos(TPoint value);
    /// The window that has the capture, or 0.
    [[nodiscard]] HWND GetCapture() const;
    void SetCapture(HWND value);
    [[nodiscard]] bool GetMousePresent() const;
    [[nodiscard]] bool GetWheelPresent() const;
    /// Lines that one notch of the wheel scrolls; WHEEL_PAGESCROLL for a page.
    [[nodiscard]] int GetWheelScrollLines() const;
    /// Pixels that the pointer must move with the button held before a drag begins; 5 at first.
    [[nodiscard]] int GetDragThreshold() const { return FDragThreshold; }
    void SetDragThreshold(int value) { FDragThreshold = value; }
    /// Whether a drag begins at the press or after `DragThreshold`; true at first.
    [[nodiscard]] bool GetDragImmediate() const { return FDragImmediate; }
    void SetDragImmediate(bool value) { FDragImmediate = value; }

private:
    friend TMouse& Mouse();
    TMouse() = default;
    int FDragThreshold = 5;
    bool FDragImmediate = true;
};

/// The one mouse of the process.
[[nodiscard]] TMouse& Mouse();

}  // namespace vcl
