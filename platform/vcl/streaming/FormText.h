#pragma once

#include <string>

#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

/// Reads the text of a form file. Raises EFormError.
[[nodiscard]] TFormDocument ParseFormText(StringView text, const String& fileName = {});

/// Writes the text of a form file, in ASCII with CR LF line ends. What differs in spelling only becomes the
/// same: writing what was read from such a text gives the same bytes again.
[[nodiscard]] std::string FormToText(const TFormDocument& document);
/// The same for a part of a document.
[[nodiscard]] std::string FormToText(const TFormObject& object);

}  // namespace vcl
