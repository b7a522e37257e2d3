#pragma once

#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

class TControl;

/// The canvas of a control. During WM_PAINT it is bound to that device context (`TCanvasBinding`); at other
/// times it fetches one of the window when it is first drawn on and keeps it until the message under way has
/// been handled.
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
    /// Draws on a device context on loan (null: none) and returns the one that was bound before.
    HDC Bind(HDC dc);

protected:
    void CreateHandle() override;

private:
    TControl* FControl = nullptr;
    HWND FWindow = nullptr;
    HDC FDeviceContext = nullptr;
    HDC FBound = nullptr;
};

/// Binds the canvas of a control to a device context for the length of a scope in which the control may be
/// freed.
class [[nodiscard]] TCanvasBinding {
public:
    TCanvasBinding(TControlCanvas& canvas, const TGuarded& control, HDC dc)
        : FCanvas(canvas), FGuard(control), FFormer(canvas.Bind(dc)) {}
    ~TCanvasBinding() {
        if (FGuard.IsAlive()) FCanvas.Bind(FFormer);
    }
    TCanvasBinding(const TCanvasBinding&) = delete;
    TCanvasBinding& operator=(const TCanvasBinding&) = delete;

private:
    TControlCanvas& FCanvas;
    TLifeGuard FGuard;
    HDC FFormer;
};

/// Gives back the device contexts that canvases fetched outside of painting. The window procedure does so
/// after the outermost message; message loops may do so when idle.
void FreeControlDeviceContexts();

}  // namespace vcl
