#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// The file's name without its folder.
[[nodiscard]] String FileTitle(const String& fileName);
/// The folder with a backslash behind it; empty for a name without one.
[[nodiscard]] String FileFolder(const String& fileName);
/// True for a folder as `FileFolder` gives it.
[[nodiscard]] bool IsFileFolder(const String& name);

}  // namespace designer
