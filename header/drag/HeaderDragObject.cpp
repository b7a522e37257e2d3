#include "header/drag/HeaderDragObject.h"

#include "header/chevrons/HeaderChevronBase.h"
#include "header/control/HeaderControl.h"
#include "header/items/HeaderItems.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "skin/utils/RectHelper.h"

namespace qv7skin {
namespace {

/// How near the pointer must be to an end of the row to scroll it, in pixels.
constexpr int ScrollMargin = 10;

}  // namespace

TQV7SkinHeaderDragObjectBase::TQV7SkinHeaderDragObjectBase(TQV7SkinHeaderControl* AControl,
                                                           TQV7SkinHeaderItemCustom* AItem)
    : TBaseDragControlObject(&AControl->GetPaintBox()),
      FItem(AItem),
      FHeaderControl(AControl),
      FTimer(std::make_unique<TTimer>(nullptr)),
      FUndock(AControl->GetAllowItemUndock()) {
    if (AItem) FItemAlive.emplace(*AItem);
    FTimer->SetInterval(ScrollInterval);
    FTimer->OnTimer = {this, &TQV7SkinHeaderDragObjectBase::DoTimer};
}

TQV7SkinHeaderDragObjectBase::~TQV7SkinHeaderDragObjectBase() = default;

TQV7SkinHeaderItemCustom* TQV7SkinHeaderDragObjectBase::GetItem() const {
    return FItemAlive && FItemAlive->IsAlive() ? FItem : nullptr;
}

int TQV7SkinHeaderDragObjectBase::GetItemIndex() const {
    return FHeaderControl->GetItems().IndexOf(GetItem());
}

TPoint TQV7SkinHeaderDragObjectBase::PointerInControl() const {
    return FHeaderControl->ScreenToClient(Mouse().GetCursorPos());
}

// --- the place of the drop

bool TQV7SkinHeaderDragObjectBase::FindPlace(TMarker& Marker) {
    const int hot = FHeaderControl->GetHotItem() ? FHeaderControl->GetIndexOfItemMouseOver() : -1;
    if (hot < 0) {
        FLeftIndex = -1;
        FRightIndex = -1;
        return false;
    }
    const TRect item = FHeaderControl->GetHotItemRect();
    Marker.BeforeItem = PointerInControl().X < TRectHelper::CenterH(item);
    Marker.X = FHeaderControl->GetHorzOffset() + (Marker.BeforeItem ? item.Left : item.Right);
    FLeftIndex = Marker.BeforeItem ? hot - 1 : hot;
    FRightIndex = FLeftIndex + 1;
    return true;
}

void TQV7SkinHeaderDragObjectBase::DrawBar(TBitmap& Bitmap, const TMarker& Marker, int HalfWidth) const {
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.GetBrush().SetColor(clWhite);
    canvas.FillRect(TRect(Marker.X - HalfWidth, 0, Marker.X + HalfWidth, FHeaderControl->GetHeight()));
}

void TQV7SkinHeaderDragObjectBase::DrawDropPreview(TBitmap& Bitmap) {
    TMarker marker;
    if (FindPlace(marker)) DrawBar(Bitmap, marker, 2);
}

int TQV7SkinHeaderDragObjectBase::GetTargetDropTabIndex() {
    const int dragged = GetItemIndex();
    if (dragged < 0 || dragged == FLeftIndex || dragged == FRightIndex) return -1;
    if (FLeftIndex == -1 && FRightIndex == 0) return 0;
    const int last = FHeaderControl->GetItems().GetCount() - 1;
    if (FLeftIndex == last) return last;
    // Taken out first, an item from the left leaves its place to those behind it.
    return dragged > FRightIndex ? FRightIndex : FLeftIndex;
}

// --- scrolling

void TQV7SkinHeaderDragObjectBase::DoTimer(TObject*) {
    if (!FOverItem) return;
    int x = PointerInControl().X;
    if (x <= ScrollMargin) return Scroll(-1);
    if (FHeaderControl->GetChevronVisible()) {
        const TQV7SkinHeaderChevronBase& chevron = FHeaderControl->GetChevron();
        const int highEnough = (FHeaderControl->GetHeight() * 2 + 1) / 3;
        if (chevron.GetHeight() >= highEnough) x += chevron.GetWidth();
    }
    if (FHeaderControl->GetWidth() - x <= ScrollMargin) Scroll(1);
}

void TQV7SkinHeaderDragObjectBase::Scroll(int Delta) {
    const TLifeGuard self(*this);
    FHeaderControl->ScrollBy(Delta);
    // Another item came under the pointer.
    if (self.IsAlive() && vcl::GetDragObject() == this) RepeatDragOver();
}

TCursor TQV7SkinHeaderDragObjectBase::GetDragCursor(bool accepted, int x, int y) {
    return FUndock ? crDrag : TBaseDragControlObject::GetDragCursor(accepted, x, y);
}

}  // namespace qv7skin
