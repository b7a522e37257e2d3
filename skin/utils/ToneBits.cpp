#include "skin/utils/ToneBits.h"

#include <emmintrin.h>

#include <algorithm>
#include <cstring>

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
        if constexpr (PixelSize == 4) {
            const std::uint32_t all = g * 0x010101u;
            std::memcpy(pixel, &all, sizeof all);
        } else {
            pixel[0] = pixel[1] = pixel[2] = g;
        }
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

/// Lightens 16 components at once by whole-number arithmetic, for strengths from 0 to 100. The bytes outside
/// of `kept` become 0.
__m128i LightenBlock(__m128i components, __m128i percent, __m128i kept) {
    const __m128i zero = _mm_setzero_si128(), white = _mm_set1_epi16(255);
    const auto lighten = [&](__m128i c) {
        // (255 - c) x percent / 100 to nearest: 5243 / 2^19 is 1 / 100 closely enough for all values up to
        // 25,550.
        const __m128i scaled =
            _mm_add_epi16(_mm_mullo_epi16(_mm_sub_epi16(white, c), percent), _mm_set1_epi16(50));
        const __m128i rounded = _mm_srli_epi16(_mm_mulhi_epu16(scaled, _mm_set1_epi16(5243)), 3);
        // Halfway between two numbers the even one counts.
        const __m128i isTie = _mm_cmpeq_epi16(scaled, _mm_mullo_epi16(rounded, _mm_set1_epi16(100)));
        const __m128i excess = _mm_and_si128(_mm_and_si128(isTie, rounded), _mm_set1_epi16(1));
        return _mm_add_epi16(c, _mm_sub_epi16(rounded, excess));
    };
    const __m128i low = lighten(_mm_unpacklo_epi8(components, zero));
    const __m128i high = lighten(_mm_unpackhi_epi8(components, zero));
    return _mm_and_si128(_mm_packus_epi16(low, high), kept);
}

/// Lightens as many pixels as whole blocks of 16 bytes hold and returns how many those are.
template <int PixelSize>
int LightenBlocks(std::uint8_t* row, int count, int percent) {
    constexpr int pixelsPerStep = PixelSize == 4 ? 4 : 16;
    const __m128i strength = _mm_set1_epi16(static_cast<short>(percent));
    const __m128i kept = PixelSize == 4 ? _mm_set1_epi32(0x00FFFFFF) : _mm_set1_epi8(-1);
    const int whole = count - count % pixelsPerStep;
    for (std::uint8_t* p = row; p != row + whole * PixelSize; p += 16) {
        auto* const block = reinterpret_cast<__m128i*>(p);
        _mm_storeu_si128(block, LightenBlock(_mm_loadu_si128(block), strength, kept));
    }
    return whole;
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
    percent = std::min(percent, 100);
    const auto table = LighteningTable(percent);
    WithPixelSize(bits.BytesPerPixel, [&]<int PixelSize>() {
        for (int y = 0; y < bits.Height; ++y) {
            std::uint8_t* const row = bits.Row(y);
            const int done = percent >= 0 ? LightenBlocks<PixelSize>(row, bits.Width, percent) : 0;
            LightenRow<PixelSize>(row + done * PixelSize, bits.Width - done, table);
        }
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
