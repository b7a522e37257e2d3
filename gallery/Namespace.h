#pragma once

#include "skin/Namespace.h"

namespace gallery {
using namespace qv7skin;
}
