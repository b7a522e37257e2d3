#pragma once

#include "platform/vcl/core/Strings.h"
#include "tools/dfm/Namespace.h"

namespace dfm {

/// Registers the framework's classes and those of the skin package.
void RegisterOwnClasses();

/// Loads a module and calls the operation `Register` that it exports; it stays loaded. Raises EOSError when
/// it can't be loaded, EFilerError when it exports no such operation.
void LoadPackage(const String& fileName);

}  // namespace dfm
