#include "platform/vcl/streaming/PendingReferences.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/GlobalComponents.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace vcl {
namespace {

/// Keeps the references and hears of the end of the components that they belong to.
class TPendingReferences final : public TComponent {
public:
    struct TEntry {
        TPropertyAddress Address;
        String Name;
    };

    TPendingReferences() : TComponent(nullptr) {}
    std::vector<TEntry> Entries;

protected:
    void Notification(TComponent* component, TOperation operation) override;
};

/// Null while nothing is waited for.
std::unique_ptr<TPendingReferences>& Pending() {
    static std::unique_ptr<TPendingReferences> pending;
    return pending;
}

void TPendingReferences::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove) return;
    std::erase_if(Entries, [&](const TEntry& entry) { return entry.Address.Component == component; });
    // Who tells of its end does not ask the listener anything afterwards.
    if (Entries.empty()) Pending().reset();
}

TComponent* FindTarget(TComponent* root, StringView name) {
    const std::size_t point = std::min(name.find(L'.'), name.size());
    const StringView first = name.substr(0, point);
    TComponent* start = root && SameText(root->GetName(), first) ? root : FindGlobalComponent(first);
    return start && point < name.size() ? FindNestedComponent(*start, name.substr(point + 1)) : start;
}

void SetReference(const TPropertyAddress& address, TComponent* target) {
    TPersistent* object = address.Object();
    if (!object) return;
    try {
        address.Property->Set(*object, static_cast<TPersistent*>(target));
    } catch (const Exception&) {
        // The form was read long ago, so there is nobody to tell.
    }
}

}  // namespace

void AddPendingReference(const TPropertyAddress& address, const String& name) {
    if (!Pending()) Pending() = std::make_unique<TPendingReferences>();
    address.Component->FreeNotification(Pending().get());
    Pending()->Entries.push_back({address, name});
}

void ResolvePendingReferences(TComponent* root) {
    if (!Pending()) return;
    // One at a time and from the list as it is then: setters may free components and read forms.
    for (std::size_t i = 0; Pending() && i < Pending()->Entries.size();) {
        TComponent* target = FindTarget(root, Pending()->Entries[i].Name);
        if (!target) {
            ++i;
            continue;
        }
        const auto entry = Pending()->Entries[i];
        Pending()->Entries.erase(Pending()->Entries.begin() + static_cast<std::ptrdiff_t>(i));
        SetReference(entry.Address, target);
    }
    if (Pending() && Pending()->Entries.empty()) Pending().reset();
}

std::vector<String> PendingReferenceNames() {
    std::vector<String> names;
    if (!Pending()) return names;
    for (const auto& entry : Pending()->Entries) {
        if (std::ranges::find(names, entry.Name) == names.end()) names.push_back(entry.Name);
    }
    return names;
}

void RemovePendingReferences(const TComponent& component) {
    if (!Pending()) return;
    std::erase_if(Pending()->Entries, [&](const auto& entry) {
        const TComponent* waiting = entry.Address.Component;
        while (waiting && waiting != &component)
            waiting = waiting->GetOwner();
        return waiting != nullptr;
    });
    if (Pending()->Entries.empty()) Pending().reset();
}

}  // namespace vcl
