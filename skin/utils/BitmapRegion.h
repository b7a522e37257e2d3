#pragma once

#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Handles.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
}

namespace qv7skin {

/// `BitmapToRegion` with magenta (0x00FF00FF) as the transparent colour.
[[nodiscard]] TRegionHandle BitmapToRegion(const TBitmap* Bitmap, bool Inverse);
/// The region of all pixels that do not have the transparent colour (a system colour is looked up); with
/// `Inverse`, of those that have it. The caller owns it and releases it to the window that it gives it to. It
/// may be empty, but is there; no region at all comes back for a null or empty bitmap. Raises
/// EAssertionFailed "Assertion fehlgeschlagen" when the system makes no region.
[[nodiscard]] TRegionHandle BitmapToRegion(const TBitmap* Bitmap, TColor TransparentColor, bool Inverse);

}  // namespace qv7skin
