#include <string>

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"

namespace skinart {

namespace {

constexpr FrameSizes kSizes{.TopLeft = {13, 12},
                            .TopRight = {13, 12},
                            .BottomLeft = {13, 12},
                            .BottomRight = {13, 12},
                            .TopHeight = 12,
                            .BottomHeight = 12,
                            .LeftWidth = 7,
                            .RightWidth = 7};

// The whole frame around one interior pixel row: the height of a standard button.
constexpr int kWidth = 27;
constexpr int kHeight = 25;
constexpr int kMiddle = 12;
constexpr int kRadius = Px(5);

/// What changes from state to state. The face runs from `Top` to `Interior` in the middle and on to `Bottom`;
/// a rim of one pixel runs around it just inside the border.
struct Look {
    const char* State;
    Rgb Interior;
    Rgb Top;
    Rgb Bottom;
    Rgb RimTop;
    Rgb RimSide;
    Rgb RimBottom;
    Rgb BorderTop;
    Rgb BorderSide;
    Rgb BorderBottom;
};

constexpr Look kLooks[] = {
    {.State = "DEFAULT",
     .Interior = palette::kBlack,
     .Top = Grey(0x66),
     .Bottom = Grey(0x30),
     .RimTop = Grey(0x94),
     .RimSide = Grey(0x24),
     .RimBottom = Grey(0x44),
     .BorderTop = Grey(0x2A),
     .BorderSide = Grey(0x00),
     .BorderBottom = Grey(0x00)},
    {.State = "HOVERED",
     .Interior = palette::kBlack,
     .Top = {0x62, 0x70, 0x7E},
     .Bottom = {0x0F, 0x6C, 0xB4},
     .RimTop = {0x96, 0xC4, 0xEA},
     .RimSide = {0x0C, 0x48, 0x78},
     .RimBottom = {0x3E, 0xB0, 0xF8},
     .BorderTop = {0x0E, 0x3C, 0x62},
     .BorderSide = {0x06, 0x22, 0x3C},
     .BorderBottom = {0x06, 0x30, 0x52}},
    {.State = "PRESSED",
     .Interior = palette::kPressed,
     .Top = {0x18, 0x4A, 0x9C},
     .Bottom = {0x34, 0x80, 0xE4},
     .RimTop = {0x12, 0x38, 0x7A},
     .RimSide = {0x1B, 0x54, 0xAE},
     .RimBottom = {0x5C, 0xA4, 0xF4},
     .BorderTop = {0x0A, 0x22, 0x50},
     .BorderSide = {0x0E, 0x30, 0x6A},
     .BorderBottom = {0x12, 0x3E, 0x86}},
    {.State = "DISABLED",
     .Interior = palette::kDisabled,
     .Top = Grey(0x9A),
     .Bottom = Grey(0x90),
     .RimTop = Grey(0xAC),
     .RimSide = Grey(0x9A),
     .RimBottom = Grey(0x9C),
     .BorderTop = Grey(0x86),
     .BorderSide = Grey(0x82),
     .BorderBottom = Grey(0x7E)},
};

/// `upper` above the middle row, `lower` from it on.
Paint Halves(Paint upper, Paint lower) {
    return [=](int x, int y) { return y < kMiddle ? upper(x, y) : lower(x, y); };
}

Picture DrawButton(const Look& look) {
    Canvas canvas(kWidth, kHeight, Solid(palette::kPage));
    const Box outline{0, 0, Px(kWidth), Px(kHeight)};
    const auto ring = [&](int inset) {
        return RoundedBox(outline.Inset(inset), {kRadius - inset, kRadius - inset});
    };
    canvas.Fill(ring(0),
                Vertical({{0, look.BorderTop}, {kMiddle, look.BorderSide}, {24, look.BorderBottom}}));
    canvas.Fill(ring(Px(1)), Halves(VerticalEase(kMiddle - 2, look.RimSide, 1, look.RimTop),
                                    VerticalEase(kMiddle + 2, look.RimSide, 23, look.RimBottom)));
    canvas.Fill(ring(Px(2)), Halves(VerticalEase(kMiddle, look.Interior, 2, look.Top),
                                    VerticalEase(kMiddle, look.Interior, 22, look.Bottom)));
    return canvas.Finish();
}

}  // namespace

void AddButtons(Catalogue& skin) {
    for (const Look& look : kLooks) {
        skin.AddFrame(std::string("SKINBUTTON") + look.State,
                      CutFrame(DrawButton(look), kSizes, look.Interior));
    }
}

}  // namespace skinart
