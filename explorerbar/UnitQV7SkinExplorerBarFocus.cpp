#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "explorerbar/items/DrawingTools.h"

namespace qv7skin {
namespace {

constexpr TColor LightGrey = 0x00F0EAE7;

bool IsShiftDown() {
    return ::GetKeyState(VK_SHIFT) < 0;
}

constexpr TFocusIndex Nowhere{0, false, -1};

}  // namespace

TQV7SkinExplorerBarFocus::~TQV7SkinExplorerBarFocus() {
    FBar = nullptr;
}

// --- where the focus is

bool TQV7SkinExplorerBarFocus::IsValidItemIndex(const TFocusIndex& Index) const {
    const TQV7SkinExplorerGroups& groups = FBar->GetGroups();
    return !Index.IsHeader && Index.GroupIndex >= 0 && Index.GroupIndex < groups.GetCount() &&
           Index.ItemIndex >= 0 && Index.ItemIndex < groups[Index.GroupIndex]->GetItems().GetCount();
}

bool TQV7SkinExplorerBarFocus::IsValidGroupIndex(const TFocusIndex& Index) const {
    return Index.IsHeader && Index.GroupIndex >= 0 && Index.GroupIndex < FBar->GetGroups().GetCount();
}

bool TQV7SkinExplorerBarFocus::IsValidIndex(const TFocusIndex& Index) const {
    return IsValidItemIndex(Index) || IsValidGroupIndex(Index);
}

TQV7SkinExplorerItemCustom* TQV7SkinExplorerBarFocus::FocusedItem() const {
    if (!IsValidItemIndex(FIndex)) return nullptr;
    return FBar->GetGroups()[FIndex.GroupIndex]->GetItems()[FIndex.ItemIndex];
}

TQV7SkinExplorerGroup* TQV7SkinExplorerBarFocus::FocusedGroup() const {
    return IsValidGroupIndex(FIndex) ? FBar->GetGroups()[FIndex.GroupIndex] : nullptr;
}

bool TQV7SkinExplorerBarFocus::IsItemFocused(const TQV7SkinExplorerItemCustom* Item) const {
    return FFocused && Item && FocusedItem() == Item;
}

bool TQV7SkinExplorerBarFocus::IsGroupHeaderFocused(const TQV7SkinExplorerGroup* Group) const {
    return FFocused && Group && FocusedGroup() == Group;
}

// --- moving it

void TQV7SkinExplorerBarFocus::SetFocused(bool Value) {
    if (Value == FFocused) return;
    FFocused = Value;
    ResetIndex(!IsShiftDown());
    FBar->Repaint();
}

void TQV7SkinExplorerBarFocus::ResetIndex(bool Forward) {
    if (Forward) {
        FIndex = FindNextVisible({0, true, 0}, true);
        return;
    }
    const TQV7SkinExplorerGroups& groups = FBar->GetGroups();
    const int last = groups.GetCount() - 1;
    const int items = last < 0 ? 0 : groups[last]->GetItems().GetCount();
    FIndex = FindPreviousVisible({last, items == 0, items - 1}, true);
}

bool TQV7SkinExplorerBarFocus::CanMoveFocus(bool Forward) const {
    return IsValidIndex(Forward ? FindNextVisible(FIndex, false) : FindPreviousVisible(FIndex, false));
}

bool TQV7SkinExplorerBarFocus::WantTabs() const {
    return CanMoveFocus(!IsShiftDown());
}

void TQV7SkinExplorerBarFocus::MoveFocus(bool Forward) {
    const TFocusIndex next = Forward ? FindNextVisible(FIndex, false) : FindPreviousVisible(FIndex, false);
    if (!IsValidIndex(next)) return;
    FIndex = next;
    const TLifeGuard guard(*FBar);
    FBar->Repaint();
    if (!guard.IsAlive()) return;
    if (TQV7SkinExplorerItemCustom* item = FocusedItem())
        item->ScrollIntoView();
    else if (TQV7SkinExplorerGroup* group = FocusedGroup())
        group->ScrollIntoView(false);
}

TFocusIndex TQV7SkinExplorerBarFocus::FindNextVisible(TFocusIndex Start, bool IncludeStart) const {
    if (!IncludeStart) {
        Start.ItemIndex = Start.IsHeader ? 0 : Start.ItemIndex + 1;
        Start.IsHeader = false;
    }
    const TQV7SkinExplorerGroups& groups = FBar->GetGroups();
    for (int g = Start.GroupIndex; g >= 0 && g < groups.GetCount(); ++g) {
        const TQV7SkinExplorerGroup& group = *groups[g];
        if (group.GetVisible()) {
            if (Start.IsHeader) return {g, true, Start.ItemIndex};
            const TQV7SkinExplorerItems& items = group.GetItems();
            const int end = group.IsClosed() ? 0 : items.GetCount();
            for (int i = Start.ItemIndex; i >= 0 && i < end; ++i)
                if (items[i]->GetCanFocus()) return {g, false, i};
        }
        Start.IsHeader = true;
        Start.ItemIndex = 0;
    }
    return Nowhere;
}

TFocusIndex TQV7SkinExplorerBarFocus::FindPreviousVisible(TFocusIndex Start, bool IncludeStart) const {
    const TQV7SkinExplorerGroups& groups = FBar->GetGroups();
    const auto toGroup = [&](int index) {
        const int count = index >= 0 && index < groups.GetCount() ? groups[index]->GetItems().GetCount() : 0;
        Start = {index, count == 0, count - 1};
    };
    if (!IncludeStart) {
        if (Start.IsHeader)
            toGroup(Start.GroupIndex - 1);
        else if (Start.ItemIndex > 0)
            --Start.ItemIndex;
        else
            Start.IsHeader = true;
    }
    while (Start.GroupIndex >= 0 && Start.GroupIndex < groups.GetCount()) {
        const TQV7SkinExplorerGroup& group = *groups[Start.GroupIndex];
        if (group.GetVisible()) {
            if (!Start.IsHeader && !group.IsClosed()) {
                const TQV7SkinExplorerItems& items = group.GetItems();
                for (int i = Start.ItemIndex; i >= 0; --i)
                    if (i < items.GetCount() && items[i]->GetCanFocus()) return {Start.GroupIndex, false, i};
            }
            return {Start.GroupIndex, true, 0};
        }
        toGroup(Start.GroupIndex - 1);
    }
    return Nowhere;
}

// --- keys

void TQV7SkinExplorerBarFocus::DoReturnKeyPress() {
    if (!FFocused) return;
    const TLifeGuard guard(*FBar);
    TQV7SkinExplorerBar& bar = *FBar;
    if (TQV7SkinExplorerItemCustom* item = FocusedItem())
        item->ReturnPressed();
    else if (TQV7SkinExplorerGroup* group = FocusedGroup())
        group->OpenClose();
    if (guard.IsAlive()) bar.Repaint();
}

void TQV7SkinExplorerBarFocus::DoSpaceKeyPress() {
    if (!FFocused) return;
    auto* box = dynamic_cast<TQV7SkinExplorerItemCheckBox*>(FocusedItem());
    if (!box) return;
    const TLifeGuard guard(*FBar);
    TQV7SkinExplorerBar& bar = *FBar;
    box->Click();
    if (guard.IsAlive()) bar.Repaint();
}

// --- painting

void TQV7SkinExplorerBarFocus::DrawFocusRect(TCanvas& Canvas, const TRect& Rect, TColor Color) const {
    const TDrawingTools tools(Canvas);
    Canvas.GetPen().SetStyle(psDot);
    Canvas.GetPen().SetColor(Color == clDefaultFocus ? LightGrey : Color);
    Canvas.GetBrush().SetStyle(bsClear);
    Canvas.Rectangle(Rect.Left - 3 + 1, Rect.Top, Rect.Right + 3 + 1, Rect.Bottom);
}

}  // namespace qv7skin
