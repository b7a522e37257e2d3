#include "gallery/ToolIcons.h"

#include <array>

#include "gallery/Drawing.h"

namespace gallery {
namespace {

constexpr int Extent = 16;
constexpr TColor Ink = 0x00555555;
constexpr TColor Blue = 0x00D78112;
constexpr TColor LightBlue = 0x00F6D9B4;
constexpr TColor Paper = clWhite;

void SetTools(TCanvas& canvas, TColor line, TColor inside) {
    canvas.GetPen().SetColor(line);
    canvas.GetBrush().SetColor(inside);
}

void Line(TCanvas& canvas, TPoint from, TPoint to) {
    canvas.MoveTo(from.X, from.Y);
    canvas.LineTo(to.X, to.Y);
}

void Lines(TCanvas& canvas, int left, int right, std::initializer_list<int> rows) {
    for (const int y : rows)
        Line(canvas, {left, y}, {right, y});
}

void DrawSheet(TCanvas& canvas) {
    SetTools(canvas, Ink, Paper);
    constexpr std::array outline{TPoint(3, 1), TPoint(9, 1), TPoint(12, 4), TPoint(12, 14), TPoint(3, 14)};
    canvas.Polygon(outline);
    canvas.Polyline(std::array{TPoint(9, 1), TPoint(9, 4), TPoint(13, 4)});
}

void DrawNew(TCanvas& canvas) {
    DrawSheet(canvas);
    Fill(canvas, {7, 6, 9, 12}, Blue);
    Fill(canvas, {5, 8, 11, 10}, Blue);
}

void DrawOpen(TCanvas& canvas) {
    SetTools(canvas, Ink, LightBlue);
    constexpr std::array back{TPoint(1, 3),  TPoint(6, 3),   TPoint(8, 5),
                              TPoint(13, 5), TPoint(13, 13), TPoint(1, 13)};
    canvas.Polygon(back);
    SetTools(canvas, Ink, Blue);
    constexpr std::array front{TPoint(4, 7), TPoint(15, 7), TPoint(12, 13), TPoint(1, 13)};
    canvas.Polygon(front);
}

void DrawSave(TCanvas& canvas) {
    SetTools(canvas, Ink, Blue);
    canvas.Rectangle(2, 2, 14, 14);
    Fill(canvas, {5, 3, 11, 7}, Paper);
    Fill(canvas, {4, 9, 12, 13}, Paper);
    Fill(canvas, {8, 4, 10, 6}, Ink);
}

void DrawPrint(TCanvas& canvas) {
    SetTools(canvas, Ink, Paper);
    canvas.Rectangle(4, 1, 12, 7);
    SetTools(canvas, Ink, LightBlue);
    canvas.Rectangle(1, 5, 15, 12);
    SetTools(canvas, Ink, Paper);
    canvas.Rectangle(4, 9, 12, 15);
    Lines(canvas, 6, 10, {11, 13});
    Fill(canvas, {12, 7, 14, 8}, Blue);
}

void DrawSearch(TCanvas& canvas) {
    canvas.GetPen().SetWidth(2);
    SetTools(canvas, Ink, LightBlue);
    canvas.Ellipse(2, 2, 11, 11);
    canvas.GetPen().SetColor(Blue);
    Line(canvas, {10, 10}, {14, 14});
    canvas.GetPen().SetWidth(1);
}

void DrawMail(TCanvas& canvas) {
    SetTools(canvas, Ink, Paper);
    canvas.Rectangle(1, 3, 15, 13);
    canvas.GetPen().SetColor(Blue);
    canvas.Polyline(std::array{TPoint(2, 4), TPoint(7, 9), TPoint(8, 9), TPoint(14, 3)});
}

void DrawChart(TCanvas& canvas) {
    canvas.GetPen().SetColor(Ink);
    canvas.Polyline(std::array{TPoint(2, 2), TPoint(2, 13), TPoint(15, 13)});
    Fill(canvas, {4, 8, 6, 13}, LightBlue);
    Fill(canvas, {7, 5, 9, 13}, Blue);
    Fill(canvas, {10, 7, 12, 13}, LightBlue);
    Fill(canvas, {13, 3, 15, 13}, Blue);
}

void DrawCalendar(TCanvas& canvas) {
    SetTools(canvas, Ink, Paper);
    canvas.Rectangle(2, 2, 14, 14);
    Fill(canvas, {3, 3, 13, 6}, Blue);
    for (const int x : {4, 7, 10})
        for (const int y : {8, 11})
            Fill(canvas, {x, y, x + 2, y + 1}, Ink);
}

void DrawNotePad(TCanvas& canvas) {
    DrawSheet(canvas);
    canvas.GetPen().SetColor(Blue);
    Lines(canvas, 5, 11, {7, 9, 11});
}

void DrawDelete(TCanvas& canvas) {
    SetTools(canvas, Ink, Paper);
    canvas.Rectangle(4, 4, 12, 15);
    Fill(canvas, {2, 3, 14, 5}, Ink);
    Fill(canvas, {6, 1, 10, 3}, Ink);
    for (const int x : {6, 8, 10})
        Line(canvas, {x - 1, 7}, {x - 1, 13});
}

}  // namespace

std::unique_ptr<TBitmap> CreateToolIcon(TToolIcon icon) {
    static constexpr void (*draw[])(TCanvas&) = {DrawNew,  DrawOpen,  DrawSave,     DrawPrint,   DrawSearch,
                                                 DrawMail, DrawChart, DrawCalendar, DrawNotePad, DrawDelete};
    auto bitmap = std::make_unique<TBitmap>(Extent, Extent, pf24bit);
    Fill(bitmap->GetCanvas(), {0, 0, Extent, Extent}, 0x00FF00FF);
    draw[static_cast<std::size_t>(icon)](bitmap->GetCanvas());
    return bitmap;
}

}  // namespace gallery
