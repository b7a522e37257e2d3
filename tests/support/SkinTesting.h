#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/Pixels.h"
#include "tests/vcl/core/Probes.h"

namespace qv7skin::probes {

using vcl::probes::MessageOf;

/// Magenta: no pixel.
inline constexpr TColor Magenta = 0x00FF00FF;

/// A bitmap that shows the picture.
[[nodiscard]] std::unique_ptr<TBitmap> BitmapOf(const test::Pixels& picture, TPixelFormat format = pf24bit);
/// A bitmap of one colour.
[[nodiscard]] std::unique_ptr<TBitmap> BitmapOf(int width, int height, TColor color,
                                                TPixelFormat format = pf24bit);
/// What the bitmap shows.
[[nodiscard]] test::Pixels PixelsOf(TBitmap& bitmap);

/// Sets a pixel of the picture, if the place is in it.
void SetInside(test::Pixels& picture, int x, int y, COLORREF color);

/// Colours that look random and are the same in each run.
class RandomColors {
public:
    explicit RandomColors(unsigned seed) : FState(seed * 2654435761U + 1) {}
    /// A number from 0 up to, but without, `limit`.
    [[nodiscard]] unsigned Next(unsigned limit);
    /// Any colour.
    [[nodiscard]] TColor Color() { return Next(256) | Next(256) << 8 | Next(256) << 16; }
    /// A picture of any colours.
    [[nodiscard]] test::Pixels Picture(int width, int height);
    /// A picture of colours of the list.
    [[nodiscard]] test::Pixels Picture(int width, int height, const std::vector<TColor>& colors);

private:
    unsigned FState;
};

}  // namespace qv7skin::probes
