#pragma once

#include <functional>

#include "designer/Namespace.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// A name for a component of the class, such as "Button3": the first number for which `isTaken` is false.
[[nodiscard]] String FreeName(StringView className, const std::function<bool(const String&)>& isTaken);
/// The same among the components of a form.
[[nodiscard]] String FreeName(StringView className, const TComponent& root);

/// True for the name of an object within one whose class is unknown: it is no component, but has its name in
/// the file.
[[nodiscard]] bool IsHeldByPlaceholder(const TComponent& root, StringView name);

/// True when an event of the form or of one of its components calls a method of that name.
[[nodiscard]] bool IsMethodName(const TComponent& root, StringView name);
/// Raises EConvertError when a program could not have a method of that name for the event: no identifier,
/// the name of a component, or already that of a method for events of another type.
void CheckMethodName(const TComponent& root, const TPublishedProperty& event, const String& name);

}  // namespace designer
