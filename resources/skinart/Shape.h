#pragma once

#include <functional>
#include <vector>

namespace skinart {

/// Shapes are described in units of a thirty-second of a pixel and tested with whole numbers only, so that
/// every compiler and machine draws the same bytes.
inline constexpr int kUnit = 32;

/// Whole pixels to units.
constexpr int Px(int pixels) {
    return pixels * kUnit;
}

/// Pixels to units; `pixels` must be a multiple of 1/32.
consteval int Px(double pixels) {
    const int units = static_cast<int>(pixels * kUnit);
    if (units != pixels * kUnit) throw "not a multiple of a thirty-second of a pixel";
    return units;
}

/// A point in units; (0, 0) is the top left corner of the top left pixel.
struct Point {
    int X = 0;
    int Y = 0;
};

/// Whether a point lies inside the shape.
using Shape = std::function<bool(Point)>;

/// A rectangle in units.
struct Box {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    /// The box made smaller by `distance` on all four sides.
    constexpr Box Inset(int distance) const {
        return {Left + distance, Top + distance, Right - distance, Bottom - distance};
    }
    constexpr Box Moved(int x, int y) const { return {Left + x, Top + y, Right + x, Bottom + y}; }
};

/// Corner radii of a rounded box, in units.
struct Radii {
    int Top = 0;     ///< both upper corners
    int Bottom = 0;  ///< both lower corners
};

/// A box with round corners.
Shape RoundedBox(Box box, Radii radii);

/// A full circle.
Shape Disc(Point center, int radius);

/// The inside of a convex polygon, its corners in clockwise order as seen on the screen.
Shape ConvexPolygon(std::vector<Point> corners);

/// A line through `points`, `thickness` units wide, with round ends and joins.
Shape Stroke(std::vector<Point> points, int thickness);

/// How much of pixel (`x`, `y`) the shape covers, from 0 to `kFullCoverage`, counted on a 16 x 16 grid.
int Coverage(const Shape& shape, int x, int y);
inline constexpr int kFullCoverage = 256;

}  // namespace skinart
