#include "platform/flatstyle/FlatArrow.h"

#include <array>

#include "platform/vcl/graphics/Canvas.h"

namespace flatstyle {

void DrawFlatArrow(TCanvas& canvas, const TRect& rect, bool up, TColor color) {
    const int x = rect.Left + rect.Width() / 2 - 5;
    const int y = rect.Top + rect.Height() / 2;
    const int base = up ? y + 1 : y - 1;
    const int tip = up ? y - 1 : y + 1;
    canvas.GetPen().SetStyle(psSolid);
    canvas.GetPen().SetWidth(1);
    canvas.GetPen().SetColor(color);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    const std::array<TPoint, 3> corners{{{x + 3, base}, {x + 7, base}, {x + 5, tip}}};
    canvas.Polygon(corners);
}

void DrawFlatArrowEngraved(TCanvas& canvas, const TRect& rect, bool up, TColor color, TColor highlight) {
    TRect shifted = rect;
    shifted.Offset(1, 1);
    DrawFlatArrow(canvas, shifted, up, highlight);
    DrawFlatArrow(canvas, rect, up, color);
}

}  // namespace flatstyle
