#pragma once

#include "platform/tms/Namespace.h"
#include "platform/velmora/Namespace.h"
#include "skin/Namespace.h"

/// The buttons derive from the base controls and speak their language too.
namespace qv7skin {
using namespace tms;
using namespace velmora;
}  // namespace qv7skin
