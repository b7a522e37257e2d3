#pragma once

#include "platform/flatstyle/Namespace.h"
#include "platform/tms/Namespace.h"
#include "platform/velmora/Namespace.h"
#include "skin/Namespace.h"

/// The inputs derive from the base controls and speak their language too.
namespace qv7skin {
using namespace flatstyle;
using namespace tms;
using namespace velmora;
}  // namespace qv7skin
