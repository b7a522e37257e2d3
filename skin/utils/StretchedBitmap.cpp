#include "skin/utils/StretchedBitmap.h"

#include <optional>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"

namespace qv7skin {
namespace {

/// Makes `column` a copy of the one-pixel column of the bitmap at `x`.
void CopyColumn(const TBitmap& bitmap, int x, TBitmap& column) {
    const int height = bitmap.GetHeight();
    column.SetSize(1, height);
    column.GetCanvas().CopyRect({0, 0, 1, height}, bitmap, {x, 0, x + 1, height});
}

/// Draws the bitmap into `wide`: its ends at the ends, and between them the column. The column left of the
/// middle has no place, and in a picture of odd width the stretched part covers one more at the right.
void DrawWidened(const TBitmap& bitmap, const TBitmap& column, int split, TBitmap& wide) {
    const int width = bitmap.GetWidth(), height = bitmap.GetHeight();
    const int shownWidth = wide.GetWidth();
    TCanvas& canvas = wide.GetCanvas();

    const TRect left(0, 0, split - 1, height);
    canvas.CopyRect(left, bitmap, left);
    const TRect right(split + 1, 0, width, height);
    TRect rightEnd = right;
    rightEnd.Offset(shownWidth - right.Width() - right.Left, 0);
    canvas.CopyRect(rightEnd, bitmap, right);
    canvas.StretchDraw({split - 1, 0, shownWidth - (split - 1), height}, &column);
}

/// Widens the bitmap to the control and shows it there; without a colour the result's own pixel at the right
/// edge in the middle of its height is left out.
void ShowWidened(const TBitmap& bitmap, const TBitmap& column, int split, std::optional<TColor> transparent,
                 TImage& image) {
    TBitmap wide(image.GetWidth(), image.GetHeight());
    DrawWidened(bitmap, column, split, wide);
    wide.SetTransparentColor(
        transparent ? *transparent : wide.GetCanvas().GetPixel(wide.GetWidth() - 1, wide.GetHeight() / 2));
    wide.SetTransparent(true);
    image.GetPicture().SetGraphic(&wide);
    image.SetTransparent(true);
    image.Refresh();
}

}  // namespace

TStretchedBitmap::TStretchedBitmap()
    : FBitmap(std::make_unique<TBitmap>()), FCenterColumn(std::make_unique<TBitmap>()) {}

TStretchedBitmap::~TStretchedBitmap() = default;

void TStretchedBitmap::SetBitmap(const TBitmap* Source) {
    FBitmap->Assign(Source);
    if (Source && !Source->GetEmpty()) Init();
}

void TStretchedBitmap::Init() {
    FInitialized = true;
    FSplitX = FBitmap->GetWidth() / 2;
    CopyColumn(*FBitmap, FSplitX, *FCenterColumn);
}

void TStretchedBitmap::DisplayInImage(TImage* Image) {
    if (!Image || FBitmap->GetEmpty()) return;
    if (!FInitialized) Init();
    ShowWidened(*FBitmap, *FCenterColumn, FSplitX, TransparentColor, *Image);
}

void DisplayVerticallyStretchedBitmapInImage(const TBitmap* Bitmap, TImage* Image) {
    if (!Bitmap || !Image) return;
    const int split = Bitmap->GetWidth() / 2;
    TBitmap column;
    CopyColumn(*Bitmap, split, column);
    ShowWidened(*Bitmap, column, split, std::nullopt, *Image);
}

}  // namespace qv7skin
