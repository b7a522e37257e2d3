#pragma once

#include "gallery/Namespace.h"
#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/graphics/Canvas.h"

namespace gallery {

/// A white area that calls back to be painted, without flicker.
class TPaintArea : public TCustomControl {
public:
    explicit TPaintArea(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Canvas and the whole client area.
    TEvent<void(TCanvas&, const TRect&)> OnPaint;

protected:
    void Paint() override { OnPaint(GetCanvas(), GetClientRect()); }
};

}  // namespace gallery
