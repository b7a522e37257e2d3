#pragma once

#include <span>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// The chosen components of a form, the first of them leading: the others are aligned with it. Empty means
/// the form itself.
class TSelection {
public:
    /// The choice has changed, or what it consists of was made anew.
    TEvent<void()> OnChange;

    [[nodiscard]] std::span<TComponent* const> Items() const { return FItems; }
    [[nodiscard]] bool IsEmpty() const { return FItems.empty(); }
    [[nodiscard]] bool Contains(const TComponent* component) const;
    /// Null when nothing is chosen.
    [[nodiscard]] TComponent* Leader() const { return FItems.empty() ? nullptr : FItems.front(); }

    void Clear() { Set({}); }
    void Set(std::vector<TComponent*> items);
    void SetOnly(TComponent* component) { Set({component}); }
    /// Takes the component in as the last, or out.
    void Toggle(TComponent* component);
    /// Lets one of the chosen components lead.
    void Lead(TComponent* component);

    /// Forgets a component that is being freed.
    void Forget(const TComponent* component);
    /// The names of what is chosen, and the choice of those names among the components of `root`, for the
    /// time in which the components are made anew.
    [[nodiscard]] std::vector<String> Names() const;
    void SetNames(const std::vector<String>& names, const TComponent& root);

private:
    std::vector<TComponent*> FItems;
};

}  // namespace designer
