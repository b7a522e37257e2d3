#include "explorerbar/items/CheckBoxGlyph.h"
#include "explorerbar/items/ItemText.h"
#include "tests/explorerbar/ItemFixture.h"
#include "tests/support/Pixels.h"

// What items leave on the bitmap, against the drawing rules.

namespace qv7skin {
namespace {

using test::Pixels;
using test::SamePixels;

class ItemPaintTest : public probes::ItemTest {};

TEST_F(ItemPaintTest, APlainItemIsADottedFrame) {
    TQV7SkinExplorerItemCustom item;
    Drawn(item, {10, 20, 100});
    const Pixels expected = Expected([](TCanvas& canvas) {
        canvas.GetPen().SetStyle(psDot);
        canvas.GetPen().SetColor(clBtnText);
        canvas.GetBrush().SetStyle(bsClear);
        canvas.Rectangle(15, 22, 105, 38);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
    EXPECT_EQ(Canvas().GetPen().GetStyle(), psSolid) << "what is painted next is not dotted";
}

TEST_F(ItemPaintTest, ASeparatorPaintsNothing) {
    TQV7SkinExplorerItemSeparator item;
    Drawn(item);
    EXPECT_EQ(Shown().Count(clWhite), BitmapWidth * BitmapHeight);
}

TEST_F(ItemPaintTest, APairShowsCaptionAndValueInBlack) {
    TQV7SkinExplorerItemCaptionValuePair item(L"Größe & Art", L"12 && KB", L"");
    Drawn(item, {0, 7, 200});
    const Pixels expected = Expected([&](TCanvas& canvas) {
        Write(canvas, 5, 7, L"Größe & Art", clBlack);
        Write(canvas, 195 - Wide(L"12 && KB"), 7, L"12 && KB", clBlack);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected)) << "no mark of an access key is read";
}

TEST_F(ItemPaintTest, AnOverlappingPairShowsTheWholeValueAndACutCaption) {
    const String captionText = L"Eine sehr lange Beschriftung";
    const String valueText = L"Ein langer Wert";
    const int width = 170;
    TQV7SkinExplorerItemCaptionValuePair item(captionText, valueText, L"");
    Drawn(item, {0, 0, width});
    const int valueLeft = width - 5 - Wide(valueText);
    ASSERT_GT(5 + Wide(captionText), valueLeft - 10);
    const Pixels expected = Expected([&](TCanvas& canvas) {
        WriteRow(canvas, {5, 0, valueLeft - 10, Line()}, captionText, clBlack);
        Write(canvas, valueLeft, 0, valueText, clBlack);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, ACaptionWithoutRoomIsLeftOut) {
    const String valueText = L"Ein Wert, der alles einnimmt";
    TQV7SkinExplorerItemCaptionValuePair item(L"Name", valueText, L"");
    Drawn(item, {0, 0, 90});
    const Pixels expected = Expected([&](TCanvas& canvas) {
        WriteRow(canvas, {5, 0, 85, Line()}, valueText, clBlack);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, ABlockPairStandsInItsColumn) {
    TQV7SkinExplorerItemCaptionBlockPair item(L"Typ", L"Bild");
    TRun run{0, 30, 200};
    item.DrawWithOffset(Bitmap(), 70, run.Left, run.Top, run.Width);
    const Pixels expected = Expected([&](TCanvas& canvas) {
        Write(canvas, 5, 30, L"Typ", clBlack);
        Write(canvas, 80, 30, L"Bild", clBlack);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, ABlockTextIsCutAtTheRoomThatIsLeft) {
    const String text = L"Ein Text, der mehr Platz braucht, als da ist";
    TQV7SkinExplorerItemCaptionBlockPair item(L"Typ", text);
    TRun run{0, 0, 150};
    item.DrawWithOffset(Bitmap(), 60, run.Left, run.Top, run.Width);
    const Pixels expected = Expected([&](TCanvas& canvas) {
        Write(canvas, 5, 0, L"Typ", clBlack);
        WriteRow(canvas, {70, 0, 70 + 150 - 10 - 60 - 5, Line()}, text, clBlack);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, ABlockCaptionWithoutRoomIsLeftOut) {
    TQV7SkinExplorerItemCaptionBlockPair item(L"Typ", L"Ein langer Text");
    TRun run{0, 0, 40};
    item.DrawWithOffset(Bitmap(), 20, run.Left, run.Top, run.Width);
    const Pixels expected = Expected([&](TCanvas& canvas) {
        WriteRow(canvas, {30, 0, 60, Line()}, L"Ein langer Text", clBlack);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, ALinkIsBlueAndWrapped) {
    TQV7SkinExplorerItemLink item(L"Eine Datei\r\nöffnen", L"");
    Drawn(item, {3, 8, 200});
    const Pixels expected = Expected([&](TCanvas& canvas) {
        Write(canvas, 8, 8, L"Eine Datei", LinkBlue);
        Write(canvas, 8, 8 + Line() + 1, L"öffnen", LinkBlue);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, ALinkWithoutWordWrapIsCutTenPixelsBeforeTheGroupsEnd) {
    const String text = L"Eine Datei öffnen und ansehen";
    TQV7SkinExplorerItemLink item(text, L"");
    item.SetWordWrap(false);
    item.SetFontStyle({fsItalic});
    Drawn(item, {0, 0, 100});
    const Pixels expected = Expected([&](TCanvas& canvas) {
        canvas.GetFont().SetStyle({fsItalic});
        const String cut = EllipsizeText(canvas, text, 100 - 10 - 5);
        EXPECT_NE(cut, text);
        Write(canvas, 5, 0, cut, LinkBlue, {fsItalic});
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

TEST_F(ItemPaintTest, AnIconStandsBeforeTheTextWithItsTransparentColorLeftOut) {
    const Pixels stripes(20, 24, [](int x, int) { return x % 2 ? RGB(0, 128, 0) : probes::Magenta; });
    const auto icon = probes::BitmapOf(stripes);
    TQV7SkinExplorerItemLink item(L"Öffnen", L"", icon.get(), probes::Magenta);
    Bitmap().GetCanvas().GetBrush().SetColor(clYellow);
    Bitmap().GetCanvas().FillRect({0, 0, BitmapWidth, BitmapHeight});
    const auto shows = [&](bool opaque) {
        return SamePixels(Shown().Part({5, 4, 25, 28}), [&](int x, int y) -> COLORREF {
            const COLORREF color = stripes.At(x, y);
            return color == probes::Magenta && !opaque ? clYellow : color;
        });
    };
    Drawn(item, {0, 4, 200});
    EXPECT_TRUE(shows(false));
    item.SetTransparentColor(clNone);
    Drawn(item, {0, 4, 200});
    EXPECT_TRUE(shows(true));
    item.SetTransparentColor(probes::Magenta);
    item.SetIcon(nullptr);
    item.SetIcon(icon.get());
    Canvas().GetBrush().SetColor(clYellow);
    Bitmap().GetCanvas().FillRect({0, 0, BitmapWidth, BitmapHeight});
    Drawn(item, {0, 4, 200});
    EXPECT_TRUE(shows(false)) << "a new icon has the colour left out, too";
}

TEST_F(ItemPaintTest, AnIconLowerThanARowIsLoweredToItsMiddle) {
    // Half of 5 pixels is 2.5, of which the nearest even number is 2.
    const int height = Line() - 5;
    const auto icon = probes::BitmapOf(4, height, clRed);
    TQV7SkinExplorerItemLink item(L"", L"", icon.get());
    Drawn(item, {0, 10, 200});
    const RECT found = Shown().Bounds([](COLORREF color) { return color == clRed; });
    EXPECT_EQ(TRect(found), TRect::OfSize(5, 12, 4, height));
}

TEST_F(ItemPaintTest, TheFirstRowStandsBesideTheMiddleOfAHighIcon) {
    const auto icon = probes::BitmapOf(4, Line() + 9, clRed);
    TQV7SkinExplorerItemLink item(L"Text", L"", icon.get());
    Drawn(item, {0, 10, 200});
    const Pixels expected = Expected([&](TCanvas& canvas) {
        canvas.GetBrush().SetColor(clRed);
        canvas.FillRect({5, 10, 9, 10 + Line() + 9});
        Write(canvas, 5 + 4 + 5, 10 + 4, L"Text", LinkBlue);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

// --- check box

class CheckBoxPaintTest : public ItemPaintTest, public testing::WithParamInterface<int> {};

TEST_P(CheckBoxPaintTest, TheBoxIsTheSystemsWithALineForItsEdgeWhenFlat) {
    const bool checked = GetParam() & 1;
    const bool enabled = GetParam() & 2;
    const bool flat = GetParam() & 4;
    TQV7SkinExplorerItemCheckBox item(L"Wahl", 0, L"", checked, enabled, flat);
    Drawn(item, {3, 10, 200});
    const TSize glyph = CheckBoxGlyphSize();
    const int left = 8 + (16 - glyph.Width) / 2;
    const int top = 10 + (16 - glyph.Height) / 2;
    const Pixels expected = Expected([&](TCanvas& canvas) {
        RECT box{left, top, left + glyph.Width, top + glyph.Height};
        const UINT state = DFCS_BUTTONCHECK | (checked ? DFCS_CHECKED : 0) | (enabled ? 0 : DFCS_INACTIVE);
        ::DrawFrameControl(canvas.GetHandle(), &box, DFC_BUTTON, state);
        if (flat) {
            canvas.GetBrush().SetColor(clBtnShadow);
            canvas.FrameRect({left + 1, top + 1, left + glyph.Width - 1, top + glyph.Height - 1});
        }
        const TFontStyles style = checked && enabled ? TFontStyles{fsBold} : TFontStyles{};
        const int lowered = Line() < glyph.Height ? (glyph.Height - Line()) / 2 : 0;
        Write(canvas, 3 + glyph.Width + 7, 10 + lowered, L"Wahl", clBlack, style);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}
INSTANTIATE_TEST_SUITE_P(States, CheckBoxPaintTest, testing::Range(0, 8));

TEST_F(ItemPaintTest, DrawingABoxLeavesBrushAndPenAsTheyWere) {
    Canvas().GetBrush().SetColor(clLime);
    Canvas().GetPen().SetColor(clRed);
    DrawCheckBoxGlyph(Canvas(), 0, 0, cbGrayed, true, true);
    EXPECT_EQ(Canvas().GetBrush().GetColor(), static_cast<TColor>(clLime));
    EXPECT_EQ(Canvas().GetBrush().GetStyle(), bsSolid);
    EXPECT_EQ(Canvas().GetPen().GetColor(), static_cast<TColor>(clRed));
}

TEST_F(ItemPaintTest, AGrayedBoxIsTickedWithThreeStates) {
    DrawCheckBoxGlyph(Canvas(), 0, 0, cbGrayed, true, false);
    const TSize glyph = CheckBoxGlyphSize();
    const Pixels expected = Expected([&](TCanvas& canvas) {
        RECT box{(16 - glyph.Width) / 2, (16 - glyph.Height) / 2, 0, 0};
        box.right = box.left + glyph.Width;
        box.bottom = box.top + glyph.Height;
        ::DrawFrameControl(canvas.GetHandle(), &box, DFC_BUTTON, DFCS_BUTTON3STATE | DFCS_CHECKED);
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}

// --- bitmap

TEST_F(ItemPaintTest, APictureIsCopiedOpaque) {
    const Pixels picture = probes::RandomColors(3).Picture(40, 30);
    const auto bitmap = probes::BitmapOf(picture);
    bitmap->SetTransparentColor(picture.At(0, 0));
    bitmap->SetTransparent(true);
    TQV7SkinExplorerItemBmp item(bitmap.get());
    item.SetAlignment(taLeftJustify);
    Drawn(item, {0, 6, 200});
    EXPECT_TRUE(SamePixels(Shown().Part({5, 6, 45, 36}), picture));
    EXPECT_EQ(Shown().At(45, 6), static_cast<COLORREF>(clWhite));
}

TEST_F(ItemPaintTest, AScaledPictureIsStretchedToItsNewSize) {
    const Pixels halves(200, 100, [](int x, int) { return x < 100 ? clRed : clBlue; });
    const auto bitmap = probes::BitmapOf(halves);
    TQV7SkinExplorerItemBmp item(bitmap.get());
    item.SetAutoSize(true);
    item.SetAlignment(taLeftJustify);
    Drawn(item, {0, 0, 110});
    const Pixels part = Shown().Part({5, 0, 105, 50});
    EXPECT_TRUE(SamePixels(part, [](int x, int) { return x < 50 ? clRed : clBlue; }));
    EXPECT_EQ(Shown().At(5, 50), static_cast<COLORREF>(clWhite));
}

// --- static text

TEST_F(ItemPaintTest, AStaticTextHasItsColorAndStyle) {
    const String text = L"Hinweis: Dieser Satz ist lang.";
    TQV7SkinExplorerItemStaticText item(text, clGreen, {fsBold}, false);
    Drawn(item, {2, 3, 120});
    const Pixels cutRow = Expected([&](TCanvas& canvas) {
        canvas.GetFont().SetStyle({fsBold});
        Write(canvas, 7, 3, EllipsizeText(canvas, text, 110), clGreen, {fsBold});
    });
    EXPECT_TRUE(SamePixels(Shown(), cutRow));
    Wipe();
    item.SetWordWrap(true);
    Drawn(item, {2, 3, 120});
    const Pixels rows = Expected([&](TCanvas& canvas) {
        canvas.GetFont().SetStyle({fsBold});
        String rest = text;
        for (int y = 3; !rest.empty(); y += Line() + 1)
            Write(canvas, 7, y, SplitLine(canvas, rest, 110), clGreen, {fsBold});
    });
    EXPECT_TRUE(SamePixels(Shown(), rows));
}

// --- progress bar

class ProgressPaintTest : public ItemPaintTest, public testing::WithParamInterface<int> {};

TEST_P(ProgressPaintTest, TheFillIsItsShareOfTheWidthLessFour) {
    constexpr int Width = 104;
    const int position = GetParam();
    TQV7SkinExplorerItemProgressBar item(10, 30, position, 12, clRed, clBlue);
    Canvas().GetBrush().SetColor(clLime);
    Drawn(item, {20, 30, Width});
    // (104 - 4) x share; of halves none occurs.
    const int filled = 100 * (position - 10) / 20;
    const Pixels expected = Expected([&](TCanvas& canvas) {
        canvas.GetPen().SetColor(clRed);
        canvas.GetBrush().SetColor(clLime);
        canvas.Rectangle(20, 30, 20 + Width - 5, 42);
        canvas.GetBrush().SetColor(clBlue);
        if (filled > 0) canvas.FillRect({27, 32, 27 + filled, 40});
    });
    EXPECT_TRUE(SamePixels(Shown(), expected));
}
INSTANTIATE_TEST_SUITE_P(Positions, ProgressPaintTest, testing::Values(10, 11, 15, 29, 30));

TEST_F(ItemPaintTest, AFullBarPassesTheEndOfItsFrameByEightPixels) {
    TQV7SkinExplorerItemProgressBar item(0, 1, 1, 12, clRed, clBlue);
    Drawn(item, {0, 0, 104});
    const RECT frame = Shown().Bounds([](COLORREF color) { return color == clRed; });
    const RECT fill = Shown().Bounds([](COLORREF color) { return color == clBlue; });
    EXPECT_EQ(fill.right, frame.right + 8);
}

TEST_F(ItemPaintTest, TheFilledWidthIsRoundedToTheNearest) {
    TQV7SkinExplorerItemProgressBar item(0, 8, 3, 12, clRed, clBlue);
    Drawn(item, {0, 0, 104});  // 37.5 of 100 pixels: the even one of both neighbours
    const RECT found = Shown().Bounds([](COLORREF color) { return color == clBlue; });
    EXPECT_EQ(TRect(found), TRect(7, 2, 7 + 38, 10));
}

TEST_F(ItemPaintTest, AProgressBarDoesNotColorWhatComesNext) {
    TQV7SkinExplorerItemProgressBar item(0, 2, 1, 12, clRed, clBlue);
    Canvas().GetBrush().SetStyle(bsClear);
    Drawn(item);
    EXPECT_EQ(Canvas().GetBrush().GetStyle(), bsClear);
    EXPECT_EQ(Canvas().GetPen().GetColor(), static_cast<TColor>(clBlack));
}

}  // namespace
}  // namespace qv7skin
