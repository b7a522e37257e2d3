#include "platform/vcl/controls/DragObject.h"
#include "platform/vcl/controls/DragSession.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

bool IsForm(TControl& control) {
    TWinControl* window = control.AsWinControl();
    return window && window->AsParentForm();
}

}  // namespace

void TControl::BeginDrag(bool immediate, int threshold) {
    if (IsForm(*this)) throw EInvalidOperation(L"Cannot drag a form");
    TDragSession::Begin(*this, immediate, threshold < 0 ? Mouse().GetDragThreshold() : threshold);
}

void TControl::EndDrag(bool drop) {
    const std::shared_ptr<TDragSession> session = TDragSession::Current();
    if (session && session->GetControl() == this) session->End(drop);
}

bool TControl::Dragging() const {
    const std::shared_ptr<TDragSession> session = TDragSession::Current();
    return session && session->GetControl() == this && session->IsActive();
}

bool TControl::BeginAutoDrag() {
    if (IsForm(*this)) return false;
    BeginDrag(Mouse().GetDragImmediate(), Mouse().GetDragThreshold());
    return true;
}

void TControl::DoStartDrag(TDragObject*& dragObject) {
    OnStartDrag(this, dragObject);
}

void TControl::DoEndDrag(TObject* target, int x, int y) {
    OnEndDrag(this, target, x, y);
}

void TControl::DragOver(TObject* source, int x, int y, TDragState state, bool& accept) {
    accept = OnDragOver.IsAssigned();
    OnDragOver(this, source, x, y, state, accept);
}

void TControl::DragDrop(TObject* source, int x, int y) {
    OnDragDrop(this, source, x, y);
}

void TControl::CmDrag(TMessage& message) {
    const auto& drag = *message.As<const TDragRec>();
    const auto kind = static_cast<TDragMessage>(message.WParam);
    if (kind == dmFindTarget) {
        TWinControl* window = AsWinControl();
        TControl* inside = window ? window->ControlAtPos(window->ScreenToClient(drag.Pos), false) : nullptr;
        message.Result = reinterpret_cast<LRESULT>(inside ? inside : this);
        return;
    }
    if (!drag.Target || !drag.Source) return;
    const TPoint pos = drag.Source->GetDragTargetPos();
    TObject* source = drag.Source->GetSource();
    if (kind == dmDragDrop) return drag.Target->DragDrop(source, pos.X, pos.Y);
    TDragState state = dsDragMove;
    if (kind == dmDragEnter) state = dsDragEnter;
    if (kind == dmDragLeave) state = dsDragLeave;
    bool accept = false;
    drag.Target->DragOver(source, pos.X, pos.Y, state, accept);
    message.Result = accept;
}

}  // namespace vcl
