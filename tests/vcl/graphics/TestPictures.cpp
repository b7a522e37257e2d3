#include "tests/vcl/graphics/TestPictures.h"

namespace vcl::probes {

TColor Numbered(int x, int y) {
    return RGBToColor(static_cast<std::uint8_t>(11 * x + 1), static_cast<std::uint8_t>(23 * y + 2),
                      static_cast<std::uint8_t>(7 * x + 5 * y + 3));
}

void Paint(TBitmap& bitmap, const Rule& rule) {
    for (int y = 0; y < bitmap.GetHeight(); ++y)
        for (int x = 0; x < bitmap.GetWidth(); ++x)
            bitmap.GetCanvas().SetPixel(x, y, rule(x, y));
}

test::Pixels PixelsOf(const TBitmap& bitmap) {
    if (bitmap.GetEmpty()) return {};
    return test::ReadDC(bitmap.GetSourceDC(), TRect(0, 0, bitmap.GetWidth(), bitmap.GetHeight()));
}

testing::AssertionResult Shows(const TBitmap& bitmap, const Rule& rule) {
    return test::SamePixels(PixelsOf(bitmap), rule);
}

void PaintingTest::SetUp() {
    LedgerTest::SetUp();
    FBitmap = std::make_unique<TBitmap>(FSize.Width, FSize.Height, pf24bit);
}

void PaintingTest::TearDown() {
    FBitmap.reset();
    LedgerTest::TearDown();
}

TRect PaintingTest::BoundsOf(TColor color) const {
    return PixelsOf(*FBitmap).Bounds([color](COLORREF c) { return c == color; });
}

}  // namespace vcl::probes
