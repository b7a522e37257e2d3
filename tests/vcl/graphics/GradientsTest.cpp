#include "platform/vcl/graphics/Gradients.h"

#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

class GradientsTest : public probes::PaintingTest {
protected:
    GradientsTest() : PaintingTest(40, 30) {}
};

TEST_F(GradientsTest, AVerticalGradientRunsDownAndIsEvenInEachRow) {
    FillGradient(Canvas(), {5, 5, 35, 25}, clBlack, clWhite, gdVertical);
    int former = -1;
    for (int y = 5; y < 25; ++y) {
        const int grey = RedOf(At(5, y));
        EXPECT_GT(grey, former) << y;
        EXPECT_NEAR(grey, 255 * (y - 5) / 20, 13) << y;
        EXPECT_EQ(At(34, y), At(5, y)) << y;
        former = grey;
    }
    EXPECT_EQ(At(5, 4), clWhite);
    EXPECT_EQ(At(5, 25), clWhite);
    EXPECT_EQ(At(35, 10), clWhite);
    EXPECT_EQ(At(5, 5), clBlack);
}

TEST_F(GradientsTest, AHorizontalGradientRunsToTheRight) {
    FillGradient(Canvas(), {0, 0, 40, 30}, clRed, clBlue, gdHorizontal);
    EXPECT_EQ(At(0, 0), clRed);
    EXPECT_GT(RedOf(At(10, 0)), RedOf(At(30, 0)));
    EXPECT_LT(BlueOf(At(10, 0)), BlueOf(At(30, 0)));
    EXPECT_EQ(At(20, 0), At(20, 29));
}

TEST_F(GradientsTest, SystemColorsAreLookedUpAndNothingIsFilledWithoutPixels) {
    FillGradient(Canvas(), {0, 0, 40, 30}, clBtnFace, clBtnFace, gdVertical);
    EXPECT_EQ(CountOf(ColorToRGB(clBtnFace)), 40 * 30);
    int changes = 0;
    Canvas().OnChange = [&](TObject*) { ++changes; };
    FillGradient(Canvas(), {5, 5, 5, 20}, clBlack, clWhite, gdVertical);
    FillGradient(Canvas(), {9, 5, 5, 20}, clBlack, clWhite, gdVertical);
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace vcl
