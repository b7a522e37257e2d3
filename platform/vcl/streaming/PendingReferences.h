#pragma once

#include "platform/vcl/streaming/PropertyAddress.h"

namespace vcl {

// References to components of forms that do not exist yet. They are kept until such a form has been read, or
// the component that refers is freed.

/// Keeps a reference to `name`, such as "Form2.Image1".
void AddPendingReference(const TPropertyAddress& address, const String& name);
/// Sets the references whose components exist by now, in `root` (may be null) or in a global component. One
/// that its property refuses is given up.
void ResolvePendingReferences(TComponent* root);
/// The names that are still waited for, each once, in the order in which they were met.
[[nodiscard]] std::vector<String> PendingReferenceNames();
/// Gives up the references of a component and of all that it owns.
void RemovePendingReferences(const TComponent& component);

}  // namespace vcl
