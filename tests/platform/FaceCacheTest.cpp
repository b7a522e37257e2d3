#include "platform/vcl/stdctrls/FaceCache.h"

#include <stdexcept>

#include "tests/support/LedgerTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace vcl;
using test::Pixels;

class FaceCache : public test::LedgerTest {
protected:
    void TearDown() override {
        Faces.Release();
        LedgerTest::TearDown();
    }
    /// What showing the look leaves on a white surface of 20 x 10 pixels, when painting fills it with the
    /// colour.
    Pixels Show(int look, COLORREF color, TSize size = {20, 10}) {
        return test::Drawn(20, 10, 0x00FFFFFF, [&](HDC dc) {
            Faces.Show(dc, size, look, [&](HDC face) {
                ++Paints;
                const RECT all{-100, -100, 5000, 5000};
                const HBRUSH brush = CreateSolidBrush(color);
                FillRect(face, &all, brush);
                DeleteObject(brush);
            });
        });
    }
    TFaceCache Faces;
    int Paints = 0;
};

TEST_F(FaceCache, PaintsEachLookOnce) {
    EXPECT_EQ(Show(0, 0x11).Count(0x11), 200);
    EXPECT_EQ(Show(1, 0x22).Count(0x22), 200);
    EXPECT_EQ(Show(0, 0x33).Count(0x11), 200);
    EXPECT_EQ(Show(1, 0x33).Count(0x22), 200);
    EXPECT_EQ(Paints, 2);
}

TEST_F(FaceCache, PaintsAnewAfterClear) {
    Show(0, 0x11);
    Faces.Clear();
    EXPECT_EQ(Show(0, 0x22).Count(0x22), 200);
    Faces.Release();
    EXPECT_EQ(Show(0, 0x33).Count(0x33), 200);
}

TEST_F(FaceCache, ANewSizePaintsAnew) {
    Show(0, 0x11);
    EXPECT_EQ(Show(0, 0x22, {10, 10}).Count(0x22), 100);
}

TEST_F(FaceCache, PaintingReachesNoOtherLook) {
    Show(0, 0x11);
    Show(1, 0x22);
    Show(2, 0x33);
    EXPECT_EQ(Show(0, 0).Count(0x11), 200);
    EXPECT_EQ(Show(1, 0).Count(0x22), 200);
}

TEST_F(FaceCache, NothingIsShownWithoutASize) {
    EXPECT_EQ(Show(0, 0x11, {0, 10}).Count(0x00FFFFFF), 200);
    EXPECT_EQ(Show(0, 0x11, {20, -1}).Count(0x00FFFFFF), 200);
    EXPECT_EQ(Paints, 0);
}

TEST_F(FaceCache, OfLargeFacesTheOldestMakesRoom) {
    const TSize large{600, 300};  // 720,000 bytes: two do not fit
    EXPECT_EQ(Show(0, 0x11, large).Count(0x11), 200);
    EXPECT_EQ(Show(1, 0x22, large).Count(0x22), 200);
    EXPECT_EQ(Show(1, 0x33, large).Count(0x22), 200);
    EXPECT_EQ(Show(0, 0x44, large).Count(0x44), 200);
    EXPECT_EQ(Paints, 3);
}

TEST_F(FaceCache, AFailedPaintingLeavesNoPicture) {
    const Pixels surface = test::Drawn(20, 10, 0, [&](HDC dc) {
        EXPECT_THROW(Faces.Show(dc, {20, 10}, 0, [](HDC) { throw std::runtime_error("painting"); }),
                     std::runtime_error);
    });
    EXPECT_FALSE(Faces.IsPainting());
    EXPECT_EQ(Show(0, 0x11).Count(0x11), 200);
    EXPECT_EQ(Paints, 1);
}

TEST_F(FaceCache, APictureClearedWhileItIsPaintedIsShownButNotKept) {
    const auto paint = [&](HDC) {
        ++Paints;
        Faces.Clear();
    };
    const Pixels surface = test::Drawn(20, 10, 0x00FFFFFF, [&](HDC dc) {
        Faces.Show(dc, {20, 10}, 0, paint);
        Faces.Show(dc, {20, 10}, 0, paint);
    });
    EXPECT_EQ(surface.Count(0x00FFFFFF), 0);
    EXPECT_EQ(Paints, 2);
}

TEST_F(FaceCache, TheBitsAreThoseOfTheFaceThatIsPainted) {
    EXPECT_TRUE(Faces.Bits().IsEmpty());
    Show(0, 0x11);
    const Pixels surface = test::Drawn(20, 10, 0, [&](HDC dc) {
        Faces.Show(dc, {20, 10}, 1, [&](HDC) {
            const TBitmapBits bits = Faces.Bits();
            EXPECT_EQ(bits.Width, 20);
            EXPECT_EQ(bits.Height, 10);
            for (int y = 0; y < 10; ++y)
                for (int x = 0; x < 20; ++x)
                    bits.SetColor(x, y,
                                  RGBToColor(static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 7));
        });
    });
    EXPECT_TRUE(test::SamePixels(surface, [](int x, int y) { return RGB(x, y, 7); }));
    EXPECT_EQ(Show(0, 0).Count(0x11), 200);
}

}  // namespace
