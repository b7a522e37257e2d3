#pragma once

#include <string>

#include "designer/model/DesignDocument.h"
#include "platform/vcl/controls/WinControl.h"

namespace designer {

/// What is chosen, as the text of form files: one `object` behind the other. What stands in another chosen
/// one comes with it.
[[nodiscard]] String CopySelection(TDesignDocument& document);

/// Puts the objects of such a text into `parent` (a component of the form, or the form) and chooses them.
/// Names that are taken become new ones, and references between the objects follow. Controls that would lie
/// on others of the same place move by `shift` pixels to the right and down. Raises EFormError when the text
/// can't be parsed or holds something that can't be made; the form stays as it was then.
void PasteText(TDesignDocument& document, StringView text, const TComponent& parent, int shift);

}  // namespace designer
