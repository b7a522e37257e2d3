#include "header/items/HeaderItemTab.h"

#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using probes::Magenta;
using probes::RowColor;
using probes::TProbeStrip;
using test::Pixels;
using Tab = TQV7SkinHeaderItemTab;

class HeaderTabTest : public probes::HeaderTest {
protected:
    /// A picture of one colour with a magenta pixel at its top left.
    static std::unique_ptr<TBitmap> Picture(int width, int height, TColor color) {
        auto bitmap = std::make_unique<TBitmap>(width, height, pf24bit);
        bitmap->GetCanvas().GetBrush().SetColor(color);
        bitmap->GetCanvas().FillRect({0, 0, width, height});
        bitmap->GetCanvas().SetPixel(0, 0, Magenta);
        return bitmap;
    }
    /// A tab without a caption whose background is all that it shows, at x in a row of that size.
    static COLORREF Plain(int x, int y, int width, int height, int state) {
        return TProbeStrip::InShape(x, y, width, height)
                   ? static_cast<COLORREF>(TProbeStrip::StateColor(state))
                   : static_cast<COLORREF>(RowColor);
    }
    void SetWidth(Tab& tab, int width) {
        tab.OnMeasure = [width](TQV7SkinHeaderItemCustom*, TCanvas&, int& w) { w += width; };
        Header->Refresh();
    }
};

TEST_F(HeaderTabTest, WithoutCaptionAndPictureIsAsWideAsItsMargins) {
    EXPECT_EQ(WidthOf(*AddTab(L"")), 10);
    EXPECT_EQ(WidthOf(*AddTab(L"", bckgrndWhite)), 50);
}

TEST_F(HeaderTabTest, MeasuresCaptionWithTwoBlanksMarginsAndPicture) {
    const auto picture = Picture(16, 16, clRed), selected = Picture(20, 16, clGreen);
    Tab* const tab = AddTab(L"Caption");
    const int text = TextWidth(L"Caption  ", {fsBold});
    EXPECT_EQ(WidthOf(*tab), text + 10);
    tab->SetImageSelected(selected.get());
    EXPECT_EQ(WidthOf(*tab), text + 10 + 23);
    tab->SetImage(picture.get());
    EXPECT_EQ(WidthOf(*tab), text + 10 + 19);
    EXPECT_EQ(WidthOf(*AddTab(L"Caption", bckgrndWhite)), TextWidth(L"Caption  ", {}) + 50);
}

TEST_F(HeaderTabTest, TakesMarginsStyleAndColorsFromItsLook) {
    const Tab standard(bckgrndStandard), white(bckgrndWhite);
    EXPECT_EQ(standard.GetHorzOffset(), 5);
    EXPECT_EQ(standard.GetFontStyle(), TFontStyles{fsBold});
    EXPECT_EQ(standard.GetTextColorActive(), 0x00FFFFFFu);
    EXPECT_EQ(standard.GetTextColorInactive(), 0x007E7E7Eu);
    EXPECT_EQ(white.GetHorzOffset(), 25);
    EXPECT_EQ(white.GetFontStyle(), TFontStyles{});
    EXPECT_EQ(white.GetTextColorActive(), 0x00000000u);
    EXPECT_EQ(white.GetTextColorInactive(), 0x00555555u);
}

TEST_F(HeaderTabTest, ShowsItsBackgroundWithinItsShape) {
    SetWidth(*AddTab(L""), 60);
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int y) { return Plain(x, y, 60, 21, 0); }));
}

TEST_F(HeaderTabTest, ShowsTheStateThatItIsIn) {
    Tab* const tab = AddTab(L"");
    SetWidth(*tab, 60);
    Input.MoveTo(Surface(), 30, 10);
    EXPECT_EQ(tab->GetBackgroundState(), 1);
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int y) { return Plain(x, y, 60, 21, 1); }));
    Input.Click();
    EXPECT_EQ(tab->GetBackgroundState(), 2);
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int y) { return Plain(x, y, 60, 21, 2); }));
    Tab* const other = AddTab(L"");
    SetWidth(*other, 60);
    other->SetSelected(true);
    Input.MoveAway();
    ASSERT_TRUE(test::PumpUntil([&] { return tab->GetBackgroundState() == 0; }));
    EXPECT_TRUE(
        SamePixels(Shown().Part({0, 0, 60, 21}), [](int x, int y) { return Plain(x, y, 60, 21, 0); }));
}

TEST_F(HeaderTabTest, HitsThePixelsOfItsShapeAndNoOthers) {
    Tab* const tab = AddTab(L"");
    SetWidth(*tab, 60);
    const TRect rect(7, 0, 67, 21);
    for (int y = -1; y <= 21; ++y)
        for (int x = 5; x <= 68; ++x) {
            TCursor cursor = crCross;
            const bool inside = x >= 7 && x < 67 && y >= 0 && y < 21;
            ASSERT_EQ(tab->PtInValidRect(rect, {x, y}, cursor),
                      inside && TProbeStrip::InShape(x - 7, y, 60, 21))
                << x << "," << y;
            ASSERT_EQ(cursor, crCross);
        }
}

TEST_F(HeaderTabTest, APressOnACutCornerHitsNothing) {
    SetWidth(*AddTab(L""), 60);
    EXPECT_EQ(Header->GetItemIndexAt(0, 2), -1);
    EXPECT_EQ(Header->GetItemIndexAt(1, 2), 0);
    Input.ClickAt(Surface(), 0, 2);
    EXPECT_EQ(Header->GetSelectedItem(), nullptr);
    Input.ClickAt(Surface(), 1, 2);
    EXPECT_EQ(Header->GetSelectedItem(), Items()[0]);
}

TEST_F(HeaderTabTest, HitTestsBeforeItWasPainted) {
    Header->BeginUpdate();
    SetWidth(*AddTab(L""), 60);
    EXPECT_EQ(Header->GetItemIndexAt(0, 0), -1);
    EXPECT_EQ(Header->GetItemIndexAt(30, 10), 0);
    Header->EndUpdate();
}

TEST_F(HeaderTabTest, LooksTheSameOnEveryCanvas) {
    const auto picture = Picture(12, 12, clRed);
    Tab* const tab = AddTab(L"Caption");
    tab->SetImage(picture.get());
    const Pixels row = DrawnItem(*tab, 9, 150, 21, pf24bit);
    EXPECT_TRUE(SamePixels(DrawnItem(*tab, 9, 150, 21, pf32bit), row));
    EXPECT_GT(row.Count(clRed), 100);
    EXPECT_EQ(row.Count(Magenta), 0);
}

TEST_F(HeaderTabTest, IsCutAtTheEdgesOfTheCanvas) {
    Tab* const tab = AddTab(L"");
    SetWidth(*tab, 60);
    const Pixels left = DrawnItem(*tab, -20, 30, 21, pf24bit);
    const auto expected = [](int x, int y) {
        return TProbeStrip::InShape(x, y, 60, 21) ? static_cast<COLORREF>(TProbeStrip::StateColor(0))
                                                  : COLORREF{clWhite};
    };
    EXPECT_TRUE(SamePixels(left, [&](int x, int y) { return expected(x + 20, y); }));
    EXPECT_TRUE(SamePixels(DrawnItem(*tab, 10, 30, 21, pf24bit), [&](int x, int y) -> COLORREF {
        return x < 10 ? COLORREF{clWhite} : expected(x - 10, y);
    }));
}

TEST_F(HeaderTabTest, DrawsItsPictureAndTheCaptionAfterIt) {
    const auto picture = Picture(12, 9, clRed);
    Tab* const tab = AddTab(L"|");
    tab->SetImage(picture.get());
    const int width = WidthOf(*tab);
    const Pixels shown = DrawnItem(*tab, 0, width, 24, pf24bit);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 12; ++x)
            EXPECT_EQ(shown.At(5 + x, 7 + y),
                      x == 0 && y == 0 ? static_cast<COLORREF>(TProbeStrip::StateColor(0)) : COLORREF{clRed});
    const RECT text = shown.Bounds([](COLORREF c) { return c == 0x007E7E7E; });
    EXPECT_GE(text.left, 5 + 12 + 3);
    EXPECT_LT(text.left, 5 + 12 + 3 + 4);
}

TEST_F(HeaderTabTest, NewPicturesPaintTheRowAtOnce) {
    const auto picture = Picture(12, 10, clRed);
    Tab* const tab = AddTab(L"");
    const probes::TBarItem* const beside = AddBar(20);
    int draws = beside->Draws;
    tab->SetImage(picture.get());
    EXPECT_EQ(beside->Draws, ++draws);
    tab->SetImageSelected(picture.get());
    EXPECT_EQ(beside->Draws, ++draws);
    Items().Clear();
}

TEST_F(HeaderTabTest, ATallPictureBeginsInTheSecondRow) {
    const auto picture = Picture(8, 30, clRed);
    Tab* const tab = AddTab(L"");
    tab->SetImage(picture.get());
    const Pixels shown = DrawnItem(*tab, 0, WidthOf(*tab), 21, pf24bit);
    EXPECT_NE(shown.At(8, 0), COLORREF{clRed});
    EXPECT_EQ(shown.At(8, 1), COLORREF{clRed});
}

TEST_F(HeaderTabTest, ShowsTheOtherPictureWhileSelected) {
    const auto picture = Picture(12, 10, clRed), selected = Picture(12, 10, clLime);
    Tab* const tab = AddTab(L"");
    tab->SetImage(picture.get());
    tab->SetImageSelected(selected.get());
    EXPECT_EQ(Shown().Count(clRed), 119);
    tab->SetSelected(true);
    EXPECT_EQ(Shown().Count(clRed), 0);
    EXPECT_EQ(Shown().Count(clLime), 119);
}

TEST_F(HeaderTabTest, AnOnlyPictureForTheSelectedTabLeavesTheCaptionInItsPlace) {
    const auto selected = Picture(12, 10, clLime);
    Tab* const tab = AddTab(L"|");
    tab->SetImageSelected(selected.get());
    tab->SetSelected(true);
    const Pixels shown = DrawnItem(*tab, 0, WidthOf(*tab), 24, pf24bit);
    EXPECT_EQ(shown.At(10, 10), COLORREF{clLime});
    const RECT text = shown.Bounds([](COLORREF c) { return c == 0x00FFFFFF; });
    EXPECT_LT(text.left, 5);
}

TEST_F(HeaderTabTest, SeesThatThePixelsOfItsPictureChanged) {
    const auto picture = Picture(12, 10, clRed);
    AddTab(L"")->SetImage(picture.get());
    EXPECT_EQ(Shown().Count(clRed), 119);
    picture->GetCanvas().GetBrush().SetColor(clLime);
    picture->GetCanvas().FillRect({0, 0, 12, 10});
    Header->Refresh();
    EXPECT_EQ(Shown().Count(clRed), 0);
    EXPECT_EQ(Shown().Count(clLime), 120);
}

TEST_F(HeaderTabTest, SeesThatTheFontOrTheCaptionChanged) {
    Tab* const tab = AddTab(L"ii");
    SetWidth(*tab, 80);
    const Pixels first = Shown();
    tab->SetCaption(L"WW");
    const Pixels second = Shown();
    EXPECT_FALSE(first == second);
    Header->GetFont().SetSize(12);
    Header->Refresh();
    EXPECT_FALSE(second == Shown());
}

TEST_F(HeaderTabTest, RendersEachStateOnceUntilItsLookChanges) {
    SetWidth(*AddTab(L"A"), 60);
    SetWidth(*AddTab(L"B"), 60);
    Header->Rendered.clear();
    for (int i = 0; i < 3; ++i) {
        Input.MoveTo(Surface(), 30, 10);
        Input.MoveTo(Surface(), 90, 10);
    }
    EXPECT_EQ(Header->Rendered, (std::vector<int>{1, 1}));
    Header->Rendered.clear();
    Header->Look = 5;
    Header->Refresh();
    EXPECT_EQ(Header->Rendered, (std::vector<int>{0, 1}));
    EXPECT_EQ(Shown().At(30, 2), static_cast<COLORREF>(TProbeStrip::StateColor(0) + 5));
}

TEST_F(HeaderTabTest, HoveringLeavesWhatAWholeRepaintWouldShow) {
    Header->SetHorzOffset(6);
    for (const wchar_t* caption : {L"One", L"Two", L"Three", L"Four"})
        AddTab(caption);
    Items()[1]->SetSelected(true);
    Header->Refresh();
    for (const int index : {0, 2, 1, 3, -1, 3, 0, -1}) {
        Header->SetIndexOfItemMouseOver(index);
        const Pixels hovered = Shown();
        Header->Refresh();
        EXPECT_TRUE(SamePixels(hovered, Shown())) << index;
        EXPECT_EQ(hovered.Count(static_cast<COLORREF>(TProbeStrip::StateColor(1))) > 0,
                  index >= 0 && index != 1);
    }
}

TEST_F(HeaderTabTest, HoveringATabOfAnotherShapePerStateLeavesNothingBehind) {
    Header->SlantPerState = true;
    SetWidth(*AddTab(L"One"), 60);
    AddTab(L"Two");
    Items()[0]->OnMeasure = nullptr;
    Header->Refresh();
    for (const int index : {0, 1, 0, -1}) {
        Header->SetIndexOfItemMouseOver(index);
        const Pixels hovered = Shown();
        Header->Refresh();
        EXPECT_TRUE(SamePixels(hovered, Shown())) << index;
    }
}

TEST_F(HeaderTabTest, AHandlerMayHitTestWhileTheMouseMovesOn) {
    Tab* const first = AddTab(L"One");
    Tab* const second = AddTab(L"Two");
    first->OnLeave = [&](TQV7SkinHeaderItemCustom*) { EXPECT_EQ(Header->GetItemAt(3, 10), first); };
    second->OnEnter = [&](TQV7SkinHeaderItemCustom*) { EXPECT_EQ(Header->GetItemAt(3, 10), first); };
    Header->SetIndexOfItemMouseOver(0);
    Header->SetIndexOfItemMouseOver(1);
    EXPECT_EQ(Shown().At(5, 2), static_cast<COLORREF>(TProbeStrip::StateColor(0)));
    EXPECT_EQ(Shown().At(WidthOf(*first) + 5, 2), static_cast<COLORREF>(TProbeStrip::StateColor(1)));
}

TEST_F(HeaderTabTest, HoveringPaintsAllItemsBesideOneThatTheHostDraws) {
    AddTab(L"One");
    AddTab(L"Two");
    Tab* const drawn = AddTab(L"Three");
    int draws = 0;
    drawn->OnDraw = [&](TQV7SkinHeaderItemCustom*, TCanvas&, int, int&) { ++draws; };
    Header->SetIndexOfItemMouseOver(0);
    Header->SetIndexOfItemMouseOver(1);
    EXPECT_EQ(draws, 2);
    drawn->OnDraw = nullptr;
    Header->SetIndexOfItemMouseOver(0);
    EXPECT_EQ(draws, 2);
}

TEST_F(HeaderTabTest, ForgetsItsRenderingsAPageAwayFromWhatShows) {
    Header->BeginUpdate();
    for (int i = 0; i < 60; ++i)
        AddTab(L"A tab");
    Header->EndUpdate();
    const auto rendered = [&] {
        std::vector<int> indices;
        for (int i = 0; i < Items().GetCount(); ++i)
            if (static_cast<Tab*>(Items()[i])->GetBackground()) indices.push_back(i);
        return indices;
    };
    const int page = static_cast<int>(rendered().size());
    ASSERT_GT(page, 2);
    Header->ScrollBy(page);
    EXPECT_EQ(rendered().size(), 2 * static_cast<std::size_t>(page));
    Header->ScrollBy(1);
    EXPECT_EQ(rendered().front(), 1);
    Header->ScrollBy(35);
    EXPECT_EQ(rendered().front(), page + 36);
    EXPECT_EQ(rendered().size(), static_cast<std::size_t>(page));
}

TEST_F(HeaderTabTest, IsRenderedAnewOnRequest) {
    Tab* const tab = AddTab(L"A");
    Header->Rendered.clear();
    Header->Refresh();
    EXPECT_TRUE(Header->Rendered.empty());
    tab->SetNeedsRender();
    EXPECT_TRUE(tab->GetNeedsRender());
    Header->Refresh();
    EXPECT_FALSE(tab->GetNeedsRender());
    EXPECT_TRUE(Header->Rendered.empty());
    tab->SetSelected(false);
    EXPECT_TRUE(tab->GetNeedsRender());
    tab->DropRenderings();
    EXPECT_EQ(tab->GetBackground(), nullptr);
    EXPECT_EQ(tab->GetRegion(), nullptr);
    Header->Refresh();
    EXPECT_EQ(Header->Rendered, std::vector<int>{0});
}

TEST_F(HeaderTabTest, TheHostDrawsOnTheBackgroundWithinTheShape) {
    Tab* const tab = AddTab(L"Caption");
    SetWidth(*tab, 60);
    tab->OnDraw = [](TQV7SkinHeaderItemCustom*, TCanvas& canvas, int height, int& x) {
        EXPECT_EQ(canvas.GetFont().GetColor(), 0x007E7E7Eu);
        EXPECT_EQ(canvas.GetFont().GetStyle(), TFontStyles{fsBold});
        EXPECT_EQ(canvas.GetBrush().GetStyle(), bsClear);
        canvas.GetBrush().SetColor(clRed);
        canvas.FillRect({x - 10, -5, x + 10, height});
    };
    Header->Refresh();
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int y) -> COLORREF {
        const bool drawn = x < 10 && TProbeStrip::InShape(x, y, 60, 21);
        return drawn ? COLORREF{clRed} : Plain(x, y, 60, 21, 0);
    }));
}

TEST_F(HeaderTabTest, InAControlWithoutBackgroundsIsARectangle) {
    auto* const plain = Make<TQV7SkinHeaderControl>({20, 80, 320, 101});
    auto* const tab = new Tab(bckgrndStandard, L"");
    plain->GetItems().Add(tab);
    test::PumpAll();
    EXPECT_TRUE(SamePixels(test::ReadClient(plain->GetHandle()), Pixels(300, 21, RowColor)));
    EXPECT_EQ(plain->GetItemIndexAt(0, 0), 0);
    EXPECT_EQ(plain->GetItemIndexAt(10, 0), -1);
}

TEST_F(HeaderTabTest, ChangesItsLook) {
    Tab* const tab = AddTab(L"A");
    tab->SetTabBackground(bckgrndWhite);
    EXPECT_TRUE(tab->GetNeedsRender());
    EXPECT_EQ(WidthOf(*tab), TextWidth(L"A  ", {}) + 50);
}

TEST_F(HeaderTabTest, MayBeFreedWhileTheHostDrawsIt) {
    Tab* const tab = AddTab(L"A");
    tab->OnDraw = [](TQV7SkinHeaderItemCustom* item, TCanvas&, int, int&) { delete item; };
    AddTab(L"B");
    Header->Refresh();
    EXPECT_EQ(Items().GetCount(), 1);
}

}  // namespace
}  // namespace qv7skin
