#include "platform/vcl/stdctrls/Frame3D.h"

#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

void Frame3D(TCanvas& canvas, TRect& rect, TColor topColor, TColor bottomColor, int width) {
    TBrush& brush = canvas.GetBrush();
    for (; width > 0 && !rect.IsEmpty(); --width) {
        brush.SetColor(topColor);
        canvas.FillRect({rect.Left, rect.Top, rect.Right - 1, rect.Top + 1});
        canvas.FillRect({rect.Left, rect.Top, rect.Left + 1, rect.Bottom - 1});
        brush.SetColor(bottomColor);
        canvas.FillRect({rect.Right - 1, rect.Top, rect.Right, rect.Bottom});
        canvas.FillRect({rect.Left, rect.Bottom - 1, rect.Right, rect.Bottom});
        rect.Inflate(-1, -1);
    }
}

}  // namespace vcl
