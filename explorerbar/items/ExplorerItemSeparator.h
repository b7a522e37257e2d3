#pragma once

#include "explorerbar/items/ExplorerItem.h"

namespace qv7skin {

/// Empty space between items. A group shows none at its start and end, and one for several in a row.
class TQV7SkinExplorerItemSeparator : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemSeparator() = default;
    explicit TQV7SkinExplorerItemSeparator(int Height) : FHeight(Height) {}

    /// In pixels, 10 at first.
    [[nodiscard]] int GetHeight() const { return FHeight; }
    void SetHeight(int Value) { Change(FHeight, Value); }

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;
    [[nodiscard]] bool IsSeparator() const override { return true; }

private:
    int FHeight = 10;
};

}  // namespace qv7skin
