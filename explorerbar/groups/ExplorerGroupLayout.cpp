#include <algorithm>
#include <utility>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/groups/ExplorerGroup.h"
#include "explorerbar/groups/GroupMetrics.h"
#include "explorerbar/items/ExplorerItemList.h"
#include "explorerbar/items/ExplorerItemPairs.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace qv7skin {

// --- measuring

/// Separators show between items only, and one for several in a row.
void TQV7SkinExplorerGroup::DecideWhatShows() {
    const int count = FItems->GetCount();
    int lastItem = count - 1;
    while (lastItem >= 0 && (!(*FItems)[lastItem]->GetVisible() || (*FItems)[lastItem]->IsSeparator()))
        --lastItem;
    bool maySeparate = false;
    FShownCount = 0;
    for (int i = 0; i < count; ++i) {
        TQV7SkinExplorerItemCustom& item = *(*FItems)[i];
        bool shown = item.GetVisible();
        if (shown && item.IsSeparator())
            shown = std::exchange(maySeparate, false) && i < lastItem;
        else if (shown)
            maySeparate = true;
        item.SetShown(shown);
        FShownCount += shown;
    }
}

void TQV7SkinExplorerGroup::MeasureItems(TBitmap& Bitmap, int Top) {
    ItemsChanged();
    DecideWhatShows();
    const int first = Top + BodyMargin;
    int position = first;
    int left = 0;
    int width = FWidth;
    const int count = FItems->GetCount();
    FBottoms.resize(static_cast<std::size_t>(count));
    bool asPainted = true;
    for (int i = 0; i < count; ++i) {
        TQV7SkinExplorerItemCustom& item = *(*FItems)[i];
        if (item.GetShown()) {
            item.Measure(Bitmap, left, position, width);
            asPainted = asPainted && item.PaintsAsMeasured();
        }
        FBottoms[static_cast<std::size_t>(i)] = position - first;
    }
    FPlacesKnown = asPainted;
    FMeasuredWidth = FWidth;
    FFullHeight = position + BodyMargin - Top;
}

void TQV7SkinExplorerGroup::Measure(TBitmap& Bitmap, int& Top) {
    if (IsUpdating()) return;
    Top += HeaderHeight;
    // A slide moves what was measured before.
    if (!FExBar || !FExBar->KeepsHeights() || FMeasuredWidth != FWidth) MeasureItems(Bitmap, Top);
    if (FFullHeight < FBodyHeight || FState == egsOpen) FBodyHeight = FFullHeight;
    if ((FState == egsOpen || FState == egsOpening) && MeasuredItems() > 0) Top += FFullHeight;
    Top += 1;
}

void TQV7SkinExplorerGroup::Measure() {
    if (!FExBar) return;
    int top = 0;
    Measure(FExBar->GetPaintBox().GetBuffer(), top);
}

int TQV7SkinExplorerGroup::MeasuredItems() const {
    if (FShownCount < 0) {
        FShownCount = 0;
        for (int i = 0; i < FItems->GetCount(); ++i)
            FShownCount += (*FItems)[i]->GetShown();
    }
    return FShownCount;
}

bool TQV7SkinExplorerGroup::IsClosed() const {
    return FState == egsClosed || FState == egsClosing || MeasuredItems() == 0;
}

int TQV7SkinExplorerGroup::CalcBlockOffset(TBitmap& Bitmap, int Width, int) const {
    int offset = 0;
    for (int i = 0; i < FItems->GetCount(); ++i) {
        const auto* pair = dynamic_cast<const TQV7SkinExplorerItemCaptionBlockPair*>((*FItems)[i]);
        if (!pair || !pair->GetShown()) continue;
        TRect block;
        TRect caption;
        pair->CalcTextRects(Bitmap, Width, block, caption, 0);
        offset = std::max(offset, caption.Right);
    }
    return offset;
}

// --- where items are painted

int TQV7SkinExplorerGroup::IndexOf(const TQV7SkinExplorerItemCustom& Item) const {
    // What was painted stands where it was painted, mostly.
    const auto painted = std::ranges::upper_bound(FBottoms, Item.ClipRect().Top - FItemsTop);
    const auto place = static_cast<int>(painted - FBottoms.begin());
    if (place < FItems->GetCount() && (*FItems)[place] == &Item) return place;
    const int index = FItems->IndexOf(&Item);
    return index < static_cast<int>(FBottoms.size()) ? index : -1;
}

int TQV7SkinExplorerGroup::ItemTop(int Index) const {
    return FItemsTop + (Index > 0 ? FBottoms[static_cast<std::size_t>(Index) - 1] : 0);
}

int TQV7SkinExplorerGroup::PaintedHeight(TBitmap& Bitmap, int Index, int Top) {
    TQV7SkinExplorerItemCustom& item = *(*FItems)[Index];
    if (!item.GetShown()) return 0;
    if (!item.PaintsAsMeasured()) {
        item.Place(Bitmap, 0, Top, FWidth);
        return item.ClipRect().Bottom - Top;
    }
    const int before = Index > 0 ? FBottoms[static_cast<std::size_t>(Index) - 1] : 0;
    if (!FTouched.contains(&item)) return FBottoms[static_cast<std::size_t>(Index)] - before;
    int left = 0;
    int bottom = Top;
    int width = FWidth;
    item.Measure(Bitmap, left, bottom, width);
    return bottom - Top;
}

/// Makes the bottoms those that painting yields, without painting. Only what was touched, or is painted
/// differently from how it is measured, has to be asked.
void TQV7SkinExplorerGroup::EnsurePlaces(TBitmap& Bitmap) {
    const auto count = static_cast<std::size_t>(FItems->GetCount());
    if (FPlacesKnown && FBottoms.size() == count) return;
    if (FBottoms.size() != count) {
        // Not measured since the list changed.
        FBottoms.assign(count, 0);
        for (std::size_t i = 0; i < count; ++i)
            FTouched.insert((*FItems)[static_cast<int>(i)]);
    }
    std::vector<int> painted(count);
    int bottom = 0;
    for (std::size_t i = 0; i < count; ++i)
        painted[i] = bottom += PaintedHeight(Bitmap, static_cast<int>(i), FItemsTop + bottom);
    FBottoms = std::move(painted);
    FTouched.clear();
    FPlacesKnown = true;
}

void TQV7SkinExplorerGroup::PlaceAt(int Index) {
    TQV7SkinExplorerItemCustom& item = *(*FItems)[Index];
    const int top = ItemTop(Index);
    const int bottom = FItemsTop + FBottoms[static_cast<std::size_t>(Index)];
    const TRect clip = item.ClipRect();
    // Where it was painted last is still where it is, unless something moved since.
    if (clip.Top >= top && clip.Bottom <= bottom && !clip.IsEmpty()) return;
    TBitmap& bitmap = FExBar->GetPaintBox().GetBuffer();
    item.Place(bitmap, 0, top, FWidth);
}

void TQV7SkinExplorerGroup::PlaceItem(TQV7SkinExplorerItemCustom& Item) {
    if (!FExBar) return;
    EnsurePlaces(FExBar->GetPaintBox().GetBuffer());
    const int index = IndexOf(Item);
    if (index >= 0 && Item.GetShown()) PlaceAt(index);
}

std::pair<int, int> TQV7SkinExplorerGroup::RowsOf(const TQV7SkinExplorerItemCustom& Item) {
    const int index = FPlacesKnown ? IndexOf(Item) : -1;
    if (index < 0) return {FHeaderRect.Top, FBodyRect.Bottom};
    return {ItemTop(index), FItemsTop + FBottoms[static_cast<std::size_t>(index)]};
}

TQV7SkinExplorerItemCustom* TQV7SkinExplorerGroup::ItemAt(int X, int Y) {
    if (!FExBar || !FBodyRect.Contains({X, Y})) return nullptr;
    EnsurePlaces(FExBar->GetPaintBox().GetBuffer());
    const auto found = std::ranges::upper_bound(FBottoms, Y - FItemsTop);
    if (found == FBottoms.end() || Y < FItemsTop) return nullptr;
    const auto index = static_cast<int>(found - FBottoms.begin());
    TQV7SkinExplorerItemCustom* item = (*FItems)[index];
    if (!item->GetVisible() || !item->GetShown()) return nullptr;
    PlaceAt(index);
    return item->ClipRect().Contains({X, Y}) ? item : nullptr;
}

}  // namespace qv7skin
