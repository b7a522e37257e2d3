#pragma once

#include "designer/model/DesignDocument.h"
#include "platform/vcl/controls/WinControl.h"

namespace designer {

/// The control whose children the tab order dialog is about: the chosen one when it holds others, else the
/// one that it stands in; without a choice the form.
[[nodiscard]] TWinControl& TabOrderParent(TDesignDocument& document);

/// Lets the user put the controls with a window that stand on `parent` into the order in which Tab visits
/// them, by buttons, keys (Ctrl with the arrows) or dragging. One edit; none when he changes his mind.
void EditTabOrder(TDesignDocument& document, const TWinControl& parent);

}  // namespace designer
