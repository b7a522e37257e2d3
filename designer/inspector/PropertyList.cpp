#include "designer/inspector/PropertyList.h"

#include <algorithm>
#include <span>

#include "designer/inspector/PropertyText.h"
#include "platform/vcl/core/Collection.h"

namespace designer {
namespace {

using THolders = std::vector<TPersistent*>;

/// What the property holds in each of the objects; empty when one holds nothing.
THolders HeldBy(const TPublishedProperty& row, const THolders& holders) {
    THolders held;
    for (TPersistent* holder : holders) {
        TPersistent* object = std::get<TPersistent*>(RowFor(row, *holder).Get(*holder));
        if (!object) return {};
        held.push_back(object);
    }
    return held;
}

bool CanLookInside(const TPublishedProperty& row, const THolders& holders) {
    if (row.Kind() == TPropertyKind::Set) return true;
    if (row.Kind() != TPropertyKind::Nested) return false;
    const THolders held = HeldBy(row, holders);
    return !held.empty() && !dynamic_cast<TCollection*>(held.front()) &&
           !held.front()->ClassType().AllProperties().empty();
}

std::int64_t BitsOf(const TPublishedProperty& row, const TPersistent& holder) {
    return std::get<std::int64_t>(row.Get(holder));
}

bool SameNames(std::span<const wchar_t* const> a, std::span<const wchar_t* const> b) {
    return std::ranges::equal(a, b, [](StringView x, StringView y) { return x == y; });
}

bool IsAtDefault(const TPublishedProperty& row, TPersistent& holder, const TPersistent& model);

/// True when all that the objects hold in the property is alike.
bool IsNestedAtDefault(const TPublishedProperty& row, const TPersistent& holder, const TPersistent& model) {
    auto* held = std::get<TPersistent*>(row.Get(holder));
    const auto* other = std::get<TPersistent*>(row.Get(model));
    if (!held || !other || &held->ClassType() != &other->ClassType()) return held == other;
    if (const auto* collection = dynamic_cast<TCollection*>(held)) return collection->GetCount() == 0;
    const auto rows = held->ClassType().AllProperties();
    return std::ranges::all_of(rows,
                               [&](const TPublishedProperty* r) { return IsAtDefault(*r, *held, *other); });
}

bool IsAtDefault(const TPublishedProperty& row, TPersistent& holder, const TPersistent& model) {
    if (row.Kind() == TPropertyKind::Event) return !row.Event(holder)->MethodName();
    // A font has a size that form files know by another name only.
    const bool isComponent = dynamic_cast<const TComponent*>(&holder) != nullptr;
    if (isComponent && !row.IsStored(holder)) return true;
    if (row.Kind() == TPropertyKind::Nested) return IsNestedAtDefault(row, holder, model);
    if (const auto value = row.DefaultFor(holder)) return row.Get(holder) == *value;
    return row.Get(holder) == row.Get(model);
}

}  // namespace

const TPublishedProperty& RowFor(const TPublishedProperty& row, const TPersistent& object) {
    const TPublishedProperty* own = object.ClassType().FindProperty(row.Name());
    return own ? *own : row;
}

const TPropertyLine* TPropertyList::Find(StringView path) const {
    const auto found =
        std::ranges::find_if(FLines, [path](const auto& line) { return SameText(line.Path, path); });
    return found == FLines.end() ? nullptr : &*found;
}

void TPropertyList::SetExpanded(const String& path, bool value) {
    if (value)
        FExpanded.insert(path);
    else
        FExpanded.erase(path);
    Refresh();
}

std::vector<String> TPropertyList::Choices(const TPropertyLine& line) const {
    if (line.Element >= 0) return {L"False", L"True"};
    return PropertyChoices(*line.Row, FDocument.Root());
}

TPropertyList::THolders TPropertyList::Subjects() const {
    if (FSubject) {
        TPersistent* subject = FSubject();
        return subject ? THolders{subject} : THolders{};
    }
    const auto chosen = FDocument.Selection().Items();
    return chosen.empty() ? THolders{&FDocument.Root()} : THolders(chosen.begin(), chosen.end());
}

void TPropertyList::Refresh() {
    FLines.clear();
    const THolders holders = Subjects();
    THolders models;
    for (const TPersistent* holder : holders)
        models.push_back(&NewOf(*holder));
    if (!holders.empty()) AddLines({}, 0, holders, models);
}

TPersistent& TPropertyList::NewOf(const TPersistent& object) {
    std::unique_ptr<TPersistent>& model = FNew[&object.ClassType()];
    if (!model) model.reset(object.ClassType().Create(nullptr));
    if (!model) model.reset(object.ClassType().CreateItem(nullptr));
    // A class that can't be made is its own model: nothing in it counts as changed.
    return model ? *model : const_cast<TPersistent&>(object);
}

void TPropertyList::AddLines(const String& prefix, int depth, const THolders& holders,
                             const THolders& models) {
    for (const TPublishedProperty* row : CommonRows(holders)) {
        TPropertyLine line;
        line.Path = prefix + row->Name();
        line.Name = row->Name();
        line.Depth = depth;
        line.Row = row;
        line.Holders = holders;
        line.Models = models;
        line.CanExpand = CanLookInside(*row, holders);
        line.IsExpanded = line.CanExpand && FExpanded.contains(line.Path);
        Fill(line);
        FLines.push_back(line);
        if (!line.IsExpanded) continue;
        if (row->Kind() == TPropertyKind::Set)
            AddElements(line);
        else
            AddNested(line);
    }
}

void TPropertyList::AddNested(const TPropertyLine& line) {
    const std::size_t first = FLines.size();
    AddLines(line.Path + L'.', line.Depth + 1, HeldBy(*line.Row, line.Holders),
             HeldBy(*line.Row, line.Models));
    // What a font has from its parent counts as untouched.
    for (std::size_t i = first; i < FLines.size(); ++i)
        FLines[i].IsDefault = FLines[i].IsDefault || line.IsDefault;
}

void TPropertyList::AddElements(const TPropertyLine& set) {
    const auto names = set.Row->ElementNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        TPropertyLine line;
        line.Path = set.Path + L'.' + names[i];
        line.Name = names[i];
        line.Depth = set.Depth + 1;
        line.Row = set.Row;
        line.Element = static_cast<int>(i);
        line.Holders = set.Holders;
        line.Models = set.Models;
        Fill(line);
        FLines.push_back(line);
    }
}

void TPropertyList::Fill(TPropertyLine& line) const {
    line.Text = TextOf(line, *line.Holders.front());
    line.IsReadOnly = line.Row->IsReadOnly() || line.Row->Kind() == TPropertyKind::Nested;
    for (std::size_t i = 0; i < line.Holders.size(); ++i) {
        TPersistent& holder = *line.Holders[i];
        if (TextOf(line, holder) != line.Text) line.IsMixed = true;
        TPersistent& model = *line.Models[i];
        const bool alike = line.Element >= 0 ? TextOf(line, model) == TextOf(line, holder)
                                             : IsAtDefault(RowFor(*line.Row, holder), holder, model);
        if (!alike) line.IsDefault = false;
    }
    if (line.IsMixed) line.Text.clear();
}

bool TPropertyList::IsFormPlace(const TPropertyLine& line, const TPersistent& holder) const {
    return &holder == &FDocument.Root() && (line.Path == L"Left" || line.Path == L"Top");
}

String TPropertyList::TextOf(const TPropertyLine& line, TPersistent& holder) const {
    const TPublishedProperty& row = RowFor(*line.Row, holder);
    if (line.Element >= 0) return (BitsOf(row, holder) >> line.Element & 1) != 0 ? L"True" : L"False";
    if (!IsFormPlace(line, holder)) return PropertyText(row, holder);
    const TPoint place = FDocument.Form().Place();
    return IntToStr(line.Path == L"Left" ? place.X : place.Y);
}

bool TPropertyList::IsShown(const TPublishedProperty& row, const THolders& holders) const {
    if ((row.Kind() == TPropertyKind::Event) != (FKind == TKind::Events)) return false;
    // Names of components differ in any case.
    return holders.size() == 1 || !dynamic_cast<const TComponent*>(holders.front()) ||
           !SameText(row.Name(), L"Name");
}

std::vector<const TPublishedProperty*> TPropertyList::CommonRows(const THolders& holders) const {
    std::vector<const TPublishedProperty*> rows = holders.front()->ClassType().AllProperties();
    std::erase_if(rows, [&](const TPublishedProperty* row) {
        return !IsShown(*row, holders) || std::ranges::any_of(holders, [row](const TPersistent* holder) {
            const TPublishedProperty* other = holder->ClassType().FindProperty(row->Name());
            return !other || other->Kind() != row->Kind() || other->EventType() != row->EventType() ||
                   !SameNames(other->ElementNames(), row->ElementNames());
        });
    });
    std::ranges::stable_sort(
        rows, [](const auto* a, const auto* b) { return CompareText(a->Name(), b->Name()) < 0; });
    return rows;
}

void TPropertyList::EditLine(const String& path, const std::function<void(const TPropertyLine&)>& change) {
    const TPropertyLine* found = Find(path);
    if (!found) return;
    const TPropertyLine line = *found;
    FDocument.Edit(L"Eigenschaft ändern", [&] { change(line); });
    Refresh();
}

void TPropertyList::SetTextOf(const TPropertyLine& line, TPersistent& holder, const String& text) {
    const TPublishedProperty& row = RowFor(*line.Row, holder);
    if (line.Element >= 0) {
        const std::int64_t bit = std::int64_t{1} << line.Element;
        const std::int64_t bits = BitsOf(row, holder);
        if (!SameText(text, L"True") && !SameText(text, L"False"))
            throw EConvertError(Format(L"'%s' ist weder True noch False", text));
        row.Set(holder, SameText(text, L"True") ? bits | bit : bits & ~bit);
    } else if (IsFormPlace(line, holder)) {
        TPoint place = FDocument.Form().Place();
        const auto value = static_cast<int>(StrToIntDef(text, 0));
        (line.Path == L"Left" ? place.X : place.Y) = value;
        FDocument.Form().SetPlace(place);
    } else {
        SetPropertyText(row, holder, text, FDocument.Root());
    }
}

void TPropertyList::SetText(const String& path, const String& text) {
    EditLine(path, [&](const TPropertyLine& line) {
        for (TPersistent* holder : line.Holders)
            SetTextOf(line, *holder, text);
    });
}

void TPropertyList::Reset(const String& path) {
    EditLine(path, [&](const TPropertyLine& line) {
        for (std::size_t i = 0; i < line.Holders.size(); ++i) {
            TPersistent* holder = line.Holders[i];
            const TPublishedProperty& row = RowFor(*line.Row, *holder);
            if (row.Kind() == TPropertyKind::Event)
                row.Event(*holder)->Clear();
            else if (const auto value = row.DefaultFor(*holder))
                row.Set(*holder, *value);
            else
                row.Set(*holder, row.Get(*line.Models[i]));
        }
    });
}

}  // namespace designer
