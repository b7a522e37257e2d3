#pragma once

#include "explorerbar/items/ExplorerItem.h"
#include "platform/vcl/graphics/Color.h"

namespace qv7skin {

/// A bar that fills from the left. `Max` must differ from `Min` when it is painted, which raises EZeroDivide
/// otherwise.
class TQV7SkinExplorerItemProgressBar : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemProgressBar() = default;
    TQV7SkinExplorerItemProgressBar(int Min, int Max, int Position, int Height, TColor BorderColor,
                                    TColor FillColor)
        : FMin(Min),
          FMax(Max),
          FPosition(Position),
          FHeight(Height),
          FBorderColor(BorderColor),
          FFillColor(FillColor) {}

    [[nodiscard]] int GetMin() const { return FMin; }
    void SetMin(int Value) { Change(FMin, Value); }
    [[nodiscard]] int GetMax() const { return FMax; }
    void SetMax(int Value) { Change(FMax, Value); }
    [[nodiscard]] int GetPosition() const { return FPosition; }
    void SetPosition(int Value) { Change(FPosition, Value); }
    /// In pixels, 20 at first.
    [[nodiscard]] int GetHeight() const { return FHeight; }
    [[nodiscard]] TColor GetBorderColor() const { return FBorderColor; }
    [[nodiscard]] TColor GetFillColor() const { return FFillColor; }

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;

private:
    int FMin = 0;
    int FMax = 0;
    int FPosition = 0;
    int FHeight = 20;
    TColor FBorderColor = cl3DDkShadow;
    TColor FFillColor = clBtnShadow;
};

}  // namespace qv7skin
