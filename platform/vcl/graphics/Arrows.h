#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

/// Where an arrow points to.
enum class TScrollDirection { sdLeft, sdRight, sdUp, sdDown };
using enum TScrollDirection;

/// Draws a filled triangle in the colour of the pen that points in the direction. `location` is the top left
/// corner of the rectangle around it, which is `size` + 1 pixels long in the direction and 2 * `size` + 1
/// pixels wide across it. The brush keeps its colour and style.
void DrawArrow(TCanvas& canvas, TScrollDirection direction, TPoint location, int size);

}  // namespace vcl
