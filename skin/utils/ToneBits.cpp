#include "skin/utils/ToneBits.h"

#include <algorithm>

#include "skin/utils/PixelBytes.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {
namespace {

/// The first pixel of the row that `GrayBitmap` takes note of: neither black nor transparent. The black ones
/// before it stay black.
template <int PixelSize>
int SkipBlackStart(std::uint8_t* row, int width, std::optional<TColor> transparent) {
    for (int x = 0; x < width; ++x) {
        std::uint8_t* const pixel = row + x * PixelSize;
        const TColor color = ReadPixel(pixel);
        if (color == transparent) continue;
        if (color != 0) return x;
        WritePixel<PixelSize>(pixel, 0);
    }
    return width;
}

template <int PixelSize, bool HasTransparent>
void GrayRow(std::uint8_t* pixel, int count, const std::array<std::uint8_t, 766>& grey, TColor transparent) {
    const std::uint8_t* const end = pixel + count * PixelSize;
    for (; pixel != end; pixel += PixelSize) {
        if constexpr (HasTransparent) {
            if (ReadPixel(pixel) == transparent) continue;
        }
        const std::uint8_t g = grey[pixel[0] + pixel[1] + pixel[2]];
        pixel[0] = pixel[1] = pixel[2] = g;
        if constexpr (PixelSize == 4) pixel[3] = 0;
    }
}

template <int PixelSize>
void LightenRow(std::uint8_t* pixel, int count, const std::array<std::uint8_t, 256>& table) {
    const std::uint8_t* const end = pixel + count * PixelSize;
    for (; pixel != end; pixel += PixelSize) {
        pixel[0] = table[pixel[0]];
        pixel[1] = table[pixel[1]];
        pixel[2] = table[pixel[2]];
        if constexpr (PixelSize == 4) pixel[3] = 0;
    }
}

}  // namespace

std::array<std::uint8_t, 256> LighteningTable(int percent) {
    constexpr int allBlack = -25500;  // takes 255 even from the component 254
    const long double strength = std::clamp(percent, allBlack, 100);
    std::array<std::uint8_t, 256> table{};
    for (int c = 0; c < 256; ++c)
        table[c] = static_cast<std::uint8_t>(std::max(c + RoundHalfEven((255 - c) * strength / 100), 0));
    return table;
}

std::array<std::uint8_t, 766> GreyingTable(int percent) {
    const std::int64_t strength = std::min(percent, 100);
    std::array<std::uint8_t, 766> table{};
    for (int sum = 0; sum <= 765; ++sum)
        table[sum] =
            static_cast<std::uint8_t>(std::min<std::int64_t>(255 - (765 - sum) * strength / 300, 240));
    return table;
}

void DimBits(const TBitmapBits& bits, int percent) {
    const auto table = LighteningTable(percent);
    WithPixelSize(bits.BytesPerPixel, [&]<int PixelSize>() {
        for (int y = 0; y < bits.Height; ++y)
            LightenRow<PixelSize>(bits.Row(y), bits.Width, table);
    });
}

void GrayBits(const TBitmapBits& bits, int percent, std::optional<TColor> transparent) {
    const auto grey = GreyingTable(percent);
    WithPixelSize(bits.BytesPerPixel, [&]<int PixelSize>() {
        // The memory of the last colour starts with "black stays black". The first other colour ends that, at
        // the latest the one that is read beyond the end of the first row.
        bool blackStays = true;
        for (int y = 0; y < bits.Height; ++y) {
            const int start =
                blackStays ? SkipBlackStart<PixelSize>(bits.Row(y), bits.Width, transparent) : 0;
            std::uint8_t* const pixel = bits.Row(y) + start * PixelSize;
            if (transparent)
                GrayRow<PixelSize, true>(pixel, bits.Width - start, grey, *transparent);
            else
                GrayRow<PixelSize, false>(pixel, bits.Width - start, grey, 0);
            if (start < bits.Width || transparent != clInvalid) blackStays = false;
        }
    });
}

void ReplaceInBits(const TBitmapBits& bits, TColor oldColor, TColor newColor) {
    WithPixelSize(bits.BytesPerPixel, [&]<int PixelSize>() {
        for (int y = 0; y < bits.Height; ++y) {
            std::uint8_t* pixel = bits.Row(y);
            for (const std::uint8_t* const end = pixel + bits.Width * PixelSize; pixel != end;
                 pixel += PixelSize)
                if (ReadPixel(pixel) == oldColor) WritePixel<PixelSize>(pixel, newColor);
        }
    });
}

}  // namespace qv7skin
