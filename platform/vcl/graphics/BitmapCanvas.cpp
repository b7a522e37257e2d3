#include "platform/vcl/graphics/BitmapCanvas.h"

#include "platform/vcl/graphics/BitmapImage.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace vcl {

HDC TBitmapCanvas::GetSourceHandle() {
    return FBitmap.FImage ? FBitmap.FImage->OpenDC() : GetHandle();
}

void TBitmapCanvas::CreateHandle() {
    if (!FBitmap.FImage) {
        FEmptyDC = CreateMemoryDC();
        SetHandle(FEmptyDC.Get());
        return;
    }
    FBitmap.Unshare();
    SetHandle(FBitmap.FImage->OpenDC());
    FBitmap.FImage->SetSurface(this);
}

void TBitmapCanvas::Detach() {
    if (FBitmap.FImage && FBitmap.FImage->Surface() == this)
        FBitmap.FImage->DetachSurface();
    else
        SetHandle(nullptr);
    FEmptyDC.Reset();
}

void TBitmapCanvas::Changed() {
    if (OnChange) {
        const TLifeGuard guard(*this);
        TCanvas::Changed();
        if (!guard.IsAlive()) return;
    }
    FBitmap.Changed();
}

std::optional<TDirectBits> TBitmapCanvas::DirectBits() {
    if (!FBitmap.HasByteBits()) return std::nullopt;
    const HDC dc = GetHandle();
    POINT origin{};
    TRect clip;
    if (::GetMapMode(dc) != MM_TEXT || ::GetClipBox(dc, clip.AsRect()) == COMPLEXREGION) return std::nullopt;
    if (!::GetWindowOrgEx(dc, &origin) || origin.x || origin.y) return std::nullopt;
    if (!::GetViewportOrgEx(dc, &origin)) return std::nullopt;
    // The clip rectangle counts from the origin, so the view has to as well; nothing outside the rectangle is
    // ever touched.
    TBitmapBits bits = FBitmap.WriteBits();
    bits.Data += origin.y * bits.Stride + std::ptrdiff_t{origin.x} * bits.BytesPerPixel;
    return TDirectBits{bits, clip};
}

}  // namespace vcl
