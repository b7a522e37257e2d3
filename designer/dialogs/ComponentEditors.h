#pragma once

#include "designer/inspector/PropertyEditors.h"

namespace designer {

/// True when what lies in the component is edited in a window of its own: menus, lists of actions, image
/// lists.
[[nodiscard]] bool HasComponentEditor(const TComponent& component);

/// Opens that window; nothing for other components. Raises what the edits raise.
void EditComponent(TDesignDocument& document, TComponent& component, TValueDialogs& values);

}  // namespace designer
