#include "header/drag/DragCursor.h"

#include <array>
#include <cstdint>

#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"

namespace qv7skin {
namespace {

constexpr TColor Transparent = 0x00FF00FF;
constexpr int Extent = 32;

void DrawCursor(TCanvas& canvas) {
    canvas.GetBrush().SetColor(Transparent);
    canvas.FillRect(TRect(0, 0, Extent, Extent));
    constexpr std::array arrow{TPoint(0, 0),  TPoint(0, 16), TPoint(4, 12), TPoint(6, 18),
                               TPoint(9, 17), TPoint(7, 11), TPoint(12, 11)};
    canvas.GetPen().SetColor(clBlack);
    canvas.GetBrush().SetColor(clWhite);
    canvas.Polygon(arrow);
    canvas.GetPen().SetColor(GetQV7SkinColorLinkText());
    constexpr std::array tab{TPoint(11, 27), TPoint(13, 19), TPoint(25, 19), TPoint(27, 27)};
    canvas.Polygon(tab);
}

/// Opaque wherever something was drawn.
void MakeAlpha(TBitmap& picture) {
    for (int y = 0; y < Extent; ++y) {
        auto* row = static_cast<std::uint32_t*>(picture.ScanLine(y));
        for (int x = 0; x < Extent; ++x) {
            const std::uint32_t color = row[x] & 0x00FFFFFF;
            row[x] = color == 0x00FF00FF ? 0 : color | 0xFF000000;
        }
    }
}

}  // namespace

void RegisterDragCursor(TCursor cursor) {
    // Unknown numbers have the arrow.
    if (Screen().GetCursorHandle(cursor) != Screen().GetCursorHandle(crArrow)) return;
    TBitmap picture(Extent, Extent, pf32bit);
    DrawCursor(picture.GetCanvas());
    MakeAlpha(picture);
    TBitmap mask(Extent, Extent, pf1bit);
    ICONINFO info{};
    info.hbmMask = mask.GetHandle();
    info.hbmColor = picture.GetHandle();
    if (const HCURSOR handle = ::CreateIconIndirect(&info)) Screen().SetCursorHandle(cursor, handle);
}

}  // namespace qv7skin
