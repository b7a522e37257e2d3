#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/core/UpdateBracket.h"
#include "platform/vcl/streaming/GlobalComponents.h"
#include "platform/vcl/streaming/ReaderTry.h"
#include "platform/vcl/streaming/ValueCursor.h"

#include <algorithm>
#include <cmath>

namespace vcl {
namespace {

/// The bytes of a document as a stream.
class TBytesStream final : public TCustomMemoryStream {
public:
    explicit TBytesStream(std::span<const std::byte> bytes) { SetBytes(bytes); }
};

String ListOf(std::span<const wchar_t* const> names) {
    String list;
    for (const wchar_t* name : names) {
        if (!list.empty()) list += L", ";
        list += name;
    }
    return list;
}

TPersistent* NestedObject(const TPublishedProperty& row, const TPersistent& object) {
    const TPropertyValue value = row.Get(object);
    const auto* nested = std::get_if<TPersistent*>(&value);
    return nested ? *nested : nullptr;
}

}  // namespace

/// Reads one property that an object defines itself.
class TReader::TDefinedProperty final : public TFiler {
public:
    TDefinedProperty(StringView name, const TFormValue& value, const TFormPlace& place)
        : FName(name), FValue(value), FPlace(place) {}
    [[nodiscard]] bool IsFound() const { return FFound; }

    void DefineProperty(const wchar_t* name, const std::function<void(TValueReader&)>& read,
                        const std::function<void(TValueWriter&)>&, bool) override {
        if (!IsWanted(name) || !read) return;
        TValueCursor cursor(FValue, FPlace);
        read(cursor);
        cursor.ExpectEnd();
    }
    void DefineBinaryProperty(const wchar_t* name, const std::function<void(TStream&)>& read,
                              const std::function<void(TStream&)>&, bool) override {
        if (!IsWanted(name) || !read) return;
        const auto* binary = FValue.As<TFormBinary>();
        if (!binary)
            FPlace.Fail(TFormProblemKind::WrongType, FValue.Position,
                        Format(L"%s found where bytes are expected", ValueKindText(FValue.Kind())));
        TBytesStream stream(binary->Bytes);
        read(stream);
    }

private:
    /// True for the property that is looked for, the first time that it is defined.
    bool IsWanted(StringView name) {
        if (FFound || !SameText(name, FName)) return false;
        FFound = true;
        return true;
    }

    StringView FName;
    const TFormValue& FValue;
    const TFormPlace& FPlace;
    bool FFound = false;
};

std::size_t TReader::TPropertyKeyHash::operator()(const TPropertyKey& key) const {
    return std::hash<const void*>()(key.Class) ^ std::hash<StringView>()(key.Name) << 1;
}

const TPublishedProperty* TReader::FindProperty(const TMetaClass& meta, StringView name) {
    const auto [place, added] = FRows.try_emplace(TPropertyKey{&meta, name}, nullptr);
    if (added) place->second = meta.FindProperty(name);
    return place->second;
}

void TReader::ReadProperties(const std::vector<TFormProperty>& properties, TPersistent& object) {
    const bool top = FAddress.Steps.empty();
    for (const TFormProperty& property : properties) {
        const TFormPlace::TScope scope(FPlace, property.Name);
        const std::size_t depth = FAddress.Steps.size();
        if (top) FTopProperty = &property;
        const bool read = Try(property.Value.Position, TFormProblemKind::InvalidValue,
                              [&] { ReadProperty(property, object); });
        FAddress.Steps.resize(depth);
        if (!read && top) FUnread.push_back({FAddress.Component, property});
    }
}

void TReader::ReadProperty(const TFormProperty& property, TPersistent& object) {
    TPersistent* holder = &object;
    StringView rest = property.Name;
    for (std::size_t point = rest.find(L'.'); point != StringView::npos; point = rest.find(L'.')) {
        const StringView name = rest.substr(0, point);
        const TPublishedProperty* row = FindProperty(holder->ClassType(), name);
        if (!row)
            FPlace.Fail(TFormProblemKind::UnknownProperty, property.Position,
                        Format(L"%s has no property %s", holder->ClassName(), name));
        TPersistent* nested = row->Kind() == TPropertyKind::Nested ? NestedObject(*row, *holder) : nullptr;
        if (!nested)
            FPlace.Fail(TFormProblemKind::UnknownProperty, property.Position,
                        Format(L"Property %s of %s holds no object", name, holder->ClassName()));
        FAddress.Steps.emplace_back(row);
        holder = nested;
        rest.remove_prefix(point + 1);
    }
    if (const TPublishedProperty* row = FindProperty(holder->ClassType(), rest))
        SetProperty(*row, *holder, property);
    else
        ReadDefined(property, rest, *holder);
}

void TReader::ReadDefined(const TFormProperty& property, StringView name, TPersistent& object) {
    TDefinedProperty filer(name, property.Value, FPlace);
    object.DefineProperties(filer);
    if (!filer.IsFound())
        FPlace.Fail(TFormProblemKind::UnknownProperty, property.Position,
                    Format(L"%s has no property %s", object.ClassName(), name));
}

void TReader::SetProperty(const TPublishedProperty& row, TPersistent& object, const TFormProperty& property) {
    const TFormValue& value = property.Value;
    switch (row.Kind()) {
        case TPropertyKind::Nested: {
            const auto* items = value.As<TFormCollection>();
            auto* collection = dynamic_cast<TCollection*>(NestedObject(row, object));
            if (!collection) FailType(value, L"properties of the object");
            if (!items) FailType(value, L"a collection");
            FAddress.Steps.emplace_back(&row);
            return ReadCollection(*collection, *items);
        }
        case TPropertyKind::Event:
            return BindEvent(row, object, value);
        case TPropertyKind::Component:
            if (value.As<TFormIdent>()) return NoteReference(row, property);
            if (!value.As<TFormNil>()) FailType(value, L"the name of a component");
            return SetValue(row, object, static_cast<TPersistent*>(nullptr), value.Position);
        default:
            return SetValue(row, object, SimpleValue(row, value), value.Position);
    }
}

void TReader::SetValue(const TPublishedProperty& row, TPersistent& object, TPropertyValue value,
                       TFormPosition position) {
    if (row.IsReadOnly()) FPlace.Fail(TFormProblemKind::InvalidValue, position, L"The property is read-only");
    try {
        row.Set(object, value);
    } catch (const EConvertError& error) {
        const bool number = row.Kind() == TPropertyKind::Integer;
        FPlace.Fail(number ? TFormProblemKind::OutOfRange : TFormProblemKind::InvalidValue, position,
                    error.Message());
    }
}

void TReader::FailType(const TFormValue& value, const wchar_t* expected) const {
    const auto* ident = value.As<TFormIdent>();
    const String found = ident ? ident->Name : String(ValueKindText(value.Kind()));
    FPlace.Fail(TFormProblemKind::WrongType, value.Position,
                Format(L"%s found where %s is expected", found, expected));
}

TPropertyValue TReader::SimpleValue(const TPublishedProperty& row, const TFormValue& value) const {
    switch (row.Kind()) {
        case TPropertyKind::Integer:
            return IntegerValue(row, value);
        case TPropertyKind::Boolean:
            if (const auto* flag = value.As<bool>()) return std::int64_t{*flag};
            FailType(value, L"True or False");
        case TPropertyKind::Enumeration:
            if (const auto* ident = value.As<TFormIdent>())
                return ElementOrdinal(row, ident->Name, value.Position);
            FailType(value, L"the name of a value");
        case TPropertyKind::Set: {
            const auto* set = value.As<TFormSet>();
            if (!set) FailType(value, L"a set");
            std::int64_t bits = 0;
            for (const TFormSetElement& element : set->Elements)
                bits |= std::int64_t{1} << ElementOrdinal(row, element.Name, element.Position);
            return bits;
        }
        case TPropertyKind::Float: {
            if (const auto* whole = value.As<std::int64_t>()) return static_cast<double>(*whole);
            const auto* number = value.As<TFormFloat>();
            if (!number) FailType(value, L"a number");
            if (!std::isfinite(number->ToDouble()))
                FPlace.Fail(TFormProblemKind::OutOfRange, value.Position, L"Number too big");
            return number->ToDouble();
        }
        default:
            if (const auto* text = value.As<String>()) return *text;
            FailType(value, L"a string");
    }
}

std::int64_t TReader::IntegerValue(const TPublishedProperty& row, const TFormValue& value) const {
    if (const auto* number = value.As<std::int64_t>()) return *number;
    const auto* ident = value.As<TFormIdent>();
    if (!ident || row.Identifiers().empty()) FailType(value, L"a whole number");
    const auto names = row.Identifiers();
    const auto found = std::ranges::find_if(
        names, [&](const TIdentifier& known) { return SameText(known.Name, ident->Name); });
    if (found == names.end())
        FPlace.Fail(TFormProblemKind::UnknownValue, value.Position,
                    Format(L"%s is the name of no value of the property", ident->Name));
    return found->Value;
}

std::int64_t TReader::ElementOrdinal(const TPublishedProperty& row, const String& name,
                                     TFormPosition position) const {
    const auto names = row.ElementNames();
    const auto found =
        std::ranges::find_if(names, [&](const wchar_t* known) { return SameText(known, name); });
    if (found == names.end())
        FPlace.Fail(TFormProblemKind::UnknownValue, position,
                    Format(L"%s is none of %s", name, ListOf(names)));
    return found - names.begin();
}

void TReader::ReadCollection(TCollection& collection, const TFormCollection& value) {
    WithinUpdate(collection, [&] { ReadItems(collection, value.Items); });
}

void TReader::ReadItems(TCollection& collection, const std::vector<TFormItem>& items) {
    collection.Clear();
    std::size_t index = 0;
    for (const TFormItem& item : items) {
        const TFormPlace::TScope scope(FPlace, index++);
        TCollectionItem* added = collection.Add();
        FAddress.Steps.emplace_back(added->GetID());
        ReadProperties(item.Properties, *added);
        FAddress.Steps.pop_back();
    }
}

void TReader::BindEvent(const TPublishedProperty& row, TPersistent& object, const TFormValue& value) {
    TEventBase& event = *row.Event(object);
    if (value.As<TFormNil>()) return event.Clear();
    const auto* ident = value.As<TFormIdent>();
    if (!ident) FailType(value, L"the name of a method");
    if (OnFindMethod && OnFindMethod(ident->Name, object, event)) return;
    if (FRoot->IsInState(csDesigning)) return event.SetMethodName(ident->Name);

    const StringView path = ident->Name;
    const std::size_t point = path.rfind(L'.');
    TComponent* target =
        point == StringView::npos ? FRoot : FindNestedComponent(*FRoot, path.substr(0, point));
    const StringView name = point == StringView::npos ? path : path.substr(point + 1);
    const TPublishedMethod* method = target ? target->ClassType().FindMethod(name) : nullptr;
    if (!method)
        FPlace.Fail(TFormProblemKind::UnknownMethod, value.Position,
                    Format(L"%s publishes no method %s", FRoot->ClassName(), path));
    if (*method->Signature != row.EventType())
        FPlace.Fail(TFormProblemKind::UnknownMethod, value.Position,
                    Format(L"Method %s does not fit the event", path));
    method->Bind(event, target);
}

}  // namespace vcl
