#pragma once

#include "inputs/InputColors.h"
#include "platform/vcl/core/Geometry.h"

namespace vcl {
class TCanvas;
}

namespace qv7skin {

/// How a drop button looks.
struct TDropButtonLook {
    TColor Face = InputGround;
    TColor Border = InputGround;
    TColor Arrow = InputText;
    bool Enabled = true;
    bool Open = false;   ///< The arrow points up.
    int LineBottom = 0;  ///< Where the separator line ends (not drawn itself); 0 for no line.
};

/// Draws a drop button over the rectangle, a pixel more at both sides: the face with its border, the
/// separator line one pixel inside of the left edge, and the arrow, engraved when disabled.
void DrawDropButton(TCanvas& canvas, TRect rect, const TDropButtonLook& look);

}  // namespace qv7skin
