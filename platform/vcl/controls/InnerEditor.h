#pragma once

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

// For controls whose focus lies in an editor inside of them.

/// Takes Shift+Tab (without Ctrl) from a `CM_CHILDKEY` of the editor and moves the focus to the control
/// before `outer`: the way back would otherwise lead to `outer`, which hands the focus to the editor again.
/// True when it did; handlers of the focus may have freed `outer` then.
[[nodiscard]] bool TakeTabBack(TWinControl& outer, const TMessage& message);

/// Pixels that a line of text in the font takes, reckoned from the size of the font.
[[nodiscard]] int EditorLineHeight(const TFont& font);

/// Hands the focus that `outer` has just got on to the control inside, unless a handler closed the form or
/// gave the focus to another control meanwhile.
void HandFocusIn(TWinControl& outer, TWinControl& inner);

}  // namespace vcl
