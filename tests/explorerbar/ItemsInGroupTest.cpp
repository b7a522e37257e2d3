#include <vector>

#include "platform/vcl/graphics/ImageList.h"
#include "tests/explorerbar/ItemsOnBarFixture.h"
#include "tests/support/SkinTesting.h"

// Items and the bar around them: refreshing, icons by number, shared columns, scrolling into view.

namespace qv7skin {
namespace {

using test::SamePixels;

class ItemsInGroupTest : public probes::ItemsOnBarTest {
protected:
    /// How often the buffer is painted while the action runs.
    int Paints(const std::function<void()>& action) {
        int paints = 0;
        TScrolledPaintBox& box = Bar->GetPaintBox();
        const TFFPaintEvent painter = box.OnFFPaint;
        box.OnFFPaint = [&](TObject* sender, TBitmap* buffer) {
            ++paints;
            painter(sender, buffer);
        };
        action();
        box.OnFFPaint = painter;
        return paints;
    }
    TQV7SkinExplorerItemLink* AddLink(const wchar_t* caption) {
        return Add(new TQV7SkinExplorerItemLink(caption, L""));
    }
    int Line() { return Bar->GetPaintBox().GetBuffer().GetCanvas().TextHeight(L"A"); }
};

TEST_F(ItemsInGroupTest, AddingAnItemMakesTheGroupItsOwner) {
    auto* link = AddLink(L"Erster");
    EXPECT_EQ(link->GetOwner(), Group);
    EXPECT_EQ(Group->GetItems().GetOwner(), Group);
    auto* text = new TQV7SkinExplorerItemStaticText(L"Davor");
    Group->GetItems().Insert(0, text);
    EXPECT_EQ(text->GetOwner(), Group);
    EXPECT_EQ(Group->GetItems().IndexOf(link), 1);
}

TEST_F(ItemsInGroupTest, EachChangeOfTheListIsSeenAtOnce) {
    const int empty = Bar->GetContentHeight();
    auto* link = new TQV7SkinExplorerItemLink(L"Erster", L"");
    EXPECT_GE(Paints([&] { Group->GetItems().Add(link); }), 1);
    const int one = Bar->GetContentHeight();
    EXPECT_EQ(one, empty + 20 + Line() + 1);
    EXPECT_GE(Paints([&] { Group->GetItems().Add(new TQV7SkinExplorerItemSeparator); }), 1);
    EXPECT_EQ(Bar->GetContentHeight(), one) << "a separator at the end is left out";
    EXPECT_GE(Paints([&] { Group->GetItems().Delete(0); }), 1);
    EXPECT_EQ(Bar->GetContentHeight(), empty);
}

TEST_F(ItemsInGroupTest, SettingWhatIsSetAlreadyPaintsNothing) {
    auto* link = AddLink(L"Erster");
    const int height = Bar->GetContentHeight();
    EXPECT_EQ(Paints([&] { link->SetVisible(true); }), 0);
    EXPECT_GE(Paints([&] { link->SetVisible(false); }), 1);
    EXPECT_LT(Bar->GetContentHeight(), height);
    EXPECT_GE(Paints([&] { link->SetVisible(true); }), 1);
    EXPECT_EQ(Bar->GetContentHeight(), height);
}

TEST_F(ItemsInGroupTest, BetweenBeginAndEndUpdateNothingIsPainted) {
    auto* link = AddLink(L"Erster");
    Bar->BeginUpdate();
    EXPECT_EQ(Paints([&] {
                  link->SetCaption(L"Eine\r\nzweite\r\nund\r\ndritte Zeile");
                  Group->GetItems().Add(new TQV7SkinExplorerItemLink(L"Neu", L""));
                  Group->GetItems().Delete(1);
                  Group->GetItems().Move(0, -1);
              }),
              0);
    EXPECT_EQ(link->ClipRect().Height(), Line() + 1);
    Bar->EndUpdate();
    EXPECT_EQ(link->ClipRect().Height(), 4 * (Line() + 1));
}

TEST_F(ItemsInGroupTest, ALongerCaptionMovesWhatIsBelow) {
    auto* first = AddLink(L"Erster");
    auto* second = AddLink(L"Zweiter");
    EXPECT_EQ(second->ClipRect().Top, first->ClipRect().Top + Line() + 1);
    first->SetCaption(L"Zwei\r\nZeilen");
    EXPECT_EQ(second->ClipRect().Top, first->ClipRect().Top + 2 * (Line() + 1));
}

TEST_F(ItemsInGroupTest, AllBlockTextsOfAGroupStartInOneColumn) {
    auto* first = Add(new TQV7SkinExplorerItemCaptionBlockPair(L"A:", L"|"));
    auto* second = Add(new TQV7SkinExplorerItemCaptionBlockPair(L"Eine lange:", L"|"));
    TCanvas& canvas = Bar->GetPaintBox().GetBuffer().GetCanvas();
    canvas.GetFont().SetStyle({});
    const int column = 10 + canvas.TextWidth(L"Eine lange:");
    for (const auto* pair : {first, second}) {
        // The place of a pair starts 5 from the left.
        const RECT ink = Shown(pair).Bounds([](COLORREF color) { return color == clBlack; });
        const RECT text = test::Drawn(40, 20, clWhite, [&](HDC dc) {
                              ::SelectObject(dc, canvas.GetFont().GetHandle());
                              ::SetBkMode(dc, TRANSPARENT);
                              ::TextOutW(dc, 0, 0, L"|", 1);
                              ::SelectObject(dc, ::GetStockObject(SYSTEM_FONT));
                          }).Bounds([](COLORREF color) { return color == clBlack; });
        EXPECT_EQ(ink.right, column - 5 + text.right);
    }
}

TEST_F(ItemsInGroupTest, LinksShowTheImageOfTheirNumber) {
    TImageList icons(nullptr);
    for (const TColor color : {clLime, clRed}) {
        const auto image = probes::BitmapOf(16, 16, color);
        icons.AddMasked(image.get(), clNone);
    }
    Bar->SetItemIcons(&icons);
    auto* link = Add(new TQV7SkinExplorerItemLink(L"Text", L"", 1));
    auto* bare = AddLink(L"Text");
    const TRect place = link->ClipRect();
    EXPECT_EQ(place.Height(), 18);
    const RECT found = Shown(link).Bounds([](COLORREF color) { return color == clRed; });
    EXPECT_EQ(TRect(found), TRect(0, 0, 16, 16));
    EXPECT_EQ(place.Width(), bare->ClipRect().Width() + 21) << "indented by the list's width and 5 more";
    const auto own = probes::BitmapOf(8, 30, clBlue);
    link->SetIcon(own.get());
    ShowAll();
    EXPECT_EQ(link->ClipRect().Width(), bare->ClipRect().Width() + 8 + 5) << "a bitmap comes before a number";
    EXPECT_EQ(link->ClipRect().Height(), 32);
    EXPECT_EQ(Shown(link).Count(clBlue), 8 * 30);
    EXPECT_EQ(Shown(link).Count(clRed), 0);
    link->SetIcon(nullptr);
    ShowAll();
    link->SetIconIndex(-1);
    EXPECT_EQ(link->ClipRect().Height(), Line() + 1);
    Bar->SetItemIcons(nullptr);
}

TEST_F(ItemsInGroupTest, AnImageLowerThanARowStandsAtItsTop) {
    TImageList icons(nullptr, 9, 5);
    icons.AddMasked(probes::BitmapOf(9, 5, clRed).get(), clNone);
    Bar->SetItemIcons(&icons);
    auto* link = Add(new TQV7SkinExplorerItemLink(L"Text", L"", 0));
    const RECT found = Shown(link).Bounds([](COLORREF color) { return color == clRed; });
    EXPECT_EQ(TRect(found), TRect(0, 0, 9, 5));
    EXPECT_EQ(link->ClipRect().Height(), Line() + 1);
    Bar->SetItemIcons(nullptr);
}

TEST_F(ItemsInGroupTest, ALinkIsCutFiveBeforeTheGroupsEnd) {
    auto* link = AddLink(L"Eine Beschriftung, die für die Leiste viel zu lang ist und endet");
    link->SetWordWrap(false);
    EXPECT_EQ(link->ClipRect().Left, 5);
    EXPECT_EQ(link->ClipRect().Right, Group->GetWidth() - 5);
}

TEST_F(ItemsInGroupTest, TheLastVisibleItemHasNothingButSeparatorsAndHiddenOnesBehindIt) {
    auto* first = AddLink(L"Erster");
    auto* second = AddLink(L"Zweiter");
    auto* line = Add(new TQV7SkinExplorerItemSeparator);
    auto* third = AddLink(L"Dritter");
    EXPECT_FALSE(second->IsLastVisibleItem());
    third->SetVisible(false);
    EXPECT_FALSE(first->IsLastVisibleItem());
    EXPECT_TRUE(second->IsLastVisibleItem());
    EXPECT_TRUE(line->IsLastVisibleItem());
    EXPECT_TRUE(third->IsLastVisibleItem());
}

TEST_F(ItemsInGroupTest, ABarFilledBeforeItHasAWindowLeavesRoomForItsScrollBar) {
    Form();
    auto* bar = new TQV7SkinExplorerBar(nullptr);
    bar->SetBounds(240, 10, 150, 100);
    bar->BeginUpdate();
    TQV7SkinExplorerGroup* group = bar->GetGroups().Add(L"Gruppe", false);
    for (int i = 0; i < 30; ++i)
        group->GetItems().Add(new TQV7SkinExplorerItemLink(L"Verweis", L""));
    bar->EndUpdate();
    bar->SetParent(&Form());
    test::PumpAll();
    EXPECT_LT(bar->GetClientWidth(), 150);
    EXPECT_EQ(group->GetWidth(), bar->GetClientWidth());
}

TEST_F(ItemsInGroupTest, ScrollingIntoViewMovesJustSoFar) {
    Bar->BeginUpdate();
    std::vector<TQV7SkinExplorerItemLink*> links;
    for (int i = 0; i < 60; ++i) {
        links.push_back(new TQV7SkinExplorerItemLink(L"Verweis", L""));
        Group->GetItems().Add(links.back());
    }
    Bar->EndUpdate();
    test::PumpAll();
    TControlScrollBar& scrollBar = Bar->GetVertScrollBar();
    ASSERT_EQ(scrollBar.GetPosition(), 0);
    links[3]->ScrollIntoView();
    EXPECT_EQ(scrollBar.GetPosition(), 0) << "it is seen already";
    links[40]->ScrollIntoView();
    EXPECT_EQ(scrollBar.GetPosition(), links[40]->ClipRect().Bottom - Bar->GetClientHeight());
    links[20]->ScrollIntoView();
    EXPECT_EQ(scrollBar.GetPosition(), links[20]->ClipRect().Top);
    links[59]->SetVisible(false);
    links[59]->ScrollIntoView();
    EXPECT_EQ(scrollBar.GetPosition(), links[20]->ClipRect().Top) << "hidden items stay out of view";
}

TEST_F(ItemsInGroupTest, AProgressBarWithoutARangeReportsItsErrorToTheApplication) {
    Bar->BeginUpdate();
    auto* progress = new TQV7SkinExplorerItemProgressBar(0, 10, 5, 12, clBlack, clRed);
    Group->GetItems().Add(progress);
    Bar->EndUpdate();
    EXPECT_EQ(probes::MessageOf<Exception>([&] { progress->SetMax(0); }), L"Floating point division by zero");
    progress->SetMax(10);
    test::PumpAll();
    Errors.clear();
}

}  // namespace
}  // namespace qv7skin
