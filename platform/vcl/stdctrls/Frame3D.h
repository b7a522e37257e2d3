#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {

class TCanvas;

/// Draws a frame of `width` pixels just inside the rectangle, one colour at the left and upper edge, one at
/// the right and lower edge (which have the corners where both meet), and narrows the rectangle to what is
/// left.
void Frame3D(TCanvas& canvas, TRect& rect, TColor topColor, TColor bottomColor, int width);

}  // namespace vcl
