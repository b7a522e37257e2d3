#pragma once

#include <string_view>

#include "resources/skinart/Picture.h"

namespace skinart {

/// Width of one letter including the space after it, and height of a line, in pixels before enlargement.
inline constexpr int kLetterWidth = 4;
inline constexpr int kLetterHeight = 5;

/// Writes `text` in tiny capitals, each pixel `scale` x `scale`; only A to Z, 0 to 9 and '-' leave a mark.
void WriteText(Picture& picture, int left, int top, std::string_view text, Rgb color, int scale);

}  // namespace skinart
