#include "platform/vcl/controls/DragObject.h"

#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/DragImageList.h"
#include "platform/vcl/controls/DragSession.h"

namespace vcl {

TDragObject::~TDragObject() {
    ForgetDragObject(*this);
}

void TDragObject::ShowDragImage() {
    if (TDragImageList* images = GetDragImages()) images->ShowDragImage();
}

void TDragObject::HideDragImage() {
    if (TDragImageList* images = GetDragImages()) images->HideDragImage();
}

void TDragObject::Finished(TControl*, int, int, bool) {}

TCursor TDragObject::GetDragCursor(bool accepted, int, int) {
    return accepted ? crDrag : crNoDrop;
}

TBaseDragControlObject::TBaseDragControlObject(TControl* control) : FControl(control), FAlive(*control) {}

TControl* TBaseDragControlObject::GetControl() const {
    return FAlive.IsAlive() && !FControl->IsInState(csDestroying) ? FControl : nullptr;
}

void TBaseDragControlObject::Finished(TControl* target, int x, int y, bool accepted) {
    TControl* control = GetControl();
    if (!control) return;
    const TLifeGuard self(*this);
    if (!accepted) control->DragCanceled();
    if (self.IsAlive() && GetControl()) EndDrag(target, x, y);
}

void TBaseDragControlObject::EndDrag(TControl* target, int x, int y) {
    if (TControl* control = GetControl()) control->DoEndDrag(target, x, y);
}

TCursor TDragControlObject::GetDragCursor(bool accepted, int, int) {
    if (!accepted) return crNoDrop;
    const TControl* control = GetControl();
    return control ? control->GetDragCursor() : crDrag;
}

TDragImageList* TDragControlObject::GetDragImages() {
    TControl* control = GetControl();
    return control ? control->GetDragImages() : nullptr;
}

}  // namespace vcl
