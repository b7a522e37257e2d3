#include "gallery/SamplePicture.h"

#include <array>

#include "gallery/Drawing.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Gradients.h"

namespace gallery {
namespace {

/// How many times finer the picture is drawn than it is shown, so that slanted edges are smooth.
constexpr int Fineness = 4;

void DrawScene(TCanvas& canvas, int width, int height) {
    const int horizon = height * 6 / 10;
    FillGradient(canvas, {0, 0, width, horizon}, 0x00D78112, 0x00FFF0DC, gdVertical);
    FillGradient(canvas, {0, horizon, width, height}, 0x0040A060, 0x00206030, gdVertical);

    canvas.GetPen().SetStyle(psClear);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(0x0040D0FF);
    const int sun = height / 4;
    canvas.Ellipse(width - sun * 2, sun / 2, width - sun, sun / 2 + sun);

    canvas.GetBrush().SetColor(0x00606060);
    canvas.Polygon(std::array{TPoint{width / 10, horizon}, TPoint{width * 4 / 10, height / 5},
                              TPoint{width * 7 / 10, horizon}});
    canvas.GetBrush().SetColor(clWhite);
    canvas.Polygon(std::array{TPoint{width * 32 / 100, height * 30 / 100}, TPoint{width * 4 / 10, height / 5},
                              TPoint{width * 48 / 100, height * 30 / 100}});
    canvas.GetBrush().SetColor(clBlack);
    canvas.Polygon(std::array{TPoint{width * 72 / 100, height * 9 / 10},
                              TPoint{width * 8 / 10, height * 4 / 10},
                              TPoint{width * 88 / 100, height * 9 / 10}});
    canvas.GetPen().SetStyle(psSolid);
}

/// Each byte of the picture is the mean of those that are drawn in its place.
void Shrink(const TBitmap& fine, TBitmap& bitmap) {
    const TConstBitmapBits from = fine.ReadBits();
    const TBitmapBits to = bitmap.WriteBits();
    for (int y = 0; y < bitmap.GetHeight(); ++y) {
        std::uint8_t* row = to.Row(y);
        for (int i = 0; i < 3 * bitmap.GetWidth(); ++i) {
            const int first = i / 3 * 3 * Fineness + i % 3;
            int sum = 0;
            for (int part = 0; part < Fineness * Fineness; ++part)
                sum += from.Row(y * Fineness + part / Fineness)[first + part % Fineness * 3];
            row[i] = static_cast<std::uint8_t>(sum / (Fineness * Fineness));
        }
    }
}

}  // namespace

void DrawSamplePicture(TBitmap& bitmap, int width, int height) {
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(width, height);
    TBitmap fine(width * Fineness, height * Fineness, pf24bit);
    DrawScene(fine.GetCanvas(), fine.GetWidth(), fine.GetHeight());
    Shrink(fine, bitmap);
    bitmap.Changed();
}

}  // namespace gallery
