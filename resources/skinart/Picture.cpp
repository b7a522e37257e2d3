#include "resources/skinart/Picture.h"

#include <cstddef>
#include <stdexcept>
#include <utility>

namespace skinart {

Picture::Picture(int width, int height, Rgb fill) : FWidth(width), FHeight(height) {
    if (width <= 0 || height <= 0) throw std::invalid_argument("a picture needs at least one pixel");
    FPixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill);
}

std::size_t Picture::Index(int x, int y) const {
    if (!Holds(x, y)) throw std::out_of_range("pixel outside the picture");
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(FWidth) + static_cast<std::size_t>(x);
}

Picture Picture::Crop(int left, int top, int width, int height) const {
    Picture result(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            result.Set(x, y, At(left + x, top + y));
    }
    return result;
}

void Picture::Draw(const Picture& source, int left, int top) {
    for (int y = 0; y < source.FHeight; ++y) {
        for (int x = 0; x < source.FWidth; ++x) {
            if (Holds(left + x, top + y)) Set(left + x, top + y, source.At(x, y));
        }
    }
}

void Picture::DrawTransparent(const Picture& source, int left, int top) {
    for (int y = 0; y < source.FHeight; ++y) {
        for (int x = 0; x < source.FWidth; ++x) {
            const Rgb color = source.At(x, y);
            if (color != palette::kTransparent && Holds(left + x, top + y)) Set(left + x, top + y, color);
        }
    }
}

void Picture::Stretch(const Picture& source, int left, int top, int width, int height) {
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int fromX = x * source.FWidth / width;
            const int fromY = y * source.FHeight / height;
            if (Holds(left + x, top + y)) Set(left + x, top + y, source.At(fromX, fromY));
        }
    }
}

Picture Picture::Enlarged(int factor) const {
    Picture result(FWidth * factor, FHeight * factor);
    result.Stretch(*this, 0, 0, FWidth * factor, FHeight * factor);
    return result;
}

Paint ShowPicture(Picture picture, int left, int top) {
    return [picture = std::move(picture), left, top](int x, int y) { return picture.At(x - left, y - top); };
}

}  // namespace skinart
