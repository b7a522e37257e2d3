#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

/// The direction in which a gradient runs from its first to its second colour.
enum class TGradientDirection { gdHorizontal, gdVertical };
using enum TGradientDirection;

/// Fills the rectangle with a gradient, the first colour at the left or top edge. Colours may be system ones.
void FillGradient(TCanvas& canvas, const TRect& rect, TColor from, TColor to, TGradientDirection direction);

}  // namespace vcl
