#pragma once

#include "buttons/Namespace.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {
class TImageList;
}

namespace qv7skin {

/// What a message dialog shows beside its text.
enum class TQV7SkinMessageIcon { msgiNone, msgiInformation, msgiQuestion, msgiWarning, msgiError };
using enum TQV7SkinMessageIcon;

/// Pixels of each side of a message icon; the arrows before choices are as wide, so that both stand in line.
inline constexpr int MessageIconSize = 32;
inline constexpr int ChoiceArrowHeight = 20;

/// Draws the icon with smooth edges on the colour; the bitmap becomes `MessageIconSize` wide and high.
void DrawMessageIcon(TBitmap& Bitmap, TQV7SkinMessageIcon Icon, TColor Ground);

/// Fills the list with an arrow for each of the states normal, hovered, pressed and disabled. Magenta
/// surrounds them; their edges are smooth on `Ground`, those of the middle two on `LitGround`.
void MakeChoiceArrows(TImageList& Images, TColor Ground, TColor LitGround);

}  // namespace qv7skin
