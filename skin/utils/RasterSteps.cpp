#include "skin/utils/RasterSteps.h"

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Handles.h"
#include "skin/utils/Assertions.h"

namespace qv7skin {
namespace {

/// A memory context with a bitmap of its own in it. Contexts that can't be made make the first step that
/// needs them fail.
class TSurface {
public:
    TSurface(HDC like, HBITMAP bitmap)
        : FDC(CreateCompatibleDC(like)), FBitmap(bitmap), FSelected(FDC.Get(), bitmap) {}
    [[nodiscard]] HDC Get() const { return FDC.Get(); }

private:
    TMemoryDC FDC;
    TBitmapHandle FBitmap;
    TSelectObject FSelected;
};

TSize SizeOf(HBITMAP bitmap, HDC dc) {
    BITMAP info{};
    GetObjectW(bitmap, sizeof info, &info);
    POINT size{info.bmWidth, info.bmHeight};
    DPtoLP(dc, &size, 1);
    return {static_cast<int>(size.x), static_cast<int>(size.y)};
}

}  // namespace

void DrawTransparentSteps(HDC canvas, HBITMAP bitmap, int x, int y, int width, int height,
                          COLORREF transparent, TBlitFunction blit) {
    const TMemoryDC sourceDC(CreateCompatibleDC(canvas));
    const TSelectObject selected(sourceDC.Get(), bitmap);
    const HDC source = sourceDC.Get();
    const TSize size = SizeOf(bitmap, source);
    const int w = size.Width, h = size.Height;

    const TSurface backSurface(canvas, CreateBitmap(w, h, 1, 1, nullptr));
    const TSurface objectSurface(canvas, CreateBitmap(w, h, 1, 1, nullptr));
    const TSurface memorySurface(canvas, CreateCompatibleBitmap(canvas, w, h));
    const TSurface saveSurface(canvas, CreateCompatibleBitmap(canvas, w, h));
    const HDC back = backSurface.Get(), object = objectSurface.Get();
    const HDC memory = memorySurface.Get(), save = saveSurface.Get();
    SetMapMode(source, GetMapMode(canvas));

    const auto step = [&](HDC to, HDC from, DWORD operation, const wchar_t* message, int line) {
        AssertInGraphicsUtils(blit(to, 0, 0, w, h, from, 0, 0, operation) != FALSE, message, line);
    };
    step(save, source, SRCCOPY, L"BitBlt: Save the bitmap", 319);

    // Copied to one bit per pixel, the background colour becomes white and everything else black.
    const COLORREF background = SetBkColor(source, transparent);
    step(object, source, SRCCOPY, L"BitBlt: Create object mask", 328);
    SetBkColor(source, background);
    step(back, object, NOTSRCCOPY, L"BitBlt: Create inverse object mask", 335);

    AssertInGraphicsUtils(blit(memory, 0, 0, w, h, canvas, x, y, SRCCOPY) != FALSE,
                          L"BitBlt: Copy background of main dc", 339);
    step(memory, object, SRCAND, L"BitBlt: Copy background of main dc", 343);
    step(source, back, SRCAND, L"BitBlt: Mask out transparent pixels", 347);
    step(memory, source, SRCPAINT, L"BitBlt: XOR with background", 351);
    AssertInGraphicsUtils(
        blit(canvas, x, y, width ? width : w, height ? height : h, memory, 0, 0, SRCCOPY) != FALSE,
        L"BitBlt: Copy destination to screen", 360);
    step(source, save, SRCCOPY, L"BitBlt: Restore original bitmap", 364);
}

}  // namespace qv7skin
