#include "skin/surfaces/RowWindowBitmap.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Fade.h"
#include "skin/utils/OneShotDrawing.h"
#include "tests/support/LedgerTest.h"

namespace qv7skin {
namespace {

class RowWindowBitmapTest : public test::LedgerTest {
protected:
    /// Rows 1000 to 1009 of a picture of 4 x 200,000, each row in a colour of its own.
    RowWindowBitmapTest() : FBitmap(4, 200'000, 1000, 10, clWhite) {
        for (int y = 995; y < 1015; ++y) {
            Canvas().GetBrush().SetColor(ColorOf(y));
            Canvas().FillRect({0, y, 4, y + 1});
        }
    }
    TCanvas& Canvas() { return FBitmap.GetCanvas(); }
    static TColor ColorOf(int row) { return 0x00400000 + row; }

    TRowWindowBitmap FBitmap;
};

TEST_F(RowWindowBitmapTest, HasTheHeightOfTheWholeAndTheMemoryOfTheWindow) {
    EXPECT_EQ(FBitmap.GetHeight(), 200'000);
    EXPECT_EQ(FBitmap.GetRowCount(), 10);
    EXPECT_EQ(FBitmap.GetTop(), 1000);
    EXPECT_EQ(FBitmap.GetBottom(), 1010);
    EXPECT_EQ(FBitmap.GetPixelFormat(), pf24bit);
    EXPECT_EQ(Canvas().GetClipRect(), TRect(0, 1000, 4, 1010));
}

TEST_F(RowWindowBitmapTest, DrawsInRowsOfTheWhole) {
    for (int y = 1000; y < 1010; ++y)
        EXPECT_EQ(Canvas().GetPixel(1, y), ColorOf(y));
    EXPECT_EQ(Canvas().GetPixel(1, 999), clInvalid);
    EXPECT_EQ(Canvas().GetPixel(1, 1010), clInvalid);
}

TEST_F(RowWindowBitmapTest, ScanLinesAreRowsOfTheWhole) {
    const auto* row = static_cast<const std::uint8_t*>(FBitmap.ScanLine(1003));
    EXPECT_EQ(RGBToColor(row[2], row[1], row[0]), ColorOf(1003));
    EXPECT_THROW((void)FBitmap.ScanLine(999), EInvalidGraphicOperation);
    EXPECT_THROW((void)FBitmap.ScanLine(1010), EInvalidGraphicOperation);
    EXPECT_THROW((void)FBitmap.ScanLine(0), EInvalidGraphicOperation);
}

TEST_F(RowWindowBitmapTest, AMovedWindowKeepsTheRowsThatStay) {
    FBitmap.MoveTo(1004);
    for (int y = 1004; y < 1010; ++y)
        EXPECT_EQ(Canvas().GetPixel(2, y), ColorOf(y));
    EXPECT_EQ(Canvas().GetClipRect(), TRect(0, 1004, 4, 1014));
    Canvas().SetPixel(0, 1013, clRed);
    FBitmap.MoveTo(1007);
    EXPECT_EQ(Canvas().GetPixel(0, 1013), clRed);
    FBitmap.MoveTo(1001);
    for (int y = 1007; y < 1010; ++y)
        EXPECT_EQ(Canvas().GetPixel(2, y), ColorOf(y));
    FBitmap.MoveTo(150'000);
    Canvas().SetPixel(3, 150'009, clBlue);
    EXPECT_EQ(Canvas().GetPixel(3, 150'009), clBlue);
}

TEST_F(RowWindowBitmapTest, ItsPlaceLastsWhenTheContextIsFetchedAnew) {
    (void)FBitmap.GetHandle();  // closes the context
    Canvas().SetPixel(0, 1005, clRed);
    EXPECT_EQ(Canvas().GetPixel(0, 1005), clRed);
}

TEST_F(RowWindowBitmapTest, IsDrawnAtItsPlaceInTheWhole) {
    TBitmap target(4, 12, pf24bit);
    target.GetCanvas().Draw(0, -999, &FBitmap);
    EXPECT_EQ(target.GetCanvas().GetPixel(0, 0), clWhite);
    for (int y = 1; y < 11; ++y)
        EXPECT_EQ(target.GetCanvas().GetPixel(0, y), ColorOf(999 + y));
    EXPECT_EQ(target.GetCanvas().GetPixel(0, 11), clWhite);
}

TEST_F(RowWindowBitmapTest, CopiesFromItCountRowsOfTheWhole) {
    TBitmap target(4, 2, pf24bit);
    target.GetCanvas().CopyRect({0, 0, 4, 2}, FBitmap, {0, 1004, 4, 1006});
    EXPECT_EQ(target.GetCanvas().GetPixel(1, 0), ColorOf(1004));
    EXPECT_EQ(target.GetCanvas().GetPixel(1, 1), ColorOf(1005));
}

TEST_F(RowWindowBitmapTest, ABitmapAssignedFromItIsTheRows) {
    TBitmap copy;
    copy.Assign(&FBitmap);
    EXPECT_EQ(copy.GetHeight(), 10);
    EXPECT_EQ(copy.GetCanvas().GetPixel(0, 0), ColorOf(1000));
    copy.GetCanvas().SetPixel(0, 0, clRed);
    EXPECT_EQ(Canvas().GetPixel(0, 1000), ColorOf(1000));
}

TEST_F(RowWindowBitmapTest, PixelsLeftOutAreLeftOutThereToo) {
    TBitmap piece(2, 2, pf24bit);
    piece.GetCanvas().SetPixel(0, 0, 0x00FF00FF);
    piece.GetCanvas().SetPixel(1, 0, clRed);
    DrawTransparentBitmap(Canvas(), &piece, 1, 1002, 0x00FF00FF);
    EXPECT_EQ(Canvas().GetPixel(1, 1002), ColorOf(1002));
    EXPECT_EQ(Canvas().GetPixel(2, 1002), clRed);
    // What lies outside is cut.
    DrawTransparentBitmap(Canvas(), &piece, 1, 999, 0x00FF00FF);
    EXPECT_EQ(Canvas().GetPixel(1, 1000), clWhite);
    DrawTransparentBitmap(Canvas(), &piece, 1, 1009, 0x00FF00FF);
    EXPECT_EQ(Canvas().GetPixel(2, 1009), clRed);
}

TEST_F(RowWindowBitmapTest, FadesInRowsOfTheWhole) {
    Canvas().GetBrush().SetColor(clBlack);
    Canvas().FillRect({0, 1000, 4, 1010});
    Fade(FBitmap, clWhite, 0, 1008, 0.2L, FBitmap, {0, 1008, 4, 1020});
    EXPECT_EQ(Canvas().GetPixel(0, 1007), clBlack);
    EXPECT_EQ(Canvas().GetPixel(0, 1008), RGBToColor(204, 204, 204));
    EXPECT_EQ(Canvas().GetPixel(3, 1009), RGBToColor(204, 204, 204));
}

}  // namespace
}  // namespace qv7skin
