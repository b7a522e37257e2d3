#pragma once

#include "platform/vcl/core/Geometry.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TImage;
}  // namespace vcl

namespace qv7skin {

/// Where a picture of the source's size goes in a box: as large as possible with its proportions kept,
/// centred. With `OnlyShrink` a picture that fits keeps its size. A source without pixels takes the whole
/// box.
[[nodiscard]] TRect ProportionalDestRect(int SourceWidth, int SourceHeight, int BoxWidth, int BoxHeight,
                                         bool OnlyShrink);

/// Shows the bitmap in the image control, centred and shrunk to fit when it is too large. Null does nothing.
void DisplayStretchedBitmapInImage(const TBitmap* Bitmap, TImage* Image);

}  // namespace qv7skin
