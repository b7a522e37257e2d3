#include "skin/utils/Tone.h"

#include <algorithm>

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/utils/ToneBits.h"
#include "skin/utils/TonePixels.h"

namespace qv7skin {
namespace {

void Gray(TBitmap* bitmap, int percent, std::optional<TColor> transparent) {
    if (!bitmap || bitmap->GetEmpty()) return;
    if (!bitmap->HasByteBits()) return GrayPixels(*bitmap, percent, transparent);
    GrayBits(bitmap->WriteBits(), percent, transparent);
    bitmap->Changed();
}

}  // namespace

void DimBitmap(TBitmap* Bitmap, int Percent) {
    if (!Bitmap || Bitmap->GetEmpty()) return;
    if (!Bitmap->HasByteBits()) return DimPixels(*Bitmap, Percent);
    DimBits(Bitmap->WriteBits(), Percent);
    Bitmap->Changed();
}

void GrayBitmap(TBitmap* Bitmap, int Percent) {
    Gray(Bitmap, Percent, std::nullopt);
}

void GrayBitmap(TBitmap* Bitmap, int Percent, TColor TransparentColor) {
    Gray(Bitmap, Percent, TransparentColor);
}

void ReplaceColor(TBitmap* Bitmap, TColor OldColor, TColor NewColor) {
    if (!Bitmap || Bitmap->GetEmpty()) return;
    if (!Bitmap->HasByteBits()) return ReplacePixels(*Bitmap, OldColor, NewColor);
    ReplaceInBits(Bitmap->WriteBits(), OldColor, ColorToRGB(NewColor));
    Bitmap->Changed();
}

}  // namespace qv7skin
