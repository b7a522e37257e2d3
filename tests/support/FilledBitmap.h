#pragma once

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"

namespace test {

/// A bitmap of one colour.
class FilledBitmap : public vcl::TBitmap {
public:
    FilledBitmap(int width, int height, vcl::TColor color, vcl::TPixelFormat format = vcl::pf24bit)
        : TBitmap(width, height, format) {
        GetCanvas().GetBrush().SetColor(color);
        GetCanvas().FillRect({0, 0, width, height});
    }
};

}  // namespace test
