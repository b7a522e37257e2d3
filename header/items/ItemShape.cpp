#include "header/items/ItemShape.h"

#include <algorithm>
#include <cstring>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/BitmapRegion.h"

namespace qv7skin {
namespace {

std::vector<TRect> RectsOf(HRGN region) {
    const DWORD size = GetRegionData(region, 0, nullptr);
    if (size == 0) return {};
    std::vector<std::byte> bytes(size);
    auto* const data = reinterpret_cast<RGNDATA*>(bytes.data());
    if (GetRegionData(region, size, data) == 0) return {};
    std::vector<TRect> rects(data->rdh.nCount);
    const auto* const first = reinterpret_cast<const RECT*>(data->Buffer);
    std::transform(first, first + data->rdh.nCount, rects.begin(), [](const RECT& r) {
        return TRect{r.left, r.top, r.right, r.bottom};
    });
    return rects;
}

}  // namespace

TItemShape::TItemShape() = default;
TItemShape::~TItemShape() = default;

void TItemShape::TakeFrom(const TBitmap& background) {
    FRegion = BitmapToRegion(&background, false);
    FRects = FRegion ? RectsOf(FRegion.Get()) : std::vector<TRect>();
}

bool TItemShape::Contains(TPoint point) const {
    return FRegion && PtInRegion(FRegion.Get(), point.X, point.Y) != FALSE;
}

void TItemShape::ClipTo(TCanvas& canvas, int x) const {
    if (!FRegion) return;
    const HDC dc = canvas.GetHandle();
    POINT origin{x, 0};
    LPtoDP(dc, &origin, 1);  // clip regions are in device units
    OffsetRgn(FRegion.Get(), origin.x, origin.y);
    ExtSelectClipRgn(dc, FRegion.Get(), RGN_AND);
    OffsetRgn(FRegion.Get(), -origin.x, -origin.y);
}

void TItemShape::Copy(TCanvas& canvas, int x, const TBitmap& picture) const {
    if (picture.GetEmpty() || CopyDirectly(canvas, x, picture)) return;
    const TCanvasStateScope state(canvas);
    ClipTo(canvas, x);
    canvas.CopyFrom(TRect::OfSize(x, 0, picture.GetWidth(), picture.GetHeight()), picture.GetSourceDC(),
                    {0, 0, picture.GetWidth(), picture.GetHeight()}, cmSrcCopy);
}

/// Row by row in memory, where the canvas allows it: no clip region, no call per tab.
bool TItemShape::CopyDirectly(TCanvas& canvas, int x, const TBitmap& picture) const {
    const TConstBitmapBits source = picture.ReadBits();
    const auto target = canvas.DirectBits();
    if (!target || target->Bits.BytesPerPixel != source.BytesPerPixel) return false;
    const int pixelSize = source.BytesPerPixel;
    canvas.DrawDirectly([&](HDC) {
        for (const TRect& rect : FRects) {
            const TRect r =
                TRect(rect.Left + x, rect.Top, rect.Right + x, rect.Bottom).Intersect(target->Clip);
            if (r.IsEmpty()) continue;
            const auto rowBytes = static_cast<std::size_t>(r.Width()) * static_cast<std::size_t>(pixelSize);
            for (int y = r.Top; y < r.Bottom; ++y)
                std::memcpy(target->Bits.Pixel(r.Left, y), source.Pixel(r.Left - x, y), rowBytes);
        }
    });
    return true;
}

}  // namespace qv7skin
