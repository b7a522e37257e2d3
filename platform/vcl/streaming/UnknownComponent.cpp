#include "platform/vcl/streaming/UnknownComponent.h"

#include "platform/vcl/core/DefineClass.h"

#include <algorithm>
#include <utility>

namespace vcl {
namespace {

/// The part of that name, or null.
template <class T>
T* FindNamed(std::vector<T>& parts, StringView name) {
    const auto found =
        std::ranges::find_if(parts, [name](const T& part) { return SameText(part.Name, name); });
    return found == parts.end() ? nullptr : &*found;
}

/// Puts what an inheriting form says about an object into it.
void Merge(TFormObject& object, const TFormObject& changes) {
    for (const TFormProperty& property : changes.Properties) {
        if (TFormProperty* present = FindNamed(object.Properties, property.Name))
            *present = property;
        else
            object.Properties.push_back(property);
    }
    for (const TFormObject& child : changes.Children) {
        TFormObject* present =
            child.Kind == TFormObjectKind::Inherited ? FindNamed(object.Children, child.Name) : nullptr;
        if (present)
            Merge(*present, child);
        else
            object.Children.push_back(child);
    }
}

/// The opposite: what has to be merged into `from` to make `to` of it.
TFormObject Difference(TFormObject from, const TFormObject& to) {
    TFormObject changes;
    changes.Kind = TFormObjectKind::Inherited;
    changes.Name = to.Name;
    changes.ClassName = to.ClassName;
    for (const TFormProperty& property : to.Properties) {
        const TFormProperty* old = FindNamed(from.Properties, property.Name);
        if (!old || !(*old == property)) changes.Properties.push_back(property);
    }
    for (const TFormObject& child : to.Children) {
        const TFormObject* old = FindNamed(from.Children, child.Name);
        if (!old)
            changes.Children.push_back(child);
        else if (!(*old == child))
            changes.Children.push_back(Difference(*old, child));
    }
    return changes;
}

}  // namespace

const TMetaClass& TUnknownComponent::StaticClass() {
    using C = TUnknownComponent;
    static const TMetaClass meta = DefineClass<C>(L"TUnknownComponent", TComponent::StaticClass())
                                       .Property(L"Tag", &C::GetTagInFile, &C::SetTagInFile, 0);
    return meta;
}

TUnknownComponent::TUnknownComponent(TComponent* AOwner, TComponent* parent, int index, TFormObject object)
    : TComponent(AOwner), FObject(std::move(object)), FParent(parent), FIndex(index) {
    if (parent) parent->FreeNotification(this);
}

void TUnknownComponent::SetName(const String& value) {
    TComponent::SetName(value);
    FObject.Name = value;
}

std::int64_t TUnknownComponent::GetNumber(StringView name) const {
    const TFormProperty* property = FObject.FindProperty(name);
    const auto* number = property ? property->Value.As<std::int64_t>() : nullptr;
    return number ? *number : 0;
}

void TUnknownComponent::SetNumber(const wchar_t* name, std::int64_t value) {
    if (TFormProperty* present = FindNamed(FObject.Properties, name))
        present->Value.Content = value;
    else if (value != 0)
        FObject.Properties.push_back({name, {value, {}}, {}});
}

void TUnknownComponent::Override(const TFormObject& changes, int index) {
    Merge(FObject, changes);
    FIndex = index;
}

std::optional<TFormObject> TUnknownComponent::ChangesFrom(const TUnknownComponent& inherited) const {
    if (inherited.FObject == FObject) return std::nullopt;
    return Difference(inherited.FObject, FObject);
}

void TUnknownComponent::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation == opRemove && component == FParent) FParent = nullptr;
}

}  // namespace vcl
