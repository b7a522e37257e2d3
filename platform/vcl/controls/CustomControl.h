#pragma once

#include <memory>

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

class TCanvas;
class TControlCanvas;

/// A control with a window that paints itself.
class TCustomControl : public TWinControl {
public:
    explicit TCustomControl(TComponent* AOwner);
    ~TCustomControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The surface of the client area. It can be used at any time, also outside of painting.
    [[nodiscard]] TCanvas& GetCanvas() const;

protected:
    /// Draws the control on `GetCanvas()`.
    virtual void Paint() {}
    void PaintWindow(HDC dc) override;

private:
    std::unique_ptr<TControlCanvas> FCanvas;
};

}  // namespace vcl
