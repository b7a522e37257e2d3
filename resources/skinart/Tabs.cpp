#include <string>
#include <utility>

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"

namespace skinart {

namespace {

// The whole frame around one interior pixel.
constexpr int kWidth = 21;
constexpr int kHeight = 21;
constexpr int kRadius = Px(5);

// Every state of a tab has the same silhouette, because a tab keeps its first region until its size changes.
// Its last column stays free, so that the strip shows between two tabs.
constexpr Box kSilhouette{0, 0, Px(kWidth - 1), Px(kHeight)};

constexpr FrameSizes kSizes{.TopLeft = {10, 11},
                            .TopRight = {10, 11},
                            .BottomLeft = {10, 9},
                            .BottomRight = {10, 9},
                            .TopHeight = 11,
                            .BottomHeight = 9,
                            .LeftWidth = 5,
                            .RightWidth = 5};

constexpr FrameSizes WithTopLeftWidth(FrameSizes sizes, int width) {
    sizes.TopLeft.Width = width;
    return sizes;
}

constexpr Rgb kRestingBorder{0xB0, 0xB3, 0xBC};
constexpr Rgb kRestingFoot{0xC6, 0xC8, 0xD0};

Shape Tab(Box box, int radius) {
    return RoundedBox(box, {radius, 0});
}

/// The silhouette lowered by `rows` pixel rows; the rows above show the strip.
Box Lowered(int rows) {
    Box box = kSilhouette;
    box.Top += Px(rows);
    return box;
}

/// The part of `box` inside a border of one pixel at the top and on both sides.
Box InsideBorder(Box box) {
    return {box.Left + Px(1), box.Top + Px(1), box.Right - Px(1), box.Bottom};
}

/// A canvas whose silhouette is already drawn in the colour of the strip.
Canvas TabCanvas() {
    Canvas canvas(kWidth, kHeight, Solid(palette::kPage));
    canvas.Fill(Tab(kSilhouette, kRadius), Solid(palette::kPage));
    return canvas;
}

void FillBordered(Canvas& canvas, Box box, const Paint& border, const Paint& face) {
    canvas.Fill(Tab(box, kRadius), border);
    canvas.Fill(Tab(InsideBorder(box), kRadius - Px(1)), face);
}

const Paint& RestingFace() {
    static const Paint face = Vertical({{3, {0xFC, 0xFC, 0xFD}},
                                        {4, {0xF0, 0xF1, 0xF4}},
                                        {11, palette::kTab},
                                        {17, palette::kTab},
                                        {20, kRestingFoot}});
    return face;
}

Picture DrawResting() {
    Canvas canvas = TabCanvas();
    FillBordered(canvas, Lowered(2), Solid(kRestingBorder), RestingFace());
    canvas.Row(kHeight - 1, 0, kWidth - 1, kRestingBorder);
    return canvas.Finish();
}

Picture DrawHovered() {
    Canvas canvas = TabCanvas();
    const Rgb border = Mix(palette::kAccent, palette::kBlack, 1, 5);
    FillBordered(canvas, Lowered(1), Vertical({{1, border}, {11, {0x7C, 0x9C, 0xBC}}}),
                 Solid(Mix(palette::kAccent, palette::kWhite, 2, 5)));
    canvas.Fill(Tab(InsideBorder(Lowered(2)), kRadius - Px(1)), RestingFace());
    canvas.Row(kHeight - 1, 0, kWidth - 1, kRestingBorder);
    return canvas.Finish();
}

Picture DrawSelected() {
    Canvas canvas = TabCanvas();
    FillBordered(canvas, kSilhouette, Vertical({{0, Grey(0x2A)}, {11, palette::kBlack}}),
                 VerticalEase(11, palette::kBlack, 1, Grey(0x6C)));
    return canvas.Finish();
}

Picture DrawWhiteResting() {
    Canvas canvas = TabCanvas();
    FillBordered(canvas, Lowered(2), Solid({0xC8, 0xCB, 0xD3}),
                 Vertical({{11, palette::kWhite}, {15, palette::kWhite}, {20, {0xE2, 0xE5, 0xEB}}}));
    canvas.Row(kHeight - 1, 0, kWidth - 1, palette::kFrameLine);
    return canvas.Finish();
}

Picture DrawWhiteSelected() {
    Canvas canvas = TabCanvas();
    const Rgb cap = Mix(palette::kAccent, palette::kWhite, 1, 4);
    FillBordered(canvas, kSilhouette,
                 Vertical({{0, palette::kAccent}, {2, palette::kAccent}, {4, palette::kFrameLine}}),
                 Vertical({{2, cap}, {3, palette::kWhite}}));
    return canvas.Finish();
}

/// The mark of a busy tab: three lamps, one of them lit. It lies on tabs of both looks, so it has no edges
/// that are blended with one of them.
Picture DrawLamps(int lit, Rgb dark, Rgb bright) {
    constexpr int kLampSize = 3;
    constexpr int kLampStep = 5;
    Picture lamps(5, 15);
    for (int lamp = 0; lamp < 3; ++lamp)
        lamps.Draw(Picture(kLampSize, kLampSize, lamp == lit ? bright : dark), 1, 1 + lamp * kLampStep);
    return lamps;
}

void AddLamps(Catalogue& skin, const std::string& state, Rgb dark, Rgb bright) {
    for (int frame = 0; frame < 3; ++frame)
        skin.Add("TABANIMATION" + std::to_string(frame) + state, DrawLamps(frame, dark, bright));
}

}  // namespace

void AddTabs(Catalogue& skin) {
    const Picture resting = DrawResting();
    const Picture selected = DrawSelected();
    skin.AddFrame("TABDEFAULT", CutFrame(resting, WithTopLeftWidth(kSizes, 7), palette::kTab));
    skin.AddFrame("TABHOVERED", CutFrame(DrawHovered(), kSizes, palette::kTab));
    skin.AddFrame("TABPRESSED", CutFrame(selected, kSizes, palette::kBlack));
    skin.AddFrame("WHITETABDEFAULT", CutFrame(DrawWhiteResting(), kSizes, palette::kWhite));
    skin.AddFrame("WHITETABPRESSED", CutFrame(DrawWhiteSelected(), kSizes, palette::kWhite));
    AddLamps(skin, "DEFAULT", {0xB4, 0xB7, 0xC0}, palette::kAccent);
    AddLamps(skin, "PRESSED", Grey(0x70), {0x3E, 0xB0, 0xF8});
}

}  // namespace skinart
