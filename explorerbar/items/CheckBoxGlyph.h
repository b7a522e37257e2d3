#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/stdctrls/TextTypes.h"
#include "skin/Namespace.h"

namespace vcl {
class TCanvas;
}

namespace qv7skin {

/// The size of one box in the system's collection of check boxes, which has four columns and three rows; read
/// once (OBM_CHECKBOXES, https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-loadbitmapw).
[[nodiscard]] TSize CheckBoxGlyphSize();

/// Draws a box in the middle of 16 x 16 pixels at (Left, Top): the system's, or with `Flat` one that has a
/// line in the system's shadow colour for an edge. Brush and pen of the canvas stay as they were.
void DrawCheckBoxGlyph(TCanvas& Canvas, int Left, int Top, TCheckBoxState State, bool Enabled, bool Flat);

}  // namespace qv7skin
