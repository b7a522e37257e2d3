#include "designer/model/ItemTree.h"

#include <algorithm>

namespace designer {

void TItemTree::Collect(TPersistent* parent, int depth, std::vector<TItemEntry>& entries) const {
    for (TPersistent* item : Children(parent)) {
        TItemEntry entry{.Object = item, .Depth = depth};
        Describe(entry);
        entries.push_back(std::move(entry));
        if (CanNest()) Collect(item, depth + 1, entries);
    }
}

std::vector<TItemEntry> TItemTree::Entries() const {
    std::vector<TItemEntry> entries;
    Collect(nullptr, 0, entries);
    return entries;
}

TItemTree::TPlace TItemTree::PlaceOf(const std::vector<TItemEntry>& entries, int index) const {
    const int depth = entries[static_cast<std::size_t>(index)].Depth;
    TPlace place;
    for (int i = index - 1; i >= 0; --i) {
        const TItemEntry& entry = entries[static_cast<std::size_t>(i)];
        if (entry.Depth == depth) ++place.Index;
        if (entry.Depth >= depth) continue;
        place.Parent = entry.Object;
        break;
    }
    return place;
}

int TItemTree::IndexOf(const TPersistent* item) const {
    const std::vector<TItemEntry> entries = Entries();
    const auto found = std::ranges::find(entries, item, &TItemEntry::Object);
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

int TItemTree::Add(int index, bool below, const String& text) {
    const std::vector<TItemEntry> entries = Entries();
    TPersistent* created = nullptr;
    FDocument.Edit(L"Eintrag einfügen", [&] {
        if (index < 0) {
            created = Create(nullptr);
        } else if (below) {
            created = Create(entries[static_cast<std::size_t>(index)].Object);
        } else {
            const TPlace place = PlaceOf(entries, index);
            created = Create(place.Parent);
            Put(*created, place.Parent, place.Index + 1);
        }
        if (!text.empty()) SetText(*created, text);
    });
    return IndexOf(created);
}

int TItemTree::Remove(int index) {
    FDocument.Edit(L"Eintrag löschen", [&] { Erase(*Entries()[static_cast<std::size_t>(index)].Object); });
    return std::min(index, static_cast<int>(Entries().size()) - 1);
}

int TItemTree::PutAt(int index, TPlace place) {
    TPersistent* item = Entries()[static_cast<std::size_t>(index)].Object;
    FDocument.Edit(L"Eintrag verschieben", [&] { Put(*item, place.Parent, place.Index); });
    return IndexOf(item);
}

int TItemTree::MoveBefore(int index, int before) {
    const std::vector<TItemEntry> entries = Entries();
    const int count = static_cast<int>(entries.size());
    int end = index + 1;
    while (end < count &&
           entries[static_cast<std::size_t>(end)].Depth > entries[static_cast<std::size_t>(index)].Depth)
        ++end;
    // Nothing moves into itself.
    if (before >= index && (before < end || end == count)) return index;
    TPlace place = PlaceOf(entries, std::min(before, count - 1));
    if (before == count) ++place.Index;
    const TPlace from = PlaceOf(entries, index);
    // The places behind it move up when it is taken out.
    if (from.Parent == place.Parent && from.Index < place.Index) --place.Index;
    return PutAt(index, place);
}

int TItemTree::Shift(int index, int by) {
    TPlace place = PlaceOf(Entries(), index);
    const int count = static_cast<int>(Children(place.Parent).size());
    const int target = std::clamp(place.Index + by, 0, count - 1);
    if (target == place.Index) return index;
    place.Index = target;
    return PutAt(index, place);
}

int TItemTree::MoveIn(int index) {
    const TPlace place = PlaceOf(Entries(), index);
    if (!CanNest() || place.Index == 0) return index;
    TPersistent* neighbour = Children(place.Parent)[static_cast<std::size_t>(place.Index) - 1];
    return PutAt(index, {neighbour, static_cast<int>(Children(neighbour).size())});
}

int TItemTree::MoveOut(int index) {
    const TPlace place = PlaceOf(Entries(), index);
    if (!place.Parent) return index;
    TPlace above = PlaceOf(Entries(), IndexOf(place.Parent));
    ++above.Index;
    return PutAt(index, above);
}

void TItemTree::Rename(int index, const String& text) {
    FDocument.Edit(L"Eintrag ändern",
                   [&] { SetText(*Entries()[static_cast<std::size_t>(index)].Object, text); });
}

}  // namespace designer
