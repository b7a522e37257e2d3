#include "platform/vcl/streaming/Writer.h"

#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/streaming/ValueBuilder.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vcl {
namespace {

TPersistent* ObjectIn(const TPublishedProperty& row, const TPersistent& holder) {
    const TPropertyValue value = row.Get(holder);
    const auto* object = std::get_if<TPersistent*>(&value);
    return object ? *object : nullptr;
}

const wchar_t* NameOfOrdinal(const TPublishedProperty& row, std::int64_t ordinal) {
    const auto names = row.ElementNames();
    if (ordinal < 0 || ordinal >= static_cast<std::int64_t>(names.size()))
        throw EWriteError(Format(L"Value %d of property %s has no name", ordinal, row.Name()));
    return names[static_cast<std::size_t>(ordinal)];
}

TFormSet SetValue(const TPublishedProperty& row, std::int64_t bits) {
    TFormSet set;
    for (std::int64_t ordinal = 0; bits != 0; ++ordinal, bits >>= 1) {
        if ((bits & 1) != 0) set.Elements.push_back({NameOfOrdinal(row, ordinal), {}});
    }
    return set;
}

TFormValue::TContent IntegerValue(const TPublishedProperty& row, std::int64_t value) {
    const auto names = row.Identifiers();
    const auto named = std::ranges::find(names, value, &TIdentifier::Value);
    if (named != names.end()) return TFormIdent{named->Name};
    // Unsigned numbers of 32 bits are written as signed ones: all readers know those.
    constexpr std::int64_t greatest = std::numeric_limits<std::uint32_t>::max();
    const bool wraps = row.Maximum() == greatest && value > std::numeric_limits<std::int32_t>::max();
    return wraps ? value - greatest - 1 : value;
}

TFormValue SimpleValue(const TPublishedProperty& row, const TPropertyValue& value) {
    switch (row.Kind()) {
        case TPropertyKind::Boolean:
            return {std::get<std::int64_t>(value) != 0, {}};
        case TPropertyKind::Enumeration:
            return {TFormIdent{NameOfOrdinal(row, std::get<std::int64_t>(value))}, {}};
        case TPropertyKind::Set:
            return {SetValue(row, std::get<std::int64_t>(value)), {}};
        case TPropertyKind::Float:
            return {FiniteFloat(std::get<double>(value)), {}};
        case TPropertyKind::String:
            return {std::get<String>(value), {}};
        default:
            return {IntegerValue(row, std::get<std::int64_t>(value)), {}};
    }
}

String PathFrom(const TComponent* lookupRoot, const TComponent& target) {
    String path = target.GetName();
    const TComponent* owner = target.GetOwner();
    for (; owner && owner != lookupRoot && !owner->GetName().empty(); owner = owner->GetOwner())
        path.insert(0, owner->GetName() + L'.');
    const bool isRoot = owner != lookupRoot && path.find(L'.') == String::npos;
    return isRoot ? path + L".Owner" : path;
}

const TPublishedMethod* BoundMethod(TComponent& target, const TEventBase& event,
                                    const TPublishedProperty& row) {
    if (event.ObjectPart() != dynamic_cast<const void*>(&target)) return nullptr;
    for (const TMetaClass* meta = &target.ClassType(); meta; meta = meta->ClassParent()) {
        for (const TPublishedMethod& method : meta->OwnMethods()) {
            if (*method.Signature == row.EventType() && method.IsBound(event, &target)) return &method;
        }
    }
    return nullptr;
}

}  // namespace

/// Takes what an object defines itself.
class TWriter::TDefinedProperties final : public TFiler {
public:
    TDefinedProperties(TProperties& properties, const String& prefix, const TPersistent* ancestor)
        : FProperties(properties), FPrefix(prefix), FAncestor(ancestor) {}

    void DefineProperty(const wchar_t* name, const std::function<void(TValueReader&)>&,
                        const std::function<void(TValueWriter&)>& write, bool hasData) override {
        if (!hasData || !write) return;
        TValueBuilder builder;
        write(builder);
        FProperties.push_back({FPrefix + name, builder.Take(), {}});
    }
    void DefineBinaryProperty(const wchar_t* name, const std::function<void(TStream&)>&,
                              const std::function<void(TStream&)>& write, bool hasData) override {
        if (!hasData || !write) return;
        TMemoryStream stream;
        write(stream);
        const auto bytes = stream.GetMemory();
        FProperties.push_back({FPrefix + name, {TFormBinary{{bytes.begin(), bytes.end()}}, {}}, {}});
    }
    [[nodiscard]] const TPersistent* GetAncestor() const override { return FAncestor; }

private:
    TProperties& FProperties;
    const String& FPrefix;
    const TPersistent* FAncestor;
};

const std::vector<const TPublishedProperty*>& TWriter::RowsOf(const TMetaClass& meta) {
    const auto [place, added] = FRows.try_emplace(&meta);
    if (added) place->second = meta.AllProperties();
    return place->second;
}

void TWriter::WriteProperties(TProperties& properties, TPersistent& object, TPersistent* ancestor,
                              const String& prefix) {
    const TMetaClass& meta = object.ClassType();
    // The ancestor of a form is of another class, with rows of its own.
    const TMetaClass* ancestorMeta = ancestor ? &ancestor->ClassType() : nullptr;
    for (const TPublishedProperty* row : RowsOf(meta)) {
        if (!row->IsStored(object)) continue;
        const TPublishedProperty* ancestorRow = row;
        if (ancestorMeta != &meta)
            ancestorRow = ancestorMeta ? ancestorMeta->FindProperty(row->Name()) : nullptr;
        if (ancestorRow && ancestorRow->Kind() != row->Kind()) ancestorRow = nullptr;
        WriteProperty(properties, {prefix, *row, object, ancestorRow, ancestor});
    }
    TDefinedProperties filer(properties, prefix, ancestor);
    object.DefineProperties(filer);
}

void TWriter::WriteProperty(TProperties& properties, const TSubject& subject) {
    if (subject.Row.Kind() == TPropertyKind::Nested) return WriteNested(properties, subject);
    if (subject.Row.IsReadOnly()) return;
    switch (subject.Row.Kind()) {
        case TPropertyKind::Event:
            return WriteEvent(properties, subject);
        case TPropertyKind::Component:
            return WriteReference(properties, subject);
        default:
            return WriteSimple(properties, subject);
    }
}

bool TWriter::IsUsual(const TSubject& subject, const TPropertyValue& value) {
    if (!subject.AncestorRow) return subject.Row.DefaultFor(subject.Object) == value;
    if (subject.AncestorRow->Get(*subject.Ancestor) != value) return false;
    // Where another property decides about the default, reading that one would change the ancestor's value.
    return !subject.Row.HasDefaultRule() ||
           subject.AncestorRow->DefaultFor(*subject.Ancestor) == subject.Row.DefaultFor(subject.Object);
}

void TWriter::WriteSimple(TProperties& properties, const TSubject& subject) const {
    const TPropertyValue value = subject.Row.Get(subject.Object);
    if (!IsUsual(subject, value)) properties.push_back({subject.Name(), SimpleValue(subject.Row, value), {}});
}

void TWriter::WriteNested(TProperties& properties, const TSubject& subject) {
    TPersistent* nested = ObjectIn(subject.Row, subject.Object);
    if (!nested) return;
    TPersistent* ancestor = subject.AncestorRow ? ObjectIn(*subject.AncestorRow, *subject.Ancestor) : nullptr;
    auto* collection = dynamic_cast<TCollection*>(nested);
    WriteProperties(properties, *nested, ancestor, subject.Name() + L'.');
    if (!collection) return;

    TFormValue value = CollectionValue(*collection);
    bool same = collection->GetCount() == 0;
    if (auto* ancestorCollection = dynamic_cast<TCollection*>(ancestor)) {
        const TScope scope = std::exchange(FScope, FAncestorScope);
        same = value == CollectionValue(*ancestorCollection);
        FScope = scope;
    }
    if (!same) properties.push_back({subject.Name(), std::move(value), {}});
}

TFormValue TWriter::CollectionValue(TCollection& collection) {
    TFormCollection value;
    for (int i = 0; i < collection.GetCount(); ++i) {
        TFormItem& item = value.Items.emplace_back();
        WriteProperties(item.Properties, *collection.GetItem(i), nullptr, {});
    }
    return {std::move(value), {}};
}

void TWriter::WriteEvent(TProperties& properties, const TSubject& subject) const {
    // Nearly all events are empty.
    const TEventBase& event = *subject.Row.Event(subject.Object);
    if (!subject.AncestorRow && !event.MethodName() && !event.IsAssigned()) return;
    const TMethodName method = MethodName(subject.Object, subject.Row, FScope);
    const TMethodName inherited = subject.AncestorRow
                                      ? MethodName(*subject.Ancestor, *subject.AncestorRow, FAncestorScope)
                                      : TMethodName();
    const bool samePath = (method.IsLocal && inherited.IsLocal) || SameText(method.Path, inherited.Path);
    if (samePath && SameText(method.Name, inherited.Name)) return;
    if (!method.Name.empty())
        properties.push_back({subject.Name(), {TFormIdent{method.Path + method.Name}, {}}, {}});
    else if (!subject.Row.Event(subject.Object)->IsAssigned())
        properties.push_back({subject.Name(), {TFormNil(), {}}, {}});
}

void TWriter::WriteReference(TProperties& properties, const TSubject& subject) const {
    const String target = ReferenceName(subject.Object, subject.Row, FScope);
    const String inherited = subject.AncestorRow
                                 ? ReferenceName(*subject.Ancestor, *subject.AncestorRow, FAncestorScope)
                                 : String();
    if (SameText(target, inherited)) return;
    if (!target.empty())
        properties.push_back({subject.Name(), {TFormIdent{target}, {}}, {}});
    else if (!ObjectIn(subject.Row, subject.Object))
        properties.push_back({subject.Name(), {TFormNil(), {}}, {}});
}

TWriter::TMethodName TWriter::MethodName(TPersistent& object, const TPublishedProperty& row,
                                         const TScope& scope) const {
    const TEventBase& event = *row.Event(object);
    if (const String* name = event.MethodName()) return {{}, *name, false};
    if (!event.IsAssigned()) return {};
    if (OnFindMethodName) {
        if (String name = OnFindMethodName(event, row); !name.empty()) return {{}, name, false};
    }
    if (const TPublishedMethod* method = BoundMethod(*scope.Root, event, row))
        return {{}, method->Name, scope.Root == scope.LookupRoot};
    for (int i = 0; i < scope.Root->GetComponentCount(); ++i) {
        TComponent& frame = *scope.Root->GetComponent(i);
        if (!frame.IsInState(csInline) || frame.GetName().empty()) continue;
        if (const TPublishedMethod* method = BoundMethod(frame, event, row))
            return {frame.GetName() + L'.', method->Name, &frame == scope.LookupRoot};
    }
    return {};
}

String TWriter::ReferenceName(TPersistent& object, const TPublishedProperty& row, const TScope& scope) {
    const auto* target = static_cast<const TComponent*>(ObjectIn(row, object));
    if (!target) return {};
    if (target == scope.LookupRoot) return L"Owner";
    return target->GetName().empty() ? String() : PathFrom(scope.LookupRoot, *target);
}

}  // namespace vcl
