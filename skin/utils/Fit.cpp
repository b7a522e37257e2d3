#include "skin/utils/Fit.h"

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"

namespace qv7skin {
namespace {

TSize ProportionalSize(TSize source, TSize box) {
    const double ratio = static_cast<double>(source.Width) / source.Height;
    const auto byWidth = [&] { return TSize(box.Width, static_cast<int>(box.Width / ratio)); };
    const auto byHeight = [&] { return TSize(static_cast<int>(box.Height * ratio), box.Height); };
    if (source.Width > source.Height) return byWidth().Height > box.Height ? byHeight() : byWidth();
    return byHeight().Width > box.Width ? byWidth() : byHeight();
}

}  // namespace

TRect ProportionalDestRect(int SourceWidth, int SourceHeight, int BoxWidth, int BoxHeight, bool OnlyShrink) {
    TSize size(SourceWidth, SourceHeight);
    const TSize box(BoxWidth, BoxHeight);
    const bool isTooLarge = size.Width > box.Width || size.Height > box.Height;
    if (size.Width < 1 || size.Height < 1)
        size = box;
    else if (!OnlyShrink || isTooLarge)
        size = ProportionalSize(size, box);
    return TRect::OfSize((box.Width - size.Width) / 2, (box.Height - size.Height) / 2, size.Width,
                         size.Height);
}

void DisplayStretchedBitmapInImage(const TBitmap* Bitmap, TImage* Image) {
    if (!Bitmap || !Image) return;
    TBitmap shown(Image->GetWidth(), Image->GetHeight());
    shown.GetCanvas().StretchDraw(ProportionalDestRect(Bitmap->GetWidth(), Bitmap->GetHeight(),
                                                       Image->GetWidth(), Image->GetHeight(), true),
                                  Bitmap);
    Image->GetPicture().SetGraphic(&shown);
    Image->Refresh();
}

}  // namespace qv7skin
