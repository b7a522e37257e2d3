#pragma once

#include <cstdint>
#include <span>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace vcl {

/// A pixel as the memory of 32-bit bitmaps holds it: 0xAARRGGBB.
using TPixel = std::uint32_t;

[[nodiscard]] constexpr TPixel PixelOfColor(TColor rgb) {
    return static_cast<TPixel>(RedOf(rgb)) << 16 | static_cast<TPixel>(GreenOf(rgb)) << 8 | BlueOf(rgb);
}
[[nodiscard]] constexpr TColor ColorOfPixel(TPixel pixel) {
    return RGBToColor(static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
                      static_cast<std::uint8_t>(pixel));
}

/// Turns a row of any format into pixels; formats without alpha have it 0.
void ExpandRow(const std::uint8_t* row, TPixelFormat format, std::span<const RGBQUAD> colors, int first,
               std::span<TPixel> pixels);

/// Turns pixels into rows of a format. Formats with a colour table take the nearest of its colours.
class TRowPacker {
public:
    TRowPacker(TPixelFormat format, std::span<const RGBQUAD> colors) : FFormat(format), FColors(colors) {}
    void Pack(std::span<const TPixel> pixels, std::uint8_t* row);

private:
    void PackIndexed(std::span<const TPixel> pixels, std::uint8_t* row);
    [[nodiscard]] std::uint8_t Nearest(TPixel pixel);

    TPixelFormat FFormat;
    std::span<const RGBQUAD> FColors;
    bool FHasLast = false;
    TPixel FLast = 0;
    std::uint8_t FLastIndex = 0;
};

/// The colours of a format's standard table: black and white, the sixteen colours of VGA, or those with 20
/// more greys and a colour cube of 6 x 6 x 6; empty for formats without a table.
[[nodiscard]] std::span<const RGBQUAD> StandardColors(TPixelFormat format);

}  // namespace vcl
