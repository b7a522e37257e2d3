#include "gallery/SamplePicture.h"

#include <array>

#include "gallery/Drawing.h"
#include "platform/vcl/graphics/Gradients.h"

namespace gallery {

void DrawSamplePicture(TBitmap& bitmap, int width, int height) {
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(width, height);
    TCanvas& canvas = bitmap.GetCanvas();
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

}  // namespace gallery
