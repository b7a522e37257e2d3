#include "explorerbar/items/ExplorerItemSeparator.h"

namespace qv7skin {

void TQV7SkinExplorerItemSeparator::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Measure(Bitmap, Left, Top, Width);
}

void TQV7SkinExplorerItemSeparator::Measure(TBitmap&, int&, int& Top, int&) {
    Top += FHeight;
}

void TQV7SkinExplorerItemSeparator::Place(TBitmap&, int, int, int) {}

}  // namespace qv7skin
