#include "resources/skinart/Scenes.h"

#include <string>
#include <string_view>
#include <utility>

#include "resources/skinart/Lettering.h"

namespace skinart {

namespace {

void Caption(Picture& scene, int left, int top, int width, int height, std::string_view text, Rgb color) {
    const int textWidth = static_cast<int>(text.size()) * kLetterWidth - 1;
    WriteText(scene, left + (width - textWidth) / 2, top + (height - kLetterHeight) / 2, text, color, 1);
}

Picture ButtonScene(const Catalogue& skin, int width, int height) {
    const std::pair<const char*, Rgb> states[] = {{"DEFAULT", palette::kBlack},
                                                  {"HOVERED", palette::kBlack},
                                                  {"PRESSED", palette::kPressed},
                                                  {"DISABLED", palette::kDisabled}};
    Picture scene(4 * (width + 8) + 8, height + 16, palette::kPage);
    int left = 8;
    for (const auto& [state, interior] : states) {
        const FramePieces pieces = skin.FindFrame(std::string("SKINBUTTON") + state);
        scene.DrawTransparent(Compose(pieces, width, height, interior), left, 8);
        Caption(scene, left, 8, width, height, state, palette::kWhite);
        left += width + 8;
    }
    return scene;
}

Picture MaskScene(const Catalogue& skin, const std::string& mask, Rgb page, int width, int height) {
    Picture scene(width + 20, height + 20, page);
    scene.Draw(Picture(width - 3, height - 2, palette::kWhite), 13, 12);
    scene.DrawTransparent(Compose(skin.FindFrame(mask), width, height, palette::kTransparent), 10, 10);
    Caption(scene, 13, 12, width, height, mask, palette::kBlack);
    return scene;
}

struct TabLook {
    std::string Prefix;
    Rgb Fill;
    Rgb Text;
    std::string Signs;
    int Margin;
};

void DrawTab(Picture& scene, const Catalogue& skin, const TabLook& look, int left, int width, int frame) {
    const int height = scene.Height();
    scene.DrawTransparent(Compose(skin.FindFrame(look.Prefix), width, height, look.Fill), left, 0);
    const std::string number = std::to_string(frame);
    scene.DrawTransparent(skin.Find("TABANIMATION" + number + look.Signs), left + look.Margin, 3);
    const int right = left + width - look.Margin;
    scene.DrawTransparent(skin.Find("TABCLOSE" + look.Signs), right - 6, 4);
    scene.DrawTransparent(skin.Find((frame == 1 ? "TABUNLOCK" : "TABLOCK") + look.Signs), right - 6, 11);
    Caption(scene, left, 0, width, height, "CAPTION", look.Text);
}

void DrawDropMarker(Picture& scene, const Catalogue& skin, int x, bool pointsLeft) {
    const Picture& arrow = skin.Find(pointsLeft ? "TABDRAGLEFT" : "TABDRAGRIGHT");
    scene.Draw(Picture(2, scene.Height(), palette::kWhite), x - 1, 0);
    scene.DrawTransparent(arrow, pointsLeft ? x + 3 : x - 3 - arrow.Width(), (scene.Height() - 16) / 2);
}

Picture ChevronStrip(const Catalogue& skin) {
    Picture strip(52, 21, palette::kPage);
    strip.Stretch(skin.Find("EXPLORERBARHEADERTOP"), 1, 1, 50, 9);
    strip.Stretch(skin.Find("EXPLORERBARHEADERBOTTOM"), 1, 10, 50, 10);
    strip.DrawTransparent(skin.Find("CHEVRONBUTTONDOWNDEFAULT"), 2, 3);
    strip.DrawTransparent(skin.Find("CHEVRONBUTTONLEFTDISABLED"), 18, 3);
    strip.DrawTransparent(skin.Find("CHEVRONBUTTONRIGHTHOVERED"), 34, 3);
    const Picture line(1, 1, palette::kFrameLine);
    strip.Stretch(line, 0, 0, 52, 1);
    strip.Stretch(line, 0, 20, 52, 1);
    strip.Stretch(line, 0, 0, 1, 21);
    strip.Stretch(line, 51, 0, 1, 21);
    return strip;
}

Picture TabScene(const Catalogue& skin, int height) {
    Picture scene(330, height, palette::kPage);
    const TabLook resting{"TABDEFAULT", palette::kTab, Grey(0x7E), "DEFAULT", 5};
    const TabLook hovered{"TABHOVERED", palette::kTab, Grey(0x7E), "DEFAULT", 5};
    const TabLook selected{"TABPRESSED", palette::kBlack, palette::kWhite, "PRESSED", 5};
    DrawTab(scene, skin, resting, 0, 68, 0);
    DrawTab(scene, skin, selected, 68, 68, 1);
    DrawTab(scene, skin, hovered, 136, 68, 2);
    DrawTab(scene, skin, resting, 204, 68, 1);
    scene.Draw(ChevronStrip(skin), 278, 0);
    return scene;
}

Picture DragScene(const Catalogue& skin, int height) {
    Picture scene = TabScene(skin, height);
    DrawDropMarker(scene, skin, 68, true);
    DrawDropMarker(scene, skin, 204, false);
    return scene;
}

Picture WhiteTabScene(const Catalogue& skin, int height) {
    Picture scene(330, height, palette::kPage);
    scene.Stretch(Picture(1, 1, palette::kFrameLine), 0, height - 1, 330, 1);
    const TabLook resting{"WHITETABDEFAULT", palette::kWhite, palette::kFrameLine, "DEFAULT", 25};
    const TabLook selected{"WHITETABPRESSED", palette::kWhite, palette::kBlack, "PRESSED", 25};
    DrawTab(scene, skin, resting, 0, 105, 0);
    DrawTab(scene, skin, selected, 105, 105, 1);
    DrawTab(scene, skin, resting, 210, 105, 2);
    return scene;
}

void DrawToolButton(Picture& scene, const Catalogue& skin, const std::string& prefix, int left, int width) {
    scene.Draw(skin.Find(prefix + "LEFT"), left, 0);
    scene.Stretch(skin.Find(prefix + "CENTER"), left + 2, 0, width - 4, 34);
    scene.Draw(skin.Find(prefix + "RIGHT"), left + width - 2, 0);
}

Picture ToolbarScene(const Catalogue& skin) {
    Picture scene(300, 34, palette::kPage);
    scene.Stretch(skin.Find("TOOLBARBACKGROUND"), 0, 0, 300, 34);
    Caption(scene, 10, 0, 60, 34, "RESTING", palette::kBlack);
    DrawToolButton(scene, skin, "TOOLBUTTONHOVERED", 70, 60);
    Caption(scene, 70, 0, 60, 34, "HOVERED", palette::kBlack);
    DrawToolButton(scene, skin, "TOOLBUTTONPRESSED", 130, 60);
    Caption(scene, 130, 0, 60, 34, "PRESSED", palette::kBlack);
    scene.DrawTransparent(skin.Find("TOOLBUTTONCHEVRONBUTTON_OLD_2"), 200, 12);
    DrawToolButton(scene, skin, "TOOLBUTTONHOVERED", 250, 15);
    scene.DrawTransparent(skin.Find("TOOLBUTTONCHEVRONBUTTON"), 253, 12);
    scene.Draw(skin.Find("TOOLBUTTONCHEVRONLEFT"), 285, 0);
    scene.DrawTransparent(skin.Find("TOOLBUTTONCHEVRONBUTTON"), 288, 12);
    return scene;
}

Picture ExplorerScene(const Catalogue& skin) {
    Picture scene(218, 112, palette::kWhite);
    const char* const buttons[] = {"MINIMIZEDEFAULT", "MINIMIZEHOVERED", "MINIMIZEDISABLED",
                                   "MAXIMIZEDEFAULT", "MAXIMIZEHOVERED", "MAXIMIZEDISABLED"};
    int top = 0;
    for (const char* const button : buttons) {
        scene.Stretch(skin.Find("EXPLORERBARHEADERTOP"), 0, top, 218, 9);
        scene.Stretch(skin.Find("EXPLORERBARHEADERBOTTOM"), 0, top + 9, 218, 10);
        scene.DrawTransparent(skin.Find(std::string("EXPLORERBARBUTTON") + button), 200, top + 2);
        WriteText(scene, 5, top + 7, button, palette::kWhite, 1);
        top += 19;
    }
    return scene;
}

void DrawColumn(Picture& scene, const Catalogue& skin, int left, int width, bool ascending) {
    const int height = scene.Height();
    scene.Draw(Picture(width, height, palette::kHeader), left, 0);
    scene.Stretch(skin.Find("COLUMNHEADERTOP"), left, 0, width, 9);
    scene.Stretch(skin.Find("COLUMNHEADERBOTTOM"), left, height - 10, width, 10);
    scene.Stretch(Picture(1, 1, palette::kPage), left, height - 1, width, 1);
    scene.Stretch(Picture(1, 1, palette::kPage), left + width - 1, 0, 1, height);
    WriteText(scene, left + 6, height / 2 - 3, "COLUMN", palette::kWhite, 1);
    scene.DrawTransparent(skin.Find(ascending ? "COLUMNHEADERSORTASCENDING" : "COLUMNHEADERSORTDESCENDING"),
                          left + width - 14, height / 2 - 3);
}

Picture ColumnScene(const Catalogue& skin, int height) {
    Picture scene(160, height, palette::kWhite);
    DrawColumn(scene, skin, 0, 80, true);
    DrawColumn(scene, skin, 80, 80, false);
    return scene;
}

Picture PickerScene(const Catalogue& skin) {
    Picture scene(140, 37, palette::kPage);
    scene.Draw(Picture(120, 25, palette::kWhite), 8, 6);
    scene.Draw(skin.Find("DATETIMEPICKERBUTTON"), 108, 9);
    WriteText(scene, 12, 16, "MO 03-02-2014", palette::kBlack, 1);
    return scene;
}

}  // namespace

std::vector<NamedPicture> DrawScenes(const Catalogue& skin) {
    return {{"BUTTONS 100 X 25", ButtonScene(skin, 100, 25)},
            {"BUTTONS 100 X 40", ButtonScene(skin, 100, 40)},
            {"BUTTONS 100 X 60", ButtonScene(skin, 100, 60)},
            {"BUTTONS 60 X 21", ButtonScene(skin, 60, 21)},
            {"MASK 200 X 60", MaskScene(skin, "MASK", palette::kPage, 200, 60)},
            {"MASK 100 X 25", MaskScene(skin, "MASK", palette::kPage, 100, 25)},
            {"MASKWHITE 200 X 60", MaskScene(skin, "MASKWHITE", palette::kWhite, 200, 60)},
            {"TABS 21", TabScene(skin, 21)},
            {"TABS 27", TabScene(skin, 27)},
            {"TABS 34", TabScene(skin, 34)},
            {"DROP MARKERS 27", DragScene(skin, 27)},
            {"WHITE TABS 21", WhiteTabScene(skin, 21)},
            {"WHITE TABS 27", WhiteTabScene(skin, 27)},
            {"TOOLBAR", ToolbarScene(skin)},
            {"EXPLORER BAR HEADERS", ExplorerScene(skin)},
            {"COLUMN HEADERS 19", ColumnScene(skin, 19)},
            {"COLUMN HEADERS 25", ColumnScene(skin, 25)},
            {"DATE-TIME PICKER", PickerScene(skin)}};
}

}  // namespace skinart
