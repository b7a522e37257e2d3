#include "resources/skinart/Canvas.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace skinart {

Paint Solid(Rgb color) {
    return [color](int, int) { return color; };
}

Paint Vertical(std::vector<Stop> stops) {
    return [stops = std::move(stops)](int, int y) {
        if (y <= stops.front().Row) return stops.front().Color;
        for (std::size_t i = 1; i < stops.size(); ++i) {
            const Stop& above = stops[i - 1];
            const Stop& below = stops[i];
            if (y <= below.Row) return Mix(above.Color, below.Color, y - above.Row, below.Row - above.Row);
        }
        return stops.back().Color;
    };
}

Paint VerticalEase(int fromRow, Rgb from, int toRow, Rgb to) {
    return [=](int, int y) {
        const int length = std::abs(toRow - fromRow);
        const int gone = std::clamp(toRow > fromRow ? y - fromRow : fromRow - y, 0, length);
        return Mix(from, to, gone * gone * (2 * length - gone), length * length * length);
    };
}

Canvas::Canvas(int width, int height, Paint backdrop)
    : FColors(width, height),
      FTouched(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0) {
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            FColors.Set(x, y, backdrop(x, y));
    }
}

int& Canvas::Touched(int x, int y) {
    return FTouched.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(Width()) +
                       static_cast<std::size_t>(x));
}

void Canvas::Blend(int x, int y, Rgb color, int coverage) {
    FColors.Set(x, y, Mix(FColors.At(x, y), color, coverage, kFullCoverage));
    int& touched = Touched(x, y);
    touched += (kFullCoverage - touched) * coverage / kFullCoverage;
}

void Canvas::Fill(const Shape& shape, const Paint& paint, int opacity) {
    for (int y = 0; y < Height(); ++y) {
        for (int x = 0; x < Width(); ++x) {
            const int coverage = Coverage(shape, x, y) * opacity / kFullCoverage;
            if (coverage > 0) Blend(x, y, paint(x, y), coverage);
        }
    }
}

void Canvas::FillAll(const Paint& paint) {
    for (int y = 0; y < Height(); ++y) {
        for (int x = 0; x < Width(); ++x)
            Blend(x, y, paint(x, y), kFullCoverage);
    }
}

void Canvas::Row(int y, int left, int right, Rgb color) {
    for (int x = left; x < right; ++x)
        Blend(x, y, color, kFullCoverage);
}

void Canvas::Punch(const Shape& shape) {
    for (int y = 0; y < Height(); ++y) {
        for (int x = 0; x < Width(); ++x) {
            if (Coverage(shape, x, y) == kFullCoverage) Touched(x, y) = 0;
        }
    }
}

void Canvas::Draw(const Picture& picture, int left, int top) {
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const Rgb color = picture.At(x, y);
            if (color != palette::kTransparent) Blend(left + x, top + y, color, kFullCoverage);
        }
    }
}

Picture Canvas::Finish() const {
    constexpr int kLeastCoverage = kFullCoverage / 16;
    Picture result(Width(), Height());
    for (int y = 0; y < Height(); ++y) {
        for (int x = 0; x < Width(); ++x) {
            const auto index =
                static_cast<std::size_t>(y) * static_cast<std::size_t>(Width()) + static_cast<std::size_t>(x);
            if (FTouched.at(index) < kLeastCoverage) continue;
            const Rgb color = FColors.At(x, y);
            if (color == palette::kTransparent)
                throw std::logic_error("a drawn pixel has the transparent colour");
            result.Set(x, y, color);
        }
    }
    return result;
}

}  // namespace skinart
