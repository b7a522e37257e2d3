#include "platform/vcl/core/StringList.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/MoveElement.h"

namespace vcl {
namespace {

constexpr wchar_t Lower(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : c;
}

/// True for texts whose equality no locale has its own rules for; comparing them needs no system call.
bool IsPlain(StringView text) {
    return std::ranges::all_of(text, [](wchar_t c) {
        const wchar_t lower = Lower(c);
        return c == L' ' || (c >= L'0' && c <= L'9') || (lower >= L'a' && lower <= L'z');
    });
}

bool IsSamePlain(StringView a, StringView b) {
    return a.size() == b.size() && std::ranges::equal(a, b, {}, Lower, Lower);
}

}  // namespace

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
    if (FSorted) {
        int index = 0;
        return Find(text, index) ? index : -1;
    }
    const bool isPlain = IsPlain(text);
    const auto place = std::ranges::find_if(FItems, [&](const TItem& item) {
        return isPlain && IsPlain(item.Text) ? IsSamePlain(item.Text, text)
                                             : CompareText(item.Text, text) == 0;
    });
    return place == FItems.end() ? -1 : static_cast<int>(place - FItems.begin());
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
