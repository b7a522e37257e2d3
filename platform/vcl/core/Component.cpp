#include "platform/vcl/core/Component.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Filer.h"
#include "platform/vcl/core/Identifiers.h"

namespace vcl {

const TMetaClass& TComponent::StaticClass() {
    // Form files write the name beside the class, not as a property.
    static const TMetaClass meta = DefineClass<TComponent>(L"TComponent", TPersistent::StaticClass())
                                       .Property(L"Name", &TComponent::GetName, &TComponent::SetName)
                                       .NotStored()
                                       .Property(L"Tag", &TComponent::GetTag, &TComponent::SetTag, 0);
    return meta;
}

TComponent::TComponent(TComponent* AOwner) {
    if (!AOwner) return;
    try {
        AOwner->InsertComponent(this);
    } catch (...) {
        // The destructor will not run.
        if (FOwner) FOwner->Unlist(this);
        throw;
    }
}

TComponent::~TComponent() {
    Destroying();
    while (!FFreeNotifies.empty()) {
        TComponent* listener = FFreeNotifies.back();
        RemoveFreeNotification(listener);
        listener->Notification(this, opRemove);
    }
    DestroyComponents();
    if (FOwner) FOwner->RemoveComponent(this);
}

void TComponent::Free() {
    Destroying();
    delete this;
}

void TComponent::Destroying() {
    if (IsInState(csDestroying)) return;
    SetState(csDestroying, true);
    BeforeDestruction();
    // By index: what ends in there may free other components of the list.
    for (std::size_t i = 0; i < FComponents.size(); ++i)
        FComponents[i]->Destroying();
}

void TComponent::SetName(const String& name) {
    if (name == FName) return;
    if (!name.empty() && !IsValidIdent(name))
        throw EComponentError(Format(L"'%s' is not a valid component name", name));
    if (FOwner)
        FOwner->ValidateRename(this, FName, name);
    else
        ValidateRename(nullptr, FName, name);
    ChangeName(name);
}

void TComponent::ValidateRename(TComponent* component, const String& current, const String& next) {
    if (component && !SameText(current, next) && component->FOwner == this && FindComponent(next))
        throw EComponentError(Format(L"A component named %s already exists", next));
    // A designer that stands above wants to know of every name in its form.
    if (IsInState(csDesigning) && FOwner) FOwner->ValidateRename(component, current, next);
}

void TComponent::ChangeName(const String& name) {
    SetReference(false);
    FName = name;
    SetReference(true);
}

void TComponent::SetReference(bool present) {
    if (!FOwner || FName.empty()) return;
    // While the owner is being destroyed, its class is what is left of it: fields that are gone are not
    // found.
    const TPublishedField* field = FOwner->ClassType().FindField(FName);
    if (!field) return;
    if (!present)
        field->Set(*FOwner, nullptr);
    else if (InheritsFrom(field->Class()))
        field->Set(*FOwner, this);
}

TComponent* TComponent::GetComponent(int index) const {
    if (index < 0 || index >= GetComponentCount())
        throw EListError(Format(L"List index out of bounds (%d)", index));
    return FComponents[static_cast<std::size_t>(index)];
}

int TComponent::GetComponentIndex() const {
    if (!FOwner) return -1;
    const auto& siblings = FOwner->FComponents;
    return static_cast<int>(std::ranges::find(siblings, this) - siblings.begin());
}

TComponent* TComponent::FindComponent(StringView name) const {
    if (name.empty()) return nullptr;
    const auto found = std::ranges::find_if(
        FComponents, [&](const TComponent* component) { return SameText(component->FName, name); });
    return found == FComponents.end() ? nullptr : *found;
}

bool TComponent::OwnsOrIs(const TComponent* component) const {
    while (component && component != this)
        component = component->FOwner;
    return component != nullptr;
}

void TComponent::InsertComponent(TComponent* component) {
    if (component->OwnsOrIs(this)) throw EInvalidOperation(L"A component can't own itself");
    if (component->FOwner == this) return;
    if (FindComponent(component->FName))
        throw EComponentError(Format(L"A component named %s already exists", component->FName));
    if (component->FOwner) component->FOwner->RemoveComponent(component);
    ValidateRename(component, {}, component->FName);
    FComponents.push_back(component);
    component->FOwner = this;
    component->SetReference(true);
    if (IsInState(csDesigning)) component->SetDesigning(true);
    Notification(component, opInsert);
}

void TComponent::RemoveComponent(TComponent* component) {
    if (!component || component->FOwner != this) return;
    ValidateRename(component, component->FName, {});
    Notification(component, opRemove);
    if (component->FOwner == this) Unlist(component);
}

void TComponent::Unlist(TComponent* component) {
    // Mostly it is the last one that goes.
    component->SetReference(false);
    const auto place = std::find(FComponents.rbegin(), FComponents.rend(), component);
    FComponents.erase(std::next(place).base());
    component->FOwner = nullptr;
}

void TComponent::DestroyComponents() {
    while (!FComponents.empty()) {
        TComponent* component = FComponents.back();
        component->Destroying();
        RemoveComponent(component);
        delete component;
    }
}

void TComponent::FreeNotification(TComponent* component) {
    if (!component || component == this || (FOwner && component->FOwner == FOwner)) return;
    if (std::ranges::find(FFreeNotifies, component) != FFreeNotifies.end()) return;
    FFreeNotifies.push_back(component);
    component->FFreeNotifies.push_back(this);
}

void TComponent::RemoveFreeNotification(TComponent* component) {
    if (!component || std::erase(FFreeNotifies, component) == 0) return;
    std::erase(component->FFreeNotifies, this);
}

void TComponent::Notification(TComponent* component, TOperation operation) {
    if (operation == opRemove) RemoveFreeNotification(component);
    for (std::size_t i = FComponents.size(); i > 0;) {
        TComponent* listener = FComponents[i - 1];
        listener->Notification(component, operation);
        // It may have freed others, so look where it stands now.
        const auto behind =
            FComponents.begin() + static_cast<std::ptrdiff_t>(std::min(i, FComponents.size()));
        const auto place = std::find(std::reverse_iterator(behind), FComponents.rend(), listener);
        i = place != FComponents.rend() ? static_cast<std::size_t>(FComponents.rend() - place) - 1
                                        : std::min(i - 1, FComponents.size());
    }
}

void TComponent::SetDesigning(bool value, bool setChildren) {
    SetState(csDesigning, value);
    if (!setChildren) return;
    for (TComponent* component : FComponents)
        component->SetDesigning(value);
}

void TComponent::DefineProperties(TFiler& filer) {
    TPersistent::DefineProperties(filer);
    const auto* ancestor = dynamic_cast<const TComponent*>(filer.GetAncestor());
    const auto half = [&](const wchar_t* name, int shift) {
        const auto of = [shift](const TComponent& component) {
            return static_cast<std::int16_t>(component.FDesignInfo >> shift);
        };
        const auto read = [this, shift](TValueReader& reader) {
            const std::uint32_t value = static_cast<std::uint16_t>(reader.ReadInteger());
            const std::uint32_t rest = static_cast<std::uint32_t>(FDesignInfo) & ~(0xFFFFu << shift);
            FDesignInfo = static_cast<std::int32_t>(rest | value << shift);
        };
        const auto write = [&](TValueWriter& writer) { writer.WriteInteger(of(*this)); };
        filer.DefineProperty(name, read, write, of(*this) != (ancestor ? of(*ancestor) : 0));
    };
    half(L"Left", 0);
    half(L"Top", 16);
}

void TComponent::GetChildren(const std::function<void(TComponent*)>&, TComponent*) {}

void TComponent::BeginLoading() {
    SetState(csLoading, true);
    SetState(csReading, true);
}

void TComponent::EndLoading() {
    SetState(csReading, false);
    if (IsInState(csLoading)) Loaded();
}

void TComponent::Loaded() {
    SetState(csLoading, false);
}

}  // namespace vcl
