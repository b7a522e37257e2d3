#include "platform/vcl/graphics/PaletteIcon.h"

#include "platform/vcl/core/Resources.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace vcl {
namespace {

constexpr int IconSize = 24;

void DrawBox(TCanvas& canvas, const TRect& rect, TColor color) {
    canvas.GetPen().SetColor(clGray);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    canvas.Rectangle(rect.Left, rect.Top, rect.Right, rect.Bottom);
}

void DrawDefaultIcon(TBitmap& icon) {
    icon.SetPixelFormat(pf24bit);
    icon.SetSize(IconSize, IconSize);
    TCanvas& canvas = icon.GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(clFuchsia);
    canvas.FillRect({0, 0, IconSize, IconSize});
    canvas.GetPen().SetColor(clGray);
    canvas.MoveTo(8, 12);
    canvas.LineTo(8, 16);
    canvas.LineTo(13, 16);
    DrawBox(canvas, {3, 4, 14, 12}, clSkyBlue);
    DrawBox(canvas, {12, 12, 21, 20}, clWhite);
}

}  // namespace

bool LoadPaletteIcon(const TMetaClass& classType, TBitmap& icon) {
    const HINSTANCE module = ModuleOfClass(classType);
    const String name = UpperCase(classType.ClassName());
    const bool hasIcon = HasResource(module, name, RT_BITMAP);
    if (hasIcon)
        icon.LoadFromResourceName(module, name);
    else
        DrawDefaultIcon(icon);
    return hasIcon;
}

}  // namespace vcl
