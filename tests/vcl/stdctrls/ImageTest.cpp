#include "platform/vcl/stdctrls/Image.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Icon.h"
#include "platform/vcl/graphics/Picture.h"
#include "tests/support/FilledBitmap.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;

class ImageTest : public FormTest {
protected:
    TImage* MakeImage(int width, int height) {
        Form().SetColor(clWhite);
        return Make<TImage>(TRect::OfSize(10, 10, width, height));
    }
    Pixels Picture(const TImage& image) {
        return ReadClient(Form().WindowHandle()).Part(image.GetBoundsRect());
    }
    static std::function<COLORREF(int, int)> Inside(const TRect& rect, COLORREF color, COLORREF outside) {
        return [=](int x, int y) { return rect.Contains({x, y}) ? color : outside; };
    }
};

TEST_F(ImageTest, PlacesThePictureByItsRules) {
    struct Case {
        int PictureWidth, PictureHeight;
        bool Stretch, Proportional, Center;
        TRect Expected;
    };
    const Case cases[] = {
        {20, 10, false, false, false, {0, 0, 20, 10}},  {20, 10, false, false, true, {40, 20, 60, 30}},
        {20, 10, true, false, false, {0, 0, 100, 50}},  {20, 20, true, true, false, {0, 0, 50, 50}},
        {20, 20, true, true, true, {25, 0, 75, 50}},    {20, 10, false, true, false, {0, 0, 20, 10}},
        {200, 50, false, true, false, {0, 0, 100, 25}}, {200, 50, false, true, true, {0, 12, 100, 37}},
        {50, 200, false, true, false, {0, 0, 12, 50}},  {200, 50, false, false, true, {-50, 0, 150, 50}},
    };
    TImage image(nullptr);
    image.SetBounds(0, 0, 100, 50);
    for (const Case& c : cases) {
        const TBitmap bitmap(c.PictureWidth, c.PictureHeight);
        image.GetPicture().SetBitmap(&bitmap);
        image.SetStretch(c.Stretch);
        image.SetProportional(c.Proportional);
        image.SetCenter(c.Center);
        EXPECT_EQ(image.DestRect(), c.Expected)
            << c.PictureWidth << " x " << c.PictureHeight << " " << c.Stretch << c.Proportional << c.Center;
    }
}

TEST_F(ImageTest, ShowsThePictureAndFollowsItsChanges) {
    TImage* image = MakeImage(40, 30);
    const FilledBitmap bitmap(20, 10, clRed);
    image->GetPicture().SetBitmap(&bitmap);
    EXPECT_TRUE(SamePixels(Picture(*image), Inside({0, 0, 20, 10}, RGB(255, 0, 0), RGB(255, 255, 255))));
    image->SetStretch(true);
    EXPECT_TRUE(SamePixels(Picture(*image), Inside({0, 0, 40, 30}, RGB(255, 0, 0), 0)));
    image->GetCanvas().GetBrush().SetColor(clBlue);
    image->GetCanvas().FillRect({0, 0, 20, 10});
    EXPECT_TRUE(SamePixels(Picture(*image), Inside({0, 0, 40, 30}, RGB(0, 0, 255), 0)));
}

TEST_F(ImageTest, LeavesOutTheTransparentColour) {
    TImage* image = MakeImage(40, 30);
    FilledBitmap bitmap(40, 30, clFuchsia);
    bitmap.GetCanvas().GetBrush().SetColor(clGreen);
    bitmap.GetCanvas().FillRect({5, 5, 15, 15});
    image->GetPicture().SetBitmap(&bitmap);
    EXPECT_EQ(Picture(*image).At(0, 0), RGB(255, 0, 255));
    image->SetTransparent(true);
    EXPECT_TRUE(SamePixels(Picture(*image), Inside({5, 5, 15, 15}, RGB(0, 128, 0), RGB(255, 255, 255))));
    EXPECT_FALSE(image->ControlStyle.Contains(csOpaque));
}

TEST_F(ImageTest, IsOpaqueOnlyWhenThePictureCoversIt) {
    TImage* image = MakeImage(40, 30);
    EXPECT_FALSE(image->ControlStyle.Contains(csOpaque));
    const FilledBitmap bitmap(40, 30, clRed);
    image->GetPicture().SetBitmap(&bitmap);
    EXPECT_TRUE(image->ControlStyle.Contains(csOpaque));
    image->SetWidth(41);
    EXPECT_FALSE(image->ControlStyle.Contains(csOpaque));
}

TEST_F(ImageTest, AutoSizeTakesThePicturesSize) {
    TImage* image = MakeImage(40, 30);
    image->SetAutoSize(true);
    const FilledBitmap bitmap(23, 17, clRed);
    image->GetPicture().SetBitmap(&bitmap);
    EXPECT_EQ(image->GetBoundsRect(), TRect::OfSize(10, 10, 23, 17));
}

TEST_F(ImageTest, TheCanvasMakesABitmapOfTheControlsSize) {
    TImage* image = MakeImage(12, 8);
    image->GetCanvas().SetPixel(3, 4, clRed);
    EXPECT_EQ(image->GetPicture().GetWidth(), 12);
    EXPECT_EQ(Picture(*image).At(3, 4), RGB(255, 0, 0));
}

TEST_F(ImageTest, OnlyABitmapCanBeDrawnOn) {
    TImage* image = MakeImage(12, 8);
    (void)image->GetPicture().GetIcon();
    try {
        (void)image->GetCanvas();
        FAIL() << "drew on an icon";
    } catch (const EInvalidOperation& error) {
        EXPECT_EQ(error.Message(), L"Can only modify an image if it contains a bitmap");
    }
}

}  // namespace
}  // namespace test
