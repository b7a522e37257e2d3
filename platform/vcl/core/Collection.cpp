#include "platform/vcl/core/Collection.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/MoveElement.h"
#include "platform/vcl/core/UpdateBracket.h"

namespace vcl {

const TMetaClass& TCollection::StaticClass() {
    static const TMetaClass meta = DefineClass<TCollection>(L"TCollection", TPersistent::StaticClass());
    return meta;
}

const TMetaClass& TOwnedCollection::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TOwnedCollection>(L"TOwnedCollection", TCollection::StaticClass());
    return meta;
}

TCollection::~TCollection() {
    // Nobody is left to hear of updates.
    FUpdateCount = 1;
    Clear();
}

TCollectionItem* TCollection::GetItem(int index) const {
    if (index < 0 || index >= GetCount()) throw EListError(Format(L"List index out of bounds (%d)", index));
    return FItems[static_cast<std::size_t>(index)];
}

void TCollection::SetItem(int index, const TCollectionItem* value) {
    GetItem(index)->Assign(value);
}

TCollectionItem* TCollection::Add() {
    // The item joins in its base constructor; it is announced when it is whole.
    FAdding = true;
    TCollectionItem* item = nullptr;
    try {
        item = FItemClass->CreateItem(this);
    } catch (...) {
        FAdding = false;
        throw;
    }
    FAdding = false;
    if (!item) throw EInvalidOperation(Format(L"Items of class %s can't be made", FItemClass->ClassName()));
    try {
        Notify(item, cnAdded);
    } catch (...) {
        delete item;
        throw;
    }
    Changed();
    return item;
}

TCollectionItem* TCollection::Insert(int index) {
    if (index < 0 || index > GetCount()) throw EListError(Format(L"List index out of bounds (%d)", index));
    TCollectionItem* item = nullptr;
    WithinUpdate(*this, [&] {
        item = Add();
        item->SetIndex(index);
    });
    return item;
}

void TCollection::Delete(int index) {
    TCollectionItem* item = GetItem(index);
    Notify(item, cnDeleting);
    RemoveItem(item);
    delete item;
}

void TCollection::Clear() {
    if (FItems.empty()) return;
    WithinUpdate(*this, [this] {
        while (!FItems.empty())
            Delete(GetCount() - 1);
    });
}

TCollectionItem* TCollection::FindItemID(int id) const {
    const auto found =
        std::ranges::find_if(FItems, [id](const TCollectionItem* item) { return item->GetID() == id; });
    return found == FItems.end() ? nullptr : *found;
}

void TCollection::BeginUpdate() {
    ++FUpdateCount;
}

void TCollection::EndUpdate() {
    if (FUpdateCount == 0) return;
    --FUpdateCount;
    Changed();
}

void TCollection::Assign(const TPersistent* source) {
    if (source == this) return;
    const auto* other = dynamic_cast<const TCollection*>(source);
    if (!other) return TPersistent::Assign(source);
    WithinUpdate(*this, [&] {
        Clear();
        for (const TCollectionItem* item : other->FItems)
            Add()->Assign(item);
    });
}

void TCollection::Changed() {
    if (FUpdateCount == 0) Update(nullptr);
}

void TCollection::InsertItem(TCollectionItem* item) {
    FItems.push_back(item);
    item->FCollection = this;
    item->FID = FNextID++;
    if (FAdding) return;
    Notify(item, cnAdded);
    Changed();
}

void TCollection::RemoveItem(TCollectionItem* item) {
    Notify(item, cnExtracting);
    std::erase(FItems, item);
    item->FCollection = nullptr;
    Changed();
}

void TCollection::MoveItem(int from, int to) {
    MoveElement(FItems, from, to);
}

String TCollection::PropertyName() const {
    const TPersistent* owner = GetOwner();
    if (!owner) return {};
    for (const TPublishedProperty* property : owner->ClassType().AllProperties()) {
        if (property->Kind() != TPropertyKind::Nested) continue;
        const TPropertyValue value = property->Get(*owner);
        const auto* object = std::get_if<TPersistent*>(&value);
        if (object && *object == this) return property->Name();
    }
    return {};
}

String TCollection::GetNamePath() const {
    const String property = PropertyName();
    if (property.empty()) return ClassName();
    const String owner = GetOwner()->GetNamePath();
    return owner.empty() ? property : owner + L'.' + property;
}

}  // namespace vcl
