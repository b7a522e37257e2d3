#pragma once

#include <functional>
#include <vector>

#include "resources/skinart/Color.h"

namespace skinart {

/// A colour for each pixel: a plain colour, a gradient, or what another picture shows there.
/// The arguments are pixel columns and rows.
using Paint = std::function<Rgb(int x, int y)>;

/// A finished rectangle of pixels. Pixels that are not part of the picture have `palette::kTransparent`.
class Picture {
public:
    Picture(int width, int height, Rgb fill = palette::kTransparent);

    int Width() const { return FWidth; }
    int Height() const { return FHeight; }

    /// The pixel in column `x`, row `y`; throws std::out_of_range outside the picture.
    Rgb At(int x, int y) const { return FPixels.at(Index(x, y)); }
    void Set(int x, int y, Rgb color) { FPixels.at(Index(x, y)) = color; }

    /// The part of `width` x `height` pixels whose top left corner is (`left`, `top`).
    Picture Crop(int left, int top, int width, int height) const;

    /// Copies `source` to (`left`, `top`); what reaches outside is cut off.
    void Draw(const Picture& source, int left, int top);

    /// As `Draw`, but leaves out the transparent pixels.
    void DrawTransparent(const Picture& source, int left, int top);

    /// Copies `source`, which is one pixel thick in each stretched direction, over a rectangle.
    void Stretch(const Picture& source, int left, int top, int width, int height);

    /// Every pixel as a square of `factor` x `factor`.
    Picture Enlarged(int factor) const;

    friend bool operator==(const Picture&, const Picture&) = default;

private:
    std::size_t Index(int x, int y) const;
    bool Holds(int x, int y) const { return x >= 0 && y >= 0 && x < FWidth && y < FHeight; }

    int FWidth;
    int FHeight;
    std::vector<Rgb> FPixels;
};

/// A paint that shows `picture`, whose top left corner lies at (`left`, `top`).
Paint ShowPicture(Picture picture, int left = 0, int top = 0);

}  // namespace skinart
