#pragma once

#include <string>

#include "platform/vcl/streaming/FormDocument.h"
#include "tools/dfm/Namespace.h"

namespace dfm {

/// A line for each component, in UTF-8, two blanks deeper than the one that it stands in:
/// "Panel1: TPanel", with "inherited" or "inline" in front where the file says so.
[[nodiscard]] std::string TreeOf(const TFormDocument& document);

}  // namespace dfm
