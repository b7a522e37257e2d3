#pragma once

#include <cstdint>
#include <utility>

#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The colour 0x00BBGGRR of a pixel in the memory of a 24- or 32-bit bitmap.
[[nodiscard]] inline TColor ReadPixel(const std::uint8_t* pixel) {
    return RGBToColor(pixel[2], pixel[1], pixel[0]);
}

/// Writes a colour 0x00BBGGRR; the fourth byte of a 32-bit pixel becomes 0, as it does when the system sets a
/// pixel.
template <int PixelSize>
void WritePixel(std::uint8_t* pixel, TColor color) {
    pixel[0] = BlueOf(color);
    pixel[1] = GreenOf(color);
    pixel[2] = RedOf(color);
    if constexpr (PixelSize == 4) pixel[3] = 0;
}

/// Calls `work` with the bytes per pixel (3 or 4) as a constant, so that inner loops are compiled once per
/// size.
template <class Work>
void WithPixelSize(int bytesPerPixel, Work&& work) {
    if (bytesPerPixel == 4)
        std::forward<Work>(work).template operator()<4>();
    else
        std::forward<Work>(work).template operator()<3>();
}

}  // namespace qv7skin
