#pragma once

#include <functional>
#include <span>

#include "gallery/Namespace.h"
#include "platform/vcl/core/WindowsApi.h"

namespace gallery {

/// Opens a menu of the system by `open`, which returns when it is closed, presses the keys in it one after
/// the other, calls `take` once the menu shows what came of them, and closes it.
void WithOpenMenu(const std::function<void()>& open, std::span<const WORD> keys,
                  const std::function<void()>& take);

}  // namespace gallery
