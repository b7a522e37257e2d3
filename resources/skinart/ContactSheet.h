#pragma once

#include "resources/skinart/Picture.h"

namespace skinart {

/// A picture for the eye: every bitmap enlarged eight times under its name, then the scenes four times.
Picture DrawContactSheet();

}  // namespace skinart
