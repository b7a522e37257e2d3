#include <emmintrin.h>

#include <algorithm>
#include <cstring>
#include <iterator>

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/masking/NinePartFrame.h"
#include "skin/masking/NinePartPaths.h"
#include "skin/utils/PixelBytes.h"

namespace qv7skin {
namespace {

/// True when the pieces fit into the size side by side, and the edges between their corners.
bool FitInto(const TNinePartPieces& pieces, int width, int height) {
    const auto bits = [&](TFramePosition position) -> const TConstBitmapBits& {
        return pieces.BitsOf(position);
    };
    const int left =
        std::max({bits(fposTopLeft).Width, bits(fposBottomLeft).Width, bits(fposLeftCenter).Width});
    const int right =
        std::max({bits(fposTopRight).Width, bits(fposBottomRight).Width, bits(fposRightCenter).Width});
    const bool isThin = bits(fposTopCenter).Width == 1 && bits(fposBottomCenter).Width == 1 &&
                        bits(fposLeftCenter).Height == 1 && bits(fposRightCenter).Height == 1;
    return isThin && left + right <= width &&
           bits(fposTopLeft).Height + bits(fposBottomLeft).Height <= height &&
           bits(fposTopRight).Height + bits(fposBottomRight).Height <= height &&
           bits(fposTopCenter).Height <= std::min(bits(fposTopLeft).Height, bits(fposTopRight).Height) &&
           bits(fposBottomCenter).Height <=
               std::min(bits(fposBottomLeft).Height, bits(fposBottomRight).Height);
}

/// Copies a run of a few bytes to a few hundred without a call: rows are short, and there are many.
inline void CopyBytes(std::uint8_t* to, const std::uint8_t* from, std::ptrdiff_t count) {
    if (count < 16) {
        for (std::ptrdiff_t i = 0; i < count; ++i)
            to[i] = from[i];
        return;
    }
    for (std::ptrdiff_t i = 0; i + 16 < count; i += 16)
        std::memcpy(to + i, from + i, 16);
    std::memcpy(to + count - 16, from + count - 16, 16);
}

/// Fills runs of pixels, sixteen at a time. The pattern stays in registers: written to memory and read back
/// at once, it would keep the processor waiting in every row.
template <int PixelSize>
class TPattern {
public:
    explicit TPattern(std::uint32_t pixel) : FPixel(pixel) {
        const std::uint64_t p = pixel;
        if constexpr (PixelSize == 3) {
            const std::uint64_t words[] = {p | p << 24 | p << 48, p >> 16 | p << 8 | p << 32 | p << 56,
                                           p >> 8 | p << 16 | p << 40};
            for (int i = 0; i < PixelSize; ++i)
                FBlock[i] = Pair(words[2 * i % 3], words[(2 * i + 1) % 3]);
        } else {
            std::fill(std::begin(FBlock), std::end(FBlock), Pair(p | p << 32, p | p << 32));
        }
    }
    void Fill(std::uint8_t* to, int pixels) const {
        if (pixels < 16) {
            for (int x = 0; x < pixels; ++x)
                std::memcpy(to + x * PixelSize, &FPixel, PixelSize);
            return;
        }
        std::uint8_t* const last = to + (pixels - 16) * PixelSize;
        for (; to < last; to += 16 * PixelSize)
            Store(to);
        Store(last);  // overlaps the block before, pixel on pixel
    }

private:
    static __m128i Pair(std::uint64_t low, std::uint64_t high) {
        return _mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low));
    }
    void Store(std::uint8_t* to) const {
        for (int i = 0; i < PixelSize; ++i)
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to) + i, FBlock[i]);
    }
    std::uint32_t FPixel;
    __m128i FBlock[PixelSize];
};

/// A pixel's memory as a number: blue lowest. The fourth byte of 32-bit pixels comes along into 32-bit
/// bitmaps.
template <int PixelSize>
std::uint32_t RawPixel(const std::uint8_t* pixel, int sourceSize) {
    const std::uint32_t color = pixel[0] | std::uint32_t{pixel[1]} << 8 | std::uint32_t{pixel[2]} << 16;
    return PixelSize == 4 && sourceSize == 4 ? color | std::uint32_t{pixel[3]} << 24 : color;
}

template <int PixelSize>
void CopyRow(std::uint8_t* to, const TConstBitmapBits& from, int row) {
    const std::uint8_t* pixel = from.Row(row);
    if (from.BytesPerPixel == PixelSize) {
        CopyBytes(to, pixel, std::ptrdiff_t{from.Width} * PixelSize);
        return;
    }
    for (int x = 0; x < from.Width; ++x, to += PixelSize, pixel += from.BytesPerPixel)
        WritePixel<PixelSize>(to, ReadPixel(pixel));
}

/// What stands at one side of a row: a piece and which of its rows.
struct TPlace {
    const TConstBitmapBits& Bits;
    int Row;
};

/// The piece of a side that reaches into row `y`: upper corner, lower corner, or the edge between them.
TPlace PlaceInSide(int y, int height, const TConstBitmapBits& upper, const TConstBitmapBits& lower,
                   const TConstBitmapBits& edge) {
    if (y < upper.Height) return {upper, y};
    const int lowerRow = y - (height - lower.Height);
    return lowerRow >= 0 ? TPlace{lower, lowerRow} : TPlace{edge, 0};
}

template <int PixelSize>
void ComposeRows(const TBitmapBits& bits, const TNinePartPieces& pieces,
                 const TPattern<PixelSize>& interior) {
    const TConstBitmapBits& top = pieces.BitsOf(fposTopCenter);
    const TConstBitmapBits& bottom = pieces.BitsOf(fposBottomCenter);
    for (int y = 0; y < bits.Height; ++y) {
        std::uint8_t* const row = bits.Row(y);
        const TPlace left = PlaceInSide(y, bits.Height, pieces.BitsOf(fposTopLeft),
                                        pieces.BitsOf(fposBottomLeft), pieces.BitsOf(fposLeftCenter));
        const TPlace right = PlaceInSide(y, bits.Height, pieces.BitsOf(fposTopRight),
                                         pieces.BitsOf(fposBottomRight), pieces.BitsOf(fposRightCenter));
        const int middleWidth = bits.Width - left.Bits.Width - right.Bits.Width;
        std::uint8_t* const middle = row + left.Bits.Width * PixelSize;

        CopyRow<PixelSize>(row, left.Bits, left.Row);
        const int bottomRow = y - (bits.Height - bottom.Height);
        if (y < top.Height)
            TPattern<PixelSize>(RawPixel<PixelSize>(top.Row(y), top.BytesPerPixel)).Fill(middle, middleWidth);
        else if (bottomRow >= 0)
            TPattern<PixelSize>(RawPixel<PixelSize>(bottom.Row(bottomRow), bottom.BytesPerPixel))
                .Fill(middle, middleWidth);
        else
            interior.Fill(middle, middleWidth);
        CopyRow<PixelSize>(middle + middleWidth * PixelSize, right.Bits, right.Row);
    }
}

}  // namespace

bool ComposeNinePartByRows(TBitmap& bitmap, const TNinePartPieces& pieces, TColor fillColor) {
    if (!pieces.HasBits() || !bitmap.HasByteBits()) return false;
    if (!FitInto(pieces, bitmap.GetWidth(), bitmap.GetHeight())) return false;

    const TColor fill = ColorToRGB(fillColor);
    const std::uint32_t fillPixel =
        BlueOf(fill) | std::uint32_t{GreenOf(fill)} << 8 | std::uint32_t{RedOf(fill)} << 16;
    const TBitmapBits bits = bitmap.WriteBits();
    WithPixelSize(bits.BytesPerPixel, [&]<int PixelSize>() {
        ComposeRows<PixelSize>(bits, pieces, TPattern<PixelSize>(fillPixel));
    });
    bitmap.Changed();
    return true;
}

}  // namespace qv7skin
