#include "designer/surface/Handles.h"

#include <algorithm>

#include "platform/vcl/controls/ControlTypes.h"

namespace designer {

std::array<TRect, 8> HandlesAround(const TRect& place) {
    const auto at = [](int x, int y) {
        return TRect::OfSize(x - HandleSize / 2, y - HandleSize / 2, HandleSize, HandleSize);
    };
    const int right = place.Right - 1;
    const int bottom = place.Bottom - 1;
    const int middleX = (place.Left + right) / 2;
    const int middleY = (place.Top + bottom) / 2;
    return {at(place.Left, place.Top), at(middleX, place.Top), at(right, place.Top),
            at(right, middleY),        at(right, bottom),      at(middleX, bottom),
            at(place.Left, bottom),    at(place.Left, middleY)};
}

TMovingEdges EdgesOf(int handle) {
    TMovingEdges edges;
    edges.Left = handle == 0 || handle >= 6;
    edges.Top = handle <= 2;
    edges.Right = handle >= 2 && handle <= 4;
    edges.Bottom = handle >= 4 && handle <= 6;
    return edges;
}

int HandleCursor(int handle) {
    static constexpr TCursor Cursors[] = {crSizeNWSE, crSizeNS, crSizeNESW, crSizeWE};
    return Cursors[handle % 4];
}

std::optional<int> HandleAt(const TRect& place, TPoint point) {
    const auto handles = HandlesAround(place);
    for (int i = 0; i < static_cast<int>(handles.size()); ++i)
        if (handles[static_cast<std::size_t>(i)].Contains(point)) return i;
    return std::nullopt;
}

TRect WithEdgesMoved(const TRect& place, TMovingEdges edges, int dx, int dy) {
    TRect moved = place;
    if (edges.Left) moved.Left = std::min(moved.Left + dx, place.Right - 1);
    if (edges.Right) moved.Right = std::max(moved.Right + dx, place.Left + 1);
    if (edges.Top) moved.Top = std::min(moved.Top + dy, place.Bottom - 1);
    if (edges.Bottom) moved.Bottom = std::max(moved.Bottom + dy, place.Top + 1);
    return moved;
}

}  // namespace designer
