#pragma once

#include <span>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/core/Geometry.h"

namespace designer {

/// A line along edges that lie in one: vertical lines have one x, horizontal ones one y.
struct TGuide {
    TRect Line;  ///< One pixel thick.
    friend bool operator==(const TGuide&, const TGuide&) = default;
};

/// Which edges of a rectangle move, when it does not move as a whole.
struct TMovingEdges {
    bool Left = false, Top = false, Right = false, Bottom = false;
    [[nodiscard]] bool IsNone() const { return !Left && !Top && !Right && !Bottom; }
};

/// How a moved rectangle comes to rest.
struct TSnapping {
    int Grid = 8;      ///< Pixels between the points of the grid; 1 for none.
    int Distance = 4;  ///< How near, in pixels, an edge must come to one of another control.
    bool UseGuides = true;
};

/// Moves `wanted` by a few pixels so that its edges lie on edges of `others` (which wins) or on the grid.
/// Without moving edges the rectangle keeps its size.
[[nodiscard]] TRect Snapped(const TRect& wanted, TMovingEdges edges, std::span<const TRect> others,
                            TSnapping snapping);

/// The lines along which edges of `place` lie on those of `others`, each as long as `place` and the nearest
/// of them together.
[[nodiscard]] std::vector<TGuide> GuidesOf(const TRect& place, std::span<const TRect> others);

}  // namespace designer
