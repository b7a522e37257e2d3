#include "tests/explorerbar/ItemFixture.h"

namespace qv7skin::probes {

void ItemTest::SetUp() {
    LedgerTest::SetUp();
    FBitmap = std::make_unique<TBitmap>(BitmapWidth, BitmapHeight, pf24bit);
}

void ItemTest::TearDown() {
    FBitmap.reset();
    LedgerTest::TearDown();
}

int ItemTest::Wide(const String& text, TFontStyles style) {
    TBitmap probe(1, 1, pf24bit);
    probe.GetCanvas().GetFont().SetStyle(style);
    return probe.GetCanvas().TextWidth(text);
}

int ItemTest::Line() {
    TBitmap probe(1, 1, pf24bit);
    return probe.GetCanvas().TextHeight(L"A");
}

void ItemTest::Wipe() {
    TBrush white;
    Canvas().SetBrush(white);
    Canvas().FillRect({0, 0, BitmapWidth, BitmapHeight});
}

test::Pixels ItemTest::Expected(const std::function<void(TCanvas&)>& draw) {
    TBitmap expected(BitmapWidth, BitmapHeight, pf24bit);
    draw(expected.GetCanvas());
    return PixelsOf(expected);
}

void ItemTest::Write(TCanvas& canvas, int x, int y, const String& text, TColor color, TFontStyles style) {
    canvas.GetFont().SetStyle(style);
    canvas.GetFont().SetColor(color);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextOut(x, y, text);
}

void ItemTest::WriteRow(TCanvas& canvas, TRect rect, const String& text, TColor color, TFontStyles style) {
    canvas.GetFont().SetStyle(style);
    canvas.GetFont().SetColor(color);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextRect(rect, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

int ItemTest::Moved(TRun at, const std::function<void(TRun&)>& pass) {
    TRun run = at;
    pass(run);
    EXPECT_EQ(run.Left, at.Left);
    EXPECT_EQ(run.Width, at.Width);
    return run.Top - at.Top;
}

}  // namespace qv7skin::probes
