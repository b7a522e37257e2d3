#include "menus/MenuGradient.h"

#include <cstdlib>

namespace qv7skin {
namespace {

/// value / divisor to the nearest whole number, halves to the even one.
constexpr int DivideRounded(std::int64_t value, int divisor) {
    const std::int64_t magnitude = value < 0 ? -value : value;
    std::int64_t result = magnitude / divisor;
    const std::int64_t twice = 2 * (magnitude % divisor);
    if (twice > divisor || (twice == divisor && result % 2 != 0)) ++result;
    return static_cast<int>(value < 0 ? -result : result);
}
static_assert(DivideRounded(1, 2) == 0 && DivideRounded(3, 2) == 2 && DivideRounded(-3, 2) == -2);

constexpr int BandChannel(int start, int end, int band, int steps) {
    return (start + DivideRounded(std::int64_t{band} * (end - start), steps)) & 0xFF;
}

COLORREF BandColor(TColor start, TColor end, int band, int steps) {
    return RGB(BandChannel(RedOf(start), RedOf(end), band, steps),
               BandChannel(GreenOf(start), GreenOf(end), band, steps),
               BandChannel(BlueOf(start), BlueOf(end), band, steps));
}

}  // namespace

void DrawGradientBands(HDC DC, const TRect& R, int Steps, TColor StartColor, TColor EndColor,
                       TGradientDirection Direction) {
    if (Steps < 1 || R.IsEmpty()) return;
    const TColor start = ColorToRGB(StartColor);
    const TColor end = ColorToRGB(EndColor);
    const bool isVertical = Direction == gdVertical;
    const int length = isVertical ? R.Height() : R.Width();
    const auto brush = static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
    const COLORREF former = ::GetDCBrushColor(DC);
    TRect band = R;
    int from = 0;
    for (int i = 1; i <= Steps; ++i) {
        const int to = DivideRounded(std::int64_t{i} * length, Steps);
        // Lower than its number of bands, an area shows only some of them.
        if (to == from) continue;
        if (isVertical) {
            band.Top = R.Top + from;
            band.Bottom = R.Top + to;
        } else {
            band.Left = R.Left + from;
            band.Right = R.Left + to;
        }
        ::SetDCBrushColor(DC, BandColor(start, end, i, Steps));
        ::FillRect(DC, band.AsRect(), brush);
        from = to;
    }
    ::SetDCBrushColor(DC, former);
}

}  // namespace qv7skin
