#include "designer/model/References.h"

#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace designer {
namespace {

/// The component in "Edit1" and "Frame1.Edit".
StringView ComponentIn(const TFormIdent& ident) {
    return StringView(ident.Name).substr(0, ident.Name.find(L'.'));
}

void Follow(TFormIdent& ident, const TNewNames& names) {
    const StringView component = ComponentIn(ident);
    const auto renamed = names.find(String(component));
    if (renamed != names.end()) ident.Name.replace(0, component.size(), renamed->second);
}

/// True when the class says that the property is something else than a reference, or than what may hold one.
bool HoldsNone(const TMetaClass* meta, StringView property) {
    const TPublishedProperty* row = meta ? meta->FindProperty(property) : nullptr;
    return row && row->Kind() != TPropertyKind::Component && row->Kind() != TPropertyKind::Nested;
}

}  // namespace

void FollowNames(TFormValue& value, const TNewNames& names) {
    if (auto* ident = std::get_if<TFormIdent>(&value.Content)) return Follow(*ident, names);
    if (auto* list = std::get_if<TFormList>(&value.Content))
        for (TFormValue& element : list->Values)
            FollowNames(element, names);
    if (auto* collection = std::get_if<TFormCollection>(&value.Content))
        for (TFormItem& item : collection->Items)
            for (TFormProperty& property : item.Properties)
                FollowNames(property.Value, names);
}

void FollowNames(TFormObject& object, const TNewNames& names) {
    const TMetaClass* meta = GetClass(object.ClassName);
    for (TFormProperty& property : object.Properties)
        if (!HoldsNone(meta, property.Name)) FollowNames(property.Value, names);
    for (TFormObject& child : object.Children)
        FollowNames(child, names);
}

bool RefersTo(const TFormValue& value, StringView component) {
    const auto* ident = value.As<TFormIdent>();
    return ident && SameText(ComponentIn(*ident), component);
}

}  // namespace designer
