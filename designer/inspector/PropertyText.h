#pragma once

#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

// The values of properties as a user reads and types them: True, clBtnFace, [akLeft,akTop], Button1.

/// True for a property whose value is a colour: it has names, a sample and a window of its own.
[[nodiscard]] bool IsColorProperty(const TPublishedProperty& row);

/// The value of the object's property; of an event the name of its method, of an object that it holds the
/// class in parentheses.
[[nodiscard]] String PropertyText(const TPublishedProperty& row, TPersistent& object);

/// Reads such a text into the object's property; names of components mean those of `root`. Raises
/// EConvertError for a text that is no value of the property, and what the setter raises.
void SetPropertyText(const TPublishedProperty& row, TPersistent& object, const String& text,
                     const TComponent& root);

/// The texts to choose from: names of values, of components of `root` that fit, of methods that events of the
/// same kind call already. Empty when there is nothing to choose from.
[[nodiscard]] std::vector<String> PropertyChoices(const TPublishedProperty& row, const TComponent& root);

}  // namespace designer
