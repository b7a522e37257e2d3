#include "platform/tms/CurvyFrame.h"

#include <algorithm>

#include "platform/tms/CornerCoverage.h"
#include "platform/vcl/graphics/Canvas.h"

namespace tms {
namespace {

constexpr int Grid = 16;
constexpr int Full = 255;

/// The corner at (0, 0); the others are its mirror images.
void DrawCorners(TCanvas& canvas, const TRect& rect, const TCurvyLook& look, int radius) {
    const bool hasBorder = look.Border != clNone;
    const TColor inside = ColorToRGB(look.Color);
    const TColor border = hasBorder ? ColorToRGB(look.Border) : inside;
    for (int y = 0; y < radius; ++y) {
        for (int x = 0; x < radius; ++x) {
            const int outer = CornerCoverage(x, y, radius);
            const int inner =
                hasBorder ? (x > 0 && y > 0 ? CornerCoverage(x - 1, y - 1, radius - 1) : 0) : outer;
            for (const int px : {rect.Left + x, rect.Right - 1 - x}) {
                for (const int py : {rect.Top + y, rect.Bottom - 1 - y}) {
                    const TColor below = canvas.GetPixel(px, py);
                    if (below == clInvalid) continue;
                    canvas.SetPixel(px, py, BlendColors(BlendColors(below, border, outer), inside, inner));
                }
            }
        }
    }
}

}  // namespace

int CornerCoverage(int x, int y, int radius) {
    return CoveredPoints(x, y, radius, Grid) * Full / (Grid * Grid);
}

void DrawCurvyFrame(TCanvas& canvas, const TRect& rect, const TCurvyLook& look) {
    if (rect.IsEmpty()) return;
    const int radius = std::clamp(look.Rounding, 0, std::min(rect.Width(), rect.Height()) / 2);
    canvas.GetBrush().SetStyle(bsSolid);
    const auto fill = [&canvas](TColor color, const TRect& area) {
        canvas.GetBrush().SetColor(color);
        canvas.FillRect(area);
    };
    if (look.Border != clNone) {
        fill(look.Border, {rect.Left + radius, rect.Top, rect.Right - radius, rect.Top + 1});
        fill(look.Border, {rect.Left + radius, rect.Bottom - 1, rect.Right - radius, rect.Bottom});
        fill(look.Border, {rect.Left, rect.Top + radius, rect.Left + 1, rect.Bottom - radius});
        fill(look.Border, {rect.Right - 1, rect.Top + radius, rect.Right, rect.Bottom - radius});
    }
    const int edge = look.Border != clNone ? 1 : 0;
    const int side = std::max(radius, edge);
    fill(look.Color, {rect.Left + side, rect.Top + edge, rect.Right - side, rect.Bottom - edge});
    fill(look.Color, {rect.Left + edge, rect.Top + side, rect.Left + side, rect.Bottom - side});
    fill(look.Color, {rect.Right - side, rect.Top + side, rect.Right - edge, rect.Bottom - side});
    DrawCorners(canvas, rect, look, radius);
}

}  // namespace tms
