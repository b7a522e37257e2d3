#pragma once

#include <cmath>

#include "skin/Namespace.h"

namespace qv7skin {

/// The nearest whole number; halfway between two, the even one. Does not depend on the processor's rounding
/// mode.
[[nodiscard]] inline int RoundHalfEven(long double value) {
    const long double below = std::floor(value);
    const long double rest = value - below;
    const bool up = rest > 0.5L || (rest == 0.5L && std::fmod(below, 2.0L) != 0.0L);
    return static_cast<int>(below) + (up ? 1 : 0);
}

}  // namespace qv7skin
