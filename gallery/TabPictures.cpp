#include "gallery/TabPictures.h"

#include "gallery/Drawing.h"
#include "header/UnitQV7SkinTabControl.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

/// A tab control without a window, under whose tabs the mouse is on demand.
class TPosingTabs : public TQV7SkinTabControl {
public:
    using TQV7SkinTabControl::TQV7SkinTabControl;
    bool Hovered = false;
    [[nodiscard]] bool IsUnderMouse(const TQV7SkinHeaderItemCustom&) const override { return Hovered; }
};

}  // namespace

void DrawTabPicture(TBitmap& bitmap, const TTabPicture& picture) {
    TPosingTabs tabs(nullptr);
    tabs.TabBackground = picture.Look;
    tabs.SetHeight(picture.Height);
    tabs.Loaded();
    tabs.BeginUpdate();
    auto* tab = new TQV7SkinHeaderItemTabExt(picture.Look, picture.Caption);
    tabs.GetItems().Add(tab);
    tab->SetState(picture.State);
    tabs.Hovered = picture.State.Contains(tesHovered);

    TBitmap measuring(1, 1, pf24bit);
    UseFont(measuring.GetCanvas(), 8);
    int width = 0;
    tab->Measure(measuring.GetCanvas(), width);
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(width, picture.Height);
    TCanvas& canvas = bitmap.GetCanvas();
    Fill(canvas, {0, 0, width, picture.Height}, GetQV7SkinColorBackground());
    UseFont(canvas, 8);
    int x = 0;
    tab->Draw(canvas, x, picture.Height);
}

}  // namespace gallery
