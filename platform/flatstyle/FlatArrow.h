#pragma once

#include "platform/flatstyle/Namespace.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {
class TCanvas;
}

namespace flatstyle {

/// Draws the small triangle of flat buttons, pointing down or up, in the middle of the rectangle: (X+3, Y-1),
/// (X+7, Y-1), (X+5, Y+1) with X five pixels left of the middle and Y in the middle.
void DrawFlatArrow(TCanvas& canvas, const TRect& rect, bool up, TColor color);
/// The same as if engraved: in `highlight` one pixel to the right and down, and over it in `color`.
void DrawFlatArrowEngraved(TCanvas& canvas, const TRect& rect, bool up, TColor color, TColor highlight);

}  // namespace flatstyle
