#pragma once

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// True for a letter or underscore followed by letters, digits and underscores (letters of every language):
/// what may name a component.
[[nodiscard]] bool IsValidIdent(StringView text);

}  // namespace vcl
