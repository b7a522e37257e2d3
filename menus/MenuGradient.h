#pragma once

#include "menus/Namespace.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Gradients.h"

namespace qv7skin {

/// Fills the rectangle with `Steps` bands from the first to the second colour, neither of which need be
/// reached: band i of 1 .. Steps has start + round(i * (end - start) / Steps) in each channel and covers the
/// rows (or columns) from round((i - 1) * h / Steps) to round(i * h / Steps). Halves round to even. Without
/// steps nothing is drawn.
void DrawGradientBands(HDC DC, const TRect& R, int Steps, TColor StartColor, TColor EndColor,
                       TGradientDirection Direction);

}  // namespace qv7skin
