#include "header/control/HeaderControl.h"

#include <utility>

#include "header/items/HeaderItems.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin {
namespace {

constexpr TPoint NoPoint{-1, -1};

}  // namespace

// --- the mouse

void TQV7SkinHeaderControl::DoPaintboxMouseEnter(TObject*) {}

void TQV7SkinHeaderControl::DoPaintboxMouseLeave(TObject*) {
    SetIndexOfItemMouseOver(-1);
}

void TQV7SkinHeaderControl::DoPaintboxMouseDown(TObject*, TMouseButton, TShiftState, int X, int Y) {
    FDragStart = FAllowItemDrag ? TPoint(X, Y) : NoPoint;
}

void TQV7SkinHeaderControl::DoPaintboxMouseMove(TObject*, TShiftState Shift, int X, int Y) {
    const TLifeGuard guard(*this);
    if (Shift.Contains(ssLeft) && !FDragObject && FDragStart != NoPoint) StartDragFarFrom({X, Y});
    if (guard.IsAlive()) SetIndexOfItemMouseOver(GetItemIndexAt(X, Y));
    if (guard.IsAlive()) FPaintBox->SetCursor(crDefault);
}

void TQV7SkinHeaderControl::DoPaintboxMouseUp(TObject*, TMouseButton Button, TShiftState Shift, int X,
                                              int Y) {
    if (FDragStarting) return;
    FDragStart = NoPoint;
    const THit hit = HitAt({X, Y});
    if (hit.Index >= 0) FItems->GetItems(hit.Index)->Click(Button, Shift, X - hit.Left, Y);
}

void TQV7SkinHeaderControl::SetIndexOfItemMouseOver(int Index) {
    if (Index == FIndexOfItemMouseOver) return;
    const TLifeGuard guard(*this);
    if (IsIndex(FIndexOfItemMouseOver)) FItems->GetItems(FIndexOfItemMouseOver)->DoLeave();
    if (!guard.IsAlive()) return;
    const int former = std::exchange(FIndexOfItemMouseOver, Index);
    if (IsIndex(Index)) FItems->GetItems(Index)->DoEnter();
    if (guard.IsAlive()) RepaintHovered(former);
}

bool TQV7SkinHeaderControl::IsUnderMouse(const TQV7SkinHeaderItemCustom& Item) const {
    return IsIndex(FIndexOfItemMouseOver) && FItems->GetItems(FIndexOfItemMouseOver) == &Item;
}

TQV7SkinHeaderItemCustom* TQV7SkinHeaderControl::GetHotItem() {
    return IsIndex(FIndexOfItemMouseOver) ? FItems->GetItems(FIndexOfItemMouseOver) : nullptr;
}

// --- the selection

TQV7SkinHeaderItemCustom* TQV7SkinHeaderControl::GetSelectedItem() const {
    for (int i = 0; i < FItems->GetCount(); ++i)
        if (FItems->GetItems(i)->FSelected) return FItems->GetItems(i);
    return nullptr;
}

void TQV7SkinHeaderControl::SetSelectedItem(TQV7SkinHeaderItemCustom* Item) {
    if (Item ? Item->FSelected : !GetSelectedItem()) return;
    for (int i = 0; i < FItems->GetCount(); ++i)
        FItems->GetItems(i)->FSelected = false;
    if (Item) Item->FSelected = true;
    Invalidate();
}

void TQV7SkinHeaderControl::ReleaseItem(TQV7SkinHeaderItemCustom& Item) {
    FItems->Extract(&Item);
}

}  // namespace qv7skin
