#include "skin/surfaces/Fade.h"

#include <algorithm>
#include <array>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {
namespace {

using TTable = std::array<std::uint8_t, 256>;

/// What each value of a component becomes. Factors below 0 overshoot and are cut to the range of a byte.
TTable FadingTable(int component, long double alpha) {
    TTable table{};
    for (int c = 0; c < 256; ++c) {
        const long double mixed = (1.0L - alpha) * component + alpha * c;
        table[c] = static_cast<std::uint8_t>(RoundHalfEven(std::clamp(mixed, 0.0L, 255.0L)));
    }
    return table;
}

void FadeRow(std::uint8_t* to, const std::uint8_t* from, int width, const TTable& blue, const TTable& green,
             const TTable& red) {
    for (int x = 0; x < width; ++x, to += 3, from += 3) {
        to[0] = blue[from[0]];
        to[1] = green[from[1]];
        to[2] = red[from[2]];
    }
}

/// What a bitmap has in memory.
TRect RowsOf(const TBitmap& bitmap) {
    return TRect::OfSize(0, bitmap.GetFirstRow(), bitmap.GetWidth(), bitmap.GetRowCount());
}

}  // namespace

void Fade(TBitmap& dest, TColor color, int x, int y, long double alpha, TBitmap& source,
          const TRect& sourceRect) {
    if (alpha >= 1.0L) {
        dest.GetCanvas().CopyRect(TRect::OfSize(x, y, sourceRect.Width(), sourceRect.Height()), source,
                                  sourceRect);
        return;
    }
    dest.SetPixelFormat(pf24bit);
    source.SetPixelFormat(pf24bit);

    const int dx = x - sourceRect.Left, dy = y - sourceRect.Top;
    TRect area = sourceRect.Intersect(RowsOf(source));
    area.Offset(dx, dy);
    area = area.Intersect(RowsOf(dest));
    if (area.IsEmpty()) return;

    const TColor rgb = ColorToRGB(color);
    const TTable blue = FadingTable(BlueOf(rgb), alpha);
    const TTable green = FadingTable(GreenOf(rgb), alpha);
    const TTable red = FadingTable(RedOf(rgb), alpha);
    const TBitmapBits to = dest.WriteBits();
    const TBitmapBits from = source.WriteBits();
    for (int row = area.Top; row < area.Bottom; ++row)
        FadeRow(to.Pixel(area.Left, row - dest.GetFirstRow()),
                from.Pixel(area.Left - dx, row - dy - source.GetFirstRow()), area.Width(), blue, green, red);
    dest.Changed();
}

}  // namespace qv7skin
