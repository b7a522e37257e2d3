#include <algorithm>

#include "explorerbar/items/CheckBoxGlyph.h"
#include "tests/explorerbar/ItemFixture.h"

// Where items stand and how high they are, against the metrics of the texts.

namespace qv7skin {
namespace {

class ItemLayoutTest : public probes::ItemTest {
protected:
    TCursor Hovered(TQV7SkinExplorerItemCustom& item) {
        TCursor cursor = crDefault;
        item.DoEnter(cursor);
        return cursor;
    }
};

TEST_F(ItemLayoutTest, APlainItemIsTwentyPixelsHigh) {
    TQV7SkinExplorerItemCustom item;
    EXPECT_EQ(item.ClipRect(), TRect());
    EXPECT_EQ(Measured(item, {3, 4, 100}), 20);
    EXPECT_EQ(item.ClipRect(), TRect()) << "measuring keeps no place";
    EXPECT_EQ(Drawn(item, {3, 4, 100}), 20);
    EXPECT_EQ(item.ClipRect(), TRect(8, 6, 98, 22));
}

TEST_F(ItemLayoutTest, ASeparatorOnlyTakesRoom) {
    TQV7SkinExplorerItemSeparator item;
    EXPECT_EQ(Drawn(item), 10);
    item.SetHeight(3);
    EXPECT_EQ(Measured(item), 3);
    EXPECT_EQ(Drawn(item), 3);
    EXPECT_EQ(item.ClipRect(), TRect());
    EXPECT_FALSE(item.GetCanFocus());
    EXPECT_TRUE(item.IsSeparator());
    EXPECT_EQ(TQV7SkinExplorerItemSeparator(25).GetHeight(), 25);
}

// --- caption and value

TEST_F(ItemLayoutTest, AValueStandsAtTheRightAndBothTextsInOneRow) {
    TQV7SkinExplorerItemCaptionValuePair item(L"Name", L"Wert", L"");
    TRect caption;
    TRect value;
    item.CalcTextRects(Bitmap(), 10, 20, 200, caption, value);
    EXPECT_EQ(caption, TRect::OfSize(15, 20, Wide(L"Name"), Line()));
    EXPECT_EQ(value, TRect(195 - Wide(L"Wert"), 20, 195, 20 + Line()));
    EXPECT_EQ(Drawn(item, {10, 20, 200}), Line());
    EXPECT_EQ(Measured(item, {10, 20, 200}), Line());
    EXPECT_EQ(item.ClipRect(), TRect(15, 20, 210, 20 + Line())) << "the right edge is the width and 10";
}

TEST_F(ItemLayoutTest, ACaptionThatMeetsTheValueEndsTenPixelsBeforeIt) {
    const String text = L"Ein langer Name";
    const String valueText = L"Ein langer Wert";
    TQV7SkinExplorerItemCaptionValuePair item(text, valueText, L"");
    const int width = 5 + Wide(text) + Wide(valueText) - 10;
    TRect caption;
    TRect value;
    item.CalcTextRects(Bitmap(), 0, 0, width, caption, value);
    EXPECT_EQ(value.Width(), Wide(valueText)) << "the value is whole";
    EXPECT_EQ(caption.Right, value.Left - 10);
}

TEST_F(ItemLayoutTest, AValueThatJustDoesNotTouchLeavesTheCaptionWhole) {
    TQV7SkinExplorerItemCaptionValuePair item(L"Name", L"Wert", L"");
    const int width = 5 + Wide(L"Name") + 5 + Wide(L"Wert") + 5;
    TRect caption;
    TRect value;
    item.CalcTextRects(Bitmap(), 0, 0, width, caption, value);
    EXPECT_EQ(caption.Width(), Wide(L"Name"));
    item.CalcTextRects(Bitmap(), 0, 0, width - 1, caption, value);
    EXPECT_EQ(caption.Right, value.Left - 10);
}

TEST_F(ItemLayoutTest, AValueWiderThanTheGroupStartsAtItsLeft) {
    TQV7SkinExplorerItemCaptionValuePair item(L"Name", L"Ein Wert, der sehr viel Platz braucht", L"");
    TRect caption;
    TRect value;
    item.CalcTextRects(Bitmap(), 0, 0, 60, caption, value);
    EXPECT_EQ(value.Left, 5);
    EXPECT_EQ(value.Right, 55);
    EXPECT_LE(caption.Width(), 0);
}

TEST_F(ItemLayoutTest, WithALeftEdgeTheCaptionIsCutByTheRuleOfTheLeftEdge) {
    TQV7SkinExplorerItemCaptionValuePair item(L"Ein langer Name", L"Ein langer Wert", L"");
    const int left = 12;
    const int width = 120;
    TRect caption;
    TRect value;
    item.CalcTextRects(Bitmap(), left, 0, width, caption, value);
    // The overlap starts 5 before the value and reaches as far as the texts or the caption's end without the
    // left edge and 5 more.
    const int captionRight = left + 5 + Wide(L"Ein langer Name");
    const int valueLeft = width - 5 - Wide(L"Ein langer Wert");
    const int overlapLeft = std::max(valueLeft - 5, left + 5);
    const int overlapRight = std::max(std::min(captionRight, width - 5), captionRight - left + 5);
    EXPECT_EQ(caption.Right, captionRight - (overlapRight - overlapLeft));
}

// --- caption and block

TEST_F(ItemLayoutTest, ABlockPairRefusesPlainDrawing) {
    TQV7SkinExplorerItemCaptionBlockPair item(L"Name", L"Text");
    EXPECT_EQ(probes::MessageOf<Exception>([&] { Drawn(item); }),
              L"do not call me! -> call method \"DrawWithOffset\"");
    EXPECT_EQ(Shown().Count(clWhite), BitmapWidth * BitmapHeight) << "nothing is painted";
    EXPECT_EQ(item.ClipRect(), TRect());
}

TEST_F(ItemLayoutTest, BlockTextsStandInTheColumnOfTheGroup) {
    TQV7SkinExplorerItemCaptionBlockPair item(L"Name", L"Text");
    TRect block;
    TRect caption;
    item.CalcTextRects(Bitmap(), 200, block, caption, 0);
    EXPECT_EQ(caption, TRect(0, 0, Wide(L"Name"), Line()));
    EXPECT_EQ(block, TRect(0, 0, Wide(L"Text"), Line()));
    TRun run{7, 30, 200};
    item.DrawWithOffset(Bitmap(), 80, run.Left, run.Top, run.Width);
    EXPECT_EQ(run.Top, 30 + Line());
    EXPECT_EQ(Measured(item), Line());
    EXPECT_EQ(item.ClipRect(), TRect(12, 30, 210, 30 + Line()));
}

TEST_F(ItemLayoutTest, ABlockTextGetsTheRoomThatIsLeftButThirtyAtLeast) {
    const String text = L"Ein Text, der mehr Platz braucht, als da ist";
    TQV7SkinExplorerItemCaptionBlockPair item(L"Name", text);
    TRect block;
    TRect caption;
    item.CalcTextRects(Bitmap(), 150, block, caption, 60);
    EXPECT_EQ(block.Width(), 150 - 10 - 60 - 5) << "behind the group's column";
    EXPECT_EQ(caption.Width(), Wide(L"Name"));
    item.CalcTextRects(Bitmap(), 150, block, caption, 0);
    EXPECT_EQ(block.Width(), 150 - 10 - Wide(L"Name") - 5) << "behind the own caption";
    item.CalcTextRects(Bitmap(), 90, block, caption, 60);
    EXPECT_EQ(block.Width(), 30);
    EXPECT_EQ(caption.Width(), Wide(L"Name"));
    item.CalcTextRects(Bitmap(), 60, block, caption, 0);
    EXPECT_EQ(block.Width(), 30);
    EXPECT_EQ(caption.Width(), std::min(Wide(L"Name"), 60 - 10 - 30 - 5));
}

TEST_F(ItemLayoutTest, ABlockTextThatJustFitsIsWhole) {
    TQV7SkinExplorerItemCaptionBlockPair item(L"Name", L"Ein Text");
    const int width = Wide(L"Name") + 5 + Wide(L"Ein Text") + 10;
    TRect block;
    TRect caption;
    item.CalcTextRects(Bitmap(), width, block, caption, 0);
    EXPECT_EQ(block.Width(), Wide(L"Ein Text"));
    item.CalcTextRects(Bitmap(), width - 1, block, caption, 0);
    EXPECT_EQ(block.Width(), std::max(30, Wide(L"Ein Text") - 1));
}

// --- link

TEST_F(ItemLayoutTest, ALinkInOneRowStandsFivePixelsFromTheLeft) {
    TQV7SkinExplorerItemLink item(L"Öffnen", L"");
    EXPECT_EQ(Drawn(item, {4, 10, 200}), Line() + 1);
    EXPECT_EQ(Measured(item, {4, 10, 200}), Line() + 1);
    EXPECT_EQ(item.ClipRect(), TRect(9, 10, 9 + Wide(L"Öffnen"), 10 + Line() + 1));
}

TEST_F(ItemLayoutTest, ALinkWrapsAtTheWidthOfTheGroupLessFifteen) {
    const String first = L"Eine große Datei ";
    TQV7SkinExplorerItemLink item(first + L"öffnen", L"");
    const int width = Wide(first) + 1 + 15;
    EXPECT_EQ(Drawn(item, {0, 10, width}), 2 * (Line() + 1));
    EXPECT_EQ(Measured(item, {0, 10, width}), 2 * (Line() + 1));
    EXPECT_EQ(item.ClipRect(), TRect(5, 10, 5 + Wide(first), 10 + 2 * (Line() + 1)));
    Drawn(item, {0, 10, width - 1});
    EXPECT_EQ(item.ClipRect().Right, 5 + std::max(Wide(L"Eine große "), Wide(L"Datei öffnen")))
        << "as wide as the limit is too wide";
}

TEST_F(ItemLayoutTest, TheLeftEdgeWidensTheLimitOfALink) {
    const String text = L"Eine Datei öffnen";
    TQV7SkinExplorerItemLink item(text, L"");
    const int width = Wide(text) + 15;
    EXPECT_EQ(Drawn(item, {0, 0, width}), 2 * (Line() + 1)) << "exactly as wide is too wide";
    EXPECT_EQ(Drawn(item, {1, 0, width}), Line() + 1);
}

TEST_F(ItemLayoutTest, ALinkIsAsWideAsItsCaptionIsNow) {
    TQV7SkinExplorerItemLink link(L"Dateien", L"");
    const auto right = [&] {
        Drawn(link);
        return link.ClipRect().Right - 5;
    };
    EXPECT_EQ(right(), Wide(L"Dateien"));
    EXPECT_EQ(right(), Wide(L"Dateien")) << "again";
    link.SetCaption(L"Ordner und Dateien");
    EXPECT_EQ(right(), Wide(L"Ordner und Dateien"));
    link.SetFontStyle({fsBold});
    EXPECT_EQ(right(), Wide(L"Ordner und Dateien", {fsBold}));
    Canvas().GetFont().SetSize(Canvas().GetFont().GetSize() + 3);
    const int larger = right();
    EXPECT_EQ(larger, Canvas().TextWidth(L"Ordner und Dateien"));
    EXPECT_GT(larger, Wide(L"Ordner und Dateien", {fsBold}));
}

TEST_F(ItemLayoutTest, ALinkWithoutWordWrapIsOneRowAcrossTheGroup) {
    TQV7SkinExplorerItemLink item(L"Eine Datei öffnen und ansehen", L"");
    item.SetWordWrap(false);
    EXPECT_EQ(Drawn(item, {0, 10, 100}), Line() + 1);
    EXPECT_EQ(Measured(item, {0, 10, 100}), Line() + 1);
    EXPECT_EQ(item.ClipRect(), TRect(5, 10, 95, 10 + Line() + 1));
}

TEST_F(ItemLayoutTest, ABoldLinkIsMeasuredBold) {
    const String text = L"Eine Datei öffnen und wieder schließen";
    TQV7SkinExplorerItemLink item(text, L"");
    item.SetFontStyle({fsBold});
    ASSERT_GT(Wide(text, {fsBold}), Wide(text) + 1);
    const TRun run{0, 0, Wide(text) + 1 + 15};
    EXPECT_EQ(Measured(item, run), 2 * (Line() + 1)) << "regular it would be one row";
    EXPECT_EQ(Drawn(item, run), 2 * (Line() + 1));
}

TEST_F(ItemLayoutTest, AnIconHigherThanARowHasTheFirstRowInItsMiddle) {
    const auto icon = probes::BitmapOf(32, Line() + 20, clRed);
    TQV7SkinExplorerItemLink item(L"Öffnen", L"", icon.get());
    EXPECT_EQ(Drawn(item, {0, 5, 200}), Line() + 20 + 2);
    EXPECT_EQ(Measured(item, {0, 5, 200}), Line() + 20 + 2);
    EXPECT_EQ(item.ClipRect(), TRect(5, 5, 42 + Wide(L"Öffnen"), 5 + Line() + 22));
}

TEST_F(ItemLayoutTest, ALinkWithASmallIconIsAsHighAsItsText) {
    const auto icon = probes::BitmapOf(6, 5, clRed);
    TQV7SkinExplorerItemLink item(L"Öffnen", L"", icon.get());
    EXPECT_EQ(Drawn(item), Line() + 1);
    EXPECT_EQ(Measured(item), Line() + 1);
    EXPECT_EQ(item.ClipRect().Left, 5);
    EXPECT_EQ(item.ClipRect().Right, 16 + Wide(L"Öffnen"));
}

TEST_F(ItemLayoutTest, RowsBesideAHighIconTakeItsRoom) {
    const String text = L"eins\r\nzwei\r\ndrei";
    const auto icon = probes::BitmapOf(16, Line() + 4, clRed);
    TQV7SkinExplorerItemLink item(text, L"", icon.get());
    EXPECT_EQ(Drawn(item), 2 + 3 * (Line() + 1)) << "lowered by half of what the icon is higher";
    EXPECT_EQ(Measured(item), 2 + 3 * (Line() + 1));
}

TEST_F(ItemLayoutTest, WithoutABarThereAreNoIconsByNumber) {
    TQV7SkinExplorerItemLink item(L"Öffnen", L"", 3);
    EXPECT_EQ(Drawn(item), Line() + 1);
    EXPECT_EQ(item.ClipRect().Right, 5 + Wide(L"Öffnen"));
}

TEST_F(ItemLayoutTest, ALinkWithoutACaptionIsOneRowHigh) {
    TQV7SkinExplorerItemLink item;
    EXPECT_EQ(Drawn(item), Line() + 1);
    item.SetWordWrap(false);
    EXPECT_EQ(Drawn(item), Line() + 1);
}

// --- check box

TEST_F(ItemLayoutTest, ACheckBoxHasItsCaptionBesideTheGlyph) {
    const TSize glyph = CheckBoxGlyphSize();
    EXPECT_GT(glyph.Width, 8);
    EXPECT_GT(glyph.Height, 8);
    TQV7SkinExplorerItemCheckBox item(L"Auswahl", 99, L"", false, true, true);
    const int lowered = std::max(0, (glyph.Height - Line()) / 2);
    const int height = std::max(lowered + Line() + 1, glyph.Height);
    EXPECT_EQ(Drawn(item, {2, 10, 200}), height);
    EXPECT_EQ(Measured(item, {2, 10, 200}), height);
    EXPECT_EQ(item.GetTextIndent(), glyph.Width + 7);
    EXPECT_EQ(item.GetBoxHeight(), glyph.Height);
    EXPECT_EQ(item.ClipRect(), TRect(7, 10, 2 + glyph.Width + 7 + Wide(L"Auswahl"), 10 + height));
}

TEST_F(ItemLayoutTest, ACheckBoxMeasuresRowsSevenPixelsWiderThanItPaintsThem) {
    const String text = L"Unterordner durchsuchen";
    TQV7SkinExplorerItemCheckBox item(text, -1, L"", false, true, true);
    const int fits = Wide(text) + 1 + 10 + CheckBoxGlyphSize().Width;
    EXPECT_EQ(Measured(item, {0, 0, fits}), Line() + 1);
    EXPECT_EQ(Drawn(item, {0, 0, fits}), 2 * (Line() + 1));
    EXPECT_EQ(Measured(item, {0, 0, fits - 1}), 2 * (Line() + 1));
    EXPECT_EQ(Drawn(item, {0, 0, fits + 7}), Line() + 1);
}

TEST_F(ItemLayoutTest, ATickedBoxIsMeasuredRegularAndPaintedBold) {
    const String text = L"Alle Unterordner durchsuchen";
    TQV7SkinExplorerItemCheckBox item(text, -1, L"", true, true, true);
    const int room = Wide(text) + 1 + 17 + CheckBoxGlyphSize().Width;
    ASSERT_GT(Wide(text, {fsBold}), Wide(text) + 1);
    EXPECT_EQ(Measured(item, {0, 0, room}), Line() + 1);
    EXPECT_EQ(Drawn(item, {0, 0, room}), 2 * (Line() + 1));
    item.SetEnabled(false);
    EXPECT_EQ(Drawn(item, {0, 0, room}), Line() + 1) << "disabled it is regular";
}

TEST_F(ItemLayoutTest, ATextLowerThanTheBoxStandsBesideItsMiddle) {
    Canvas().GetFont().SetHeight(-7);
    const int line = Canvas().TextHeight(L"A");
    const int box = CheckBoxGlyphSize().Height;
    ASSERT_LT(line + 1, box);
    TQV7SkinExplorerItemCheckBox one(L"x", 0, L"", false, true, true);
    EXPECT_EQ(Drawn(one), box) << "a box is as high as its glyph at least";
    EXPECT_EQ(Measured(one), box);
    TQV7SkinExplorerItemCheckBox two(L"x\r\nx", 0, L"", false, true, true);
    EXPECT_EQ(Drawn(two), (box - line) / 2 + 2 * (line + 1));
    EXPECT_EQ(Measured(two), (box - line) / 2 + 2 * (line + 1));
    const RECT ink = Shown()
                         .Part({CheckBoxGlyphSize().Width + 7, 0, BitmapWidth, BitmapHeight})
                         .Bounds([](COLORREF color) { return color != clWhite; });
    EXPECT_GE(ink.top, (box - line) / 2);
}

TEST_F(ItemLayoutTest, TheLeftEdgeWidensTheLimitsOfACheckBox) {
    const String text = L"Unterordner durchsuchen";
    TQV7SkinExplorerItemCheckBox item(text, -1, L"", false, true, true);
    const int width = Wide(text) + 10 + CheckBoxGlyphSize().Width;
    EXPECT_EQ(Measured(item, {0, 0, width}), 2 * (Line() + 1)) << "exactly as wide is too wide";
    EXPECT_EQ(Measured(item, {1, 0, width}), Line() + 1);
    EXPECT_EQ(Drawn(item, {7, 0, width}), 2 * (Line() + 1));
    EXPECT_EQ(Drawn(item, {8, 0, width}), Line() + 1);
}

// --- bitmap

TEST_F(ItemLayoutTest, APictureStandsWhereItsAlignmentSays) {
    const auto picture = probes::BitmapOf(51, 30, clRed);
    TQV7SkinExplorerItemBmp item(picture.get());
    EXPECT_EQ(Drawn(item, {10, 20, 200}), 31);
    EXPECT_EQ(Measured(item, {10, 20, 200}), 31);
    EXPECT_EQ(item.ClipRect(), TRect::OfSize(10 + 74, 20, 51, 30));
    item.SetAlignment(taLeftJustify);
    Drawn(item, {10, 20, 200});
    EXPECT_EQ(item.ClipRect(), TRect::OfSize(15, 20, 51, 30));
    item.SetAlignment(taRightJustify);
    Drawn(item, {10, 20, 200});
    EXPECT_EQ(item.ClipRect(), TRect::OfSize(154, 20, 51, 30));
}

TEST_F(ItemLayoutTest, WithoutAPictureTheItemTakesNoRoom) {
    TQV7SkinExplorerItemBmp item;
    EXPECT_EQ(Drawn(item), 0);
    EXPECT_EQ(Measured(item), 0);
    EXPECT_EQ(item.ClipRect(), TRect());
}

TEST_F(ItemLayoutTest, APictureIsScaledDownOnlyWithAutoSize) {
    const auto picture = probes::BitmapOf(300, 101, clRed);
    TQV7SkinExplorerItemBmp item(picture.get());
    EXPECT_EQ(Measured(item, {0, 0, 100}), 102);
    item.SetAutoSize(true);
    const int height = static_cast<int>(90.0 / 300 * 101);
    EXPECT_EQ(Measured(item, {0, 0, 100}), height + 1);
    EXPECT_EQ(item.GetDisplayBitmap().GetWidth(), 90);
    EXPECT_EQ(item.GetDisplayBitmap().GetHeight(), height);
    EXPECT_EQ(Measured(item, {0, 0, 400}), 102) << "in a wide group it has its own size again";
    item.SetMaxWidth(60);
    EXPECT_EQ(Measured(item, {0, 0, 400}), static_cast<int>(60.0 / 300 * 101) + 1);
    EXPECT_EQ(Measured(item, {0, 0, 50}), static_cast<int>(40.0 / 300 * 101) + 1) << "the group is narrower";
    item.SetMaxWidth(1000);
    EXPECT_EQ(Measured(item, {0, 0, 400}), 102);
    item.SetMaxWidth(1);
    Measured(item, {0, 0, 400});
    EXPECT_EQ(item.GetDisplayBitmap().GetWidth(), 1) << "the least that limits";
    item.SetMaxWidth(-5);
    EXPECT_EQ(Measured(item, {0, 0, 400}), 102) << "no limit";
}

TEST_F(ItemLayoutTest, AGroupTooNarrowForAPictureShowsNone) {
    const auto picture = probes::BitmapOf(30, 10, clRed);
    TQV7SkinExplorerItemBmp item(picture.get());
    item.SetAutoSize(true);
    EXPECT_EQ(Drawn(item, {0, 0, 4}), 1);
    EXPECT_TRUE(item.GetDisplayBitmap().GetEmpty());
    EXPECT_EQ(Drawn(item, {0, 0, 100}), 11);
}

// --- static text

TEST_F(ItemLayoutTest, AStaticTextIsOneRowOrWrapped) {
    const String text = L"Ein Satz, der nicht in eine Zeile passt";
    TQV7SkinExplorerItemStaticText item(text);
    EXPECT_EQ(Drawn(item, {0, 0, 100}), Line() + 1);
    EXPECT_EQ(Measured(item, {0, 0, 100}), Line() + 1);
    item.SetWordWrap(true);
    EXPECT_EQ(Measured(item, {0, 0, Wide(text) + 11}), Line() + 1);
    EXPECT_EQ(Measured(item, {0, 0, Wide(text) + 10}), 2 * (Line() + 1));
    EXPECT_EQ(Drawn(item, {0, 0, Wide(text) + 10}), 2 * (Line() + 1));
    EXPECT_EQ(item.ClipRect(), TRect()) << "the mouse passes through";
}

TEST_F(ItemLayoutTest, AStaticTextLeavesTheFontAsItWas) {
    Canvas().GetFont().SetStyle({fsItalic});
    Canvas().GetFont().SetColor(clRed);
    TQV7SkinExplorerItemStaticText item(L"Text", clBlue, {fsBold}, true);
    Measured(item);
    Drawn(item);
    EXPECT_EQ(Canvas().GetFont().GetStyle(), TFontStyles{fsItalic});
    EXPECT_EQ(Canvas().GetFont().GetColor(), static_cast<TColor>(clRed));
}

// --- progress bar

TEST_F(ItemLayoutTest, AProgressBarTakesItsHeightAndOne) {
    TQV7SkinExplorerItemProgressBar item(0, 10, 5, 14, clBlack, clRed);
    EXPECT_EQ(Drawn(item), 15);
    EXPECT_EQ(Measured(item), 15);
    EXPECT_EQ(item.ClipRect(), TRect());
}

TEST_F(ItemLayoutTest, AProgressBarWithoutARangeDividesByZero) {
    TQV7SkinExplorerItemProgressBar item;
    EXPECT_EQ(probes::MessageOf<Exception>([&] { Drawn(item); }), L"Floating point division by zero");
    EXPECT_EQ(Measured(item), 21);
}

// --- rows out of sight

TEST_F(ItemLayoutTest, PlacingKeepsThePlaceOfDrawingAndPaintsNothing) {
    const auto picture = probes::BitmapOf(20, 10, clRed);
    TQV7SkinExplorerItemCustom plain;
    TQV7SkinExplorerItemSeparator separator;
    TQV7SkinExplorerItemCaptionValuePair pair(L"Name", L"Wert", L"");
    TQV7SkinExplorerItemLink link(L"Ein Verweis, der auf zwei Zeilen verteilt wird", L"", picture.get());
    TQV7SkinExplorerItemCheckBox box(L"Eine Auswahl, die auf zwei Zeilen verteilt wird", 0, L"", true, true,
                                     true);
    TQV7SkinExplorerItemBmp image(picture.get());
    TQV7SkinExplorerItemStaticText text(L"Text");
    TQV7SkinExplorerItemProgressBar bar(0, 1, 1, 9, clBlack, clRed);
    for (TQV7SkinExplorerItemCustom* item :
         {&plain, static_cast<TQV7SkinExplorerItemCustom*>(&separator),
          static_cast<TQV7SkinExplorerItemCustom*>(&pair), static_cast<TQV7SkinExplorerItemCustom*>(&link),
          static_cast<TQV7SkinExplorerItemCustom*>(&box), static_cast<TQV7SkinExplorerItemCustom*>(&image),
          static_cast<TQV7SkinExplorerItemCustom*>(&text), static_cast<TQV7SkinExplorerItemCustom*>(&bar)}) {
        Wipe();
        item->Place(Bitmap(), 3, 17, 180);
        EXPECT_EQ(Shown().Count(clWhite), BitmapWidth * BitmapHeight);
        const TRect placed = item->ClipRect();
        Drawn(*item, {3, 17, 180});
        EXPECT_EQ(item->ClipRect(), placed);
    }
    TQV7SkinExplorerItemCaptionBlockPair block(L"Name", L"Text");
    block.Place(Bitmap(), 3, 17, 180);
    EXPECT_EQ(block.ClipRect(), TRect(8, 17, 190, 17 + Line()));
}

// --- the mouse

TEST_F(ItemLayoutTest, WhatCanBeClickedShowsTheHand) {
    TQV7SkinExplorerItemCustom plain;
    EXPECT_EQ(Hovered(plain), crDefault);
    TQV7SkinExplorerItemCaptionValuePair pair(L"", true, L"", L"");
    EXPECT_EQ(Hovered(pair), crHandPoint);
    EXPECT_EQ(crHandPoint, -21);
    pair.SetClickable(false);
    EXPECT_EQ(Hovered(pair), crDefault);
    TQV7SkinExplorerItemCaptionBlockPair block(L"", true, L"");
    EXPECT_EQ(Hovered(block), crHandPoint);
    block.SetClickable(false);
    EXPECT_EQ(Hovered(block), crDefault);
    TQV7SkinExplorerItemLink link;
    EXPECT_EQ(Hovered(link), crHandPoint);
    TQV7SkinExplorerItemCheckBox box(L"", 0, L"", false, false, true);
    EXPECT_EQ(Hovered(box), crHandPoint) << "as a link, also disabled";
    TQV7SkinExplorerItemBmp image;
    EXPECT_EQ(Hovered(image), crDefault);
    image.OnClick = [](TObject*) {};
    EXPECT_EQ(Hovered(image), crHandPoint);
    TQV7SkinExplorerItemStaticText text;
    EXPECT_EQ(Hovered(text), crDefault);
    TQV7SkinExplorerItemProgressBar progress;
    EXPECT_EQ(Hovered(progress), crDefault);
}

}  // namespace
}  // namespace qv7skin
