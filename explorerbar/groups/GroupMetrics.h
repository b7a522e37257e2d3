#pragma once

namespace qv7skin {

/// Pixels of a group: its header, and the space above the first and below the last item.
inline constexpr int HeaderHeight = 19;
inline constexpr int BodyMargin = 10;

}  // namespace qv7skin
