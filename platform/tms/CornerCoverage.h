#pragma once

#include "platform/tms/Namespace.h"

namespace tms {

/// How many points of a pixel lie inside a quarter of a disc, of a grid of `grid` x `grid`: the disc of that
/// radius in pixels whose centre is (radius, radius).
[[nodiscard]] int CoveredPoints(int x, int y, int radius, int grid);

}  // namespace tms
