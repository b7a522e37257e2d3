#include "header/control/HeaderControl.h"

#include <algorithm>

#include "header/chevrons/HeaderChevronBase.h"
#include "header/items/HeaderItems.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin {

// --- widths

TCanvas& TQV7SkinHeaderControl::MeasuringCanvas() const {
    if (FPaintBox->GetNeedsPaint()) FPaintBox->ReAssignBufferFont();  // a new buffer has none yet
    return FPaintBox->GetBuffer().GetCanvas();
}

int TQV7SkinHeaderControl::WidthOf(int Index) const {
    int width = 0;
    FItems->GetItems(Index)->Measure(MeasuringCanvas(), width);
    return width;
}

int TQV7SkinHeaderControl::VisibleWidthOf(int Index) const {
    return FItems->GetItems(Index)->GetVisible() ? WidthOf(Index) : 0;
}

/// Whether the visible items from the index on take up more than the limit. It looks no farther than needed,
/// however many items there are.
bool TQV7SkinHeaderControl::AreWiderThan(int Limit, int FromIndex) const {
    int sum = 0;
    for (int i = FromIndex; i < FItems->GetCount(); ++i) {
        sum += VisibleWidthOf(i);
        if (Limit < sum) return true;
    }
    return false;
}

int TQV7SkinHeaderControl::GetClippedWidth() {
    return GetWidth() - 2 * FHorzOffset;
}

void TQV7SkinHeaderControl::Measure() {
    const TLifeGuard guard(*this);
    for (int i = 0; guard.IsAlive() && i < FItems->GetCount(); ++i) {
        // Items that keep their picture know when to measure; a long row is not to wait for them.
        if (!FItems->GetItems(i)->KeepsPicture()) static_cast<void>(VisibleWidthOf(i));
    }
}

int TQV7SkinHeaderControl::GetIndexOfLastItemToDraw() {
    int sum = 0;
    for (int i = FFirstVisibleIndex; i < FItems->GetCount(); ++i) {
        sum += VisibleWidthOf(i);
        if (GetClippedWidth() < sum) return FHideClippedItems ? std::max(0, i - 1) : i;
    }
    return -1;
}

// --- scrolling

bool TQV7SkinHeaderControl::CanScrollPrior() {
    return FFirstVisibleIndex > 0;
}

bool TQV7SkinHeaderControl::CanScrollNext() {
    if (AreWiderThan(FPaintBox->GetWidth(), FFirstVisibleIndex)) return true;
    return GetChevronVisible() && AreWiderThan(GetWidth() - GetChevron().GetWidth(), FFirstVisibleIndex);
}

void TQV7SkinHeaderControl::ScrollBy(int Delta) {
    if (!IsIndex(FFirstVisibleIndex + Delta)) return;
    FFirstVisibleIndex += Delta;
    Refresh();
}

void TQV7SkinHeaderControl::ScrollFirst() {
    FFirstVisibleIndex = 0;
    Refresh();
}

void TQV7SkinHeaderControl::ScrollLast() {
    int sum = 0;
    for (int i = FItems->GetCount() - 1; i >= 0; --i) {
        sum += WidthOf(i);
        if (FPaintBox->GetWidth() < sum) {
            FFirstVisibleIndex = std::min(FItems->GetCount() - 1, i + 1);
            break;
        }
    }
    Refresh();
}

void TQV7SkinHeaderControl::ScrollInView(const TQV7SkinHeaderItemCustom* Item) {
    ScrollInView(FItems->IndexOf(Item));
}

void TQV7SkinHeaderControl::ScrollInView(int Index) {
    if (!IsIndex(Index)) return;
    if (Index < FFirstVisibleIndex) return ScrollBy(Index - FFirstVisibleIndex);
    // The item stands last in the row that begins with the item sought: from there leftwards, as far as fits.
    const int available = FHideClippedItems ? GetClippedWidth() : FPaintBox->GetWidth();
    int sum = 0;
    int start = Index + 1;
    while (start > FFirstVisibleIndex) {
        sum += WidthOf(start - 1);
        if (available < sum) break;
        --start;
    }
    if (start <= Index) ScrollBy(start - FFirstVisibleIndex);
}

// --- places

bool TQV7SkinHeaderControl::IsIndex(int Index) const {
    return Index >= 0 && Index < FItems->GetCount();
}

TRect TQV7SkinHeaderControl::GetItemRect(int Index) {
    if (!IsIndex(Index) || Index < FFirstVisibleIndex || !FItems->GetItems(Index)->GetVisible()) return {};
    int left = 0;
    for (int i = FFirstVisibleIndex; i < Index; ++i)
        left += VisibleWidthOf(i);
    return {left, 0, left + WidthOf(Index), GetHeight()};
}

TRect TQV7SkinHeaderControl::GetItemRect(const TQV7SkinHeaderItemCustom* Item) {
    return GetItemRect(FItems->IndexOf(Item));
}

TRect TQV7SkinHeaderControl::GetHotItemRect() {
    return GetItemRect(FIndexOfItemMouseOver);
}

/// Where an item stands that was painted with the whole row; empty for others.
TRect TQV7SkinHeaderControl::PaintedPlaceOf(int Index) {
    const TRect place = Index < FPaintedEnd ? GetItemRect(Index) : TRect();
    return place.IsEmpty() ? place
                           : TRect::OfSize(place.Left + FHorzOffset, 0, place.Width(), place.Height());
}

bool TQV7SkinHeaderControl::DoAllKeepPictures() const {
    for (int i = FFirstVisibleIndex; i < std::min(FPaintedEnd, FItems->GetCount()); ++i)
        if (!FItems->GetItems(i)->KeepsPicture()) return false;
    return true;
}

TQV7SkinHeaderControl::THit TQV7SkinHeaderControl::HitAt(TPoint Point) const {
    int left = 0;
    for (int i = FFirstVisibleIndex; i < FItems->GetCount() && left <= Point.X; ++i) {
        TQV7SkinHeaderItemCustom& item = *FItems->GetItems(i);
        if (!item.GetVisible()) continue;
        const int right = left + WidthOf(i);
        TCursor cursor = crDefault;  // an item's wish for a cursor is not followed here
        if (item.PtInValidRect({left, 0, right, GetHeight()}, Point, cursor)) return {i, left};
        left = right;
    }
    return {};
}

int TQV7SkinHeaderControl::GetItemIndexAt(int X, int Y) {
    return HitAt({X, Y}).Index;
}

TQV7SkinHeaderItemCustom* TQV7SkinHeaderControl::GetItemAt(int X, int Y) {
    const int index = GetItemIndexAt(X, Y);
    return index < 0 ? nullptr : FItems->GetItems(index);
}

}  // namespace qv7skin
