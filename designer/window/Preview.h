#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace designer {

/// Runs the form as a host would, as a window that works until the user closes it. Its events call nothing.
/// Raises EFormError for a form that a host could not load.
void RunPreview(const TFormDocument& document);

}  // namespace designer
