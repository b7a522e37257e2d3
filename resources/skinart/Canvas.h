#pragma once

#include <initializer_list>
#include <vector>

#include "resources/skinart/Picture.h"
#include "resources/skinart/Shape.h"

namespace skinart {

/// A paint of one colour.
Paint Solid(Rgb color);

/// A row of a vertical gradient and its colour.
struct Stop {
    int Row;
    Rgb Color;
};

/// A paint that runs straight from stop to stop, rows ascending; outside them it keeps the first or last
/// colour.
Paint Vertical(std::vector<Stop> stops);

/// A paint that runs from `from` at row `fromRow` to `to` at row `toRow`, which may lie above it. It leaves
/// `from` without an edge and slows down again a little before `to`.
Paint VerticalEase(int fromRow, Rgb from, int toRow, Rgb to);

/// A surface for anti-aliased shapes. It starts as the colour that the finished picture will lie on, so that
/// edges are blended with that colour; what no shape touched becomes transparent at the end.
class Canvas {
public:
    /// `backdrop` is what the picture will lie on.
    Canvas(int width, int height, Paint backdrop);

    int Width() const { return FColors.Width(); }
    int Height() const { return FColors.Height(); }

    /// Paints the inside of `shape`; `opacity` goes from 0 to `kFullCoverage`.
    void Fill(const Shape& shape, const Paint& paint, int opacity = kFullCoverage);

    /// Paints the whole surface.
    void FillAll(const Paint& paint);

    /// Paints one pixel row from column `left` up to, not including, `right`.
    void Row(int y, int left, int right, Rgb color);

    /// Turns the pixels that lie wholly inside `shape` back into untouched ones.
    void Punch(const Shape& shape);

    /// Draws a picture, without its transparent pixels, at (`left`, `top`).
    void Draw(const Picture& picture, int left, int top);

    /// The result; pixels that are covered by less than a sixteenth count as untouched.
    Picture Finish() const;

private:
    void Blend(int x, int y, Rgb color, int coverage);
    int& Touched(int x, int y);

    Picture FColors;
    std::vector<int> FTouched;
};

}  // namespace skinart
