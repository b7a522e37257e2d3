#pragma once

namespace designer {

/// Shows what the keys and the mouse do in the designer.
void ShowKeysDialog();

}  // namespace designer
