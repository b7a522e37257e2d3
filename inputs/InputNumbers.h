#pragma once

#include <limits>

#include "inputs/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace qv7skin {

/// The number that a text is; 0 for any other text, also for a number that an Integer can't hold.
[[nodiscard]] inline int IntegerOfText(StringView text) {
    const std::int64_t number = StrToIntDef(text, 0);
    using Limits = std::numeric_limits<int>;
    return number < Limits::min() || number > Limits::max() ? 0 : static_cast<int>(number);
}

}  // namespace qv7skin
