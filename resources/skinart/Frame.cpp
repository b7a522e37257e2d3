#include "resources/skinart/Frame.h"

#include <algorithm>
#include <stdexcept>

namespace skinart {

std::vector<NamedPiece> Named(const FramePieces& pieces) {
    return {{"TOPLEFT", &pieces.TopLeft},           {"TOPCENTER", &pieces.TopCenter},
            {"TOPRIGHT", &pieces.TopRight},         {"BOTTOMLEFT", &pieces.BottomLeft},
            {"BOTTOMCENTER", &pieces.BottomCenter}, {"BOTTOMRIGHT", &pieces.BottomRight},
            {"LEFTCENTER", &pieces.LeftCenter},     {"RIGHTCENTER", &pieces.RightCenter}};
}

Picture Compose(const FramePieces& pieces, int width, int height, Rgb fill) {
    const auto [topLeft, topCenter, topRight, bottomLeft, bottomCenter, bottomRight, left, right] = pieces;
    Picture result(width, height, fill);
    result.Draw(topLeft, 0, 0);
    result.Stretch(topCenter, topLeft.Width(), 0, width - topRight.Width() - topLeft.Width(),
                   topCenter.Height());
    result.Draw(topRight, width - topRight.Width(), 0);
    result.Draw(bottomLeft, 0, height - bottomLeft.Height());
    result.Stretch(bottomCenter, bottomLeft.Width(), height - bottomCenter.Height(),
                   width - bottomRight.Width() - bottomLeft.Width(), bottomCenter.Height());
    result.Draw(bottomRight, width - bottomRight.Width(), height - bottomRight.Height());
    result.Stretch(left, 0, topLeft.Height(), left.Width(), height - bottomLeft.Height() - topLeft.Height());
    result.Stretch(right, width - right.Width(), topRight.Height(), right.Width(),
                   height - bottomRight.Height() - topRight.Height());
    return result;
}

FramePieces CutFrame(const Picture& whole, const FrameSizes& sizes, Rgb fill) {
    const int width = whole.Width();
    const int height = whole.Height();
    const int middleColumn = std::max(sizes.TopLeft.Width, sizes.BottomLeft.Width);
    const int middleRow = std::max(sizes.TopLeft.Height, sizes.TopRight.Height);
    const auto corner = [&](Extent size, bool right, bool bottom) {
        return whole.Crop(right ? width - size.Width : 0, bottom ? height - size.Height : 0, size.Width,
                          size.Height);
    };
    FramePieces pieces{corner(sizes.TopLeft, false, false),
                       whole.Crop(middleColumn, 0, 1, sizes.TopHeight),
                       corner(sizes.TopRight, true, false),
                       corner(sizes.BottomLeft, false, true),
                       whole.Crop(middleColumn, height - sizes.BottomHeight, 1, sizes.BottomHeight),
                       corner(sizes.BottomRight, true, true),
                       whole.Crop(0, middleRow, sizes.LeftWidth, 1),
                       whole.Crop(width - sizes.RightWidth, middleRow, sizes.RightWidth, 1)};
    if (Compose(pieces, width, height, fill) != whole) throw std::logic_error("the frame would show seams");
    return pieces;
}

}  // namespace skinart
