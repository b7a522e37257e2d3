#pragma once

#include <string>
#include <vector>

#include "resources/skinart/Picture.h"

namespace skinart {

/// Width and height in pixels.
struct Extent {
    int Width = 0;
    int Height = 0;
};

/// Sizes of the eight pieces of a frame. Top and bottom centre pieces are one pixel wide, left and right
/// centre pieces one pixel high.
struct FrameSizes {
    Extent TopLeft;
    Extent TopRight;
    Extent BottomLeft;
    Extent BottomRight;
    int TopHeight = 0;
    int BottomHeight = 0;
    int LeftWidth = 0;
    int RightWidth = 0;
};

/// The eight pieces of a frame.
struct FramePieces {
    Picture TopLeft;
    Picture TopCenter;
    Picture TopRight;
    Picture BottomLeft;
    Picture BottomCenter;
    Picture BottomRight;
    Picture LeftCenter;
    Picture RightCenter;
};

/// A piece and the position word that ends its resource name.
struct NamedPiece {
    std::string Position;
    const Picture* Piece;
};

/// The pieces in the order in which the controls load them.
std::vector<NamedPiece> Named(const FramePieces& pieces);

/// Puts a frame together as the controls do: the interior is `fill`, corners keep their size, edges are
/// stretched, side edges only where there is room between the corners.
Picture Compose(const FramePieces& pieces, int width, int height, Rgb fill);

/// Cuts the pieces out of a picture of a whole frame. Throws std::logic_error unless the pieces, put together
/// over `fill`, give the picture back pixel by pixel: then no seam can show at any size.
FramePieces CutFrame(const Picture& whole, const FrameSizes& sizes, Rgb fill);

}  // namespace skinart
