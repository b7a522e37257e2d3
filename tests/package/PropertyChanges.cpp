#include "tests/package/PropertyChanges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/StringList.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/graphics/Picture.h"

namespace test {
namespace {

using namespace vcl;

constexpr const wchar_t* DifficultText = L"Weiß, 'ja' & „nein“\t\xD83D\xDE00";

TPersistent* ObjectIn(const TPublishedProperty& row, const TPersistent& holder) {
    const TPropertyValue value = row.Get(holder);
    const auto* object = std::get_if<TPersistent*>(&value);
    return object ? *object : nullptr;
}

std::vector<std::int64_t> OtherNumbers(const TPublishedProperty& row, std::int64_t present) {
    std::vector<std::int64_t> candidates{present + 1, present - 1, present + 7, 0, 1, 5};
    const auto identifiers = row.Identifiers();
    for (std::size_t i = 0; i < std::min<std::size_t>(identifiers.size(), 3); ++i)
        candidates.push_back(identifiers[i].Value);
    return candidates;
}

std::vector<std::int64_t> OtherSets(const TPublishedProperty& row, std::int64_t present) {
    std::vector<std::int64_t> candidates{0, row.Maximum()};
    for (std::int64_t bit = 1; bit <= row.Maximum(); bit <<= 1)
        candidates.push_back(present ^ bit);
    return candidates;
}

std::vector<std::int64_t> OtherOrdinals(const TPublishedProperty& row) {
    std::vector<std::int64_t> candidates;
    for (std::int64_t value = row.Minimum(); value <= row.Maximum(); ++value)
        candidates.push_back(value);
    return candidates;
}

std::vector<TPropertyValue> OtherValues(const TPublishedProperty& row, const TPropertyValue& present) {
    std::vector<std::int64_t> numbers;
    switch (row.Kind()) {
        case TPropertyKind::Float:
            return {std::get<double>(present) + 0.25, std::get<double>(present) - 0.25, 1e10 / 3};
        case TPropertyKind::String:
            return {String(DifficultText), String(L"Tahoma"), String(L"7"), String()};
        case TPropertyKind::Set:
            numbers = OtherSets(row, std::get<std::int64_t>(present));
            break;
        case TPropertyKind::Integer:
            numbers = OtherNumbers(row, std::get<std::int64_t>(present));
            break;
        default:
            numbers = OtherOrdinals(row);
    }
    std::vector<TPropertyValue> values;
    std::set<std::int64_t> seen{std::get<std::int64_t>(present)};
    for (const std::int64_t number : numbers) {
        const bool fits = number >= row.Minimum() && number <= row.Maximum();
        const bool named = std::ranges::any_of(
            row.Identifiers(), [number](const TIdentifier& known) { return known.Value == number; });
        if ((fits || named) && seen.insert(number).second) values.emplace_back(number);
    }
    return values;
}

/// The way from a component to an object in it.
using Way = std::function<TPersistent*(TPersistent&)>;

class Changes {
public:
    explicit Changes(TComponent& owner) : FOwner(owner) {}
    void Collect(TPersistent& object, const Way& way, const std::string& prefix) {
        AddContents(object, way, prefix);
        for (const TPublishedProperty* row : object.ClassType().AllProperties())
            AddRow(*row, object, way, prefix + ToUtf8(row->Name()));
    }
    std::vector<PropertyChange> All;

private:
    void Add(const std::string& path, const Way& way, const std::function<void(TPersistent&)>& change) {
        All.push_back({path, [way, change](TPersistent& subject) {
                           if (TPersistent* object = way(subject)) change(*object);
                       }});
    }

    void AddRow(const TPublishedProperty& row, TPersistent& object, const Way& way, const std::string& path) {
        if (row.Kind() == TPropertyKind::Nested) return AddNested(row, object, way, path);
        if (row.IsReadOnly() || SameText(row.Name(), L"Name")) return;
        if (row.Kind() == TPropertyKind::Event) {
            const String method = L"Do" + String(row.Name());
            return Add(path, way,
                       [&row, method](TPersistent& changed) { row.Event(changed)->SetMethodName(method); });
        }
        if (row.Kind() == TPropertyKind::Component) return AddReferences(row, way, path);
        for (const TPropertyValue& value : OtherValues(row, row.Get(object)))
            Add(path, way, [&row, value](TPersistent& changed) { row.Set(changed, value); });
    }

    /// By name: the change is made to another form's component too.
    void AddReferences(const TPublishedProperty& row, const Way& way, const std::string& path) {
        for (int i = 0; i < FOwner.GetComponentCount(); ++i) {
            TComponent* target = FOwner.GetComponent(i);
            if (target->InheritsFrom(*row.ObjectClass()))
                Add(path, way, [&row, target](TPersistent& changed) {
                    if (target != &changed) row.Set(changed, static_cast<TPersistent*>(target));
                });
        }
    }

    void AddNested(const TPublishedProperty& row, TPersistent& object, const Way& way,
                   const std::string& path) {
        TPersistent* nested = ObjectIn(row, object);
        if (!nested) return;
        const Way inner = [way, &row](TPersistent& subject) -> TPersistent* {
            TPersistent* holder = way(subject);
            return holder ? ObjectIn(row, *holder) : nullptr;
        };
        Collect(*nested, inner, path + ".");
    }

    /// What objects hold besides published properties.
    void AddContents(TPersistent& object, const Way& way, const std::string& prefix) {
        if (dynamic_cast<TStrings*>(&object))
            Add(prefix + "Strings", way, [](TPersistent& changed) {
                // In one call, for a handler may free them.
                TStringList lines;
                for (const wchar_t* line : {L"", DifficultText, L"", L"two", L""})
                    lines.Add(line);
                changed.Assign(&lines);
            });
        if (dynamic_cast<TPicture*>(&object))
            Add(prefix + "Data", way, [](TPersistent& changed) {
                const auto bitmap = Picture();
                static_cast<TPicture&>(changed).Assign(bitmap.get());
            });
        if (dynamic_cast<TBitmap*>(&object))
            Add(prefix + "Data", way, [](TPersistent& changed) {
                const auto bitmap = Picture();
                static_cast<TBitmap&>(changed).Assign(bitmap.get());
            });
        if (dynamic_cast<TCustomImageList*>(&object))
            Add(prefix + "Bitmap", way, [](TPersistent& changed) {
                const auto bitmap = Picture();
                auto& images = static_cast<TCustomImageList&>(changed);
                images.AddMasked(bitmap.get(), 0x00FF00FF);
            });
        if (auto* collection = dynamic_cast<TCollection*>(&object)) AddItems(*collection, way, prefix);
    }

    void AddItems(TCollection& collection, const Way& way, const std::string& prefix) {
        if (FDepth > 2) return;
        ++FDepth;
        Add(prefix + "[]", way, [](TPersistent& changed) {
            static_cast<TCollection&>(changed).Add();
            static_cast<TCollection&>(changed).Add();
        });
        const Way toItem = [way](TPersistent& subject) -> TPersistent* {
            auto* holder = static_cast<TCollection*>(way(subject));
            if (!holder) return nullptr;
            return holder->GetCount() > 0 ? holder->GetItem(0) : holder->Add();
        };
        TCollectionItem* item = collection.Add();
        Collect(*item, toItem, prefix + "[0].");
        delete item;
        --FDepth;
    }

    static std::unique_ptr<TBitmap> Picture() {
        auto bitmap = std::make_unique<TBitmap>(16, 16, pf24bit);
        for (int i = 0; i < 16; ++i)
            bitmap->GetCanvas().SetPixel(i, i, static_cast<TColor>(i * 0x0A0501));
        return bitmap;
    }

    TComponent& FOwner;
    int FDepth = 0;
};

void AddValues(TPersistent& object, const std::string& prefix, std::vector<std::string>& values) {
    for (const TPublishedProperty* row : object.ClassType().AllProperties()) {
        if (!row->IsStored(object)) continue;
        const std::string path = prefix + ToUtf8(row->Name());
        const TPropertyValue value = row->Get(object);
        if (const auto* nested = std::get_if<TPersistent*>(&value)) {
            if (*nested && row->Kind() == TPropertyKind::Nested) AddValues(**nested, path + ".", values);
        } else if (const auto* number = std::get_if<std::int64_t>(&value)) {
            values.push_back(path + " = " + std::to_string(*number));
        } else if (const auto* fraction = std::get_if<double>(&value)) {
            values.push_back(path + " = " + std::to_string(*fraction));
        } else if (const auto* text = std::get_if<String>(&value)) {
            values.push_back(path + " = " + ToUtf8(*text));
        }
    }
    if (auto* collection = dynamic_cast<TCollection*>(&object)) {
        for (int i = 0; i < collection->GetCount(); ++i)
            AddValues(*collection->GetItem(i), prefix + "[" + std::to_string(i) + "].", values);
    }
}

}  // namespace

std::vector<PropertyChange> ChangesOf(TPersistent& object, TComponent& owner) {
    Changes changes(owner);
    changes.Collect(object, [](TPersistent& subject) { return &subject; }, {});
    return changes.All;
}

std::vector<std::string> StoredValues(TPersistent& object) {
    std::vector<std::string> values;
    AddValues(object, {}, values);
    return values;
}

}  // namespace test
