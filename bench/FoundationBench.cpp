// The bitmap work under the skin, against the system, plain memory copies and work through canvas pixels.

#include <cstring>
#include <memory>
#include <vector>

#include "bench/Bench.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "skin/masking/NinePartFrame.h"
#include "skin/surfaces/Loaders.h"
#include "skin/utils/BitmapRegion.h"
#include "skin/utils/OneShotDrawing.h"
#include "skin/utils/Tone.h"
#include "skin/utils/TonePixels.h"
#include "skin/utils/TransparentBitmap.h"

namespace {

using namespace qv7skin;
using bench::Aim;
using bench::Runner;

constexpr TColor Magenta = 0x00FF00FF;

/// Any colours, the same in each run.
void FillWithNoise(TBitmap& bitmap) {
    std::uint32_t state = 12345;
    const TBitmapBits bits = bitmap.WriteBits();
    for (int y = 0; y < bits.Height; ++y)
        for (int i = 0; i < bits.Width * bits.BytesPerPixel; ++i) {
            state = state * 1664525 + 1013904223;
            bits.Row(y)[i] = static_cast<std::uint8_t>(state >> 24);
        }
}

/// Every pixel black or magenta by chance.
std::unique_ptr<TBitmap> NoiseMask(int size) {
    auto bitmap = std::make_unique<TBitmap>(size, size, pf24bit);
    std::uint32_t state = 12345;
    const TBitmapBits bits = bitmap->WriteBits();
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            state = state * 1664525 + 1013904223;
            bits.SetColor(x, y, state >> 31 ? Magenta : TColor{clBlack});
        }
    return bitmap;
}

void CopyRows(const TBitmap& from, TBitmap& to) {
    const TConstBitmapBits source = from.ReadBits();
    const TBitmapBits dest = to.WriteBits();
    const auto bytes = static_cast<std::size_t>(source.Width) * source.BytesPerPixel;
    for (int y = 0; y < source.Height; ++y)
        std::memcpy(dest.Row(y), source.Row(y), bytes);
    to.Changed();
}

void Frames(Runner& runner) {
    const TNinePartBitmaps pieces(L"SKINBUTTONDEFAULT");
    for (const TSize size : {TSize(100, 25), TSize(800, 600)}) {
        TBitmap composed(size.Width, size.Height, pf24bit), copy(size.Width, size.Height, pf24bit);
        const std::string name =
            "ComposeNinePartFrame " + std::to_string(size.Width) + " x " + std::to_string(size.Height);
        runner.Row(
            name, "copy of the rows", Aim{.Ratio = 1.5},
            [&] { ComposeNinePartFrame(composed, pieces.Pieces(), clBlack); },
            [&] { CopyRows(composed, copy); });
    }
    runner.Row(
        "TNinePartBitmaps, loading eight pieces", "LoadBitmap of the same", Aim{},
        [] { TNinePartBitmaps bitmaps(L"SKINBUTTONDEFAULT"); },
        [] {
            for (const TFramePosition position : AllFramePositions)
                DeleteObject(
                    LoadBitmapW(QV7SkinModule(), FrameResourceName(L"SKINBUTTONDEFAULT", position).c_str()));
        });
}

/// `TTransparentBitmap::Draw` against the system's transparent copy, to the same surface.
void TransparentRow(Runner& runner, const std::string& name, TPixelFormat source, TCanvas& target) {
    TBitmap picture(218, 20, source);
    FillWithNoise(picture);
    picture.GetCanvas().GetBrush().SetColor(Magenta);
    picture.GetCanvas().FillRect({50, 5, 150, 15});
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(&picture);
    const HDC from = picture.GetSourceDC();
    runner.Row(
        "TTransparentBitmap.Draw 218 x 20, " + name, "TransparentBlt", Aim{.Ratio = 0.1},
        [&] { transparent.Draw(target, 10, 10); },
        [&] { TransparentBlt(target.GetHandle(), 10, 10, 218, 20, from, 0, 0, 218, 20, Magenta); });
}

void TransparentDrawing(Runner& runner) {
    TBitmap ground24(300, 100, pf24bit), ground32(300, 100, pf32bit);
    TransparentRow(runner, "24 bits to a bitmap of 24", pf24bit, ground24.GetCanvas());
    TransparentRow(runner, "24 bits to a bitmap of 32", pf24bit, ground32.GetCanvas());
    TransparentRow(runner, "32 bits to a bitmap of 32", pf32bit, ground32.GetCanvas());

    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 100, nullptr,
                                        nullptr, nullptr, nullptr);
    {
        const TWindowDC dc(window);
        TCanvas screen;
        screen.SetHandle(dc.Get());
        TransparentRow(runner, "24 bits to a window", pf24bit, screen);
        TransparentRow(runner, "32 bits to a window", pf32bit, screen);
        screen.SetHandle(nullptr);
    }
    DestroyWindow(window);
}

/// `DrawTransparentBitmap`, which prepares nothing, against the system's transparent copy.
void OneShotDrawing(Runner& runner) {
    const auto glyph = CreateBmp(L"TABDRAGLEFT");
    TBitmap ground(300, 100, pf24bit);
    TBitmap copy;
    copy.Assign(glyph.get());
    const HDC from = copy.GetSourceDC();
    runner.Row(
        "DrawTransparentBitmap 16 x 16 to a bitmap of 24", "TransparentBlt", Aim{},
        [&] { DrawTransparentBitmap(ground.GetCanvas(), glyph.get(), 10, 10, Magenta); },
        [&] { TransparentBlt(ground.GetCanvas().GetHandle(), 10, 10, 16, 16, from, 0, 0, 16, 16, Magenta); });
}

/// The region of a bitmap, row by row through the pixels of its canvas.
void RegionByPixels(TBitmap& bitmap) {
    TCanvas& canvas = bitmap.GetCanvas();
    const TRegionHandle region(CreateRectRgn(0, 0, 0, 0));
    for (int y = 0; y < bitmap.GetHeight(); ++y)
        for (int x = 0, left = 0; x < bitmap.GetWidth(); ++x) {
            if (canvas.GetPixel(x, y) == Magenta) continue;
            left = x;
            while (x < bitmap.GetWidth() && canvas.GetPixel(x, y) != Magenta)
                ++x;
            const TRegionHandle run(CreateRectRgn(left, y, x, y + 1));
            CombineRgn(region.Get(), region.Get(), run.Get(), RGN_OR);
        }
}

void Regions(Runner& runner) {
    TBitmap frame(256, 256, pf24bit);
    ComposeNinePartFrame(frame, TNinePartBitmaps(L"MASK").Pieces(), Magenta);
    runner.Row(
        "BitmapToRegion, rounded frame 256 x 256", "through canvas pixels", Aim{.Ratio = 1.0 / 50},
        [&] { (void)BitmapToRegion(&frame, false); }, [&] { RegionByPixels(frame); });

    for (const int size : {256, 512}) {
        const auto small = NoiseMask(size), large = NoiseMask(2 * size);
        const std::string side = std::to_string(2 * size);
        Aim aim{.Ratio = 5};
        if (size == 512) aim.Nanoseconds = 0.1e9;
        runner.Row(
            "BitmapToRegion, noise " + side + " x " + side, "a quarter of the pixels", aim,
            [&] { (void)BitmapToRegion(large.get(), false); },
            [&] { (void)BitmapToRegion(small.get(), false); });
    }
}

/// The strengths are those that leave noise noise, however often they are applied: on runs of equal pixels
/// the way through the canvas would save most of its work.
void Tones(Runner& runner) {
    for (const TPixelFormat format : {pf24bit, pf32bit}) {
        TBitmap bitmap(500, 500, format), reference(500, 500, format);
        FillWithNoise(bitmap);
        FillWithNoise(reference);
        const std::string bits = format == pf24bit ? "24 bits" : "32 bits";
        runner.Row(
            "GrayBitmap 500 x 500, " + bits, "through canvas pixels", Aim{.Ratio = 0.01},
            [&] { GrayBitmap(&bitmap, 100); }, [&] { GrayPixels(reference, 100, std::nullopt); });
        FillWithNoise(bitmap);
        FillWithNoise(reference);
        runner.Row(
            "DimBitmap 500 x 500, " + bits, "through canvas pixels", Aim{.Ratio = 0.01},
            [&] { DimBitmap(&bitmap, 1); }, [&] { DimPixels(reference, 1); });
    }
}

const bench::Suite suite("foundation", [](Runner& runner) {
    Frames(runner);
    TransparentDrawing(runner);
    OneShotDrawing(runner);
    Regions(runner);
    Tones(runner);
});

}  // namespace
