#pragma once

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace vcl {

/// A canvas for measuring text where there is nothing to draw on yet. Not to be drawn on.
class TScreenCanvas : public TCanvas {
public:
    TScreenCanvas() : FScreen(nullptr) { SetHandle(FScreen.Get()); }
    ~TScreenCanvas() override { SetHandle(nullptr); }

private:
    TWindowDC FScreen;
};

}  // namespace vcl
