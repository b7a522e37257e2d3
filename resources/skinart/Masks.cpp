#include <string>

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"

namespace skinart {

namespace {

constexpr FrameSizes kSizes{.TopLeft = {15, 12},
                            .TopRight = {15, 12},
                            .BottomLeft = {15, 12},
                            .BottomRight = {15, 12},
                            .TopHeight = 3,
                            .BottomHeight = 2,
                            .LeftWidth = 4,
                            .RightWidth = 2};

constexpr int kWidth = 31;
constexpr int kHeight = 25;

// The frame line; a skinned control's left and top edge lie on it, the soft edge outside reaches beyond the
// control.
constexpr Box kLine{Px(3), Px(2), Px(kWidth - 1), Px(kHeight - 1)};
constexpr int kRadius = Px(6);

Shape Around(Box box, int radius) {
    return RoundedBox(box, {radius, radius});
}

/// A field sunk into a page: the edge above lies in shade, the edge below catches the light.
Picture DrawMask(Rgb page, Rgb light) {
    const Rgb shade{0x6A, 0x70, 0x7C};
    Canvas canvas(kWidth, kHeight, Solid(page));
    canvas.FillAll(Solid(page));
    canvas.Fill(Around({kLine.Left - Px(2), kLine.Top - Px(2), kLine.Right, kLine.Bottom}, kRadius + Px(2)),
                Solid(shade), 18);
    canvas.Fill(Around({kLine.Left - Px(1), kLine.Top - Px(1), kLine.Right, kLine.Bottom}, kRadius + Px(1)),
                Solid(shade), 42);
    canvas.Fill(Around(kLine.Moved(0, Px(1)), kRadius), Solid(light));
    canvas.Fill(Around(kLine, kRadius),
                Vertical({{2, {0x98, 0x9C, 0xA6}}, {12, {0xAE, 0xB2, 0xBA}}, {23, {0xBA, 0xBE, 0xC6}}}));
    canvas.Fill(Around(kLine.Inset(Px(1)), kRadius - Px(1)), Solid(palette::kWhite));
    canvas.Punch(Around(kLine.Inset(Px(1)), kRadius - Px(1)));
    return canvas.Finish();
}

}  // namespace

void AddMasks(Catalogue& skin) {
    const auto add = [&](const std::string& name, Rgb page, Rgb light) {
        skin.AddFrame(name, CutFrame(DrawMask(page, light), kSizes, palette::kTransparent));
    };
    add("MASK", palette::kPage, {0xFA, 0xFB, 0xFD});
    add("MASKWHITE", palette::kWhite, palette::kWhite);
}

}  // namespace skinart
