#include "explorerbar/items/ExplorerItem.h"

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"
#include "explorerbar/groups/ExplorerGroup.h"
#include "explorerbar/items/DrawingTools.h"
#include "explorerbar/items/ExplorerItemList.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace qv7skin {

TQV7SkinExplorerItemCustom::~TQV7SkinExplorerItemCustom() {
    if (FOwner) FOwner->ItemLeaves(*this);
}

// --- painting

void TQV7SkinExplorerItemCustom::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Place(Bitmap, Left, Top, Width);
    TCanvas& canvas = Bitmap.GetCanvas();
    const TDrawingTools tools(canvas);
    canvas.GetPen().SetColor(clBtnText);
    canvas.GetPen().SetStyle(psDot);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.Rectangle(FClipRect);
    Measure(Bitmap, Left, Top, Width);
}

void TQV7SkinExplorerItemCustom::Measure(TBitmap&, int&, int& Top, int&) {
    Top += 20;
}

void TQV7SkinExplorerItemCustom::Place(TBitmap&, int Left, int Top, int Width) {
    FClipRect = {Left + 5, Top + 2, Left + Width - 5, Top + 18};
}

void TQV7SkinExplorerItemCustom::DrawFocusRect(TCanvas& Canvas, const TRect& Rect) const {
    if (const auto* bar = GetBar()) bar->GetFocus().DrawFocusRect(Canvas, Rect, clDefaultFocus);
}

// --- the group and its bar

TQV7SkinExplorerBar* TQV7SkinExplorerItemCustom::GetBar() const {
    return FOwner ? FOwner->GetExBar() : nullptr;
}

int TQV7SkinExplorerItemCustom::GroupWidth(int Width) const {
    return FOwner ? FOwner->GetWidth() : Width;
}

const TCustomImageList* TQV7SkinExplorerItemCustom::ItemIcons() const {
    const auto* bar = GetBar();
    return bar ? bar->GetItemIcons() : nullptr;
}

TColor TQV7SkinExplorerItemCustom::TextColor(bool Hot) const {
    const auto* bar = GetBar();
    if (!bar) return clBlack;
    return Hot ? bar->ItemHotTextColor : bar->ItemTextColor;
}

void TQV7SkinExplorerItemCustom::SetOwner(TQV7SkinExplorerGroup* Group) {
    if (FOwner && FOwner != Group) FOwner->ItemLeaves(*this);
    FOwner = Group;
}

void TQV7SkinExplorerItemCustom::SetVisible(bool Value) {
    Change(FVisible, Value, true);
}

bool TQV7SkinExplorerItemCustom::IsHotArea() const {
    const auto* bar = GetBar();
    return bar && bar->HotObject == this;
}

bool TQV7SkinExplorerItemCustom::IsLastVisibleItem() const {
    if (!FOwner) return false;
    const TQV7SkinExplorerItems& items = FOwner->GetItems();
    for (int i = items.IndexOf(this) + 1; i < items.GetCount(); ++i)
        if (items[i]->GetVisible() && !items[i]->IsSeparator()) return false;
    return true;
}

bool TQV7SkinExplorerItemCustom::IsFocused() const {
    const auto* bar = GetBar();
    return bar && bar->GetFocus().IsItemFocused(this);
}

void TQV7SkinExplorerItemCustom::Refresh(bool Remeasure) {
    if (!FOwner) return;
    FOwner->ItemLooksChanged(*this);
    auto* bar = GetBar();
    if (!bar) return;
    if (Remeasure) bar->NeedsMeasure = true;
    if (!bar->IsUpdating()) bar->Repaint();
}

void TQV7SkinExplorerItemCustom::ScrollIntoView() {
    auto* bar = GetBar();
    if (!bar || !FVisible) return;
    // An item out of sight may never have been painted where it is now.
    FOwner->PlaceItem(*this);
    auto& scrollBar = bar->GetVertScrollBar();
    if (scrollBar.GetPosition() > FClipRect.Top)
        scrollBar.SetPosition(FClipRect.Top);
    else if (scrollBar.GetPosition() + bar->GetClientHeight() < FClipRect.Bottom)
        scrollBar.SetPosition(FClipRect.Bottom - bar->GetClientHeight());
}

// --- mouse and keyboard

void TQV7SkinExplorerItemCustom::DoClick() {
    OnClick(this);
}

void TQV7SkinExplorerItemCustom::DoEnter(TCursor&) {
    OnEnter(this);
}

void TQV7SkinExplorerItemCustom::DoLeave(TCursor&) {
    OnLeave(this);
}

}  // namespace qv7skin
