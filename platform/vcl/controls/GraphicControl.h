#pragma once

#include <memory>

#include "platform/vcl/controls/Control.h"

namespace vcl {

class TCanvas;
class TControlCanvas;

/// A control without a window: its parent paints it and hands it the mouse. It has no focus and no children.
class TGraphicControl : public TControl {
public:
    explicit TGraphicControl(TComponent* AOwner);
    ~TGraphicControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The surface of the control, from (0, 0). It can be used at any time, also outside of painting.
    [[nodiscard]] TCanvas& GetCanvas() const;

protected:
    void Dispatch(TMessage& message) override;
    /// Draws the control on `GetCanvas()`.
    virtual void Paint() {}

private:
    std::unique_ptr<TControlCanvas> FCanvas;
};

}  // namespace vcl
