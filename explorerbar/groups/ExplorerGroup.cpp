#include "explorerbar/groups/ExplorerGroup.h"

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"
#include "explorerbar/groups/ExplorerGroupList.h"
#include "explorerbar/groups/ExplorerSkin.h"
#include "explorerbar/items/ExplorerItemList.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace qv7skin {

TQV7SkinExplorerGroup::TQV7SkinExplorerGroup(TQV7SkinExplorerBar* ExBar)
    : FSkin(TExplorerSkin::Shared()), FExBar(ExBar), FItems(std::make_unique<TQV7SkinExplorerItems>(this)) {}

TQV7SkinExplorerGroup::~TQV7SkinExplorerGroup() {
    // Items tell the group that they go; it must be whole then.
    FItems.reset();
    if (FExBar && FExBar->HotObject == this) FExBar->HotObject = nullptr;
}

// --- what the host sets

void TQV7SkinExplorerGroup::Refresh(bool Remeasure) {
    if (!FExBar) return;
    if (Remeasure) FExBar->NeedsMeasure = true;
    if (!FExBar->IsUpdating()) FExBar->Repaint();
}

bool TQV7SkinExplorerGroup::IsUpdating() const {
    return FExBar && FExBar->IsUpdating();
}

void TQV7SkinExplorerGroup::SetTitle(const String& Value) {
    if (Value == FTitle) return;
    FTitle = Value;
    Refresh(false);
}

void TQV7SkinExplorerGroup::SetGroupIconIndex(int Value) {
    if (Value == FGroupIconIndex) return;
    FGroupIconIndex = Value;
    Refresh(false);
}

void TQV7SkinExplorerGroup::SetSpecialGroup(bool Value) {
    if (Value == FSpecialGroup) return;
    FSpecialGroup = Value;
    Refresh(false);
}

void TQV7SkinExplorerGroup::SetVisible(bool Value) {
    if (Value == FVisible) return;
    FVisible = Value;
    Refresh(true);
}

void TQV7SkinExplorerGroup::SetBgImage(const TBitmap* Value) {
    if (!Value) {
        FBgImage.reset();
        return;
    }
    if (!FBgImage) FBgImage = std::make_unique<TBitmap>();
    FBgImage->Assign(Value);
}

void TQV7SkinExplorerGroup::BeginUpdate() {
    if (FExBar) FExBar->BeginUpdate();
}

void TQV7SkinExplorerGroup::EndUpdate() {
    if (FExBar) FExBar->EndUpdate();
}

// --- mouse and keyboard

bool TQV7SkinExplorerGroup::IsHotArea() const {
    return FExBar && FExBar->HotObject == this;
}

bool TQV7SkinExplorerGroup::IsFocused() const {
    return FExBar && FExBar->GetFocus().IsGroupHeaderFocused(this);
}

bool TQV7SkinExplorerGroup::IsLastVisibleGroup() const {
    if (!FExBar) return true;
    const TQV7SkinExplorerGroups& groups = FExBar->GetGroups();
    for (int i = groups.GetCount() - 1; i >= 0; --i)
        if (groups[i]->GetVisible()) return groups[i] == this;
    return false;
}

void TQV7SkinExplorerGroup::ScrollIntoView(bool Header) {
    if (!FExBar || !FVisible) return;
    TControlScrollBar& bar = FExBar->GetVertScrollBar();
    const int seen = FExBar->GetClientHeight();
    const int bottom = Header ? FHeaderRect.Bottom : FBodyRect.Bottom;
    if (bar.GetPosition() > FHeaderRect.Top)
        bar.SetPosition(FHeaderRect.Top);
    else if (bar.GetPosition() + seen < bottom)
        bar.SetPosition(bottom - seen);
}

// --- news of the items

void TQV7SkinExplorerGroup::ItemsChanged() {
    FBottoms.clear();
    FTouched.clear();
    FPlacesKnown = false;
    FMeasuredWidth = -1;
    FBlockOffset = -1;
    FShownCount = -1;
}

void TQV7SkinExplorerGroup::ItemLeaves(const TQV7SkinExplorerItemCustom& Item) {
    FTouched.erase(&Item);
    if (FExBar && FExBar->HotObject == &Item) FExBar->HotObject = nullptr;
}

void TQV7SkinExplorerGroup::ItemLooksChanged(const TQV7SkinExplorerItemCustom& Item) {
    FBlockOffset = -1;
    FMeasuredWidth = -1;
    // At the end of an update all are measured anew anyway.
    if (IsUpdating()) return;
    FTouched.insert(&Item);
    FPlacesKnown = false;
}

}  // namespace qv7skin
