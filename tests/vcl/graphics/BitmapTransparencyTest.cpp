#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::Numbered;
using probes::Paint;
using probes::Shows;

/// Draws on 12 x 10 numbered pixels.
class BitmapTransparencyTest : public probes::PaintingTest {
protected:
    BitmapTransparencyTest() : PaintingTest(12, 10) {}
    void SetUp() override {
        PaintingTest::SetUp();
        Paint(Bitmap(), Numbered);
    }
    /// A picture of 4 x 4 with a magenta diagonal that begins at the bottom left.
    static void PaintDiagonal(TBitmap& bitmap) { Paint(bitmap, Diagonal); }
    static TColor Diagonal(int x, int y) {
        return x + y == 3
                   ? clFuchsia
                   : RGBToColor(static_cast<std::uint8_t>(10 * x), static_cast<std::uint8_t>(10 * y), 9);
    }
};

TEST_F(BitmapTransparencyTest, TheTransparentColorIsTheBottomLeftPixel) {
    TBitmap bitmap(4, 4, pf24bit);
    PaintDiagonal(bitmap);
    EXPECT_EQ(bitmap.GetTransparentMode(), tmAuto);
    EXPECT_EQ(bitmap.GetTransparentColor(), clFuchsia);
    bitmap.SetTransparentColor(clRed);
    EXPECT_EQ(bitmap.GetTransparentMode(), tmFixed);
    EXPECT_EQ(bitmap.GetTransparentColor(), clRed);
    bitmap.SetTransparentColor(clDefault);
    EXPECT_EQ(bitmap.GetTransparentMode(), tmAuto);
    EXPECT_EQ(bitmap.GetTransparentColor(), clFuchsia);
    bitmap.SetTransparentMode(tmFixed);
    bitmap.GetCanvas().SetPixel(0, 3, clBlue);
    EXPECT_EQ(bitmap.GetTransparentColor(), clFuchsia);
    bitmap.SetTransparentMode(tmAuto);
    EXPECT_EQ(bitmap.GetTransparentColor(), clBlue);
    EXPECT_EQ(TBitmap().GetTransparentColor(), clNone);
}

TEST_F(BitmapTransparencyTest, DrawingLeavesTheColorOut) {
    for (const TPixelFormat format : {pfDevice, pf24bit, pf32bit}) {
        TBitmap bitmap(4, 4, format);
        PaintDiagonal(bitmap);
        bitmap.SetTransparent(true);
        Paint(Bitmap(), Numbered);
        Canvas().Draw(3, 2, &bitmap);
        EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
            const bool over =
                TRect::OfSize(3, 2, 4, 4).Contains({x, y}) && Diagonal(x - 3, y - 2) != clFuchsia;
            return over ? Diagonal(x - 3, y - 2) : Numbered(x, y);
        })) << static_cast<int>(format);
    }
}

TEST_F(BitmapTransparencyTest, FewColorsAreLeftOutToo) {
    const auto rule = [](int x, int y) { return x == y ? clRed : clBlack; };
    for (const TPixelFormat format : {pf4bit, pf8bit, pf15bit, pf16bit}) {
        TBitmap bitmap(4, 4, format);
        Paint(bitmap, rule);
        bitmap.SetTransparent(true);
        bitmap.SetTransparentColor(clRed);
        Paint(Bitmap(), Numbered);
        Canvas().Draw(0, 0, &bitmap);
        EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
            return x < 4 && y < 4 && x != y ? clBlack : Numbered(x, y);
        })) << static_cast<int>(format);
    }
}

TEST_F(BitmapTransparencyTest, StretchingStretchesTheMaskToo) {
    TBitmap bitmap(4, 4, pf24bit);
    PaintDiagonal(bitmap);
    bitmap.SetTransparent(true);
    Canvas().StretchDraw({0, 0, 8, 8}, &bitmap);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
        const bool over = x < 8 && y < 8 && Diagonal(x / 2, y / 2) != clFuchsia;
        return over ? Diagonal(x / 2, y / 2) : Numbered(x, y);
    }));
}

TEST_F(BitmapTransparencyTest, TheCopyModeDoesNotTouchTransparentDrawing) {
    TBitmap bitmap(4, 4, pf24bit);
    PaintDiagonal(bitmap);
    bitmap.SetTransparent(true);
    Canvas().SetCopyMode(cmSrcInvert);
    Canvas().Draw(0, 0, &bitmap);
    EXPECT_EQ(At(1, 1), Diagonal(1, 1));
    EXPECT_EQ(Canvas().GetCopyMode(), cmSrcInvert);
}

TEST_F(BitmapTransparencyTest, AChangeShowsInTheNextDrawing) {
    TBitmap bitmap(4, 4, pf24bit);
    PaintDiagonal(bitmap);
    bitmap.SetTransparent(true);
    Canvas().Draw(0, 0, &bitmap);
    bitmap.GetCanvas().SetPixel(3, 0, clLime);
    bitmap.GetCanvas().SetPixel(1, 1, clFuchsia);
    Paint(Bitmap(), Numbered);
    Canvas().Draw(0, 0, &bitmap);
    EXPECT_EQ(At(3, 0), clLime);
    EXPECT_EQ(At(1, 1), Numbered(1, 1));
    bitmap.WriteBits().SetColor(1, 1, clAqua);
    Canvas().Draw(0, 0, &bitmap);
    EXPECT_EQ(At(1, 1), clAqua);
    bitmap.SetTransparentColor(clAqua);
    Paint(Bitmap(), Numbered);
    Canvas().Draw(0, 0, &bitmap);
    EXPECT_EQ(At(1, 1), Numbered(1, 1));
    EXPECT_EQ(At(0, 3), clFuchsia);
}

TEST_F(BitmapTransparencyTest, ABitmapDrawsItselfOnItself) {
    TBitmap bitmap(8, 4, pf24bit);
    Paint(bitmap, [](int x, int y) { return x < 4 ? Diagonal(x, y) : clNavy; });
    bitmap.SetTransparent(true);
    bitmap.GetCanvas().Draw(4, 0, &bitmap);
    EXPECT_TRUE(Shows(bitmap, [](int x, int y) {
        if (x < 4) return Diagonal(x, y);
        return x - 4 + y == 3 ? clNavy : Diagonal(x - 4, y);
    }));
}

TEST_F(BitmapTransparencyTest, AMaskIsWhereTheColorWas) {
    TBitmap bitmap(4, 4, pf24bit);
    PaintDiagonal(bitmap);
    bitmap.Mask(clFuchsia);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf1bit);
    EXPECT_TRUE(Shows(bitmap, [](int x, int y) { return x + y == 3 ? clWhite : clBlack; }));
    TBitmap empty;
    empty.Mask(clRed);
    EXPECT_TRUE(empty.GetEmpty());
}

TEST_F(BitmapTransparencyTest, TheMaskHandleFollowsTheTransparentColor) {
    TBitmap bitmap(4, 4, pf24bit);
    PaintDiagonal(bitmap);
    EXPECT_TRUE(test::SamePixels(test::ReadBitmap(bitmap.GetMaskHandle()),
                                 [](int x, int y) { return x + y == 3 ? clWhite : clBlack; }));
    bitmap.SetTransparentColor(Diagonal(0, 0));
    EXPECT_TRUE(test::SamePixels(test::ReadBitmap(bitmap.GetMaskHandle()),
                                 [](int x, int y) { return x == 0 && y == 0 ? clWhite : clBlack; }));
    EXPECT_EQ(TBitmap().GetMaskHandle(), nullptr);
}

}  // namespace
}  // namespace vcl
