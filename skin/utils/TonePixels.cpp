#include "skin/utils/TonePixels.h"

#include "platform/vcl/core/WindowsApi.h"

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/ToneBits.h"

namespace qv7skin {
namespace {

/// Remembers the last colour and what became of it, so that a run of equal pixels is worked out once.
template <class Tone>
class TRememberingTone {
public:
    TRememberingTone(HDC dc, TColor firstSource, TColor firstResult, Tone tone)
        : FDC(dc), FSource(firstSource), FResult(firstResult), FTone(std::move(tone)) {}
    TColor operator()(TColor color) {
        if (color != FSource) {
            FSource = color;
            FResult = GetNearestColor(FDC, FTone(color));
        }
        return FResult;
    }

private:
    HDC FDC;
    TColor FSource;
    TColor FResult;
    Tone FTone;
};

}  // namespace

void DimPixels(TBitmap& bitmap, int percent) {
    const auto table = LighteningTable(percent);
    TCanvas& canvas = bitmap.GetCanvas();
    TRememberingTone dim(canvas.GetHandle(), clInvalid, 0, [&](TColor c) {
        return RGBToColor(table[RedOf(c)], table[GreenOf(c)], table[BlueOf(c)]);
    });
    for (int y = 0; y < bitmap.GetHeight(); ++y)
        for (int x = 0; x < bitmap.GetWidth(); ++x)
            canvas.SetPixel(x, y, dim(canvas.GetPixel(x, y)));
}

void GrayPixels(TBitmap& bitmap, int percent, std::optional<TColor> transparent) {
    const auto grey = GreyingTable(percent);
    TCanvas& canvas = bitmap.GetCanvas();
    TRememberingTone gray(canvas.GetHandle(), 0, 0, [&](TColor c) {
        const auto g = grey[RedOf(c) + GreenOf(c) + BlueOf(c)];
        return RGBToColor(g, g, g);
    });
    // One beyond each edge: what is read there is no colour, but it is remembered like one.
    for (int y = 0; y <= bitmap.GetHeight(); ++y)
        for (int x = 0; x <= bitmap.GetWidth(); ++x) {
            const TColor color = canvas.GetPixel(x, y);
            if (color != transparent) canvas.SetPixel(x, y, gray(color));
        }
}

void ReplacePixels(TBitmap& bitmap, TColor oldColor, TColor newColor) {
    TCanvas& canvas = bitmap.GetCanvas();
    for (int x = 0; x < bitmap.GetWidth(); ++x)
        for (int y = 0; y < bitmap.GetHeight(); ++y)
            if (canvas.GetPixel(x, y) == oldColor) canvas.SetPixel(x, y, newColor);
}

}  // namespace qv7skin
