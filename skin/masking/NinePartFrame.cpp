#include "skin/masking/NinePartFrame.h"

#include <algorithm>

#include "platform/vcl/graphics/Canvas.h"
#include "skin/masking/NinePartPaths.h"

namespace qv7skin {

namespace {

template <std::size_t Count>
TNinePartPieces::Graphics AddressesOf(const std::array<TBitmap, Count>& bitmaps) {
    TNinePartPieces::Graphics graphics;
    std::transform(bitmaps.begin(), bitmaps.end(), graphics.begin(), [](const TBitmap& b) { return &b; });
    return graphics;
}

}  // namespace

TNinePartPieces::TNinePartPieces(const Graphics& graphics) : FGraphics(graphics) {
    for (std::size_t i = 0; i < graphics.size(); ++i) {
        const auto* bitmap = dynamic_cast<const TBitmap*>(graphics[i]);
        if (!bitmap || !bitmap->HasByteBits() || bitmap->GetTransparent()) return;
        FBits[i] = bitmap->ReadBits();
    }
    FHasBits = true;
}

std::unique_ptr<const TNinePartBitmaps::Bitmaps> TNinePartBitmaps::Load(StringView prefix, HINSTANCE module) {
    auto bitmaps = std::make_unique<Bitmaps>();
    for (std::size_t i = 0; i < bitmaps->size(); ++i)
        (*bitmaps)[i].LoadFromResourceName(module, FrameResourceName(prefix, AllFramePositions[i]));
    return bitmaps;
}

TNinePartBitmaps::TNinePartBitmaps(StringView prefix, HINSTANCE module)
    : FBitmaps(Load(prefix, module)), FPieces(AddressesOf(*FBitmaps)) {}

TNinePartBitmaps::~TNinePartBitmaps() = default;

void ComposeNinePartFrame(TBitmap& Bitmap, const TNinePartPieces& Pieces, TColor FillColor) {
    if (Bitmap.GetEmpty()) return;
    if (!ComposeNinePartByRows(Bitmap, Pieces, FillColor)) ComposeNinePartByCanvas(Bitmap, Pieces, FillColor);
}

void ComposeNinePartByCanvas(TBitmap& bitmap, const TNinePartPieces& pieces, TColor fillColor) {
    const int w = bitmap.GetWidth(), h = bitmap.GetHeight();
    const TGraphic& topLeft = pieces[fposTopLeft];
    const TGraphic& top = pieces[fposTopCenter];
    const TGraphic& topRight = pieces[fposTopRight];
    const TGraphic& bottomLeft = pieces[fposBottomLeft];
    const TGraphic& bottom = pieces[fposBottomCenter];
    const TGraphic& bottomRight = pieces[fposBottomRight];
    const TGraphic& left = pieces[fposLeftCenter];
    const TGraphic& right = pieces[fposRightCenter];

    TCanvas& canvas = bitmap.GetCanvas();
    canvas.GetPen().SetColor(fillColor);
    canvas.GetBrush().SetColor(fillColor);
    canvas.FillRect({0, 0, w, h});

    canvas.Draw(0, 0, &topLeft);
    canvas.StretchDraw({topLeft.GetWidth(), 0, w - topRight.GetWidth(), top.GetHeight()}, &top);
    canvas.Draw(w - topRight.GetWidth(), 0, &topRight);
    canvas.Draw(0, h - bottomLeft.GetHeight(), &bottomLeft);
    canvas.StretchDraw({bottomLeft.GetWidth(), h - bottom.GetHeight(), w - bottomRight.GetWidth(), h},
                       &bottom);
    canvas.Draw(w - bottomRight.GetWidth(), h - bottomRight.GetHeight(), &bottomRight);
    if (topLeft.GetHeight() < h - bottomLeft.GetHeight())
        canvas.StretchDraw({0, topLeft.GetHeight(), left.GetWidth(), h - bottomLeft.GetHeight()}, &left);
    if (topRight.GetHeight() < h - bottomRight.GetHeight())
        canvas.StretchDraw({w - right.GetWidth(), topRight.GetHeight(), w, h - bottomRight.GetHeight()},
                           &right);
}

}  // namespace qv7skin
