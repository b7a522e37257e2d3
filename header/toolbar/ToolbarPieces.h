#pragma once

#include <array>
#include <memory>

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The bitmaps of a toolbar: its bar, and the left, middle and right pieces of hovered and pressed buttons.
class TToolbarPieces {
public:
    TToolbarPieces();
    ~TToolbarPieces();

    enum TSet { psHovered, psPressed };
    enum TPiece { tpLeft, tpCenter, tpRight };

    [[nodiscard]] const TBitmap& GetBarBackground() const { return *FBarBackground; }
    [[nodiscard]] const TBitmap& GetPiece(TSet Set, TPiece Piece) const;

    /// Stretches the bar over the whole bitmap.
    void DrawBar(TBitmap& Bitmap) const;
    /// Draws a button's background over the whole bitmap: the bar (state 0), or the hovered (1) or pressed
    /// (2) pieces, the middle one stretched between the others.
    void DrawButton(TBitmap& Bitmap, int State) const;

private:
    std::unique_ptr<TBitmap> FBarBackground;
    std::array<std::array<std::unique_ptr<TBitmap>, 3>, 2> FSets;
};

}  // namespace qv7skin
