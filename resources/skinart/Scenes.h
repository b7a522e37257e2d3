#pragma once

#include <vector>

#include "resources/skinart/Catalogue.h"

namespace skinart {

/// The bitmaps put together as the controls do it, in pixels of the screen.
std::vector<NamedPicture> DrawScenes(const Catalogue& skin);

}  // namespace skinart
