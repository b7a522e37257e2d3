#pragma once

#include <initializer_list>

#include "platform/vcl/core/Filer.h"

namespace vcl {

/// Takes properties of these names from form files and keeps nothing of them. For a class's
/// `DefineProperties`: what designers store there and the framework has no use for.
void SkipProperties(TFiler& filer, std::initializer_list<const wchar_t*> names);

}  // namespace vcl
