#pragma once

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

class TControl;

/// The canvas of a control. During WM_PAINT it is bound to that device context; at other times it fetches one
/// of the window when it is first drawn on and keeps it until the message under way has been handled.
class TControlCanvas : public TCanvas {
public:
    TControlCanvas() = default;
    explicit TControlCanvas(TControl* control) : FControl(control) {}
    ~TControlCanvas() override;

    /// The control on which it draws; not owned.
    [[nodiscard]] TControl* GetControl() const { return FControl; }
    void SetControl(TControl* control);
    /// Gives the device context that it fetched itself back.
    void FreeHandle();
    /// The font and colours of the control, for drawing from scratch.
    void UpdateTextFlags() {}

protected:
    void CreateHandle() override;

private:
    TControl* FControl = nullptr;
    HWND FWindow = nullptr;
    HDC FDeviceContext = nullptr;
};

/// Gives back the device contexts that canvases fetched outside of painting. The window procedure does so
/// after the outermost message; message loops may do so when idle.
void FreeControlDeviceContexts();

}  // namespace vcl
