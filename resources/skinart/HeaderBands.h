#pragma once

#include "resources/skinart/Picture.h"

namespace skinart {

/// Heights of the upper and the lower band of a header, in pixels.
inline constexpr int kTopBandHeight = 9;
inline constexpr int kBottomBandHeight = 10;

/// The colours of an explorer bar header, 19 rows from top to bottom.
Paint ExplorerBandPaint();

}  // namespace skinart
