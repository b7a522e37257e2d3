#pragma once

#include <variant>
#include <vector>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

/// Names a property of a component, or of an object or collection item in it, by the way to it: it can be
/// asked after the component's properties have changed and finds out when an item is no more.
struct TPropertyAddress {
    /// A nested object, or the ID of an item in the collection that the step before leads to.
    using TStep = std::variant<const TPublishedProperty*, int>;

    TComponent* Component = nullptr;
    std::vector<TStep> Steps;
    const TPublishedProperty* Property = nullptr;

    /// The object that has the property now; null when it is no more.
    [[nodiscard]] TPersistent* Object() const;
};

}  // namespace vcl
