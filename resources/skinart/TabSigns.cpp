#include "resources/skinart/Canvas.h"
#include "resources/skinart/Catalogue.h"
#include "resources/skinart/Glyph.h"

namespace skinart {

namespace {

// The signs of a selected tab lie on black or, on white tabs, on white; so they have no half tones of either.
constexpr Rgb kResting = Grey(0x62);
constexpr Rgb kSelected = Grey(0x9C);

Picture DrawClose(Rgb color) {
    return FromPattern({"##..##",  //
                        ".####.",  //
                        "..##..",  //
                        "..##..",  //
                        ".####.",  //
                        "##..##"},
                       {{'#', color}});
}

Picture DrawLocked(Rgb color, Rgb hole) {
    return FromPattern({"...####...",  //
                        "..##..##..",  //
                        "..##..##..",  //
                        ".########.",  //
                        ".########.",  //
                        ".###oo###.",  //
                        ".###oo###.",  //
                        ".########."},
                       {{'#', color}, {'o', hole}});
}

Picture DrawUnlocked(Rgb color) {
    return FromPattern({".....####.",  //
                        "....##..##",  //
                        "....##..##",  //
                        "########..",  //
                        "#......#..",  //
                        "#......#..",  //
                        "#......#..",  //
                        "########.."},
                       {{'#', color}});
}

/// An arrow on a blue disc that points left, to the place where the dragged tab would drop.
Picture DrawDragLeft() {
    Canvas canvas(16, 16, Solid(palette::kTab));
    const Point center{Px(8), Px(8)};
    canvas.Fill(Disc(center, Px(8)), Solid(palette::kWhite));
    canvas.Fill(Disc(center, Px(6.75)), Vertical({{1, Mix(palette::kAccent, palette::kWhite, 1, 5)},
                                                  {14, Mix(palette::kAccent, palette::kBlack, 1, 5)}}));
    canvas.Fill(Stroke({{Px(4.5), Px(8)}, {Px(11.5), Px(8)}}, Px(2)), Solid(palette::kWhite));
    canvas.Fill(Stroke({{Px(7.5), Px(5)}, {Px(4.5), Px(8)}, {Px(7.5), Px(11)}}, Px(2)),
                Solid(palette::kWhite));
    return canvas.Finish();
}

Picture Mirrored(const Picture& picture) {
    Picture result(picture.Width(), picture.Height());
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x)
            result.Set(x, y, picture.At(picture.Width() - 1 - x, y));
    }
    return result;
}

}  // namespace

void AddTabSigns(Catalogue& skin) {
    skin.Add("TABCLOSEDEFAULT", DrawClose(kResting));
    skin.Add("TABCLOSEPRESSED", DrawClose(kSelected));
    skin.Add("TABLOCKDEFAULT", DrawLocked(palette::kAccent, palette::kWhite));
    skin.Add("TABLOCKPRESSED", DrawLocked({0x2A, 0x94, 0xE6}, palette::kWhite));
    skin.Add("TABUNLOCKDEFAULT", DrawUnlocked(kResting));
    skin.Add("TABUNLOCKPRESSED", DrawUnlocked(kSelected));
    const Picture left = DrawDragLeft();
    skin.Add("TABDRAGLEFT", left);
    skin.Add("TABDRAGRIGHT", Mirrored(left));
}

}  // namespace skinart
