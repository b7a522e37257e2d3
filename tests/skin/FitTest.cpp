#include "skin/utils/Fit.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::PixelsOf;

TEST(ProportionalDestRectTest, ASourceWithoutPixelsTakesTheBox) {
    for (const bool onlyShrink : {true, false}) {
        EXPECT_EQ(ProportionalDestRect(0, 10, 100, 50, onlyShrink), TRect(0, 0, 100, 50));
        EXPECT_EQ(ProportionalDestRect(10, 0, 100, 50, onlyShrink), TRect(0, 0, 100, 50));
        EXPECT_EQ(ProportionalDestRect(-5, 10, 100, 50, onlyShrink), TRect(0, 0, 100, 50));
    }
}

TEST(ProportionalDestRectTest, AWideSourceTakesTheWidth) {
    EXPECT_EQ(ProportionalDestRect(200, 100, 100, 100, true), TRect(0, 25, 100, 75));
    EXPECT_EQ(ProportionalDestRect(20, 10, 100, 100, false), TRect(0, 25, 100, 75));
}

TEST(ProportionalDestRectTest, AHighSourceTakesTheHeight) {
    EXPECT_EQ(ProportionalDestRect(100, 200, 100, 100, true), TRect(25, 0, 75, 100));
}

TEST(ProportionalDestRectTest, TheOtherSideDecidesWhenThatIsTooMuch) {
    EXPECT_EQ(ProportionalDestRect(200, 100, 100, 20, true), TRect(30, 0, 70, 20));
    EXPECT_EQ(ProportionalDestRect(100, 200, 20, 100, true), TRect(0, 30, 20, 70));
}

TEST(ProportionalDestRectTest, AHeightThatJustFitsKeepsTheWidth) {
    // 10 / 1.5 is 6.67, and 6 pixels there are; from the height the width would be 9.
    EXPECT_EQ(ProportionalDestRect(3, 2, 10, 6, false), TRect(0, 0, 10, 6));
    EXPECT_EQ(ProportionalDestRect(2, 3, 6, 10, false), TRect(0, 0, 6, 10));
}

TEST(ProportionalDestRectTest, ASquareCountsAsHigh) {
    EXPECT_EQ(ProportionalDestRect(10, 10, 100, 50, false), TRect(25, 0, 75, 50));
    EXPECT_EQ(ProportionalDestRect(10, 10, 50, 100, false), TRect(0, 25, 50, 75));
}

TEST(ProportionalDestRectTest, OnlyShrinkingKeepsWhatFits) {
    EXPECT_EQ(ProportionalDestRect(20, 10, 100, 50, true), TRect(40, 20, 60, 30));
    EXPECT_EQ(ProportionalDestRect(100, 50, 100, 50, true), TRect(0, 0, 100, 50));
    EXPECT_EQ(ProportionalDestRect(20, 10, 100, 50, false), TRect(0, 0, 100, 50));
}

TEST(ProportionalDestRectTest, OneSideThatIsTooLargeIsEnoughToShrink) {
    EXPECT_EQ(ProportionalDestRect(20, 200, 100, 100, true), TRect(45, 0, 55, 100));
}

TEST(ProportionalDestRectTest, SizesAreTruncated) {
    // 10 x 3 in a width of 99: 29.7 pixels high.
    EXPECT_EQ(ProportionalDestRect(10, 3, 99, 99, false), TRect::OfSize(0, 35, 99, 29));
}

class DisplayStretchedTest : public test::LedgerTest {
protected:
    [[nodiscard]] test::Pixels Shown() { return PixelsOf(FImage.GetPicture().GetBitmap()); }
    void TearDown() override {
        FImage.GetPicture().SetGraphic(nullptr);
        LedgerTest::TearDown();
    }
    TImage FImage{nullptr};
};

TEST_F(DisplayStretchedTest, ASmallPictureStandsInTheMiddle) {
    FImage.SetBounds(0, 0, 30, 20);
    const auto bitmap = BitmapOf(10, 10, clRed);
    DisplayStretchedBitmapInImage(bitmap.get(), &FImage);
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int y) -> COLORREF {
        return x >= 10 && x < 20 && y >= 5 && y < 15 ? clRed : clWhite;
    }));
}

TEST_F(DisplayStretchedTest, ALargePictureIsShrunk) {
    FImage.SetBounds(0, 0, 30, 20);
    const auto bitmap = BitmapOf(60, 20, clRed);
    DisplayStretchedBitmapInImage(bitmap.get(), &FImage);
    EXPECT_TRUE(
        SamePixels(Shown(), [](int, int y) -> COLORREF { return y >= 5 && y < 15 ? clRed : clWhite; }));
}

TEST_F(DisplayStretchedTest, NothingToShowOrNowhereToShowItDoesNothing) {
    const auto bitmap = BitmapOf(2, 2, clRed);
    DisplayStretchedBitmapInImage(bitmap.get(), nullptr);
    DisplayStretchedBitmapInImage(nullptr, &FImage);
    EXPECT_EQ(FImage.GetPicture().GetGraphic(), nullptr);
}

TEST_F(DisplayStretchedTest, AnEmptyPictureLeavesTheImageWhite) {
    FImage.SetBounds(0, 0, 6, 4);
    TBitmap empty;
    DisplayStretchedBitmapInImage(&empty, &FImage);
    EXPECT_EQ(Shown().Count(clWhite), 24);
}

}  // namespace
}  // namespace qv7skin
