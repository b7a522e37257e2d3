#include "header/items/TabRendering.h"

namespace qv7skin {
namespace {

const void* PixelsOf(const TBitmap& bitmap) {
    return bitmap.GetEmpty() ? nullptr : bitmap.ScanLine(0);
}

}  // namespace

void TPictureWitness::Take(const TBitmap* picture) {
    FPicture = picture;
    FPixels.Assign(picture);
}

bool TPictureWitness::Saw(const TBitmap* picture) const {
    return FPicture == picture && (!picture || PixelsOf(*picture) == PixelsOf(FPixels));
}

}  // namespace qv7skin
