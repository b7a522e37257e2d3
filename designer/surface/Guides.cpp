#include "designer/surface/Guides.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace designer {
namespace {

// One direction at a time: an interval from `Begin` to `End`.
struct TInterval {
    int Begin, End;
};
TInterval Horizontal(const TRect& r) {
    return {r.Left, r.Right};
}
TInterval Vertical(const TRect& r) {
    return {r.Top, r.Bottom};
}

/// The distance to the nearest edge that is near enough.
void NoteNearest(int edge, int target, int distance, std::optional<int>& best) {
    const int delta = target - edge;
    if (std::abs(delta) <= distance && (!best || std::abs(delta) < std::abs(*best))) best = delta;
}

int ToGrid(int value, int grid) {
    const int half = grid / 2;
    const int shifted = value + half;
    const int floor = shifted >= 0 ? shifted / grid : -((-shifted + grid - 1) / grid);
    return floor * grid - value;
}

template <class Pick>
std::optional<int> ToEdges(TInterval wanted, bool begin, bool end, std::span<const TRect> others,
                           int distance, Pick pick) {
    std::optional<int> best;
    for (const TRect& other : others) {
        const TInterval edges = pick(other);
        for (const int target : {edges.Begin, edges.End}) {
            if (begin) NoteNearest(wanted.Begin, target, distance, best);
            if (end) NoteNearest(wanted.End, target, distance, best);
        }
    }
    return best;
}

template <class Pick>
TInterval SnappedInterval(TInterval wanted, bool begin, bool end, std::span<const TRect> others,
                          TSnapping snapping, Pick pick) {
    const bool whole = !begin && !end;
    std::optional<int> delta;
    if (snapping.UseGuides)
        delta = ToEdges(wanted, begin || whole, end || whole, others, snapping.Distance, pick);
    if (!delta) delta = ToGrid(end ? wanted.End : wanted.Begin, snapping.Grid);
    TInterval snapped = wanted;
    if (begin || whole) snapped.Begin += *delta;
    if (end || whole) snapped.End += *delta;
    // At least one pixel remains.
    if (begin) snapped.Begin = std::min(snapped.Begin, wanted.End - 1);
    if (end) snapped.End = std::max(snapped.End, wanted.Begin + 1);
    return snapped;
}

/// Adds a line, unless a shorter one lies in the same place: the nearest control shows enough.
void AddGuide(std::vector<TGuide>& guides, const TRect& line) {
    const bool isVertical = line.Width() == 1;
    for (TGuide& guide : guides) {
        TRect& other = guide.Line;
        const bool sameLine = isVertical ? other.Width() == 1 && other.Left == line.Left
                                         : other.Height() == 1 && other.Top == line.Top;
        if (!sameLine) continue;
        if (line.Width() + line.Height() < other.Width() + other.Height()) other = line;
        return;
    }
    guides.push_back({line});
}

}  // namespace

TRect Snapped(const TRect& wanted, TMovingEdges edges, std::span<const TRect> others, TSnapping snapping) {
    const bool whole = edges.IsNone();
    TInterval x = Horizontal(wanted);
    TInterval y = Vertical(wanted);
    if (whole || edges.Left || edges.Right)
        x = SnappedInterval(x, edges.Left, edges.Right, others, snapping, Horizontal);
    if (whole || edges.Top || edges.Bottom)
        y = SnappedInterval(y, edges.Top, edges.Bottom, others, snapping, Vertical);
    return {x.Begin, y.Begin, x.End, y.End};
}

std::vector<TGuide> GuidesOf(const TRect& place, std::span<const TRect> others) {
    std::vector<TGuide> guides;
    for (const TRect& other : others) {
        const int top = std::min(place.Top, other.Top);
        const int bottom = std::max(place.Bottom, other.Bottom);
        for (const int x : {place.Left, place.Right})
            if (x == other.Left || x == other.Right) AddGuide(guides, {x, top, x + 1, bottom});
        const int left = std::min(place.Left, other.Left);
        const int right = std::max(place.Right, other.Right);
        for (const int y : {place.Top, place.Bottom})
            if (y == other.Top || y == other.Bottom) AddGuide(guides, {left, y, right, y + 1});
    }
    return guides;
}

}  // namespace designer
