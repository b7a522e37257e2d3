#include "platform/vcl/controls/DragImageList.h"

#include "platform/vcl/controls/DragImageWindow.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TDragImageList::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TDragImageList>(L"TDragImageList", TCustomImageList::StaticClass());
    return meta;
}

TDragImageList::TDragImageList(TComponent* AOwner) : TCustomImageList(AOwner) {}

TDragImageList::~TDragImageList() = default;

bool TDragImageList::SetDragImage(int index, int hotSpotX, int hotSpotY) {
    if (index < 0 || index >= GetCount()) return false;
    FIndex = index;
    FHotSpot = {hotSpotX, hotSpotY};
    return true;
}

bool TDragImageList::BeginDrag(TPoint pointer) {
    if (FIndex < 0 || FIndex >= GetCount()) return false;
    FWindow = std::make_unique<TDragImageWindow>(*this, FIndex);
    return DragMove(pointer);
}

bool TDragImageList::DragMove(TPoint pointer) {
    if (!FWindow) return false;
    FWindow->MoveTo({pointer.X - FHotSpot.X, pointer.Y - FHotSpot.Y});
    return true;
}

void TDragImageList::HideDragImage() {
    if (FWindow) FWindow->Show(false);
}

void TDragImageList::ShowDragImage() {
    if (FWindow) FWindow->Show(true);
}

bool TDragImageList::EndDrag() {
    const bool shown = FWindow != nullptr;
    FWindow.reset();
    return shown;
}

HWND TDragImageList::GetDragWindow() const {
    return FWindow ? FWindow->Handle() : nullptr;
}

}  // namespace vcl
