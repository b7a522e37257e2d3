#include "platform/vcl/streaming/LoadSession.h"

#include <algorithm>

namespace vcl {
namespace {

/// The frame under construction on this thread, innermost first.
TLoadSession::TInlineScope*& CurrentInline() {
    thread_local TLoadSession::TInlineScope* current = nullptr;
    return current;
}

/// The names of the component and of those that it stands in, up to the root.
String PathOf(const TComponent& component, const TComponent& root) {
    const String name = component.GetName().empty() ? component.ClassName() : component.GetName();
    if (&component == &root) return name;
    const TComponent* parent = component.GetParentComponent();
    if (!parent) parent = component.GetOwner();
    return parent ? PathOf(*parent, root) + L'.' + name : name;
}

}  // namespace

TLoadSession::TInlineScope::TInlineScope(TLoadSession& session, const TComponent* owner)
    : FSession(session), FOwner(owner), FOuter(CurrentInline()) {
    CurrentInline() = this;
}

TLoadSession::TInlineScope::~TInlineScope() {
    CurrentInline() = FOuter;
}

TLoadSession* TLoadSession::ToJoin(const TComponent& root) {
    const TInlineScope* scope = CurrentInline();
    return scope && scope->FOwner && root.GetOwner() == scope->FOwner ? &scope->FSession : nullptr;
}

TLoadSession::~TLoadSession() {
    // Before the base class tells the components one by one that this one goes.
    for (const TEntry& entry : FEntries) {
        if (entry.Component) RemoveFreeNotification(entry.Component);
    }
}

void TLoadSession::Add(const TEntry& entry) {
    if (entry.Component->IsInState(csLoading)) {
        // A frame's own file came first; the form is what made it.
        const auto known = std::ranges::find(FEntries, entry.Component, &TEntry::Component);
        if (known != FEntries.end() && entry.Created) *known = entry;
        return;
    }
    entry.Component->BeginLoading();
    FEntries.push_back(entry);
    entry.Component->FreeNotification(this);
}

void TLoadSession::Complete(const TComponent& root, const std::function<void(TFormProblem)>& report) {
    // By index: what completes one component may free others.
    for (std::size_t i = 0; i < FEntries.size(); ++i) {
        const TEntry entry = FEntries[i];
        if (!entry.Component) continue;
        try {
            entry.Component->EndLoading();
        } catch (const Exception& error) {
            if (!FEntries[i].Component) throw;
            report({TFormProblemKind::Failed,
                    *entry.FileName,
                    entry.Position,
                    PathOf(*entry.Component, root),
                    {},
                    error.Message()});
        }
    }
}

void TLoadSession::Abandon(std::size_t first) {
    for (std::size_t i = FEntries.size(); i-- > first;) {
        const TEntry entry = FEntries[i];
        if (!entry.Component) continue;
        if (entry.Created) {
            entry.Component->Free();
        } else {
            RemoveFreeNotification(entry.Component);
            entry.Component->SetState(csLoading, false);
            entry.Component->SetState(csReading, false);
        }
    }
    FEntries.resize(first);
}

void TLoadSession::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove) return;
    for (TEntry& entry : FEntries) {
        if (entry.Component == component) entry.Component = nullptr;
    }
}

}  // namespace vcl
