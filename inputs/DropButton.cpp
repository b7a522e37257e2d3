#include "inputs/DropButton.h"

#include "platform/flatstyle/FlatArrow.h"
#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {

void DrawDropButton(TCanvas& canvas, TRect rect, const TDropButtonLook& look) {
    rect.Inflate(1, 0);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(look.Face);
    canvas.FillRect(rect);
    canvas.GetBrush().SetColor(look.Border);
    canvas.FrameRect(rect);
    if (look.LineBottom > 0) {
        canvas.GetPen().SetStyle(psSolid);
        canvas.GetPen().SetWidth(1);
        canvas.GetPen().SetColor(InputLight);
        canvas.MoveTo(rect.Left + 1, rect.Top);
        canvas.LineTo(rect.Left + 1, look.LineBottom);
    }
    if (look.Enabled)
        DrawFlatArrow(canvas, rect, look.Open, look.Arrow);
    else
        DrawFlatArrowEngraved(canvas, rect, look.Open, InputArrowDisabled, InputArrowHighlight);
}

}  // namespace qv7skin
