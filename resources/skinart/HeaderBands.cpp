#include "resources/skinart/HeaderBands.h"

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"

namespace skinart {

namespace {

constexpr int kRows = kTopBandHeight + kBottomBandHeight;

Paint ColumnBandPaint() {
    return Vertical(
        {{0, Grey(0x84)}, {1, Grey(0x6E)}, {8, palette::kHeader}, {9, palette::kHeader}, {18, Grey(0x38)}});
}

void AddBands(Catalogue& skin, const std::string& prefix, const Paint& paint) {
    Picture column(1, kRows);
    for (int y = 0; y < kRows; ++y)
        column.Set(0, y, paint(0, y));
    skin.Add(prefix + "TOP", column.Crop(0, 0, 1, kTopBandHeight));
    skin.Add(prefix + "BOTTOM", column.Crop(0, kTopBandHeight, 1, kBottomBandHeight));
}

/// An arrow on a column header that points up or down.
Picture DrawSortArrow(bool up) {
    Canvas canvas(6, 6, Solid(palette::kHeader));
    const auto row = [up](int y) { return up ? y : Px(6) - y; };
    const Point tip{Px(3), row(Px(-0.5))};
    const Point left{0, row(Px(5))};
    const Point right{Px(6), row(Px(5))};
    canvas.Fill(up ? ConvexPolygon({tip, right, left}) : ConvexPolygon({tip, left, right}),
                Solid(Grey(0xF4)));
    return canvas.Finish();
}

}  // namespace

Paint ExplorerBandPaint() {
    return Vertical({{0, Grey(0x92)},
                     {1, Grey(0x78)},
                     {8, Grey(0x68)},
                     {9, Grey(0x5C)},
                     {17, Grey(0x66)},
                     {18, Grey(0x4A)}});
}

void AddHeaderBands(Catalogue& skin) {
    AddBands(skin, "EXPLORERBARHEADER", ExplorerBandPaint());
    AddBands(skin, "COLUMNHEADER", ColumnBandPaint());
    skin.Add("COLUMNHEADERSORTASCENDING", DrawSortArrow(true));
    skin.Add("COLUMNHEADERSORTDESCENDING", DrawSortArrow(false));
}

}  // namespace skinart
