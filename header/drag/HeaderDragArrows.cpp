#include "header/drag/HeaderDragArrows.h"

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/surfaces/Loaders.h"
#include "skin/utils/OneShotDrawing.h"

namespace qv7skin {
namespace {

constexpr TColor Transparent = 0x00FF00FF;
/// Pixels between the middle of the bar and the arrow.
constexpr int Gap = 3;

}  // namespace

TQV7SkinHeaderDragObjectWithDragArrows::TQV7SkinHeaderDragObjectWithDragArrows(
    TQV7SkinHeaderControl* AControl, TQV7SkinHeaderItemCustom* AItem)
    : TQV7SkinHeaderDragObjectBase(AControl, AItem) {}

TQV7SkinHeaderDragObjectWithDragArrows::~TQV7SkinHeaderDragObjectWithDragArrows() = default;

void TQV7SkinHeaderDragObjectWithDragArrows::DrawDropPreview(TBitmap& Bitmap) {
    if (!FLeftArrow) FLeftArrow = CreateBmp(L"TABDRAGLEFT");
    if (!FRightArrow) FRightArrow = CreateBmp(L"TABDRAGRIGHT");
    TMarker marker;
    if (!FindPlace(marker)) return;
    DrawBar(Bitmap, marker, 1);
    TBitmap& arrow = marker.BeforeItem ? *FLeftArrow : *FRightArrow;
    const int x = marker.BeforeItem ? marker.X + Gap : marker.X - Gap - arrow.GetWidth();
    DrawTransparentBitmap(Bitmap.GetCanvas(), &arrow, x, (Bitmap.GetHeight() - arrow.GetHeight()) / 2,
                          Transparent);
}

}  // namespace qv7skin
