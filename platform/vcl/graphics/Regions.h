#pragma once

#include <span>
#include <vector>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// A region of one rectangle. All functions here raise EOutOfResources when the system has no room.
[[nodiscard]] TRegionHandle RectRegion(const TRect& rect);

/// The union of the rectangles. They are joined in groups and the groups pairwise, halves with halves, which
/// takes time in proportion to their number; fastest when they are sorted by top, then left edge.
[[nodiscard]] TRegionHandle UnionOfRects(std::span<const RECT> rects);

/// The rectangles that make up a region, sorted by top, then left edge; empty for a null region.
[[nodiscard]] std::vector<RECT> RectsOfRegion(HRGN region);

/// A region of its own with the same area.
[[nodiscard]] TRegionHandle CopyRegion(HRGN region);

}  // namespace vcl
