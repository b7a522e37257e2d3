#include <functional>

#include "platform/vcl/graphics/ImageList.h"
#include "tests/explorerbar/ExplorerBarFixture.h"
#include "tests/support/SkinTesting.h"

// What a group's header shows: strips, title, icon, button, focus. And what its setters cause.

namespace qv7skin {
namespace {

using test::Pixels;
using test::SamePixels;

constexpr UINT TitleFlags = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr TColor Line = 0x00F0EAE7;

class ExplorerHeaderTest : public probes::ExplorerBarTest {
protected:
    void SetUp() override {
        ExplorerBarTest::SetUp();
        Fill(2, 2);
        Input.MoveAway();
    }
    /// A header as its rules make it: both strips, then what the test draws, then the button.
    [[nodiscard]] Pixels Header(const std::function<void(TCanvas&)>& contents, const wchar_t* button) {
        TBitmap bitmap(218, 19, pf24bit);
        TCanvas& canvas = bitmap.GetCanvas();
        canvas.SetFont(Bar().GetFont());
        const auto top = CreateBmp(L"EXPLORERBARHEADERTOP");
        const auto bottom = CreateBmp(L"EXPLORERBARHEADERBOTTOM");
        EXPECT_EQ(TSize(top->GetWidth(), top->GetHeight()), TSize(1, 9));
        EXPECT_EQ(TSize(bottom->GetWidth(), bottom->GetHeight()), TSize(1, 10));
        for (int x = 0; x < 218; ++x) {
            canvas.Draw(x, 0, top.get());
            canvas.Draw(x, 9, bottom.get());
        }
        CreateTransparentBmp(button)->Draw(canvas, 218 - 14 - 4, 2);
        canvas.GetBrush().SetStyle(bsClear);
        contents(canvas);
        return probes::PixelsOf(bitmap);
    }
    static void WriteTitle(TCanvas& canvas, int left, const wchar_t* title, TColor color) {
        TRect rect(left, 0, 218 - 14 - 4 - 5, 19);
        canvas.GetFont().SetColor(color);
        canvas.TextRect(rect, title, TitleFlags);
    }
    /// The header of the first group as it is shown.
    [[nodiscard]] Pixels Shown() { return ExplorerBarTest::Shown().Part({0, 0, 218, 19}); }
    [[nodiscard]] Pixels WithTitle(const wchar_t* title, TColor color,
                                   const wchar_t* button = L"EXPLORERBARBUTTONMINIMIZEDEFAULT") {
        return Header([&](TCanvas& canvas) { WriteTitle(canvas, 5, title, color); }, button);
    }
};

TEST_F(ExplorerHeaderTest, ShowsStripsTitleAndButton) {
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clWhite)));
    Group(0).OpenClose();
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clWhite, L"EXPLORERBARBUTTONMAXIMIZEDEFAULT")));
    Item(0, 0).SetVisible(false);
    Item(0, 1).SetVisible(false);
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clWhite, L"EXPLORERBARBUTTONMAXIMIZEDISABLED")));
}

TEST_F(ExplorerHeaderTest, ATitleIsCutBeforeTheButtonAndHasNoAccessKey) {
    const auto* title = L"Save && share & send whatever there is to be sent";
    Group(0).SetTitle(title);
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(title, clWhite)));
    EXPECT_EQ(Group(0).GetTitle(), title);
}

TEST_F(ExplorerHeaderTest, TheStyleOfTheLastItemAboveIsNotTheTitles) {
    Item(0, 1).SetVisible(false);
    static_cast<probes::TLink&>(Item(0, 0)).SetFontStyle({fsBold, fsItalic});
    const int top = Group(1).HeaderRect().Top;
    EXPECT_TRUE(
        SamePixels(ExplorerBarTest::Shown().Part({0, top, 218, top + 19}), WithTitle(L"Group 1", clWhite)));
}

TEST_F(ExplorerHeaderTest, EachKindOfGroupTakesItsColorsHotAndNot) {
    Bar().HeaderColor = clAqua;
    Bar().HeaderHotColor = clRed;
    Bar().SpecialHeaderColor = clNavy;
    Bar().SpecialHeaderHotColor = clLime;
    Bar().Repaint();
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clAqua)));
    MoveToHeader(0);
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clRed)));
    Group(0).SetSpecialGroup(true);
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clLime)));
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return !Group(0).IsHotArea(); }));
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clNavy)));
    EXPECT_TRUE(Bar().GetGroups().Add(L"special", true)->GetSpecialGroup());
}

TEST_F(ExplorerHeaderTest, IconsMoveTheTitleAndStandInTheCorner) {
    TImageList icons(nullptr, 12, 10);
    for (const TColor color : {clLime, clRed})
        icons.AddMasked(probes::BitmapOf(12, 10, color).get(), clNone);
    Bar().SetGroupIcons(&icons);
    Bar().Repaint();
    const auto* button = L"EXPLORERBARBUTTONMINIMIZEDEFAULT";
    EXPECT_TRUE(SamePixels(
        Shown(), Header([](TCanvas& canvas) { WriteTitle(canvas, 5 + 12, L"Group 0", clWhite); }, button)))
        << "one without an icon leaves the room free";
    Group(0).SetGroupIconIndex(1);
    const auto withIcon = [](TCanvas& canvas) {
        canvas.GetBrush().SetColor(clRed);
        canvas.FillRect({0, 0, 12, 10});
        canvas.GetBrush().SetStyle(bsClear);
        WriteTitle(canvas, 5 + 12, L"Group 0", clWhite);
    };
    EXPECT_TRUE(SamePixels(Shown(), Header(withIcon, button)));
    Bar().SetGroupIcons(nullptr);
    Bar().Repaint();
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clWhite))) << "a number without a list";
}

TEST_F(ExplorerHeaderTest, TheFocusIsAWhiteFrameRoundTheTitle) {
    Bar().HeaderColor = clBlack;
    Bar().SetFocus();
    const auto framed = [&](TCanvas& canvas) {
        WriteTitle(canvas, 5, L"Group 0", clBlack);
        const TSize text = canvas.TextExtent(L"Group 0");
        const int top = (19 - text.Height) / 2;
        canvas.GetPen().SetStyle(psDot);
        canvas.GetPen().SetColor(clWhite);
        canvas.Rectangle({5 - 3 + 1, top, 5 + text.Width + 3 + 1, top + text.Height});
    };
    ASSERT_TRUE(Group(0).IsFocused());
    EXPECT_TRUE(SamePixels(Shown(), Header(framed, L"EXPLORERBARBUTTONMINIMIZEDEFAULT")));
}

TEST_F(ExplorerHeaderTest, TheBodyTakesTheColorsOfTheBar) {
    Bar().BodyColor = clYellow;
    Bar().LineColor = clBlue;
    Bar().FadeColor = clLime;
    Bar().Repaint();
    const TRect body = Group(0).BodyRect();
    const Pixels shown = ExplorerBarTest::Shown();
    EXPECT_TRUE(SamePixels(shown.Part({0, body.Top, 218, body.Top + 10}), [](int, int) {
        return COLORREF{clYellow};
    })) << "the margin above the items";
    EXPECT_TRUE(SamePixels(shown.Part({0, body.Bottom - 10, 218, body.Bottom}), [](int, int y) {
        return y == 9 ? COLORREF{clBlue} : COLORREF{clYellow};
    })) << "the margin below, with the line from edge to edge";
    // Measured one row higher than painted: the last row is the background's.
    EXPECT_EQ(Group(1).BodyRect().Bottom, Box().GetHeight() - 3);
    EXPECT_EQ(shown.At(100, Box().GetHeight() - 1), COLORREF{clLime});
    Group(0).OpenClose();
    EXPECT_TRUE(SamePixels(ExplorerBarTest::Shown().Part({0, 19, 218, 20}),
                           [](int, int) { return COLORREF{clBlue}; }));
}

TEST_F(ExplorerHeaderTest, SettersRepaintAtOnceButNotDuringAnUpdate) {
    const auto titled = WithTitle(L"Title", clBlack);
    Bar().BeginUpdate();
    Group(0).SetTitle(L"Title");
    Group(0).SetSpecialGroup(true);
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clWhite)));
    Bar().EndUpdate();
    EXPECT_TRUE(SamePixels(Shown(), titled));
    Group(0).BeginUpdate();
    EXPECT_TRUE(Bar().IsUpdating()) << "a group's update is the bar's";
    Group(0).EndUpdate();
    EXPECT_FALSE(Bar().IsUpdating());
    Group(0).SetTitle(L"Group 0");
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clBlack)));
    Group(0).SetSpecialGroup(false);
    EXPECT_TRUE(SamePixels(Shown(), WithTitle(L"Group 0", clWhite)));
}

TEST_F(ExplorerHeaderTest, ANewPictureOfTheBodyWaitsForTheNextRepaint) {
    const Pixels before = ExplorerBarTest::Shown();
    Group(0).SetBgImage(probes::BitmapOf(8, 8, clRed).get());
    EXPECT_TRUE(SamePixels(ExplorerBarTest::Shown(), before));
    Bar().Repaint();
    EXPECT_EQ(ExplorerBarTest::Shown().Count(clRed), 8 * 8 - 8) << "but for the line below the body";
}

TEST_F(ExplorerHeaderTest, AClosedLineSpansTheGroup) {
    Group(1).OpenClose();
    const int row = Group(1).HeaderRect().Bottom;
    EXPECT_TRUE(SamePixels(ExplorerBarTest::Shown().Part({0, row, 218, row + 1}),
                           [](int, int) { return COLORREF{Line}; }));
}

}  // namespace
}  // namespace qv7skin
