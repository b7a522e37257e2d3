#include "header/tabs/TabPieces.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Loaders.h"

namespace qv7skin {
namespace {

/// What the resource names of a state begin with. The white look has no pieces of its own for hovered tabs.
const wchar_t* PrefixOf(TQV7SkinTabBackground look, int state) {
    static constexpr const wchar_t* standard[] = {L"TABDEFAULT", L"TABHOVERED", L"TABPRESSED"};
    static constexpr const wchar_t* white[] = {L"WHITETABDEFAULT", L"WHITETABDEFAULT", L"WHITETABPRESSED"};
    return look == bckgrndWhite ? white[state] : standard[state];
}

}  // namespace

TTabPieces::TTabPieces(TQV7SkinTabBackground Look) {
    for (int state = hisDefault; state <= hisPressed; ++state)
        FSets[static_cast<std::size_t>(state)] = LoadSet(PrefixOf(Look, state));
}

TTabPieces::~TTabPieces() = default;

TTabPieces::TSet TTabPieces::LoadSet(const wchar_t* Prefix) {
    TSet set;
    for (const TFramePosition position : AllFramePositions)
        set[static_cast<std::size_t>(position)] = CreateBmp(FrameResourceName(Prefix, position));
    return set;
}

const TBitmap& TTabPieces::GetPiece(int State, TFramePosition Position) const {
    return *FSets[static_cast<std::size_t>(State)][static_cast<std::size_t>(Position)];
}

void TTabPieces::Draw(TBitmap& Bitmap, int State) const {
    const auto piece = [&](TFramePosition position) -> const TBitmap& { return GetPiece(State, position); };
    TCanvas& canvas = Bitmap.GetCanvas();
    const int width = Bitmap.GetWidth();
    const int height = Bitmap.GetHeight();

    const TBitmap& topLeft = piece(fposTopLeft);
    const TBitmap& topRight = piece(fposTopRight);
    const TBitmap& topCenter = piece(fposTopCenter);
    canvas.Draw(0, 0, &topLeft);
    canvas.Draw(width - topRight.GetWidth(), 0, &topRight);
    canvas.StretchDraw(TRect(topLeft.GetWidth(), 0, width - topRight.GetWidth(), topCenter.GetHeight()),
                       &topCenter);

    const TBitmap& bottomLeft = piece(fposBottomLeft);
    const TBitmap& bottomRight = piece(fposBottomRight);
    const TBitmap& bottomCenter = piece(fposBottomCenter);
    const int sideBottom = height - bottomLeft.GetHeight();
    // A tab no higher than its corners has no sides.
    if (topLeft.GetHeight() < sideBottom) {
        const TBitmap& left = piece(fposLeftCenter);
        const TBitmap& right = piece(fposRightCenter);
        canvas.StretchDraw(TRect(0, topLeft.GetHeight(), left.GetWidth(), sideBottom), &left);
        canvas.StretchDraw(
            TRect(width - right.GetWidth(), topRight.GetHeight(), width, height - bottomRight.GetHeight()),
            &right);
    }

    canvas.Draw(0, sideBottom, &bottomLeft);
    canvas.Draw(width - bottomRight.GetWidth(), height - bottomRight.GetHeight(), &bottomRight);
    canvas.StretchDraw(TRect(bottomLeft.GetWidth(), height - bottomCenter.GetHeight(),
                             width - bottomRight.GetWidth(), height),
                       &bottomCenter);
}

}  // namespace qv7skin
