#include "platform/vcl/stdctrls/FaceCache.h"

#include <algorithm>
#include <cstdint>

#include "platform/vcl/core/ScopedValue.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/GdiErrors.h"

namespace vcl {
namespace {

constexpr std::int64_t MemoryLimit = 1 << 20;

}  // namespace

void TFaceCache::Clear() {
    FPlaceOfLook.fill(NoPlace);
    FNextPlace = 0;
    ++FGeneration;
}

void TFaceCache::Release() {
    Clear();
    if (FPainting) return;
    FDC.Reset();
    FBitmap.Reset();
    FSize = {};
}

void TFaceCache::MakeBitmap(TSize size) {
    Release();
    const std::int64_t faceBytes = std::int64_t{4} * size.Width * size.Height;
    FPlaces = static_cast<int>(std::clamp<std::int64_t>(MemoryLimit / faceBytes, 1, Looks));

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.Width;
    info.bmiHeader.biHeight = -size.Height * FPlaces;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    FBitmap.Reset(CheckHandle(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)));
    FDC = CreateMemoryDC();
    ::SelectObject(FDC.Get(), FBitmap.Get());
    FBits = static_cast<std::uint8_t*>(bits);
    FSize = size;
}

void TFaceCache::Paint(int look, const TPainter& paint) {
    const int place = FNextPlace;
    FNextPlace = (FNextPlace + 1) % FPlaces;
    for (signed char& taken : FPlaceOfLook)
        if (taken == place) taken = NoPlace;

    const unsigned generation = FGeneration;
    const int top = FPaintTop = place * FSize.Height;
    {
        const TScopedValue painting(FPainting, true);
        const TSaveDC state(FDC.Get());
        ::IntersectClipRect(FDC.Get(), 0, top, FSize.Width, top + FSize.Height);
        ::SetViewportOrgEx(FDC.Get(), 0, top, nullptr);
        paint(FDC.Get());
    }
    if (generation == FGeneration) FPlaceOfLook[look] = static_cast<signed char>(place);
}

TBitmapBits TFaceCache::Bits() const {
    if (!FPainting) return {};
    // Drawing that the system still holds back belongs below what is written now.
    ::GdiFlush();
    const std::ptrdiff_t stride = 4 * std::ptrdiff_t{FSize.Width};
    return {FBits + FPaintTop * stride, stride, FSize.Width, FSize.Height, 4};
}

void TFaceCache::Show(HDC dc, TSize size, int look, const TPainter& paint) {
    if (size.Width <= 0 || size.Height <= 0) return;
    if (size != FSize) MakeBitmap(size);
    int place = FPlaceOfLook[look];
    if (place == NoPlace) {
        place = FNextPlace;
        Paint(look, paint);
    }
    ::BitBlt(dc, 0, 0, size.Width, size.Height, FDC.Get(), 0, place * size.Height, SRCCOPY);
}

}  // namespace vcl
