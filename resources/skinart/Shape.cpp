#include "resources/skinart/Shape.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace skinart {

namespace {

std::int64_t Squared(std::int64_t value) {
    return value * value;
}

bool NearSegment(Point p, Point a, Point b, int thickness) {
    const std::int64_t dx = b.X - a.X;
    const std::int64_t dy = b.Y - a.Y;
    const std::int64_t px = p.X - a.X;
    const std::int64_t py = p.Y - a.Y;
    const std::int64_t length = dx * dx + dy * dy;
    const std::int64_t along = px * dx + py * dy;
    const std::int64_t reach = Squared(thickness);
    if (along <= 0) return 4 * (px * px + py * py) <= reach;
    if (along >= length) return 4 * (Squared(p.X - b.X) + Squared(p.Y - b.Y)) <= reach;
    return 4 * Squared(px * dy - py * dx) <= reach * length;
}

}  // namespace

Shape RoundedBox(Box box, Radii radii) {
    return [=](Point p) {
        if (p.X < box.Left || p.X > box.Right || p.Y < box.Top || p.Y > box.Bottom) return false;
        const bool upper = p.Y < box.Top + radii.Top;
        const bool lower = p.Y > box.Bottom - radii.Bottom;
        if (!upper && !lower) return true;
        const int radius = upper ? radii.Top : radii.Bottom;
        const int dy = upper ? box.Top + radius - p.Y : p.Y - (box.Bottom - radius);
        const int dx = std::max(box.Left + radius - p.X, p.X - (box.Right - radius));
        return dx <= 0 || Squared(dx) + Squared(dy) <= Squared(radius);
    };
}

Shape Disc(Point center, int radius) {
    return [=](Point p) { return Squared(p.X - center.X) + Squared(p.Y - center.Y) <= Squared(radius); };
}

Shape ConvexPolygon(std::vector<Point> corners) {
    return [corners = std::move(corners)](Point p) {
        Point from = corners.back();
        for (const Point to : corners) {
            const std::int64_t side = static_cast<std::int64_t>(to.X - from.X) * (p.Y - from.Y) -
                                      static_cast<std::int64_t>(to.Y - from.Y) * (p.X - from.X);
            if (side < 0) return false;
            from = to;
        }
        return true;
    };
}

Shape Stroke(std::vector<Point> points, int thickness) {
    return [points = std::move(points), thickness](Point p) {
        for (std::size_t i = 1; i < points.size(); ++i) {
            if (NearSegment(p, points[i - 1], points[i], thickness)) return true;
        }
        return false;
    };
}

int Coverage(const Shape& shape, int x, int y) {
    int covered = 0;
    for (int row = 1; row < kUnit; row += 2) {
        for (int column = 1; column < kUnit; column += 2) {
            if (shape({x * kUnit + column, y * kUnit + row})) ++covered;
        }
    }
    return covered;
}

}  // namespace skinart
