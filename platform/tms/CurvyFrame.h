#pragma once

#include "platform/tms/Namespace.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {
class TCanvas;
}

namespace tms {

/// How a frame with round corners looks.
struct TCurvyLook {
    TColor Color = clWhite;    ///< The inside.
    TColor Border = clSilver;  ///< A line of one pixel around it; clNone for none.
    int Rounding = 0;  ///< The radius of the outer corners in pixels; at most half of the shorter side.
};

/// How much of a pixel lies inside a quarter of a disc, 0 to 255: the disc of that radius whose centre is
/// (radius, radius), counted on a grid of 16 x 16 points.
[[nodiscard]] int CornerCoverage(int x, int y, int radius);

/// Draws the frame over the rectangle: straight edges and the inside as they are, the pixels of the corners
/// blended with what lies there already.
void DrawCurvyFrame(TCanvas& canvas, const TRect& rect, const TCurvyLook& look);

}  // namespace tms
