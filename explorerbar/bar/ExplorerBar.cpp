#include "explorerbar/UnitQV7SkinExplorerBar.h"

#include <utility>

#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/items/ExplorerItem.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/ImageList.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace qv7skin {

const TMetaClass& TQV7SkinExplorerBar::StaticClass() {
    using C = TQV7SkinExplorerBar;
    static const TMetaClass meta = DefineClass<C>(L"TQV7SkinExplorerBar", TScrollingWinControl::StaticClass())
                                       .With(PlacementRows)
                                       .Property(L"Animate", &C::GetAnimate, &C::SetAnimate)
                                       .Property(L"AutoTabStop", &C::GetAutoTabStop, &C::SetAutoTabStop)
                                       .With(FontRows)
                                       .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
                                       .Property(L"GroupIcons", &C::GetGroupIcons, &C::SetGroupIcons)
                                       .Property(L"ItemIcons", &C::GetItemIcons, &C::SetItemIcons)
                                       .Property(L"PopupMenu", &C::GetPopupMenu, &C::SetPopupMenu)
                                       .Property(L"ShowHint", &C::GetShowHint, &C::SetShowHint)
                                       .Stored(&C::IsShowHintStored)
                                       .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
                                       .Property(L"Visible", &C::GetVisible, &C::SetVisible, true)
                                       .With(ResizeRows)
                                       .Event(L"OnClick", &C::OnClick)
                                       .Event(L"OnContextPopup", &C::OnContextPopup)
                                       .Event(L"OnDblClick", &C::OnDblClick)
                                       .Event(L"OnEnter", &C::OnEnter)
                                       .Event(L"OnExit", &C::OnExit)
                                       .Event(L"OnGetSiteInfo", &C::OnGetSiteInfo)
                                       .Event(L"OnLeave", &C::OnLeave)
                                       .Event(L"OnMouseDown", &C::OnMouseDown)
                                       .Event(L"OnMouseMove", &C::OnMouseMove)
                                       .Event(L"OnMouseUp", &C::OnMouseUp)
                                       .Event(L"OnMouseWheel", &C::OnMouseWheel)
                                       .Event(L"OnMouseWheelDown", &C::OnMouseWheelDown)
                                       .Event(L"OnMouseWheelUp", &C::OnMouseWheelUp);
    return meta;
}

TQV7SkinExplorerBar::TQV7SkinExplorerBar(TComponent* AOwner) : TScrollingWinControl(AOwner) {
    SetBounds(0, 0, 218, 300);
    SetParentColor(false);
    SetParentFont(true);
    TControlScrollBar& vert = GetVertScrollBar();
    vert.SetButtonSize(17);
    vert.SetSmooth(true);
    vert.SetTracking(true);
    vert.SetVisible(false);
    GetHorzScrollBar().SetVisible(false);
    SetAutoScroll(true);

    FPaintBox = new TScrolledPaintBox(this);
    FPaintBox->SetBounds(0, 0, GetWidth(), 1);
    FPaintBox->SetParent(this);
    FPaintBox->OnFFPaint = {this, &TQV7SkinExplorerBar::PaintBuffer};
    FPaintBox->OnMouseMove = {this, &TQV7SkinExplorerBar::PbMouseMove};
    FPaintBox->OnMouseUp = {this, &TQV7SkinExplorerBar::PbMouseUp};
    FGroups = std::make_unique<TQV7SkinExplorerGroups>(*this);
    SetSkin();
    FFocus = std::make_unique<TQV7SkinExplorerBarFocus>(*this);
}

TQV7SkinExplorerBar::~TQV7SkinExplorerBar() {
    // Nothing is measured or painted any more by what goes.
    FUpdating = true;
    HotObject = nullptr;
    FFocus.reset();
    FAnimTimer.Stop();
    FGroups.reset();
    // It goes with the other children, and its window with the bar's.
    FPaintBox->OnFFPaint.Clear();
    FPaintBox->OnMouseMove.Clear();
    FPaintBox->OnMouseUp.Clear();
}

void TQV7SkinExplorerBar::SetSkin() {
    FadeColor = clWhite;
    LineColor = 0x00F0EAE7;
    BodyColor = clWhite;
    HeaderColor = clWhite;
    HeaderHotColor = clWhite;
    SpecialHeaderColor = clBlack;
    SpecialHeaderHotColor = clBlack;
    ItemTextColor = clBlack;
    ItemHotTextColor = clBlack;
    SetColor(clWhite);
}

// --- what the host sets

void TQV7SkinExplorerBar::SetAutoTabStop(bool Value) {
    if (Value == FAutoTabStop) return;
    FAutoTabStop = Value;
    GroupCountChanged();
}

void TQV7SkinExplorerBar::SetGroupIcons(TCustomImageList* Value) {
    FGroupIcons = Value;
    if (Value) Value->FreeNotification(this);
}

void TQV7SkinExplorerBar::SetItemIcons(TCustomImageList* Value) {
    FItemIcons = Value;
    if (Value) Value->FreeNotification(this);
}

void TQV7SkinExplorerBar::Notification(TComponent* component, TOperation operation) {
    TScrollingWinControl::Notification(component, operation);
    if (operation != opRemove) return;
    if (component == FGroupIcons) FGroupIcons = nullptr;
    if (component == FItemIcons) FItemIcons = nullptr;
}

void TQV7SkinExplorerBar::GroupCountChanged() {
    if (FAutoTabStop) SetTabStop(FGroups->GetCount() > 0);
}

void TQV7SkinExplorerBar::GroupsChanged() {
    if (!FGroups) return;
    GroupCountChanged();
    const int width = GetClientWidth();
    for (int i = 0; i < FGroups->GetCount(); ++i)
        (*FGroups)[i]->SetWidth(width);
    NeedsMeasure = true;
    if (!FUpdating) Repaint();
}

void TQV7SkinExplorerBar::ForgetGroup(const TQV7SkinExplorerGroup& Group) {
    const auto* item = dynamic_cast<const TQV7SkinExplorerItemCustom*>(HotObject);
    if (HotObject == &Group || (item && item->GetOwner() == &Group)) HotObject = nullptr;
}

// --- updates

void TQV7SkinExplorerBar::BeginUpdate() {
    ++FUpdateCount;
    FUpdating = true;
}

void TQV7SkinExplorerBar::EndUpdate() {
    if (--FUpdateCount > 0) return;
    FUpdateCount = 0;
    FUpdating = false;
    NeedsMeasure = true;
    FLastWidth = -1;
    const TLifeGuard guard(*this);
    try {
        Resize();
    } catch (...) {
        if (guard.IsAlive()) ShowWindowNow();
        throw;
    }
    if (guard.IsAlive()) ShowWindowNow();
}

/// A window that is to appear during an update waits for its end: then the system paints its frame once, with
/// the scroll bar.
bool TQV7SkinExplorerBar::ShowsLater() {
    return FShowsLater = FUpdating && GetShowing();
}

void TQV7SkinExplorerBar::ShowWindowNow() {
    if (!std::exchange(FShowsLater, false)) return;
    const TLifeGuard guard(*this);
    Perform(CM_SHOWINGCHANGED);
    if (guard.IsAlive()) FPaintBox->Update();
}

// --- keyboard

void TQV7SkinExplorerBar::DoEnter() {
    const TLifeGuard guard(*this);
    TScrollingWinControl::DoEnter();
    if (guard.IsAlive()) FFocus->SetFocused(true);
}

void TQV7SkinExplorerBar::DoExit() {
    const TLifeGuard guard(*this);
    TScrollingWinControl::DoExit();
    if (guard.IsAlive()) FFocus->SetFocused(false);
}

void TQV7SkinExplorerBar::KeyDown(WORD& key, TShiftState shift) {
    switch (key) {
        case VK_TAB:
            return FFocus->MoveFocus(!shift.Contains(ssShift));
        case VK_RETURN:
            return FFocus->DoReturnKeyPress();
        case VK_SPACE:
            return FFocus->DoSpaceKeyPress();
        default:
            TScrollingWinControl::KeyDown(key, shift);
    }
}

void TQV7SkinExplorerBar::Dispatch(TMessage& message) {
    if (message.Msg == CM_SHOWINGCHANGED && ShowsLater()) return;
    const TLifeGuard guard(*this);
    TScrollingWinControl::Dispatch(message);
    if (!guard.IsAlive()) return;
    switch (message.Msg) {
        case WM_GETDLGCODE:
            message.Result &= ~static_cast<LRESULT>(DLGC_WANTTAB);
            if (FFocus->WantTabs()) message.Result |= DLGC_WANTTAB;
            break;
        case CM_MOUSELEAVE:
            MouseLeft(message);
            break;
        case CM_FONTCHANGED:
            if (!FGroups) break;  // still being built
            NeedsMeasure = true;
            if (!FUpdating) Repaint();
            break;
        default:
            break;
    }
}

// --- the place of items

void TQV7SkinExplorerBar::ScrollIntoView(TQV7SkinExplorerItemCustom* Item) {
    if (Item) Item->ScrollIntoView();
}

TRect TQV7SkinExplorerBar::ClipRectToClient(const TQV7SkinExplorerItemCustom& Item) const {
    return ClipRectToClient(Item.ClipRect());
}

TRect TQV7SkinExplorerBar::ClipRectToClient(const TRect& Rect) const {
    TRect moved = Rect;
    moved.Offset(0, GetVertScrollBar().GetPosition());
    return moved;
}

}  // namespace qv7skin
