#include "platform/vcl/core/StringList.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/MoveElement.h"

namespace vcl {

const TMetaClass& TStringList::StaticClass() {
    static const TMetaClass meta = DefineClass<TStringList>(L"TStringList", TStrings::StaticClass());
    return meta;
}

String TStringList::Get(int index) const {
    CheckIndex(index, GetCount());
    return FItems[static_cast<std::size_t>(index)].Text;
}

void TStringList::Put(int index, const String& text) {
    CheckUnsorted();
    CheckIndex(index, GetCount());
    Changing();
    FItems[static_cast<std::size_t>(index)].Text = text;
    Changed();
}

TObject* TStringList::GetObject(int index) const {
    CheckIndex(index, GetCount());
    return FItems[static_cast<std::size_t>(index)].Object;
}

void TStringList::PutObject(int index, TObject* object) {
    CheckIndex(index, GetCount());
    Changing();
    FItems[static_cast<std::size_t>(index)].Object = object;
    Changed();
}

void TStringList::InsertObject(int index, const String& text, TObject* object) {
    CheckUnsorted();
    CheckIndex(index, GetCount() + 1);
    InsertItem(index, {text, object});
}

int TStringList::AddObject(const String& text, TObject* object) {
    int index = GetCount();
    if (FSorted && Find(text, index)) {
        if (Duplicates == dupIgnore) return index;
        if (Duplicates == dupError) throw EStringListError(L"String list does not allow duplicates");
    }
    InsertItem(index, {text, object});
    return index;
}

void TStringList::InsertItem(int index, TItem item) {
    Changing();
    FItems.insert(FItems.begin() + index, std::move(item));
    Changed();
}

void TStringList::Delete(int index) {
    CheckIndex(index, GetCount());
    Changing();
    FItems.erase(FItems.begin() + index);
    Changed();
}

void TStringList::Clear() {
    if (FItems.empty()) return;
    Changing();
    FItems.clear();
    Changed();
}

void TStringList::Move(int currentIndex, int newIndex) {
    CheckUnsorted();
    CheckIndex(currentIndex, GetCount());
    CheckIndex(newIndex, GetCount());
    if (currentIndex == newIndex) return;
    Changing();
    MoveElement(FItems, currentIndex, newIndex);
    Changed();
}

void TStringList::Exchange(int a, int b) {
    CheckUnsorted();
    CheckIndex(a, GetCount());
    CheckIndex(b, GetCount());
    Changing();
    std::swap(FItems[static_cast<std::size_t>(a)], FItems[static_cast<std::size_t>(b)]);
    Changed();
}

int TStringList::IndexOf(StringView text) const {
    if (!FSorted) return TStrings::IndexOf(text);
    int index = 0;
    return Find(text, index) ? index : -1;
}

void TStringList::SetSorted(bool value) {
    if (value == FSorted) return;
    if (value) Sort();
    FSorted = value;
}

void TStringList::Sort() {
    if (FSorted || GetCount() < 2) return;
    Changing();
    std::ranges::stable_sort(FItems,
                             [](const TItem& a, const TItem& b) { return CompareText(a.Text, b.Text) < 0; });
    Changed();
}

bool TStringList::Find(StringView text, int& index) const {
    const auto place = std::ranges::lower_bound(
        FItems, 0, [](int a, int b) { return a < b; },
        [&](const TItem& item) { return CompareText(item.Text, text); });
    index = static_cast<int>(place - FItems.begin());
    return place != FItems.end() && CompareText(place->Text, text) == 0;
}

void TStringList::SetUpdateState(bool updating) {
    if (updating)
        Changing();
    else
        Changed();
}

void TStringList::Changed() {
    if (!IsUpdating()) OnChange(this);
}

void TStringList::Changing() {
    if (!IsUpdating()) OnChanging(this);
}

void TStringList::CheckIndex(int index, int limit) const {
    if (index < 0 || index >= limit) throw EStringListError(Format(L"List index out of bounds (%d)", index));
}

void TStringList::CheckUnsorted() const {
    if (FSorted) throw EStringListError(L"Operation not allowed on sorted list");
}

}  // namespace vcl
