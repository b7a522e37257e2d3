#include "explorerbar/items/ExplorerItemWithPopupWindow.h"

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace qv7skin {

const TMetaClass& TQV7SkinExplorerItemPopupWindow::StaticClass() {
    static const TMetaClass meta = DefineClass<TQV7SkinExplorerItemPopupWindow>(
        L"TQV7SkinExplorerItemPopupWindow", TQV7SkinPopupForm::StaticClass());
    return meta;
}

TQV7SkinExplorerItemPopupWindow::TQV7SkinExplorerItemPopupWindow(TComponent* AOwner)
    : TQV7SkinPopupForm(AOwner) {
    SetResizeDirection({rdLeft, rdBottom});
}

void TQV7SkinExplorerItemPopupWindow::MouseLeave() {
    const TLifeGuard guard(*this);
    TQV7SkinPopupForm::MouseLeave();
    if (guard.IsAlive() && !GetShowBorder()) OnLeaveWindow(this);
}

TQV7SkinExplorerItemWithPopupWindow::TQV7SkinExplorerItemWithPopupWindow(
    TQV7SkinExplorerItemPopupWindow* PopupWindow)
    : FPopupWindow(PopupWindow) {}

TQV7SkinExplorerItemWithPopupWindow::~TQV7SkinExplorerItemWithPopupWindow() {
    if (FPopupWindow && FPopupWindow->OnLeaveWindow.ObjectPart() == dynamic_cast<void*>(this))
        FPopupWindow->OnLeaveWindow.Clear();
}

void TQV7SkinExplorerItemWithPopupWindow::SetPopupWindow(TCustomForm* Form) {
    auto* window = dynamic_cast<TQV7SkinExplorerItemPopupWindow*>(Form);
    if (Form && !window)
        throw EInvalidOperation(String(Form->ClassName()) +
                                L" found but TQV7SkinExplorerItemPopupWindow expected");
    FPopupWindow = window;
}

bool TQV7SkinExplorerItemWithPopupWindow::GetWindowLocked() const {
    return FPopupWindow && FPopupWindow->GetLocked();
}

void TQV7SkinExplorerItemWithPopupWindow::SetWindowLocked(bool Value) {
    if (FPopupWindow) FPopupWindow->SetLocked(Value);
}

void TQV7SkinExplorerItemWithPopupWindow::DoEnter(TCursor& Cursor) {
    const TLifeGuard guard(*this);
    TQV7SkinExplorerItemLink::DoEnter(Cursor);
    if (guard.IsAlive()) DoShowWindow();
}

void TQV7SkinExplorerItemWithPopupWindow::DoLeave(TCursor& Cursor) {
    const TLifeGuard guard(*this);
    TQV7SkinExplorerItemLink::DoLeave(Cursor);
    if (guard.IsAlive()) DoLeaveWindow(this);
}

void TQV7SkinExplorerItemWithPopupWindow::DoShowWindow() {
    TQV7SkinExplorerBar* bar = GetBar();
    if (!FPopupWindow || !bar) return;
    FPopupWindow->OnLeaveWindow = {this, &TQV7SkinExplorerItemWithPopupWindow::DoLeaveWindow};
    if (FPopupWindow->GetVisible() && !FPopupWindow->GetShowBorder()) return;
    const TRect place = bar->ClipRectToClient(*this);
    FPopupWindow->SetAttachedTo(dynamic_cast<TCustomForm*>(GetParentForm(bar)));
    if (FPopupWindow->GetShowBorder())
        FPopupWindow->Show();
    else
        FPopupWindow->ShowAtControl(bar, 0, place.Bottom - 2);
}

void TQV7SkinExplorerItemWithPopupWindow::DoLeaveWindow(TObject*) {
    if (!FPopupWindow || FPopupWindow->GetLocked() || FPopupWindow->GetShowBorder()) return;
    POINT at{};
    ::GetCursorPos(&at);
    if (!FPopupWindow->GetBoundsRect().Contains(at) && !IsHotArea() && !IsAt(at)) FPopupWindow->Hide();
}

/// Whether the mouse at that place of the screen is over the item, of which the bar may not have heard yet:
/// the window that the mouse left is told first.
bool TQV7SkinExplorerItemWithPopupWindow::IsAt(TPoint Place) const {
    TQV7SkinExplorerBar* bar = GetBar();
    if (!bar || ::WindowFromPoint(Place) != bar->GetPaintBox().WindowHandle()) return false;
    const TPoint inContent = bar->GetPaintBox().ScreenToClient(Place);
    return bar->GetHotArea(inContent.X, inContent.Y) == this;
}

}  // namespace qv7skin
