#include "tests/header/TabFixture.h"

#include "skin/surfaces/Loaders.h"

namespace qv7skin::probes {

using test::Pixels;

Pixels Piece(const String& name) {
    return test::ReadBitmap(CreateBmp(name)->GetHandle());
}

void Put(Pixels& picture, const Pixels& piece, int x, int y, int width, int height) {
    if (width == 0) width = piece.Width();
    if (height == 0) height = piece.Height();
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column) {
            if (x + column < 0 || x + column >= picture.Width()) continue;
            if (y + row < 0 || y + row >= picture.Height()) continue;
            picture.Set(x + column, y + row, piece.At(column % piece.Width(), row % piece.Height()));
        }
}

Pixels ComposedTab(const String& prefix, TColor fill, int width, int height) {
    Pixels tab(width, height, static_cast<COLORREF>(fill));
    const Pixels topLeft = Piece(prefix + L"TOPLEFT");
    const Pixels topRight = Piece(prefix + L"TOPRIGHT");
    const Pixels bottomLeft = Piece(prefix + L"BOTTOMLEFT");
    const Pixels bottomRight = Piece(prefix + L"BOTTOMRIGHT");
    Put(tab, topLeft, 0, 0);
    Put(tab, topRight, width - topRight.Width(), 0);
    Put(tab, Piece(prefix + L"TOPCENTER"), topLeft.Width(), 0, width - topLeft.Width() - topRight.Width());
    if (topLeft.Height() < height - bottomLeft.Height()) {
        const Pixels right = Piece(prefix + L"RIGHTCENTER");
        const int sides = height - topLeft.Height() - bottomLeft.Height();
        Put(tab, Piece(prefix + L"LEFTCENTER"), 0, topLeft.Height(), 0, sides);
        Put(tab, right, width - right.Width(), topRight.Height(), 0, sides);
    }
    Put(tab, bottomLeft, 0, height - bottomLeft.Height());
    Put(tab, bottomRight, width - bottomRight.Width(), height - bottomRight.Height());
    const Pixels bottomCenter = Piece(prefix + L"BOTTOMCENTER");
    Put(tab, bottomCenter, bottomLeft.Width(), height - bottomCenter.Height(),
        width - bottomLeft.Width() - bottomRight.Width());
    return tab;
}

Pixels Over(TColor ground, const Pixels& picture) {
    return Pixels(picture.Width(), picture.Height(), [&](int x, int y) {
        const COLORREF color = picture.At(x, y);
        return color == static_cast<COLORREF>(NoPixel) ? static_cast<COLORREF>(ground) : color;
    });
}

}  // namespace qv7skin::probes
