#include "designer/palette/PaletteIcons.h"

#include <map>
#include <memory>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/PaletteIcon.h"
#include "platform/vcl/graphics/Pen.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

using TIcons = std::map<const TMetaClass*, std::unique_ptr<TTransparentBitmap>>;

TIcons& Icons() {
    static TIcons icons;
    return icons;
}

/// What tells a class from others: the first two letters of its name without the T, and its last capital when
/// there is another one.
String LettersOf(StringView className) {
    className.remove_prefix(1);
    String letters(className.substr(0, 2));
    for (std::size_t i = className.size(); i-- > 1;)
        if (className[i] >= L'A' && className[i] <= L'Z') return letters + className[i];
    return letters;
}

void DrawSheet(TBitmap& picture, const String& letters) {
    picture.SetPixelFormat(pf24bit);
    picture.SetSize(PaletteIconSize, PaletteIconSize);
    TCanvas& canvas = picture.GetCanvas();
    canvas.GetBrush().SetColor(clFuchsia);
    TRect sheet{0, 0, PaletteIconSize, PaletteIconSize};
    canvas.FillRect(sheet);
    canvas.GetBrush().SetColor(GetQV7SkinColorCaption());
    canvas.GetPen().SetColor(clGray);
    canvas.Rectangle(1, 3, PaletteIconSize - 1, PaletteIconSize - 3);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.GetFont().SetHeight(-10);
    canvas.GetFont().SetColor(GetQV7SkinColorLinkText());
    canvas.TextRect(sheet, letters, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_NOPREFIX);
}

std::unique_ptr<TTransparentBitmap> LoadIcon(const TMetaClass& classType) {
    TBitmap picture;
    const bool isOfFramework = ModuleOfClass(classType) == ModuleOfClass(TComponent::StaticClass());
    if (!LoadPaletteIcon(classType, picture) && isOfFramework)
        DrawSheet(picture, LettersOf(classType.ClassName()));
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
