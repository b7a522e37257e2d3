#include "platform/vcl/graphics/Gradients.h"

namespace vcl {
namespace {

TRIVERTEX Vertex(int x, int y, TColor color) {
    // Channels have 16 bits here.
    const auto channel = [](std::uint8_t value) { return static_cast<COLOR16>(value << 8); };
    return {x, y, channel(RedOf(color)), channel(GreenOf(color)), channel(BlueOf(color)), 0};
}

}  // namespace

void FillGradient(TCanvas& canvas, const TRect& rect, TColor from, TColor to, TGradientDirection direction) {
    if (rect.IsEmpty()) return;
    TRIVERTEX corners[] = {Vertex(rect.Left, rect.Top, ColorToRGB(from)),
                           Vertex(rect.Right, rect.Bottom, ColorToRGB(to))};
    GRADIENT_RECT whole{0, 1};
    canvas.DrawDirectly([&](HDC dc) {
        ::GradientFill(dc, corners, 2, &whole, 1,
                       direction == gdHorizontal ? GRADIENT_FILL_RECT_H : GRADIENT_FILL_RECT_V);
    });
}

}  // namespace vcl
