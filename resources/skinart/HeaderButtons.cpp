#include <string>
#include <string_view>
#include <vector>

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"
#include "resources/skinart/Glyph.h"
#include "resources/skinart/HeaderBands.h"

namespace skinart {

namespace {

constexpr int kSize = 14;

// Explorer bar and chevron strip alike draw their buttons two rows below the top of the band.
constexpr int kBandRow = 2;

struct Look {
    const char* State;
    Rgb BorderTop;
    Rgb BorderBottom;
    Rgb Top;
    Rgb Bottom;
    Rgb Sign;
};

constexpr Look kLooks[] = {
    {"DEFAULT", Grey(0x3C), Grey(0x34), Grey(0x58), Grey(0x3E), Grey(0xF2)},
    {"HOVERED",
     {0x0A, 0x4C, 0x84},
     {0x08, 0x40, 0x70},
     {0x46, 0xAA, 0xEE},
     {0x0E, 0x74, 0xC6},
     palette::kWhite},
    {"DISABLED", Grey(0x58), Grey(0x54), Grey(0x66), Grey(0x60), Grey(0x8E)},
};

Picture DrawButton(const Look& look, const std::vector<std::string_view>& sign) {
    Canvas canvas(kSize, kSize, [](int x, int y) { return ExplorerBandPaint()(x, y + kBandRow); });
    const Point center{Px(7), Px(7)};
    canvas.Fill(Disc(center, Px(7)), Vertical({{0, look.BorderTop}, {13, look.BorderBottom}}));
    canvas.Fill(Disc(center, Px(6)), Vertical({{1, look.Top}, {12, look.Bottom}}));
    const Picture glyph = FromPattern(sign, {{'#', look.Sign}});
    canvas.Draw(glyph, (kSize - glyph.Width()) / 2, (kSize - glyph.Height()) / 2);
    return canvas.Finish();
}

void AddStates(Catalogue& skin, const std::string& prefix, const std::vector<std::string_view>& sign) {
    for (const Look& look : kLooks)
        skin.Add(prefix + look.State, DrawButton(look, sign));
}

}  // namespace

void AddHeaderButtons(Catalogue& skin) {
    AddStates(skin, "CHEVRONBUTTONDOWN",
              {"#....#",  //
               "##..##",  //
               ".####.",  //
               "..##.."});
    AddStates(skin, "CHEVRONBUTTONLEFT",
              {"..##",  //
               ".##.",  //
               "##..",  //
               "##..",  //
               ".##.",  //
               "..##"});
    AddStates(skin, "CHEVRONBUTTONRIGHT",
              {"##..",  //
               ".##.",  //
               "..##",  //
               "..##",  //
               ".##.",  //
               "##.."});
    AddStates(skin, "EXPLORERBARBUTTONMAXIMIZE",
              {"##..##",  //
               ".####.",  //
               "..##..",  //
               "##..##",  //
               ".####.",  //
               "..##.."});
    AddStates(skin, "EXPLORERBARBUTTONMINIMIZE",
              {"..##..",  //
               ".####.",  //
               "##..##",  //
               "..##..",  //
               ".####.",  //
               "##..##"});
}

}  // namespace skinart
