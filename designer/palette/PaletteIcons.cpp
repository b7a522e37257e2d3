#include "designer/palette/PaletteIcons.h"

#include <map>
#include <memory>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/PaletteIcon.h"
#include "skin/UnitGraphicsUtils.h"

namespace designer {
namespace {

using TIcons = std::map<const TMetaClass*, std::unique_ptr<TTransparentBitmap>>;

TIcons& Icons() {
    static TIcons icons;
    return icons;
}

std::unique_ptr<TTransparentBitmap> LoadIcon(const TMetaClass& classType) {
    TBitmap picture;
    LoadPaletteIcon(classType, picture);
    auto icon = std::make_unique<TTransparentBitmap>(picture.GetTransparentColor());
    icon->SetBitmap(&picture);
    return icon;
}

}  // namespace

void DrawPaletteIcon(TCanvas& canvas, int x, int y, const TMetaClass& classType) {
    std::unique_ptr<TTransparentBitmap>& icon = Icons()[&classType];
    if (!icon) icon = LoadIcon(classType);
    icon->Draw(canvas, x, y);
}

void ForgetPaletteIcons() {
    Icons().clear();
}

}  // namespace designer
