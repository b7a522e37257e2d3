#pragma once

#include <functional>

#include "designer/Namespace.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// A name for a component of the class, such as "Button3": the first number for which `isTaken` is false.
[[nodiscard]] String FreeName(StringView className, const std::function<bool(const String&)>& isTaken);
/// The same among the components of a form.
[[nodiscard]] String FreeName(StringView className, const TComponent& root);

}  // namespace designer
