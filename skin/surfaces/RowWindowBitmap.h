#pragma once

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// A picture of 24 bits that may be far higher than memory should hold: it has the height of the whole, but
/// keeps only a window of its rows.
///
/// Coordinates are those of the whole, for its canvas, for `ScanLine` and for copies from it; drawing outside
/// of the window is cut as at the edge of any bitmap, and `ScanLine` of a row outside raises
/// EInvalidGraphicOperation "Scan line index out of range". The views of `ReadBits` and `WriteBits` show the
/// rows of the window alone.
class TRowWindowBitmap : public TBitmap {
public:
    /// A whole of that size of which `rows` from `firstRow` on are kept, all filled with the colour.
    TRowWindowBitmap(int width, int height, int firstRow, int rows, TColor color);

    /// The height of the whole.
    [[nodiscard]] int GetHeight() const override { return FWholeHeight; }
    /// The rows that are kept: from the first up to, without, the last.
    [[nodiscard]] int GetTop() const { return GetFirstRow(); }
    [[nodiscard]] int GetBottom() const { return GetFirstRow() + GetRowCount(); }
    /// Moves the window. Rows that stay inside keep their pixels, the others keep none that mean anything.
    void MoveTo(int firstRow);
    /// Draws the window at its place in the rectangle of the whole.
    void Draw(TCanvas& canvas, const TRect& rect) const override;

private:
    int FWholeHeight;
};

}  // namespace qv7skin
