#include "header/drag/HeaderDragImage.h"

#include <algorithm>

#include "header/control/HeaderControl.h"
#include "header/drag/DragCursor.h"
#include "header/items/HeaderItem.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin {
namespace {

constexpr TColor Transparent = 0x00FF00FF;

}  // namespace

TQV7SkinHeaderDragObject::TQV7SkinHeaderDragObject(TQV7SkinHeaderControl* AControl,
                                                   TQV7SkinHeaderItemCustom* AItem)
    : TQV7SkinHeaderDragObjectBase(AControl, AItem) {
    AlwaysShowDragImages = true;
    RegisterDragCursor(AcceptCursor);
}

TQV7SkinHeaderDragObject::~TQV7SkinHeaderDragObject() = default;

TCursor TQV7SkinHeaderDragObject::GetDragCursor(bool accepted, int, int) {
    return accepted ? AcceptCursor : crNoDrop;
}

TDragImageList* TQV7SkinHeaderDragObject::GetDragImages() {
    if (!FImages) PrepareDragIcon();
    return FImages.get();
}

void TQV7SkinHeaderDragObject::PrepareDragIcon() {
    FImages = std::make_unique<TDragImageList>(nullptr);
    const TRect item = GetHeaderControl()->GetItemRect(GetItem());
    if (item.Width() <= 0 || item.Height() <= 0) return;
    TBitmap picture(item.Width(), item.Height(), pf24bit);
    picture.GetCanvas().GetBrush().SetColor(Transparent);
    picture.GetCanvas().FillRect(TRect(0, 0, picture.GetWidth(), picture.GetHeight()));
    DrawDragIcon(picture);
    FImages->SetSize(picture.GetWidth(), picture.GetHeight());
    FImages->AddMasked(&picture, Transparent);
    const TPoint pointer = PointerInControl();
    FImages->SetDragImage(0, std::clamp(pointer.X - item.Left, 0, item.Width() - 1),
                          std::clamp(pointer.Y - item.Top, 0, item.Height() - 1));
}

void TQV7SkinHeaderDragObject::DrawDragIcon(TBitmap& Bitmap) {
    TQV7SkinHeaderItemCustom* item = GetItem();
    if (!item) return;
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.SetFont(GetHeaderControl()->GetPaintBox().GetFont());
    int x = 0;
    item->Draw(canvas, x, Bitmap.GetHeight());
}

}  // namespace qv7skin
