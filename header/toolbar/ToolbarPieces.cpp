#include "header/toolbar/ToolbarPieces.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Loaders.h"

namespace qv7skin {

TToolbarPieces::TToolbarPieces() : FBarBackground(CreateBmp(L"TOOLBARBACKGROUND")) {
    const String states[] = {L"HOVERED", L"PRESSED"};
    const String positions[] = {L"LEFT", L"CENTER", L"RIGHT"};
    for (std::size_t set = 0; set < std::size(states); ++set)
        for (std::size_t piece = 0; piece < std::size(positions); ++piece)
            FSets[set][piece] = CreateBmp(L"TOOLBUTTON" + states[set] + positions[piece]);
}

TToolbarPieces::~TToolbarPieces() = default;

const TBitmap& TToolbarPieces::GetPiece(TSet Set, TPiece Piece) const {
    return *FSets[static_cast<std::size_t>(Set)][static_cast<std::size_t>(Piece)];
}

void TToolbarPieces::DrawBar(TBitmap& Bitmap) const {
    Bitmap.GetCanvas().StretchDraw({0, 0, Bitmap.GetWidth(), Bitmap.GetHeight()}, FBarBackground.get());
}

void TToolbarPieces::DrawButton(TBitmap& Bitmap, int State) const {
    if (State == 0) return DrawBar(Bitmap);
    const TSet set = State == 1 ? psHovered : psPressed;
    const TBitmap& left = GetPiece(set, tpLeft);
    const TBitmap& right = GetPiece(set, tpRight);
    const int width = Bitmap.GetWidth(), height = Bitmap.GetHeight();
    TCanvas& canvas = Bitmap.GetCanvas();
    // Bars of another height than the pieces stretch them.
    canvas.StretchDraw({0, 0, left.GetWidth(), height}, &left);
    canvas.StretchDraw({width - right.GetWidth(), 0, width, height}, &right);
    canvas.StretchDraw({left.GetWidth(), 0, width - right.GetWidth(), height}, &GetPiece(set, tpCenter));
}

}  // namespace qv7skin
