#pragma once

#include <memory>

#include "skin/Namespace.h"

namespace qv7skin {

/// The one object of the class that all share: made when the first asks for it, freed with the last that
/// holds it. Call it from one source file of the package, for classes that only read resources.
template <class T>
[[nodiscard]] std::shared_ptr<const T> SharedWhileUsed() {
    static std::weak_ptr<const T> alive;
    std::shared_ptr<const T> shared = alive.lock();
    if (!shared) alive = shared = std::make_shared<const T>();
    return shared;
}

}  // namespace qv7skin
