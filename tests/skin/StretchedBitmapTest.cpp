#include "skin/utils/StretchedBitmap.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"
#include "tests/support/FormTest.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;

class StretchedBitmapTest : public test::LedgerTest {
protected:
    [[nodiscard]] TBitmap& Shown() { return FImage.GetPicture().GetBitmap(); }
    void TearDown() override {
        FImage.GetPicture().SetGraphic(nullptr);
        LedgerTest::TearDown();
    }
    TImage FImage{nullptr};
};

/// The rule: the left end, the right end, then the middle column over what lies between (and a bit more).
Pixels Widened(const Pixels& source, int width, int height) {
    const int split = source.Width() / 2, rightWidth = source.Width() - split - 1;
    return Pixels(width, height, [&](int x, int y) -> COLORREF {
        if (y >= source.Height()) return clWhite;
        if (x >= split - 1 && x < width - (split - 1)) return source.At(split, y);
        if (x < split - 1) return source.At(x, y);
        return source.At(split + 1 + x - (width - rightWidth), y);
    });
}

TEST_F(StretchedBitmapTest, TakesTheMiddleColumnWithThePicture) {
    for (const int width : {1, 2, 7, 8}) {
        const Pixels picture = RandomColors(1).Picture(width, 5);
        TStretchedBitmap stretched;
        EXPECT_FALSE(stretched.GetInitialized());
        stretched.SetBitmap(BitmapOf(picture).get());
        EXPECT_TRUE(stretched.GetInitialized());
        EXPECT_EQ(stretched.GetSplitX(), width / 2);
        EXPECT_EQ(stretched.GetCenterColumn().GetWidth(), 1);
        EXPECT_TRUE(SamePixels(test::ReadDC(stretched.GetCenterColumn().GetSourceDC(), {0, 0, 1, 5}),
                               [&](int, int y) { return picture.At(width / 2, y); }));
    }
}

TEST_F(StretchedBitmapTest, AnEmptyPictureDoesNotInitialize) {
    TStretchedBitmap stretched;
    stretched.SetBitmap(nullptr);
    TBitmap empty;
    stretched.SetBitmap(&empty);
    EXPECT_FALSE(stretched.GetInitialized());
    stretched.DisplayInImage(&FImage);
    EXPECT_EQ(FImage.GetPicture().GetGraphic(), nullptr);
}

TEST_F(StretchedBitmapTest, APictureFilledInPlaceGivesItsColumnWithTheFirstDisplay) {
    const Pixels picture = RandomColors(4).Picture(7, 6);
    TStretchedBitmap stretched;
    stretched.GetBitmap().Assign(BitmapOf(picture).get());
    EXPECT_FALSE(stretched.GetInitialized());
    FImage.SetBounds(0, 0, 30, 6);
    stretched.DisplayInImage(&FImage);
    EXPECT_TRUE(stretched.GetInitialized());
    EXPECT_EQ(stretched.GetSplitX(), 3);
    EXPECT_TRUE(SamePixels(PixelsOf(Shown()), Widened(picture, 30, 6)));
}

TEST_F(StretchedBitmapTest, ShowsThePictureWidenedInTheMiddle) {
    for (const int width : {5, 6, 9, 10}) {
        const Pixels picture = RandomColors(2).Picture(width, 8);
        TStretchedBitmap stretched;
        stretched.SetBitmap(BitmapOf(picture).get());
        FImage.SetBounds(0, 0, 40, 12);
        stretched.DisplayInImage(&FImage);
        EXPECT_TRUE(SamePixels(PixelsOf(Shown()), Widened(picture, 40, 12))) << width;
    }
}

TEST_F(StretchedBitmapTest, TheShownPictureIsTransparentInItsColor) {
    TStretchedBitmap stretched;
    EXPECT_EQ(stretched.TransparentColor, 0U);
    stretched.TransparentColor = 0x00FF00FF;
    stretched.SetBitmap(BitmapOf(6, 4, clRed).get());
    FImage.SetBounds(0, 0, 20, 4);
    stretched.DisplayInImage(&FImage);
    EXPECT_TRUE(Shown().GetTransparent());
    EXPECT_EQ(Shown().GetTransparentColor(), 0x00FF00FFU);
    EXPECT_TRUE(FImage.GetTransparent());
}

TEST_F(StretchedBitmapTest, TheFreeFunctionWidensTooAndTakesTheColorAtTheRightEdge) {
    const Pixels picture = RandomColors(3).Picture(8, 6);
    const auto bitmap = BitmapOf(picture);
    FImage.SetBounds(0, 0, 31, 6);
    DisplayVerticallyStretchedBitmapInImage(bitmap.get(), &FImage);
    EXPECT_TRUE(SamePixels(PixelsOf(Shown()), Widened(picture, 31, 6)));
    EXPECT_TRUE(Shown().GetTransparent());
    EXPECT_EQ(Shown().GetTransparentColor(), picture.At(7, 3));
    EXPECT_TRUE(FImage.GetTransparent());
}

TEST_F(StretchedBitmapTest, NothingToShowOrNowhereToShowItDoesNothing) {
    const auto bitmap = BitmapOf(4, 4, clRed);
    DisplayVerticallyStretchedBitmapInImage(nullptr, &FImage);
    DisplayVerticallyStretchedBitmapInImage(bitmap.get(), nullptr);
    TStretchedBitmap stretched;
    stretched.SetBitmap(bitmap.get());
    stretched.DisplayInImage(nullptr);
    EXPECT_EQ(FImage.GetPicture().GetGraphic(), nullptr);
}

TEST_F(StretchedBitmapTest, AnImageWithoutAreaIsShownNothing) {
    const auto bitmap = BitmapOf(4, 4, clRed);
    FImage.SetBounds(0, 0, 0, 0);
    DisplayVerticallyStretchedBitmapInImage(bitmap.get(), &FImage);
    EXPECT_TRUE(Shown().GetEmpty());
}

TEST_F(StretchedBitmapTest, ANewPictureReplacesTheColumn) {
    TStretchedBitmap stretched;
    stretched.SetBitmap(BitmapOf(8, 4, clRed).get());
    stretched.SetBitmap(BitmapOf(5, 3, clBlue).get());
    EXPECT_EQ(stretched.GetSplitX(), 2);
    EXPECT_EQ(stretched.GetCenterColumn().GetHeight(), 3);
    EXPECT_EQ(test::ReadDC(stretched.GetCenterColumn().GetSourceDC(), {0, 0, 1, 3}).Count(clBlue), 3);
}

class StretchedBitmapOnFormTest : public test::FormTest {};

TEST_F(StretchedBitmapOnFormTest, ThePictureIsOnTheScreenAtOnce) {
    auto* image = Make<TImage>({10, 10, 60, 20});
    test::PumpAll();
    TStretchedBitmap stretched;
    stretched.SetBitmap(BitmapOf(8, 10, clRed).get());
    stretched.DisplayInImage(image);
    EXPECT_EQ(test::ReadClient(Form().GetHandle()).Count(clRed), 50 * 10);
}

}  // namespace
}  // namespace qv7skin
