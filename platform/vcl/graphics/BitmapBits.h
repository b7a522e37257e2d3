#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "platform/vcl/graphics/Color.h"

namespace vcl {

/// A look into the memory of a bitmap of 24 or 32 bits per pixel: rows from top to bottom, in each row blue,
/// green, red (and a fourth byte) per pixel. It owns nothing and is valid until the bitmap is changed in size
/// or format, assigned to or freed. `Byte` is std::uint8_t, const for reading.
template <class Byte>
struct TBitsView {
    Byte* Data = nullptr;       ///< The first byte of the top row.
    std::ptrdiff_t Stride = 0;  ///< Bytes from one row to the next below it; negative in most bitmaps.
    int Width = 0;
    int Height = 0;
    int BytesPerPixel = 0;  ///< 3 or 4.

    [[nodiscard]] bool IsEmpty() const { return Data == nullptr; }
    [[nodiscard]] Byte* Row(int y) const { return Data + y * Stride; }
    [[nodiscard]] Byte* Pixel(int x, int y) const { return Row(y) + x * BytesPerPixel; }
    [[nodiscard]] TColor GetColor(int x, int y) const {
        const Byte* p = Pixel(x, y);
        return RGBToColor(p[2], p[1], p[0]);
    }
    /// Writes a 0x00BBGGRR colour; the fourth byte becomes 0, as in drawing by the system.
    void SetColor(int x, int y, TColor rgb) const requires(!std::is_const_v<Byte>) {
        Byte* p = Pixel(x, y);
        p[0] = BlueOf(rgb);
        p[1] = GreenOf(rgb);
        p[2] = RedOf(rgb);
        if (BytesPerPixel == 4) p[3] = 0;
    }
    operator TBitsView<const Byte>() const requires(!std::is_const_v<Byte>) {
        return {Data, Stride, Width, Height, BytesPerPixel};
    }
};

using TBitmapBits = TBitsView<std::uint8_t>;
using TConstBitmapBits = TBitsView<const std::uint8_t>;

}  // namespace vcl
