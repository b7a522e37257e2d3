#include "resources/skinart/ContactSheet.h"

#include <algorithm>
#include <string>
#include <vector>

#include "resources/skinart/Catalogue.h"
#include "resources/skinart/Lettering.h"
#include "resources/skinart/Scenes.h"

namespace skinart {

namespace {

constexpr int kSheetWidth = 1700;
constexpr int kGap = 12;
constexpr int kLabelScale = 2;
constexpr int kLabelHeight = (kLetterHeight + 2) * kLabelScale;
constexpr Rgb kTable = Grey(0xC0);

/// Places labelled pictures from left to right and top to bottom.
class Layout {
public:
    void Add(const std::string& label, const Picture& picture) {
        const int labelWidth = static_cast<int>(label.size()) * kLetterWidth * kLabelScale;
        const int width = std::max(labelWidth, picture.Width());
        if (FLeft > kGap && FLeft + width + kGap > kSheetWidth) NewRow();
        FCells.push_back({label, picture, FLeft, FTop});
        FLeft += width + kGap;
        FRowHeight = std::max(FRowHeight, kLabelHeight + picture.Height());
    }

    void NewRow() {
        FLeft = kGap;
        FTop += FRowHeight + kGap;
        FRowHeight = 0;
    }

    Picture Finish() const {
        Picture sheet(kSheetWidth, FTop + FRowHeight + kGap, kTable);
        for (const Cell& cell : FCells) {
            WriteText(sheet, cell.Left, cell.Top, cell.Label, palette::kBlack, kLabelScale);
            sheet.Draw(cell.Image, cell.Left, cell.Top + kLabelHeight);
        }
        return sheet;
    }

private:
    struct Cell {
        std::string Label;
        Picture Image;
        int Left;
        int Top;
    };

    std::vector<Cell> FCells;
    int FLeft = kGap;
    int FTop = kGap;
    int FRowHeight = 0;
};

}  // namespace

Picture DrawContactSheet() {
    const Catalogue skin = DrawSkin();
    const Catalogue icons = DrawIcons();
    Layout layout;
    for (const auto& [name, image] : skin.Pictures())
        layout.Add(name, image.Enlarged(8));
    layout.NewRow();
    for (const auto& [name, image] : icons.Pictures())
        layout.Add(name, image.Enlarged(8));
    layout.NewRow();
    for (const auto& [name, image] : DrawScenes(skin))
        layout.Add(name, image.Enlarged(4));
    return layout.Finish();
}

}  // namespace skinart
