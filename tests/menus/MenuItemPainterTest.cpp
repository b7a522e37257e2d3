#include "menus/MenuItemPainter.h"

#include <algorithm>

#include "platform/vcl/graphics/ImageList.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

/// Draws as the items are to look, step by step with functions of the system.
class Reference {
public:
    explicit Reference(HDC dc) : FDC(dc) { SetBkMode(dc, TRANSPARENT); }
    void Fill(RECT r, COLORREF color) const {
        const HBRUSH brush = CreateSolidBrush(color);
        FillRect(FDC, &r, brush);
        DeleteObject(brush);
    }
    void Line(COLORREF color, int width, POINT from, POINT to) const {
        const HPEN pen = CreatePen(PS_SOLID, width, color);
        const HGDIOBJ old = SelectObject(FDC, pen);
        MoveToEx(FDC, from.x, from.y, nullptr);
        LineTo(FDC, to.x, to.y);
        SelectObject(FDC, old);
        DeleteObject(pen);
    }
    void Gradient(RECT r, COLORREF from, COLORREF to) const {
        for (int row = 0; row < r.bottom - r.top; ++row)
            Fill({r.left, r.top + row, r.right, r.top + row + 1},
                 GradientRow(row, r.bottom - r.top, from, to));
    }
    void RoundFrame(RECT r) const {
        const HPEN pen = CreatePen(PS_SOLID, 1, GutterLine);
        const HGDIOBJ oldPen = SelectObject(FDC, pen);
        const HGDIOBJ oldBrush = SelectObject(FDC, GetStockObject(HOLLOW_BRUSH));
        RoundRect(FDC, r.left, r.top, r.right, r.bottom, 3, 3);
        SelectObject(FDC, oldBrush);
        SelectObject(FDC, oldPen);
        DeleteObject(pen);
    }
    void Dot(RECT r) const {
        const HGDIOBJ brush = SelectObject(FDC, GetStockObject(BLACK_BRUSH));
        const HGDIOBJ pen = SelectObject(FDC, GetStockObject(BLACK_PEN));
        Ellipse(FDC, r.left, r.top, r.right, r.bottom);
        SelectObject(FDC, pen);
        SelectObject(FDC, brush);
    }
    void Text(const TFont& font, const std::wstring& text, COLORREF color, RECT r, UINT flags) const {
        const HGDIOBJ old = SelectObject(FDC, font.GetHandle());
        SetTextColor(FDC, color);
        DrawTextW(FDC, text.c_str(), -1, &r, flags);
        SelectObject(FDC, old);
    }

private:
    HDC FDC;
};

/// What was installed before any test began.
const bool NiceAtLoad = [] {
    const auto* painter = dynamic_cast<TQV7SkinMenuItemPainterNice*>(QV7SkinMenuItemPainter());
    return painter && painter->GetActive() && painter->GetDescriptionFont().GetSize() == 7;
}();

class MenuItemPainterTest : public PainterTest {
protected:
    /// The picture that the reference draws.
    Pixels Expected(const std::function<void(const Reference&)>& draw) {
        return DrawOn([&](TCanvas& canvas) {
            canvas.DrawDirectly([&](HDC dc) {
                const int state = SaveDC(dc);
                draw(Reference(dc));
                RestoreDC(dc, state);
            });
        });
    }
};

// --- measuring

TEST_F(MenuItemPainterTest, ASeparatorWithAHeadingMeasuresItsText) {
    TMenuItem* line = AddItem(L"-", L"Heading");
    const TSize text = TextSize(Painter->GetTitleFont(), L"Heading");
    EXPECT_EQ(Measure(*line), TSize(text.Width + 14, text.Height + 8));
    Painter->SetIncludeSeparatorText(false);
    EXPECT_EQ(Measure(*line), TSize(10, 4));
}

TEST_F(MenuItemPainterTest, ASeparatorWithoutAHeadingIsSmall) {
    EXPECT_EQ(Measure(*AddItem(L"-")), TSize(10, 4));
}

TEST_F(MenuItemPainterTest, AnItemMeasuresCaptionShortCutAndDescription) {
    TMenuItem* item = AddItem(L"Caption", L"A description that is far longer than the caption");
    item->SetShortCut(ShortCut('S', {ssCtrl}));
    const TSize caption = TextSize(Painter->GetTitleFont(), L"Caption");
    const TSize shortCut = TextSize(Painter->GetTitleFont(), L"Ctrl+S");
    const TSize description = TextSize(Painter->GetDescriptionFont(), item->GetHint());
    EXPECT_EQ(Measure(*item), TSize(std::max(caption.Width + shortCut.Width + 8, description.Width) + 8 + 26,
                                    caption.Height + description.Height + 8));
    Painter->SetIncludeDescription(false);
    EXPECT_EQ(Measure(*item), TSize(caption.Width + shortCut.Width + 8 + 8 + 26, caption.Height + 8));
    Painter->SetIncludeShortCut(false);
    EXPECT_EQ(Measure(*item), TSize(caption.Width + 8 + 26, caption.Height + 8));
    Painter->SetIncludeGutter(false);
    EXPECT_EQ(Measure(*item), TSize(caption.Width + 8, caption.Height + 8));
}

TEST_F(MenuItemPainterTest, AnImageListMakesRoomForTheGutter) {
    TMenuItem* item = AddItem(L"Caption");
    Painter->SetIncludeGutter(false);
    const TSize without = Measure(*item);
    TImageList images(nullptr);
    Menu->SetImages(&images);
    EXPECT_EQ(Measure(*item), TSize(without.Width + 26, without.Height));
}

TEST_F(MenuItemPainterTest, ADefaultItemIsMeasuredBold) {
    TMenuItem* item = AddItem(L"Caption", L"Description that is long");
    const TSize plain = Measure(*item);
    item->SetDefault(true);
    EXPECT_GT(Measure(*item).Width, plain.Width);
}

TEST_F(MenuItemPainterTest, WrittenLineBreaksMakeLines) {
    TMenuItem* item = AddItem(L"Caption", L"First#13#10Second");
    const TSize caption = TextSize(Painter->GetTitleFont(), L"Caption");
    const TSize two = TextSize(Painter->GetDescriptionFont(), L"First\r\nSecond");
    const TSize one = TextSize(Painter->GetDescriptionFont(), L"Second");
    EXPECT_EQ(two.Height, 2 * one.Height);
    EXPECT_EQ(Measure(*item).Height, caption.Height + two.Height + 8);
    item->SetHint(L"a#13#10b#13#10c");
    EXPECT_EQ(Measure(*item).Height, caption.Height + 3 * one.Height + 8);
}

TEST_F(MenuItemPainterTest, WhatIsMeasuredHoldsWhatIsDrawn) {
    Painter->SetIncludeGutter(false);
    for (const wchar_t* caption : {L"", L"Short", L"Two\nlines", L"Smile \U0001F600!", L"Wide caption WWW"}) {
        TMenuItem* item = AddItem(caption);
        const TSize size = Measure(*item);
        ASSERT_LE(size.Width, Width);
        const Pixels shown = Draw(*item, {0, 0, size.Width, Height});
        const RECT text = shown.Bounds([](COLORREF c) { return c == clBlack; });
        EXPECT_LE(text.right, size.Width - 4);
        EXPECT_LE(text.bottom, size.Height);
        EXPECT_EQ(Draw(*item, {0, 0, size.Width, size.Height}).Count(clBlack), shown.Count(clBlack));
    }
}

// --- separators

TEST_F(MenuItemPainterTest, ASeparatorIsABandWithTwoLinesAndAGutter) {
    TMenuItem* line = AddItem(L"-");
    const auto draw = [](const Reference& on) {
        on.Fill({2, 10, 150, 30}, SeparatorGround);
        on.Line(GutterLine, 1, {2, 28}, {150, 28});
        on.Line(ItemGround, 1, {2, 29}, {150, 29});
    };
    EXPECT_TRUE(SamePixels(Draw(*line, {2, 10, 150, 30}), Expected([&](const Reference& on) {
                               draw(on);
                               on.Fill({2, 10, 26, 30}, Gutter);
                               on.Line(GutterLine, 1, {26, 10}, {26, 30});
                           })));
    Painter->SetIncludeGutter(false);
    EXPECT_TRUE(SamePixels(Draw(*line, {2, 10, 150, 30}), Expected(draw)));
    TImageList images(nullptr);
    Menu->SetImages(&images);
    EXPECT_TRUE(SamePixels(Draw(*line, {2, 10, 150, 30}), Expected(draw)));
}

TEST_F(MenuItemPainterTest, AHeadingStandsInItsSeparator) {
    TMenuItem* line = AddItem(L"-", L"Heading");
    const auto expected = [&](int left) {
        return Expected([&](const Reference& on) {
            on.Fill({2, 10, 150, 30}, SeparatorGround);
            on.Line(GutterLine, 1, {2, 28}, {150, 28});
            on.Line(ItemGround, 1, {2, 29}, {150, 29});
            on.Text(Painter->GetTitleFont(), L"Heading", 0, {left, 10, 146, 30}, DT_SINGLELINE | DT_VCENTER);
        });
    };
    EXPECT_TRUE(SamePixels(Draw(*line, {2, 10, 150, 30}), expected(12)));
    EXPECT_TRUE(SamePixels(Draw(*line, {2, 10, 150, 30}, true), expected(12)));
    Painter->SetIncludeGutter(false);
    EXPECT_TRUE(SamePixels(Draw(*line, {2, 10, 150, 30}), expected(6)));
}

TEST_F(MenuItemPainterTest, AHeadingStandsAsItIsWritten) {
    TMenuItem* line = AddItem(L"-", L"One#13#10two");
    const TSize text = TextSize(Painter->GetTitleFont(), L"One#13#10two");
    EXPECT_EQ(Measure(*line), TSize(text.Width + 14, text.Height + 8));
    const Pixels shown = Draw(*line, {0, 10, 150, 30});
    EXPECT_TRUE(SamePixels(shown.Part({0, 10, 150, 28}), Expected([&](const Reference& on) {
                                                             on.Fill({0, 10, 150, 30}, SeparatorGround);
                                                             on.Text(Painter->GetTitleFont(), L"One#13#10two",
                                                                     0, {10, 10, 146, 30},
                                                                     DT_SINGLELINE | DT_VCENTER);
                                                         }).Part({0, 10, 150, 28})));
}

// --- items

TEST_F(MenuItemPainterTest, AnItemHasAGutterAndItsCaption) {
    TMenuItem* item = AddItem(L"Caption");
    item->SetShortCut(VK_F5);
    EXPECT_TRUE(SamePixels(
        Draw(*item, {3, 10, 150, 40}), Expected([&](const Reference& on) {
            on.Fill({3, 10, 150, 40}, ItemGround);
            on.Fill({3, 10, 26, 40}, Gutter);
            on.Line(GutterLine, 1, {26, 10}, {26, 40});
            on.Text(Painter->GetTitleFont(), L"Caption", 0, {33, 14, 146, 42}, DT_EXTERNALLEADING);
            on.Text(Painter->GetTitleFont(), L"F5", 0, {33, 14, 146, 42}, DT_EXTERNALLEADING | DT_RIGHT);
        })));
}

TEST_F(MenuItemPainterTest, WithoutGutterTheTextStartsFourPixelsFromTheLeft) {
    TMenuItem* item = AddItem(L"Caption");
    Painter->SetIncludeGutter(false);
    EXPECT_TRUE(
        SamePixels(Draw(*item, {3, 10, 150, 40}), Expected([&](const Reference& on) {
                       on.Fill({3, 10, 150, 40}, ItemGround);
                       on.Text(Painter->GetTitleFont(), L"Caption", 0, {7, 14, 146, 42}, DT_EXTERNALLEADING);
                   })));
}

TEST_F(MenuItemPainterTest, TheDescriptionStandsBelowTheCaption) {
    TMenuItem* item = AddItem(L"Caption", L"First#13#10Second");
    const int captionHeight = TextSize(Painter->GetTitleFont(), L"Caption").Height;
    Painter->SetIncludeGutter(false);
    EXPECT_TRUE(
        SamePixels(Draw(*item, {0, 0, 150, 60}), Expected([&](const Reference& on) {
                       on.Fill({0, 0, 150, 60}, ItemGround);
                       on.Text(Painter->GetTitleFont(), L"Caption", 0, {4, 2, 146, 60}, DT_EXTERNALLEADING);
                       on.Text(Painter->GetDescriptionFont(), L"First\r\nSecond", 0,
                               {4, captionHeight + 4, 146, 60}, DT_EXTERNALLEADING);
                   })));
}

TEST_F(MenuItemPainterTest, TheHighlightIsAGradientInARoundFrame) {
    TMenuItem* item = AddItem(L"");
    EXPECT_TRUE(SamePixels(Draw(*item, {0, 5, 150, 45}, true), Expected([&](const Reference& on) {
                               on.Gradient({0, 5, 150, 44}, 0x00EFE8E4, 0x00DEC5B8);
                               on.Fill({0, 44, 150, 45}, ItemGround);
                               on.Fill({0, 44, 26, 45}, Gutter);
                               on.Line(GutterLine, 1, {26, 44}, {26, 45});
                               on.RoundFrame({0, 5, 150, 45});
                           })));
}

TEST_F(MenuItemPainterTest, BesideADescriptionTheHighlightHasTwoGradients) {
    TMenuItem* item = AddItem(L"A", L" ");
    Painter->SetIncludeGutter(false);
    const int split = 5 + TextSize(Painter->GetTitleFont(), L"A").Height + 4;
    const Pixels shown = Draw(*item, {0, 5, 150, 55}, true);
    for (int y = 6; y < 54; ++y) {
        const COLORREF expected = y < split ? GradientRow(y - 5, split - 5, 0x00EFE8E4, 0x00DEC5B8)
                                            : GradientRow(y - split, 54 - split, 0x00D8BAAB, 0x00EFE8E4);
        EXPECT_EQ(shown.At(100, y), expected) << y;
    }
    EXPECT_EQ(shown.At(0, 30), GutterLine);
    EXPECT_EQ(shown.At(100, 5), GutterLine);
    EXPECT_EQ(shown.At(100, 54), GutterLine);
}

TEST_F(MenuItemPainterTest, ADisabledItemGetsNoHighlightAndPaleText) {
    TMenuItem* item = AddItem(L"Caption", L"Description");
    item->SetEnabled(false);
    const Pixels selected = Draw(*item, {0, 0, 150, 40}, true);
    EXPECT_TRUE(SamePixels(selected, Draw(*item, {0, 0, 150, 40}, false)));
    EXPECT_EQ(selected.Count(clBlack), 0);
    EXPECT_GT(selected.Count(DisabledText), 10);
}

TEST_F(MenuItemPainterTest, AnImageStandsAtItsPlaceAlsoWhenDisabled) {
    TImageList images(nullptr);
    TBitmap picture;
    picture.SetPixelFormat(pf24bit);
    picture.SetSize(16, 16);
    picture.GetCanvas().GetBrush().SetColor(clRed);
    picture.GetCanvas().FillRect({0, 0, 16, 16});
    images.Add(&picture, nullptr);
    Menu->SetImages(&images);
    TMenuItem* item = AddItem(L"Caption");
    item->SetImageIndex(0);
    item->SetEnabled(false);
    const RECT place = Draw(*item, {1, 10, 150, 40}).Bounds([](COLORREF c) { return c == clRed; });
    EXPECT_EQ(TRect(place), TRect(5, 12, 21, 28));
    item->SetImageIndex(-1);
    EXPECT_EQ(Draw(*item, {1, 10, 150, 40}).Count(clRed), 0);
}

TEST_F(MenuItemPainterTest, ACheckedRadioItemShowsADotInTheMiddleOfTheGutter) {
    TMenuItem* item = AddItem(L"");
    item->SetRadioItem(true);
    item->SetChecked(true);
    const Pixels shown = Draw(*item, {0, 10, 150, 40});
    // 12 x 12 in the middle of 26 x 30, smaller by 2 on each side.
    EXPECT_EQ(TRect(shown.Bounds([](COLORREF c) { return c == clBlack; })), TRect(9, 21, 17, 29));
    EXPECT_EQ(shown.At(13, 25), COLORREF{clBlack});
    EXPECT_EQ(shown.At(9, 21), Gutter);
    item->SetChecked(false);
    EXPECT_EQ(Draw(*item, {0, 10, 150, 40}).Count(clBlack), 0);
}

TEST_F(MenuItemPainterTest, TheDotIsAFilledEllipseOfEightPixels) {
    TMenuItem* item = AddItem(L"");
    item->SetRadioItem(true);
    item->SetChecked(true);
    const Pixels expected = Expected([&](const Reference& on) { on.Dot({9, 21, 17, 29}); });
    const Pixels shown = Draw(*item, {0, 10, 150, 40});
    for (int y = 10; y < 40; ++y)
        for (int x = 0; x < 26; ++x)
            EXPECT_EQ(shown.At(x, y) == clBlack, expected.At(x, y) == clBlack) << x << ", " << y;
}

TEST_F(MenuItemPainterTest, ADefaultItemIsDrawnInBold) {
    Painter->GetTitleFont().SetStyle({});
    Painter->SetIncludeGutter(false);
    TMenuItem* item = AddItem(L"Caption", L"Description");
    item->SetDefault(true);
    TFont title;
    title.Assign(&Painter->GetTitleFont());
    title.SetStyle({fsBold});
    TFont description;
    description.Assign(&Painter->GetDescriptionFont());
    description.SetStyle({fsBold});
    const int captionHeight = TextSize(title, L"Caption").Height;
    EXPECT_TRUE(SamePixels(
        Draw(*item, {0, 0, 150, 50}), Expected([&](const Reference& on) {
            on.Fill({0, 0, 150, 50}, ItemGround);
            on.Text(title, L"Caption", 0, {4, 2, 146, 50}, DT_EXTERNALLEADING);
            on.Text(description, L"Description", 0, {4, captionHeight + 4, 146, 50}, DT_EXTERNALLEADING);
        })));
    EXPECT_FALSE(Painter->GetTitleFont().GetStyle().Contains(fsBold));
}

TEST_F(MenuItemPainterTest, AHiddenDescriptionMovesTheCaptionDownAndKeepsTheTwoGradients) {
    TMenuItem* item = AddItem(L"A", L"Description");
    Painter->SetIncludeDescription(false);
    Painter->SetIncludeGutter(false);
    EXPECT_TRUE(SamePixels(Draw(*item, {0, 0, 150, 50}), Expected([&](const Reference& on) {
                               on.Fill({0, 0, 150, 50}, ItemGround);
                               on.Text(Painter->GetTitleFont(), L"A", 0, {4, 4, 146, 52}, DT_EXTERNALLEADING);
                           })));
    const int split = TextSize(Painter->GetTitleFont(), L"A").Height + 4;
    EXPECT_EQ(Draw(*item, {0, 0, 150, 50}, true).At(100, split),
              GradientRow(0, 49 - split, 0x00D8BAAB, 0x00EFE8E4));
}

TEST_F(MenuItemPainterTest, ACheckedItemShowsATick) {
    TMenuItem* item = AddItem(L"");
    item->SetChecked(true);
    constexpr int left = 7;
    constexpr int top = 19;
    EXPECT_TRUE(SamePixels(Draw(*item, {0, 10, 150, 40}), Expected([&](const Reference& on) {
                               on.Fill({0, 10, 150, 40}, ItemGround);
                               on.Fill({0, 10, 26, 40}, Gutter);
                               on.Line(GutterLine, 1, {26, 10}, {26, 40});
                               on.Line(0, 2, {left, top + 2}, {left + 4, top + 6});
                               on.Line(0, 2, {left, top + 3}, {left + 3, top + 6});
                               on.Line(0, 2, {left, top + 4}, {left + 3, top + 7});
                               on.Line(0, 2, {left + 6, top}, {left + 2, top + 4});
                               on.Line(0, 2, {left + 6, top + 1}, {left + 2, top + 5});
                               on.Line(0, 2, {left + 6, top + 2}, {left + 3, top + 5});
                           })));
}

TEST_F(MenuItemPainterTest, TheArrowOfASubmenuIsDrawnOnDemand) {
    TMenuItem* item = AddItem(L"");
    const TRect rect{0, 10, 150, 40};
    EXPECT_EQ(Draw(*item, rect, false, true).Count(clBlack), 0);
    item->Add(new TMenuItem(nullptr));
    EXPECT_EQ(Draw(*item, rect, false, false).Count(clBlack), 0);
    const auto place = [&](bool selected, COLORREF color) {
        return TRect(Draw(*item, rect, selected, true).Part({27, 10, 150, 40}).Bounds([&](COLORREF c) {
            return c == color;
        }));
    };
    // 4 x 7 pixels at (142, 21): the picture is cut at (27, 10).
    EXPECT_EQ(place(false, clBlack), TRect(115, 11, 119, 18));
    EXPECT_EQ(place(true, clWhite), TRect(115, 11, 119, 18));
    item->SetEnabled(false);
    EXPECT_EQ(place(false, clBlack), TRect(115, 11, 119, 18));
    EXPECT_EQ(place(true, clWhite), TRect(115, 11, 119, 18));
}

TEST_F(MenuItemPainterTest, TextsAreBlackInFontsOfAnyColour) {
    TMenuItem* item = AddItem(L"Caption", L"Description");
    item->SetShortCut(VK_F5);
    TMenuItem* line = AddItem(L"-", L"Heading");
    const TRect rect{0, 0, 150, 40};
    const auto all = [&] {
        return std::vector{Draw(*item, rect), Draw(*line, rect), DrawOn([&](TCanvas& canvas) {
                               Painter->DrawMainMenuRootItem(L"File", canvas, rect, false, true);
                           })};
    };
    const std::vector<Pixels> black = all();
    Painter->GetTitleFont().SetColor(clRed);
    Painter->GetDescriptionFont().SetColor(clRed);
    const std::vector<Pixels> red = all();
    for (std::size_t i = 0; i < black.size(); ++i)
        EXPECT_TRUE(SamePixels(red[i], black[i])) << i;
}

TEST_F(MenuItemPainterTest, ACaptionInABarIsCentredAndNeverBold) {
    TFont plain;
    plain.Assign(&Painter->GetTitleFont());
    plain.SetStyle({});
    const auto draw = [&](bool selected, bool enabled) {
        return DrawOn([&](TCanvas& canvas) {
            Painter->DrawMainMenuRootItem(L"&File", canvas, {10, 5, 110, 30}, selected, enabled);
        });
    };
    const auto expected = [&](bool selected, COLORREF color) {
        return Expected([&](const Reference& on) {
            if (selected) {
                on.Gradient({10, 5, 110, 29}, 0x00EFE8E4, 0x00DEC5B8);
                on.RoundFrame({10, 5, 110, 30});
            }
            on.Text(plain, L"&File", color, {14, 9, 106, 30}, DT_CENTER | DT_VCENTER | DT_EXTERNALLEADING);
        });
    };
    EXPECT_TRUE(SamePixels(draw(false, true), expected(false, 0)));
    EXPECT_TRUE(SamePixels(draw(true, true), expected(true, 0)));
    EXPECT_TRUE(SamePixels(draw(true, false), expected(false, DisabledText)));
}

// --- the variant and the installed painter

TEST_F(MenuItemPainterTest, TheNicePainterHasSmallDescriptions) {
    const TQV7SkinMenuItemPainterNice painter;
    EXPECT_EQ(painter.GetDescriptionFont().GetName(), L"Tahoma");
    EXPECT_EQ(painter.GetDescriptionFont().GetSize(), 7);
    EXPECT_TRUE(painter.GetTitleFont().GetStyle().Contains(fsBold));
}

TEST_F(MenuItemPainterTest, TheNicePainterTakesAFont) {
    TFont font;
    font.SetName(L"MS Sans Serif");
    font.SetSize(10);
    font.SetStyle({fsItalic});
    const TQV7SkinMenuItemPainterNice painter(&font);
    EXPECT_EQ(painter.GetTitleFont().GetName(), L"MS Sans Serif");
    EXPECT_EQ(painter.GetTitleFont().GetSize(), 10);
    EXPECT_EQ(painter.GetTitleFont().GetStyle(), (TFontStyles{fsItalic, fsBold}));
    EXPECT_EQ(painter.GetDescriptionFont().GetName(), L"MS Sans Serif");
    EXPECT_EQ(painter.GetDescriptionFont().GetSize(), 9);
}

TEST_F(MenuItemPainterTest, NiceCaptionsAreBoldOnlyWhileDescriptionsAreShown) {
    TQV7SkinMenuItemPainterNice painter;
    painter.SetIncludeDescription(false);
    EXPECT_FALSE(painter.GetIncludeDescription());
    EXPECT_FALSE(painter.GetTitleFont().GetStyle().Contains(fsBold));
    painter.SetIncludeDescription(true);
    EXPECT_TRUE(painter.GetTitleFont().GetStyle().Contains(fsBold));
    Painter->SetIncludeDescription(false);
    EXPECT_TRUE(Painter->GetTitleFont().GetStyle().Contains(fsBold));
}

TEST_F(MenuItemPainterTest, ANewPainterHasAllParts) {
    EXPECT_TRUE(Painter->GetActive());
    EXPECT_EQ(Painter->GetDrawingParts(),
              (TQV7SkinMenuItemPainterParts{mipSeparatorText, mipDescription, mipShortCut, mipGutter}));
    EXPECT_TRUE(NiceAtLoad);
}

}  // namespace
}  // namespace test
