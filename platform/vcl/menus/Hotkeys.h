#pragma once

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// The part of a caption before a tab, behind which the text of a short cut stands.
[[nodiscard]] StringView CaptionText(StringView caption);
/// The caption with the mark of a mnemonic that is not in `taken`, which gets it: its own, or else the first
/// free letter or digit. A caption without any stays as it is, less a mnemonic that is taken.
[[nodiscard]] String WithFreeHotkey(const String& caption, String& taken);

}  // namespace vcl
