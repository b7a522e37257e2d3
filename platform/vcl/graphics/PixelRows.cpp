#include "platform/vcl/graphics/PixelRows.h"

#include <array>
#include <cstring>
#include <limits>

namespace vcl {
namespace {

constexpr std::array<RGBQUAD, 16> VgaColors = {{{0x00, 0x00, 0x00, 0},
                                                {0x00, 0x00, 0x80, 0},
                                                {0x00, 0x80, 0x00, 0},
                                                {0x00, 0x80, 0x80, 0},
                                                {0x80, 0x00, 0x00, 0},
                                                {0x80, 0x00, 0x80, 0},
                                                {0x80, 0x80, 0x00, 0},
                                                {0x80, 0x80, 0x80, 0},
                                                {0xC0, 0xC0, 0xC0, 0},
                                                {0x00, 0x00, 0xFF, 0},
                                                {0x00, 0xFF, 0x00, 0},
                                                {0x00, 0xFF, 0xFF, 0},
                                                {0xFF, 0x00, 0x00, 0},
                                                {0xFF, 0x00, 0xFF, 0},
                                                {0xFF, 0xFF, 0x00, 0},
                                                {0xFF, 0xFF, 0xFF, 0}}};

std::array<RGBQUAD, 256> MakeColors256() {
    std::array<RGBQUAD, 256> colors{};
    std::size_t n = 0;
    for (const RGBQUAD& color : VgaColors)
        colors[n++] = color;
    for (int cube = 0; cube < 216; ++cube)
        colors[n++] = {static_cast<BYTE>(cube % 6 * 51), static_cast<BYTE>(cube / 6 % 6 * 51),
                       static_cast<BYTE>(cube / 36 * 51), 0};
    for (int grey = 10; n < colors.size(); grey += 10)
        colors[n++] = {static_cast<BYTE>(grey), static_cast<BYTE>(grey), static_cast<BYTE>(grey), 0};
    return colors;
}

TPixel PixelOfQuad(const RGBQUAD& color) {
    return static_cast<TPixel>(color.rgbRed) << 16 | static_cast<TPixel>(color.rgbGreen) << 8 | color.rgbBlue;
}

/// Widens a channel of `bits` bits to 8, repeating its upper bits below, so that all ones stay all ones.
TPixel Widen(unsigned value, unsigned bits) {
    return static_cast<TPixel>(value << (8 - bits) | value >> (2 * bits - 8)) & 0xFF;
}

/// The index that stands at x in a row of 1, 4 or 8 bits per pixel.
unsigned IndexAt(const std::uint8_t* row, int x, TPixelFormat format) {
    switch (format) {
        case pf1bit:
            return row[x / 8] >> (7 - x % 8) & 1U;
        case pf4bit:
            return x % 2 ? row[x / 2] & 0x0FU : row[x / 2] >> 4U;
        default:
            return row[x];
    }
}

unsigned WordAt(const std::uint8_t* row, int x) {
    return row[2 * x] | static_cast<unsigned>(row[2 * x + 1]) << 8;
}

void PutWord(std::uint8_t* row, std::size_t x, unsigned value) {
    row[2 * x] = static_cast<std::uint8_t>(value);
    row[2 * x + 1] = static_cast<std::uint8_t>(value >> 8);
}

}  // namespace

void ExpandRow(const std::uint8_t* row, TPixelFormat format, std::span<const RGBQUAD> colors, int first,
               std::span<TPixel> pixels) {
    int x = first;
    switch (format) {
        case pf1bit:
        case pf4bit:
        case pf8bit:
            for (TPixel& pixel : pixels)
                pixel = PixelOfQuad(colors[IndexAt(row, x++, format)]);
            break;
        case pf15bit:
            for (TPixel& pixel : pixels) {
                const unsigned v = WordAt(row, x++);
                pixel = Widen(v >> 10 & 31, 5) << 16 | Widen(v >> 5 & 31, 5) << 8 | Widen(v & 31, 5);
            }
            break;
        case pf16bit:
            for (TPixel& pixel : pixels) {
                const unsigned v = WordAt(row, x++);
                pixel = Widen(v >> 11 & 31, 5) << 16 | Widen(v >> 5 & 63, 6) << 8 | Widen(v & 31, 5);
            }
            break;
        case pf24bit:
            for (TPixel& pixel : pixels) {
                const std::uint8_t* p = row + 3 * static_cast<std::ptrdiff_t>(x++);
                pixel = static_cast<TPixel>(p[2]) << 16 | static_cast<TPixel>(p[1]) << 8 | p[0];
            }
            break;
        default:
            std::memcpy(pixels.data(), row + 4 * static_cast<std::ptrdiff_t>(first), pixels.size_bytes());
            break;
    }
}

void TRowPacker::Pack(std::span<const TPixel> pixels, std::uint8_t* row) {
    switch (FFormat) {
        case pf1bit:
        case pf4bit:
        case pf8bit:
            PackIndexed(pixels, row);
            break;
        case pf15bit:
            for (std::size_t x = 0; x < pixels.size(); ++x)
                PutWord(row, x,
                        (pixels[x] >> 9 & 0x7C00) | (pixels[x] >> 6 & 0x3E0) | (pixels[x] >> 3 & 0x1F));
            break;
        case pf16bit:
            for (std::size_t x = 0; x < pixels.size(); ++x)
                PutWord(row, x,
                        (pixels[x] >> 8 & 0xF800) | (pixels[x] >> 5 & 0x7E0) | (pixels[x] >> 3 & 0x1F));
            break;
        case pf24bit:
            for (const TPixel pixel : pixels) {
                *row++ = static_cast<std::uint8_t>(pixel);
                *row++ = static_cast<std::uint8_t>(pixel >> 8);
                *row++ = static_cast<std::uint8_t>(pixel >> 16);
            }
            break;
        default:
            std::memcpy(row, pixels.data(), pixels.size_bytes());
            break;
    }
}

void TRowPacker::PackIndexed(std::span<const TPixel> pixels, std::uint8_t* row) {
    const unsigned bits = FFormat == pf1bit ? 1 : FFormat == pf4bit ? 4 : 8;
    for (std::size_t x = 0; x < pixels.size(); ++x) {
        const unsigned shift = 8 - bits - static_cast<unsigned>(x * bits % 8);
        std::uint8_t& byte = row[x * bits / 8];
        const unsigned kept = byte & ~(((1U << bits) - 1) << shift);
        byte = static_cast<std::uint8_t>(kept | static_cast<unsigned>(Nearest(pixels[x])) << shift);
    }
}

std::uint8_t TRowPacker::Nearest(TPixel pixel) {
    pixel &= 0x00FFFFFF;
    if (FHasLast && pixel == FLast) return FLastIndex;
    int best = std::numeric_limits<int>::max();
    std::size_t index = 0;
    for (std::size_t i = 0; i < FColors.size() && best > 0; ++i) {
        const int red = static_cast<int>(pixel >> 16) - FColors[i].rgbRed;
        const int green = static_cast<int>(pixel >> 8 & 0xFF) - FColors[i].rgbGreen;
        const int blue = static_cast<int>(pixel & 0xFF) - FColors[i].rgbBlue;
        const int distance = red * red + green * green + blue * blue;
        if (distance >= best) continue;
        best = distance;
        index = i;
    }
    FHasLast = true;
    FLast = pixel;
    FLastIndex = static_cast<std::uint8_t>(index);
    return FLastIndex;
}

std::span<const RGBQUAD> StandardColors(TPixelFormat format) {
    static constexpr std::array<RGBQUAD, 2> blackAndWhite = {{{0, 0, 0, 0}, {0xFF, 0xFF, 0xFF, 0}}};
    static const std::array<RGBQUAD, 256> colors256 = MakeColors256();
    switch (format) {
        case pf1bit:
            return blackAndWhite;
        case pf4bit:
            return VgaColors;
        case pf8bit:
            return colors256;
        default:
            return {};
    }
}

}  // namespace vcl
