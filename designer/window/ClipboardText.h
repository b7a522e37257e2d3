#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// Puts the text on the system's clipboard. Raises EInvalidOperation when another program holds it.
void SetClipboardText(const String& text);
/// The text on the clipboard; empty when there is none.
[[nodiscard]] String GetClipboardText();

}  // namespace designer
