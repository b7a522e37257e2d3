#include "tests/support/SkinTesting.h"

#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin::probes {

std::unique_ptr<TBitmap> BitmapOf(const test::Pixels& picture, TPixelFormat format) {
    auto bitmap = std::make_unique<TBitmap>(picture.Width(), picture.Height(), format);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            bitmap->GetCanvas().SetPixel(x, y, picture.At(x, y));
    return bitmap;
}

std::unique_ptr<TBitmap> BitmapOf(int width, int height, TColor color, TPixelFormat format) {
    return BitmapOf(test::Pixels(width, height, color), format);
}

test::Pixels PixelsOf(TBitmap& bitmap) {
    return test::ReadBitmap(bitmap.GetHandle());
}

void SetInside(test::Pixels& picture, int x, int y, COLORREF color) {
    if (picture.At(x, y) != CLR_INVALID) picture.Set(x, y, color);
}

unsigned RandomColors::Next(unsigned limit) {
    FState ^= FState << 13;
    FState ^= FState >> 17;
    FState ^= FState << 5;
    return FState % limit;
}

test::Pixels RandomColors::Picture(int width, int height) {
    return test::Pixels(width, height, [this](int, int) { return Color(); });
}

test::Pixels RandomColors::Picture(int width, int height, const std::vector<TColor>& colors) {
    return test::Pixels(width, height,
                        [&](int, int) { return colors[Next(static_cast<unsigned>(colors.size()))]; });
}

}  // namespace qv7skin::probes
