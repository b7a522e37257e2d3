#include "platform/vcl/graphics/Arrows.h"

namespace vcl {

void DrawArrow(TCanvas& canvas, TScrollDirection direction, TPoint location, int size) {
    const auto at = [&](int x, int y) { return TPoint{location.X + x * size, location.Y + y * size}; };
    TPoint points[3];
    switch (direction) {
        case sdLeft:
            points[0] = at(1, 0), points[1] = at(0, 1), points[2] = at(1, 2);
            break;
        case sdRight:
            points[0] = at(0, 0), points[1] = at(1, 1), points[2] = at(0, 2);
            break;
        case sdUp:
            points[0] = at(0, 1), points[1] = at(1, 0), points[2] = at(2, 1);
            break;
        case sdDown:
            points[0] = at(0, 0), points[1] = at(1, 1), points[2] = at(2, 0);
            break;
    }
    TBrush& brush = canvas.GetBrush();
    const TColor color = brush.GetColor();
    const TBrushStyle style = brush.GetStyle();
    brush.SetStyle(bsSolid);
    brush.SetColor(canvas.GetPen().GetColor());
    canvas.Polygon(points);
    brush.SetColor(color);
    brush.SetStyle(style);
}

}  // namespace vcl
