#pragma once

#include "gallery/Namespace.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace gallery {

/// A small landscape in many colours with black, white and grey in it, for pages that change pictures. The
/// bitmap gets 24 bits per pixel.
void DrawSamplePicture(TBitmap& bitmap, int width, int height);

}  // namespace gallery
