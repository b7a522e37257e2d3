#pragma once

#include "platform/vcl/core/Component.h"

namespace vcl {

/// Finds a form or other root of components by its name, or returns null.
using TFindGlobalComponent = TComponent* (*)(StringView name);

/// Lets form files refer to the components of other forms ("Form2.Image1"): whoever keeps roots registers a
/// function that finds them.
void RegisterFindGlobalComponent(TFindGlobalComponent find);
void UnRegisterFindGlobalComponent(TFindGlobalComponent find);
/// Asks the functions in the order of their registration.
[[nodiscard]] TComponent* FindGlobalComponent(StringView name);

/// The component at the end of a path of names, each owned by the one before and the first by `root`; "Owner"
/// is the component itself. Null when a name is unknown.
[[nodiscard]] TComponent* FindNestedComponent(TComponent& root, StringView path);

}  // namespace vcl
