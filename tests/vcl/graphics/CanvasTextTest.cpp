#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/TextLayout.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

/// Draws text on 120 x 40 pixels.
class CanvasTextTest : public probes::PaintingTest {
protected:
    CanvasTextTest() : PaintingTest(120, 40) {}
};

TEST_F(CanvasTextTest, TheExtentIsThatOfTheSystem) {
    Canvas().GetFont().SetHeight(-15);
    const HDC dc = Canvas().GetHandle();
    const TSize size = Canvas().TextExtent(L"Explorer");
    SIZE expected{};
    GetTextExtentPoint32W(dc, L"Explorer", 8, &expected);
    EXPECT_EQ(size, TSize(expected));
    EXPECT_EQ(Canvas().TextWidth(L"Explorer"), expected.cx);
    EXPECT_EQ(Canvas().TextHeight(L"A"), expected.cy);
    EXPECT_EQ(Canvas().TextMetrics().tmHeight, expected.cy);
    EXPECT_EQ(Canvas().TextWidth(L""), 0);
}

TEST_F(CanvasTextTest, ABoldFontIsWider) {
    const int regular = Canvas().TextWidth(L"mmmmmm");
    Canvas().GetFont().SetStyle({fsBold});
    EXPECT_GT(Canvas().TextWidth(L"mmmmmm"), regular);
}

TEST_F(CanvasTextTest, TextStandsOnTheBrushInTheFontsColor) {
    Canvas().GetFont().SetColor(clRed);
    Canvas().GetBrush().SetColor(clYellow);
    Canvas().TextOut(10, 5, L"Hill");
    const TSize size = Canvas().TextExtent(L"Hill");
    EXPECT_GT(CountOf(clRed), 10);
    EXPECT_EQ(CountOf(clRed) + CountOf(clYellow), size.Width * size.Height);
    const TRect text = BoundsOf(clYellow);
    EXPECT_EQ(text, TRect::OfSize(10, 5, size.Width, size.Height));
}

TEST_F(CanvasTextTest, AClearBrushDrawsTextAlone) {
    Canvas().GetFont().SetColor(clRed);
    Canvas().GetBrush().SetColor(clYellow);
    Canvas().GetBrush().SetStyle(bsClear);
    Canvas().TextOut(10, 5, L"Hill");
    EXPECT_EQ(CountOf(clYellow), 0);
    EXPECT_EQ(CountOf(clRed) + CountOf(clWhite), 120 * 40);
}

TEST_F(CanvasTextTest, ATextRectangleCutsAndFills) {
    Canvas().GetFont().SetColor(clRed);
    Canvas().GetBrush().SetColor(clAqua);
    const TRect r{10, 5, 30, 25};
    Canvas().TextRect(r, 12, 3, L"MMMMMMMM");
    EXPECT_GT(CountOf(clRed), 0);
    EXPECT_EQ(CountOf(clRed) + CountOf(clAqua), r.Width() * r.Height());
    const int filled = CountOf(clAqua);
    Canvas().GetBrush().SetStyle(bsClear);
    Canvas().TextRect({60, 5, 80, 25}, 60, 5, L"MMMMMMMM");
    EXPECT_EQ(CountOf(clAqua), filled);
    EXPECT_LE(BoundsOf(clRed).Right, 80);
}

TEST_F(CanvasTextTest, MeasuringDrawsAndTellsNothing) {
    int changes = 0;
    Canvas().OnChange = [&](TObject*) { ++changes; };
    TRect space{0, 0, 0, 0};
    Canvas().TextRect(space, L"Two words", DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(space.Width(), Canvas().TextWidth(L"Two words"));
    EXPECT_EQ(space.Height(), Canvas().TextHeight(L"A"));
    EXPECT_EQ(CountOf(clWhite), 120 * 40);
}

TEST_F(CanvasTextTest, LayoutFlagsPlaceTheText) {
    Canvas().GetFont().SetColor(clRed);
    Canvas().GetBrush().SetStyle(bsClear);
    TRect r{0, 0, 120, 40};
    const int width = Canvas().TextWidth(L"HH");
    Canvas().TextRect(r, L"HH", DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
    const TRect text = BoundsOf(clRed);
    EXPECT_GE(text.Left, 120 - width);
    EXPECT_LE(text.Right, 120);
    EXPECT_GE(text.Top, 40 - Canvas().TextHeight(L"A"));
}

TEST_F(CanvasTextTest, AnAmpersandUnderlinesUnlessToldNotTo) {
    const int withPrefix = MeasureText(Canvas(), L"&File", DT_SINGLELINE).Width;
    const int plain = MeasureText(Canvas(), L"&File", DT_SINGLELINE | DT_NOPREFIX).Width;
    EXPECT_EQ(withPrefix, Canvas().TextWidth(L"File"));
    EXPECT_EQ(plain, Canvas().TextWidth(L"&File"));
}

TEST_F(CanvasTextTest, MeasuringBreaksLinesAtTheWidth) {
    const TSize line = MeasureText(Canvas(), L"one two three", DT_SINGLELINE);
    const TSize broken = MeasureText(Canvas(), L"one two three", DT_WORDBREAK, line.Width / 2);
    EXPECT_LT(broken.Width, line.Width);
    EXPECT_GE(broken.Height, 2 * line.Height);
}

TEST_F(CanvasTextTest, TextOfSeveralLinesIsCentredAsAWhole) {
    Canvas().GetFont().SetColor(clRed);
    Canvas().GetBrush().SetStyle(bsClear);
    const TSize size = MeasureText(Canvas(), L"HH\nHH", 0);
    DrawTextCentered(Canvas(), {0, 0, 120, 40}, L"HH\nHH", DT_CENTER);
    const TRect text = BoundsOf(clRed);
    EXPECT_GE(text.Top, (40 - size.Height) / 2);
    EXPECT_LE(text.Bottom, (40 + size.Height + 1) / 2);
    EXPECT_GT(text.Height(), size.Height / 2);
    EXPECT_GE(text.Left, (120 - size.Width) / 2);
    EXPECT_LE(text.Right, (120 + size.Width + 1) / 2);
}

TEST_F(CanvasTextTest, TextCanBeMeasuredOnAnEmptyBitmap) {
    TBitmap empty;
    EXPECT_EQ(empty.GetCanvas().TextExtent(L"Explorer"), Canvas().TextExtent(L"Explorer"));
}

TEST_F(CanvasTextTest, AccessKeyMarksAreStripped) {
    EXPECT_EQ(StripHotkey(L"&File"), L"File");
    EXPECT_EQ(StripHotkey(L"Save && &Go"), L"Save & Go");
    EXPECT_EQ(StripHotkey(L"end&"), L"end");
    EXPECT_EQ(StripHotkey(L"&&&&"), L"&&");
    EXPECT_EQ(StripHotkey(L""), L"");
}

TEST_F(CanvasTextTest, TabsAreDrawnInTheSmallestFonts) {
    for (const int height : {-1, 1, -2, 2}) {
        Canvas().GetFont().SetHeight(height);
        TRect rect{0, 0, 100, 30};
        Canvas().TextRect(rect, L"a\tb", DT_EXPANDTABS | DT_SINGLELINE);
        Canvas().TextRect(rect, L"a\tb", DT_EXPANDTABS | DT_CALCRECT);
        EXPECT_LT(rect.Width(), 30) << height;
    }
}

}  // namespace
}  // namespace vcl
