#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/DefineClass.h"

#include <algorithm>

namespace vcl {

const TMetaClass& TCollectionItem::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCollectionItem>(L"TCollectionItem", TPersistent::StaticClass());
    return meta;
}

TCollectionItem::TCollectionItem(TCollection* ACollection) {
    if (!ACollection) return;
    try {
        ACollection->InsertItem(this);
    } catch (...) {
        // The destructor will not run.
        std::erase(ACollection->FItems, this);
        throw;
    }
}

TCollectionItem::~TCollectionItem() {
    if (FCollection) FCollection->RemoveItem(this);
}

void TCollectionItem::SetCollection(TCollection* collection) {
    if (collection == FCollection) return;
    if (collection && !InheritsFrom(collection->GetItemClass()))
        throw EListError(Format(L"A %s can't hold a %s", collection->ClassName(), ClassName()));
    if (FCollection) FCollection->RemoveItem(this);
    if (collection) collection->InsertItem(this);
}

int TCollectionItem::GetIndex() const {
    if (!FCollection) return -1;
    const auto& items = FCollection->FItems;
    return static_cast<int>(std::ranges::find(items, this) - items.begin());
}

void TCollectionItem::SetIndex(int index) {
    const int current = GetIndex();
    if (current < 0 || current == index) return;
    (void)FCollection->GetItem(index);
    FCollection->MoveItem(current, index);
    Changed(true);
}

TPersistent* TCollectionItem::GetOwner() const {
    return FCollection;
}

String TCollectionItem::GetNamePath() const {
    return FCollection ? Format(L"%s[%d]", FCollection->GetNamePath(), GetIndex()) : ClassName();
}

void TCollectionItem::Changed(bool allItems) {
    if (FCollection && FCollection->FUpdateCount == 0) FCollection->Update(allItems ? nullptr : this);
}

}  // namespace vcl
