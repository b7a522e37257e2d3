#include "platform/vcl/core/ObjectList.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/MoveElement.h"

namespace vcl {

const TMetaClass& TObjectList::StaticClass() {
    static const TMetaClass meta = DefineClass<TObjectList>(L"TObjectList", TObject::StaticClass());
    return meta;
}

TObjectList::~TObjectList() {
    Clear();
}

void TObjectList::SetCapacity(int capacity) {
    if (capacity < GetCount()) throw EListError(Format(L"List capacity out of bounds (%d)", capacity));
    FItems.reserve(static_cast<std::size_t>(capacity));
}

TObject* TObjectList::GetItem(int index) const {
    CheckIndex(index, GetCount());
    return FItems[static_cast<std::size_t>(index)];
}

void TObjectList::SetItem(int index, TObject* object) {
    CheckIndex(index, GetCount());
    TObject* old = std::exchange(FItems[static_cast<std::size_t>(index)], object);
    if (FOwnsObjects && old != object) delete old;
}

int TObjectList::Add(TObject* object) {
    FItems.push_back(object);
    return GetCount() - 1;
}

void TObjectList::Insert(int index, TObject* object) {
    CheckIndex(index, GetCount() + 1);
    FItems.insert(FItems.begin() + index, object);
}

void TObjectList::Delete(int index) {
    CheckIndex(index, GetCount());
    // The entry goes first: the destructor of the object may look at the list.
    TObject* object = FItems[static_cast<std::size_t>(index)];
    FItems.erase(FItems.begin() + index);
    if (FOwnsObjects) delete object;
}

int TObjectList::Remove(TObject* object) {
    const int index = IndexOf(object);
    if (index >= 0) Delete(index);
    return index;
}

TObject* TObjectList::Extract(TObject* object) {
    const int index = IndexOf(object);
    if (index < 0) return nullptr;
    FItems.erase(FItems.begin() + index);
    return object;
}

int TObjectList::IndexOf(const TObject* object) const {
    const auto found = std::ranges::find(FItems, object);
    return found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
}

void TObjectList::Move(int currentIndex, int newIndex) {
    CheckIndex(currentIndex, GetCount());
    CheckIndex(newIndex, GetCount());
    MoveElement(FItems, currentIndex, newIndex);
}

void TObjectList::Exchange(int a, int b) {
    CheckIndex(a, GetCount());
    CheckIndex(b, GetCount());
    std::swap(FItems[static_cast<std::size_t>(a)], FItems[static_cast<std::size_t>(b)]);
}

void TObjectList::Clear() {
    while (!FItems.empty())
        Delete(GetCount() - 1);
}

void TObjectList::CheckIndex(int index, int limit) const {
    if (index < 0 || index >= limit) throw EListError(Format(L"List index out of bounds (%d)", index));
}

}  // namespace vcl
