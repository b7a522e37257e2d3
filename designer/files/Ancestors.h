#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace designer {

/// Asked which of several files holds the form that another one inherits; none when the user gives up.
using TAncestorChoice = std::function<std::optional<String>(const std::vector<String>& files)>;

/// The form files of which one that begins with `inherited` takes its components, the oldest first; empty for
/// other forms. Form files do not name their ancestor. It is looked for among the files beside `fileName`:
/// the one that has all components that the form inherits. Of several `choose` takes one.
///
/// Raises EFormError when there is none, and EAbort when `choose` gives up.
[[nodiscard]] std::vector<TFormDocument> FindAncestors(const TFormDocument& document, const String& fileName,
                                                       const TAncestorChoice& choose);

/// The chain of a form that inherits the one in that file: the file's ancestors and itself. Raises what
/// reading raises, and what `FindAncestors` does.
[[nodiscard]] std::vector<TFormDocument> ChainOf(const String& fileName, const TAncestorChoice& choose);

}  // namespace designer
