#include "skin/utils/BitmapRegion.h"

#include <cstring>
#include <vector>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "skin/utils/PixelBytes.h"
#include "skin/utils/RegionBuilder.h"

namespace qv7skin {
namespace {

struct TRun {
    int Left;
    int Right;
    friend bool operator==(const TRun&, const TRun&) = default;
};
using TRuns = std::vector<TRun>;

template <int PixelSize>
void FindRuns(const std::uint8_t* row, int width, TColor transparent, bool inverse, TRuns& runs) {
    runs.clear();
    const auto belongs = [&](int x) { return (ReadPixel(row + x * PixelSize) == transparent) == inverse; };
    for (int x = 0; x < width; ++x) {
        if (!belongs(x)) continue;
        const int left = x;
        while (x < width && belongs(x))
            ++x;
        runs.push_back({left, x});
    }
}

/// Rows that look alike become one band of rectangles, which is the same region with less work for the
/// system.
template <int PixelSize>
TRegionHandle RegionOfBits(const TConstBitmapBits& bits, TColor transparent, bool inverse) {
    TRegionBuilder builder;
    TRuns band, runs;
    int bandTop = 0;
    const auto endBand = [&](int bottom) {
        for (const auto [left, right] : band)
            builder.Add(left, bandTop, right, bottom);
    };
    const auto rowBytes = static_cast<std::size_t>(bits.Width) * PixelSize;
    for (int y = 0; y < bits.Height; ++y) {
        if (y > 0 && std::memcmp(bits.Row(y), bits.Row(y - 1), rowBytes) == 0) continue;
        FindRuns<PixelSize>(bits.Row(y), bits.Width, transparent, inverse, runs);
        if (runs == band) continue;
        endBand(y);
        band.swap(runs);
        bandTop = y;
    }
    endBand(bits.Height);
    return builder.Finish();
}

TRegionHandle RegionOfBits(const TConstBitmapBits& bits, TColor transparent, bool inverse) {
    TRegionHandle region;
    WithPixelSize(bits.BytesPerPixel,
                  [&]<int PixelSize>() { region = RegionOfBits<PixelSize>(bits, transparent, inverse); });
    return region;
}

/// For formats of few colours: looks at a copy of 32 bits per pixel.
TRegionHandle RegionOfCopy(const TBitmap& bitmap, TColor transparent, bool inverse) {
    const int width = bitmap.GetWidth(), height = bitmap.GetHeight();
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* memory = nullptr;
    const TMemoryDC dc(CreateCompatibleDC(nullptr));
    if (!dc) return {};
    const TBitmapHandle section(CreateDIBSection(dc.Get(), &info, DIB_RGB_COLORS, &memory, nullptr, 0));
    if (!section) return {};
    const TSelectObject selected(dc.Get(), section.Get());
    BitBlt(dc.Get(), 0, 0, width, height, bitmap.GetSourceDC(), 0, 0, SRCCOPY);
    GdiFlush();

    const std::ptrdiff_t stride = std::ptrdiff_t{width} * 4;  // rows lie upside down
    const auto* const top = static_cast<const std::uint8_t*>(memory) + (height - 1) * stride;
    return RegionOfBits({top, -stride, width, height, 4}, transparent, inverse);
}

}  // namespace

TRegionHandle BitmapToRegion(const TBitmap* Bitmap, bool Inverse) {
    return BitmapToRegion(Bitmap, clFuchsia, Inverse);
}

TRegionHandle BitmapToRegion(const TBitmap* Bitmap, TColor TransparentColor, bool Inverse) {
    if (!Bitmap || Bitmap->GetEmpty()) return {};
    const TColor transparent = ColorToRGB(TransparentColor);
    if (Bitmap->HasByteBits()) return RegionOfBits(Bitmap->ReadBits(), transparent, Inverse);
    return RegionOfCopy(*Bitmap, transparent, Inverse);
}

}  // namespace qv7skin
