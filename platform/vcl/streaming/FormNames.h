#pragma once

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// What may begin and continue a name in a form file: letters of every language, the underscore and, not at
/// the beginning, digits.
[[nodiscard]] bool StartsFormName(wchar_t c);
[[nodiscard]] bool ContinuesFormName(wchar_t c);
/// True for one name, or for several with points in between: "Font.Name".
[[nodiscard]] bool IsDottedFormName(StringView text);

}  // namespace vcl
