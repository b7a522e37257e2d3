#include <string>

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"
#include "resources/skinart/Glyph.h"

namespace skinart {

namespace {

constexpr int kHeight = 34;

// A button keeps this distance from the upper and lower edge of the bar.
constexpr int kButtonTop = 2;
constexpr int kButtonBottom = 31;

Paint BarPaint() {
    const Paint face = Vertical({{1, {0xF8, 0xF9, 0xFB}}, {16, palette::kPage}, {32, {0xD2, 0xD6, 0xDF}}});
    return [face](int x, int y) {
        if (y == 0) return palette::kWhite;
        if (y == kHeight - 1) return Rgb{0xAE, 0xB3, 0xBF};
        return face(x, y);
    };
}

struct Look {
    const char* State;
    Rgb Border;
    Rgb RimTop;
    Rgb RimSide;
    Rgb Top;
    Rgb Bottom;
};

constexpr Look kLooks[] = {
    {.State = "HOVERED",
     .Border = {0x7C, 0xB2, 0xDE},
     .RimTop = {0xFD, 0xFE, 0xFF},
     .RimSide = {0xF0, 0xF7, 0xFD},
     .Top = {0xF2, 0xF8, 0xFD},
     .Bottom = {0xC2, 0xE0, 0xF6}},
    {.State = "PRESSED",
     .Border = {0x2C, 0x7C, 0xBC},
     .RimTop = {0x78, 0xB4, 0xE0},
     .RimSide = {0x92, 0xC4, 0xEA},
     .Top = {0x9A, 0xCA, 0xEE},
     .Bottom = {0xC4, 0xE2, 0xF8}},
};

Picture DrawButton(const Look& look) {
    constexpr int kWidth = 5;
    Canvas canvas(kWidth, kHeight, BarPaint());
    canvas.FillAll(BarPaint());
    const Box outline{0, Px(kButtonTop), Px(kWidth), Px(kButtonBottom + 1)};
    const auto ring = [&](int inset, int radius) {
        return RoundedBox(outline.Inset(inset), {radius, radius});
    };
    canvas.Fill(ring(0, Px(2)), Solid(look.Border));
    canvas.Fill(ring(Px(1), Px(1)), Vertical({{3, look.RimTop}, {4, look.RimSide}}));
    const Paint face = Vertical({{4, look.Top}, {kButtonBottom - 1, look.Bottom}});
    canvas.Fill(RoundedBox({Px(1), Px(kButtonTop + 2), Px(kWidth - 1), Px(kButtonBottom)}, {0, Px(1)}), face);
    return canvas.Finish();
}

/// A line between the chevron and the bar that fades out towards both edges of the bar.
Picture DrawSeparator() {
    Canvas canvas(1, kHeight, BarPaint());
    canvas.FillAll(BarPaint());
    for (int y = 4; y < kHeight - 4; ++y) {
        const int fromEnd = y - 4 < kHeight - 5 - y ? y - 4 : kHeight - 5 - y;
        const int strength = fromEnd >= 8 ? 8 : fromEnd;
        canvas.Row(y, 0, 1, Mix(BarPaint()(0, y), {0x96, 0x9C, 0xA8}, strength, 8));
    }
    return canvas.Finish();
}

Picture DrawChevron() {
    return FromPattern({"#..#......",  //
                        "##.##.....",  //
                        ".##.##....",  //
                        "##.##.....",  //
                        "#..#......",  //
                        "..........",  //
                        "...#######",  //
                        "....#####.",  //
                        ".....###..",  //
                        "......#..."},
                       {{'#', palette::kHeader}});
}

Picture DrawWideChevron() {
    return FromPattern({"..................",  //
                        "##..##............",  //
                        ".##..##...........",  //
                        "..##..##..........",  //
                        "...##..##.########",  //
                        "...##..##..######.",  //
                        "..##..##....####..",  //
                        ".##..##......##...",  //
                        "##..##............",  //
                        ".................."},
                       {{'#', palette::kHeader}});
}

}  // namespace

void AddToolbar(Catalogue& skin) {
    Picture bar(1, kHeight);
    for (int y = 0; y < kHeight; ++y)
        bar.Set(0, y, BarPaint()(0, y));
    skin.Add("TOOLBARBACKGROUND", bar);
    for (const Look& look : kLooks) {
        const Picture button = DrawButton(look);
        const std::string prefix = std::string("TOOLBUTTON") + look.State;
        skin.Add(prefix + "LEFT", button.Crop(0, 0, 2, kHeight));
        skin.Add(prefix + "CENTER", button.Crop(2, 0, 1, kHeight));
        skin.Add(prefix + "RIGHT", button.Crop(3, 0, 2, kHeight));
    }
    skin.Add("TOOLBUTTONCHEVRONBUTTON", DrawChevron());
    skin.Add("TOOLBUTTONCHEVRONBUTTON_OLD_2", DrawWideChevron());
    skin.Add("TOOLBUTTONCHEVRONLEFT", DrawSeparator());
}

}  // namespace skinart
