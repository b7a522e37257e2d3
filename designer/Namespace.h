#pragma once

#include "skin/Namespace.h"

/// The form designer.
namespace designer {
using namespace qv7skin;
}
