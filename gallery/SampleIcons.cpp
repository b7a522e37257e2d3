#include "gallery/SampleIcons.h"

#include <array>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"

namespace gallery {
namespace {

constexpr TColor Ground = clFuchsia;  // left out
constexpr TColor Line = 0x00784E26;
constexpr TColor Accent = 0x00D78112;
constexpr TColor Light = 0x00F6E3CE;

/// Draws in sixteenths of the picture's side.
class TSketch {
public:
    TSketch(TCanvas& canvas, int side) : FCanvas(canvas), FSide(side) { FCanvas.GetPen().SetColor(Line); }
    void Box(int left, int top, int right, int bottom, TColor inside) {
        FCanvas.GetBrush().SetColor(inside);
        FCanvas.Rectangle(At(left), At(top), At(right), At(bottom));
    }
    void Round(int left, int top, int right, int bottom, TColor inside) {
        FCanvas.GetBrush().SetColor(inside);
        FCanvas.Ellipse(At(left), At(top), At(right), At(bottom));
    }
    template <std::size_t N>
    void Shape(const TPoint (&corners)[N], TColor inside) {
        std::array<TPoint, N> points;
        for (std::size_t i = 0; i < N; ++i)
            points[i] = {At(corners[i].X), At(corners[i].Y)};
        FCanvas.GetBrush().SetColor(inside);
        FCanvas.Polygon(points);
    }
    void Stroke(int left, int top, int right, int bottom) {
        FCanvas.MoveTo(At(left), At(top));
        FCanvas.LineTo(At(right), At(bottom));
    }

private:
    [[nodiscard]] int At(int sixteenths) const { return sixteenths * FSide / 16; }
    TCanvas& FCanvas;
    int FSide;
};

void Sketch(TSketch sketch, int icon) {
    switch (icon) {
        case siFolder:
            sketch.Shape({{1, 13}, {1, 3}, {6, 3}, {8, 5}, {14, 5}, {14, 13}}, 0x0077CDF5);
            sketch.Box(1, 7, 15, 14, 0x009BDDFA);
            break;
        case siDocument:
            sketch.Shape({{3, 1}, {10, 1}, {13, 4}, {13, 14}, {3, 14}}, clWhite);
            for (int y = 6; y <= 12; y += 2)
                sketch.Stroke(5, y, 11, y);
            break;
        case siPicture:
            sketch.Box(1, 2, 15, 14, Light);
            sketch.Round(9, 4, 13, 8, 0x0060D8FF);
            sketch.Shape({{2, 12}, {6, 6}, {9, 10}, {11, 9}, {13, 12}}, 0x0058A860);
            break;
        case siPrint:
            sketch.Box(4, 1, 12, 7, clWhite);
            sketch.Box(1, 6, 15, 12, 0x00D6CFC8);
            sketch.Box(4, 10, 12, 15, clWhite);
            break;
        case siMail:
            sketch.Box(1, 3, 15, 13, clWhite);
            sketch.Shape({{1, 3}, {14, 3}, {8, 9}, {7, 9}}, Light);
            break;
        case siTrash:
            sketch.Box(4, 4, 12, 15, 0x00D6CFC8);
            sketch.Box(2, 2, 14, 5, 0x00E6E0DA);
            sketch.Stroke(6, 7, 6, 13);
            sketch.Stroke(9, 7, 9, 13);
            break;
        default:
            sketch.Round(1, 1, 15, 15, Accent);
            sketch.Box(7, 7, 9, 12, clWhite);
            sketch.Box(7, 4, 9, 6, clWhite);
            break;
    }
}

}  // namespace

void AddSampleIcons(TCustomImageList& icons) {
    for (int icon = 0; icon < siSampleIconCount; ++icon) {
        TBitmap picture(icons.GetWidth(), icons.GetHeight(), pf24bit);
        TCanvas& canvas = picture.GetCanvas();
        canvas.GetBrush().SetColor(Ground);
        canvas.FillRect({0, 0, picture.GetWidth(), picture.GetHeight()});
        Sketch(TSketch(canvas, picture.GetHeight()), icon);
        icons.AddMasked(&picture, Ground);
    }
}

}  // namespace gallery
