#include "designer/dialogs/ImagePreview.h"

#include <algorithm>

#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

constexpr int SquareSize = 8;
constexpr TColor DarkSquare = 0x00E0E0E0;

}  // namespace

TImagePreview::TImagePreview(TComponent* AOwner, const TCustomImageList& images)
    : TCustomControl(AOwner), FImages(images) {
    ControlStyle = ControlStyle + TControlStyle{csOpaque};
    SetDoubleBuffered(true);
}

void TImagePreview::SetIndex(int value) {
    FIndex = value;
    Invalidate();
}

void TImagePreview::PaintGround(TCanvas& canvas) const {
    canvas.GetBrush().SetColor(GetQV7SkinColorCaption());
    canvas.FillRect(GetClientRect());
    canvas.GetBrush().SetColor(DarkSquare);
    for (int y = 0; y < GetHeight(); y += SquareSize)
        for (int x = y / SquareSize % 2 * SquareSize; x < GetWidth(); x += 2 * SquareSize)
            canvas.FillRect(TRect::OfSize(x, y, SquareSize, SquareSize));
}

/// Enlarges what the image draws on the ground that lies under it.
void TImagePreview::Paint() {
    TCanvas& canvas = GetCanvas();
    PaintGround(canvas);
    if (FIndex < 0 || FIndex >= FImages.GetCount()) return;
    const int width = FImages.GetWidth();
    const int height = FImages.GetHeight();
    const int zoom = std::max(1, std::min(GetWidth() / width, GetHeight() / height));
    const TRect place = TRect::OfSize((GetWidth() - width * zoom) / 2, (GetHeight() - height * zoom) / 2,
                                      width * zoom, height * zoom);
    TBitmap bitmap(width, height, pf32bit);
    ::StretchBlt(bitmap.GetCanvas().GetHandle(), 0, 0, width, height, canvas.GetHandle(), place.Left,
                 place.Top, place.Width(), place.Height(), SRCCOPY);
    FImages.Draw(bitmap.GetCanvas(), 0, 0, FIndex);
    canvas.StretchDraw(place, &bitmap);
}

}  // namespace designer
