#pragma once

#include <array>
#include <optional>

#include "designer/surface/Guides.h"

namespace designer {

/// Edge length of a handle in pixels.
inline constexpr int HandleSize = 7;

/// The handles at corners and edges of a rectangle, in this order: top left, top, top right, right, bottom
/// right, bottom, bottom left, left.
[[nodiscard]] std::array<TRect, 8> HandlesAround(const TRect& place);
/// What moves with the handle of that index.
[[nodiscard]] TMovingEdges EdgesOf(int handle);
/// The pointer over the handle of that index.
[[nodiscard]] int HandleCursor(int handle);
/// The index of the handle at the point, or none.
[[nodiscard]] std::optional<int> HandleAt(const TRect& place, TPoint point);
/// The rectangle with the edges moved, not smaller than one pixel.
[[nodiscard]] TRect WithEdgesMoved(const TRect& place, TMovingEdges edges, int dx, int dy);

}  // namespace designer
