#pragma once

#include "platform/vcl/controls/ControlTypes.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Registers the cursor of accepted drops, an arrow with a small tab, with the screen under the number,
/// unless there is a cursor of that number. The screen owns it.
void RegisterDragCursor(TCursor cursor);

}  // namespace qv7skin
