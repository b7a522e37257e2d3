#pragma once

#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
}

namespace qv7skin {

class TNinePartPieces;

/// Composes the frame row by row in the bitmap's memory, and says whether it could: the bitmap and the pieces
/// have 24 or 32 bits, edges are one pixel thin along their direction and no thicker than their corners, and
/// nothing overlaps.
[[nodiscard]] bool ComposeNinePartByRows(TBitmap& bitmap, const TNinePartPieces& pieces, TColor fillColor);

/// Composes any frame, piece by piece on the bitmap's canvas.
void ComposeNinePartByCanvas(TBitmap& bitmap, const TNinePartPieces& pieces, TColor fillColor);

}  // namespace qv7skin
