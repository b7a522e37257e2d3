#include <string>
#include <vector>

#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"
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

using Lines = std::vector<std::vector<Point>>;

Picture DrawButton(const Look& look, const Lines& sign, int thickness) {
    Canvas canvas(kSize, kSize, [](int x, int y) { return ExplorerBandPaint()(x, y + kBandRow); });
    const Point center{Px(7), Px(7)};
    canvas.Fill(Disc(center, Px(7)), Vertical({{0, look.BorderTop}, {13, look.BorderBottom}}));
    canvas.Fill(Disc(center, Px(6)), Vertical({{1, look.Top}, {12, look.Bottom}}));
    for (const std::vector<Point>& line : sign)
        canvas.Fill(Stroke(line, thickness), Solid(look.Sign));
    return canvas.Finish();
}

/// A bent line of three points around (`x`, `y`) whose tip points along (`dx`, `dy`).
std::vector<Point> Bend(int x, int y, int dx, int dy) {
    const int reach = Px(2.5);
    const int depth = Px(1.25);
    return {{x - dx * depth - dy * reach, y - dy * depth - dx * reach},
            {x + dx * depth, y + dy * depth},
            {x - dx * depth + dy * reach, y - dy * depth + dx * reach}};
}

void AddStates(Catalogue& skin, const std::string& prefix, const Lines& sign, int thickness) {
    for (const Look& look : kLooks)
        skin.Add(prefix + look.State, DrawButton(look, sign, thickness));
}

}  // namespace

void AddHeaderButtons(Catalogue& skin) {
    AddStates(skin, "CHEVRONBUTTONDOWN", {Bend(Px(7), Px(7.25), 0, 1)}, Px(1.75));
    AddStates(skin, "CHEVRONBUTTONLEFT", {Bend(Px(6.75), Px(7), -1, 0)}, Px(1.75));
    AddStates(skin, "CHEVRONBUTTONRIGHT", {Bend(Px(7.25), Px(7), 1, 0)}, Px(1.75));
    AddStates(skin, "EXPLORERBARBUTTONMAXIMIZE", {Bend(Px(7), Px(5.25), 0, 1), Bend(Px(7), Px(8.75), 0, 1)},
              Px(1.5));
    AddStates(skin, "EXPLORERBARBUTTONMINIMIZE", {Bend(Px(7), Px(5.25), 0, -1), Bend(Px(7), Px(8.75), 0, -1)},
              Px(1.5));
}

}  // namespace skinart
