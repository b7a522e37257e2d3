#pragma once

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"

// The windows of the controls and their classes, process-wide. `FindControl` (WinControl.h) is the reading
// half for everybody.

namespace vcl {

class TWinControl;
struct TCreateParams;

/// Notes that the window belongs to the control.
void AttachWindow(HWND window, TWinControl* control);
/// Forgets the window; with the last one the caches for painting go too, so that a program without windows
/// holds nothing.
void DetachWindow(HWND window);

/// The name under which the window class of the parameters is registered with `procedure`; registers it when
/// it is new. Classes of one name but different looks (style bits, base class) get names of their own.
/// Raises EOSError.
[[nodiscard]] const wchar_t* RegisterControlClass(const TCreateParams& params, WNDPROC procedure);

/// Makes `control` the owner of the next window of this thread that gets its first message, for the length
/// of the scope.
class TWindowCreation {
public:
    explicit TWindowCreation(TWinControl* control);
    ~TWindowCreation();
    TWindowCreation(const TWindowCreation&) = delete;
    TWindowCreation& operator=(const TWindowCreation&) = delete;
    /// The control whose window is being made and not yet known; null when there is none. Asking ends it.
    [[nodiscard]] static TWinControl* Take();

private:
    TWinControl* FOuter;
};

}  // namespace vcl
