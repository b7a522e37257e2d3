#include "platform/vcl/controls/PaintBuffer.h"

#include <algorithm>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace vcl {
namespace {

/// Larger buffers than a usual screen are not kept.
constexpr int MostPixelsKept = 2048 * 1280;

struct TKeptBuffer {
    TMemoryDC DC;
    TBitmapHandle Bitmap;
    HGDIOBJ OldBitmap = nullptr;
    TSize Size;
};

TKeptBuffer& Kept() {
    static TKeptBuffer kept;
    return kept;
}

}  // namespace

TPaintBuffer::TPaintBuffer(HDC target, TSize size, const TRect& clip) : FTarget(target), FClip(clip) {
    TKeptBuffer& kept = Kept();
    if (kept.DC && kept.Size.Width >= size.Width && kept.Size.Height >= size.Height) {
        // Taken out while in use: a window painted meanwhile gets one of its own.
        FDC = std::move(kept.DC);
        FBitmap = std::move(kept.Bitmap);
        FOldBitmap = kept.OldBitmap;
        FSize = kept.Size;
    } else {
        FSize = {std::max(size.Width, 1), std::max(size.Height, 1)};
        FDC = CreateMemoryDC(target);
        FBitmap = TBitmapHandle(::CreateCompatibleBitmap(target, FSize.Width, FSize.Height));
        if (!FBitmap) throw EOutOfResources(L"Out of system resources");
        FOldBitmap = ::SelectObject(FDC.Get(), FBitmap.Get());
    }
    FSavedState = ::SaveDC(FDC.Get());
    ::IntersectClipRect(FDC.Get(), clip.Left, clip.Top, clip.Right, clip.Bottom);
}

TPaintBuffer::~TPaintBuffer() {
    ::RestoreDC(FDC.Get(), FSavedState);
    TKeptBuffer& kept = Kept();
    const bool larger = !kept.DC || FSize.Width * FSize.Height > kept.Size.Width * kept.Size.Height;
    if (larger && FSize.Width * FSize.Height <= MostPixelsKept) {
        FreePaintBuffers();
        kept.DC = std::move(FDC);
        kept.Bitmap = std::move(FBitmap);
        kept.OldBitmap = FOldBitmap;
        kept.Size = FSize;
        return;
    }
    ::SelectObject(FDC.Get(), FOldBitmap);
}

void TPaintBuffer::Show() const {
    ::BitBlt(FTarget, FClip.Left, FClip.Top, FClip.Width(), FClip.Height(), FDC.Get(), FClip.Left, FClip.Top,
             SRCCOPY);
}

void FreePaintBuffers() {
    TKeptBuffer& kept = Kept();
    if (kept.DC) ::SelectObject(kept.DC.Get(), kept.OldBitmap);
    kept.DC.Reset();
    kept.Bitmap.Reset();
    kept.Size = {};
}

}  // namespace vcl
