#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/BitmapBits.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {

class TCanvas;

/// Writes the pixels of `source` that do not have the colour `key` (0x00BBGGRR) to the memory under the
/// canvas, from the top left corner of `dest` on, cut to `dest` and to the clip rectangle. This is many times
/// faster than raster operations with a mask. False, with nothing done, where the canvas has no such memory
/// or lies on the source itself. Call it inside of `TCanvas::DrawDirectly`, which announces the change.
[[nodiscard]] bool CopyKeyed(TCanvas& canvas, const TRect& dest, const TConstBitmapBits& source, TColor key);

}  // namespace vcl
