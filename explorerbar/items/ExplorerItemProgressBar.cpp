#include "explorerbar/items/ExplorerItemProgressBar.h"

#include "explorerbar/items/DrawingTools.h"
#include "platform/vcl/core/MathErrors.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {

void TQV7SkinExplorerItemProgressBar::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    TCanvas& canvas = Bitmap.GetCanvas();
    const TDrawingTools tools(canvas);
    canvas.GetPen().SetColor(FBorderColor);
    canvas.Rectangle(Left, Top, Left + Width - 5, Top + FHeight);

    if (FMax == FMin) throw EZeroDivide();
    const int filled =
        RoundHalfEven(static_cast<long double>(Width - 4) * (static_cast<long double>(FPosition) - FMin) /
                      (static_cast<long double>(FMax) - FMin));
    canvas.GetBrush().SetColor(FFillColor);
    // The fill ends 8 pixels behind the frame when it is whole.
    canvas.FillRect({Left + 7, Top + 2, Left + 7 + filled, Top + FHeight - 2});
    Measure(Bitmap, Left, Top, Width);
}

void TQV7SkinExplorerItemProgressBar::Measure(TBitmap&, int&, int& Top, int&) {
    Top += FHeight + 1;
}

void TQV7SkinExplorerItemProgressBar::Place(TBitmap&, int, int, int) {}

}  // namespace qv7skin
