#include "platform/flatstyle/FlatCheckBox.h"

#include <array>

#include "platform/flatstyle/FlatToggleRows.h"
#include "platform/vcl/graphics/Canvas.h"

namespace flatstyle {

const TMetaClass& TFlatCheckBox::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TFlatCheckBox>(L"TFlatCheckBox", TFlatToggle::StaticClass()).With(FlatToggleRows);
    return meta;
}

void TFlatCheckBox::DrawCheckRect() {
    TCanvas& canvas = GetCanvas();
    const TRect sign = SignRect();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(SignGround());
    canvas.FillRect(sign);
    canvas.GetBrush().SetColor(GetColors(BorderColorIndex));
    canvas.FrameRect(sign);
    if (!GetChecked()) return;
    canvas.GetPen().SetStyle(psSolid);
    canvas.GetPen().SetWidth(1);
    canvas.GetPen().SetColor(SignColor());
    // A tick of three pixels' thickness.
    for (int line = 0; line < 3; ++line) {
        const int x = sign.Left + 3;
        const int y = sign.Top + 5 + line;
        const std::array<TPoint, 3> tick{{{x, y}, {x + 2, y + 2}, {x + 7, y - 3}}};
        canvas.Polyline(tick);
    }
}

}  // namespace flatstyle
