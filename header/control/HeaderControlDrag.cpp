#include <cstdlib>

#include "header/control/HeaderControl.h"
#include "header/drag/HeaderDragArrows.h"
#include "header/items/HeaderItems.h"
#include "platform/vcl/controls/Mouse.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin {
namespace {

/// How far the pointer moves with the button held before a drag begins, in pixels.
constexpr int DragDistance = 10;
constexpr TPoint NoPoint{-1, -1};

/// `BeginUpdate` and `EndUpdate` around a scope, also when it fails.
class TUpdateScope {
public:
    explicit TUpdateScope(TQV7SkinHeaderControl& control) : FControl(control), FGuard(control) {
        FControl.BeginUpdate();
    }
    ~TUpdateScope() {
        if (FGuard.IsAlive()) FControl.EndUpdate();
    }
    TUpdateScope(const TUpdateScope&) = delete;
    TUpdateScope& operator=(const TUpdateScope&) = delete;

private:
    TQV7SkinHeaderControl& FControl;
    TLifeGuard FGuard;
};

}  // namespace

// --- drag and drop

void TQV7SkinHeaderControl::ConnectDragging() {
    using C = TQV7SkinHeaderControl;
    FPaintBox->OnStartDrag = {this, &C::DoPaintboxStartDrag};
    FPaintBox->OnEndDrag = {this, &C::DoPaintboxEndDrag};
    FPaintBox->OnDragOver = {this, &C::DoPaintboxDragOver};
    FPaintBox->OnDragDrop = {this, &C::DoPaintBoxDragDrop};
}

void TQV7SkinHeaderControl::StartDragFarFrom(TPoint Point) {
    const bool isFar =
        std::abs(Point.X - FDragStart.X) > DragDistance || std::abs(Point.Y - FDragStart.Y) > DragDistance;
    if (!isFar) return;
    if (!GetHotItem()) {
        // A press beside the items drags nothing, whatever the pointer comes to later.
        FDragStart = NoPoint;
        return;
    }
    const TLifeGuard guard(*this);
    FDragStarting = true;
    try {
        FPaintBox->BeginDrag(true);
    } catch (...) {
        if (guard.IsAlive()) FDragStarting = false;
        throw;
    }
    if (guard.IsAlive()) FDragStarting = false;
}

std::shared_ptr<TQV7SkinHeaderDragObjectBase> TQV7SkinHeaderControl::CreateDragDropObject() {
    return std::make_shared<TQV7SkinHeaderDragObjectWithDragArrows>(this, GetHotItem());
}

void TQV7SkinHeaderControl::DoPaintboxStartDrag(TObject*, TDragObject*& DragObject) {
    FDragObject.reset();
    FDragObject = CreateDragDropObject();
    DragObject = FDragObject.get();
}

void TQV7SkinHeaderControl::DoPaintboxEndDrag(TObject*, TObject*, int, int) {
    const TLifeGuard guard(*this);
    const std::shared_ptr<TQV7SkinHeaderDragObjectBase> object = FDragObject;
    // Handlers may run message loops of their own, in which nothing must scroll.
    if (object) object->SetOverItem(false);
    TQV7SkinHeaderItemCustom* item = object && object->GetUndock() ? object->GetItem() : nullptr;
    try {
        if (item) item->OnUndock(item);
    } catch (...) {
        // The drag ends all the same, and nobody is waiting for it.
    }
    if (!guard.IsAlive()) return;
    FDragObject.reset();
    FDragStart = NoPoint;
    Repaint();
}

void TQV7SkinHeaderControl::DoPaintboxDragOver(TObject*, TObject* Source, int X, int Y, TDragState,
                                               bool& Accept) {
    Accept = false;
    const std::shared_ptr<TQV7SkinHeaderDragObjectBase> object = FDragObject;
    if (!object) return;
    const TLifeGuard guard(*this);
    if (Source == object.get()) {
        // Past the ends of the strip there may be items too, but none that the pointer is over.
        const bool inside = FPaintBox->GetClientRect().Contains({X, Y});
        SetIndexOfItemMouseOver(inside ? GetItemIndexAt(X, Y) : -1);
        if (!guard.IsAlive()) return;
        FPaintBox->SetCursor(crDefault);
        Accept = GetHotItem() != nullptr;
    }
    object->SetOverItem(Accept);
    if (Accept) Repaint();
}

void TQV7SkinHeaderControl::DoPaintBoxDragDrop(TObject*, TObject*, int, int) {
    const std::shared_ptr<TQV7SkinHeaderDragObjectBase> object = FDragObject;
    if (!object) return;
    const TUpdateScope updating(*this);
    if (!object->GetOverItem()) return;
    const int target = object->GetTargetDropTabIndex();
    object->SetOverItem(false);
    if (IsIndex(target)) Move(object->GetItemIndex(), target);
}

void TQV7SkinHeaderControl::DrawDropMarker(TBitmap& Bitmap) {
    const std::shared_ptr<TQV7SkinHeaderDragObjectBase> object = FDragObject;
    if (object && object->GetOverItem()) object->DrawDropPreview(Bitmap);
}

void TQV7SkinHeaderControl::Move(int FromIndex, int ToIndex) {
    const TLifeGuard guard(*this);
    {
        const TUpdateScope updating(*this);
        FItems->Move(FromIndex, ToIndex);
    }
    if (guard.IsAlive()) OnItemMoved(this, FromIndex, ToIndex);
    if (!guard.IsAlive() || !HandleAllocated()) return;
    // Another item lies under the mouse now.
    const TPoint pointer = ScreenToClient(Mouse().GetCursorPos());
    if (GetClientRect().Contains(pointer)) DoPaintboxMouseMove(this, {}, pointer.X, pointer.Y);
}

}  // namespace qv7skin
