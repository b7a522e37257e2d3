#include "header/items/HeaderItem.h"

#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Pen.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using HeaderItemTest = probes::HeaderTest;
using Item = TQV7SkinHeaderItemCustom;

Item* AddItem(TQV7SkinHeaderItems& items, const String& caption) {
    auto* const item = new Item(caption);
    items.Add(item);
    return item;
}

TEST_F(HeaderItemTest, StartsVisibleAndUnselected) {
    const Item item;
    EXPECT_TRUE(item.GetVisible());
    EXPECT_FALSE(item.GetSelected());
    EXPECT_EQ(item.GetOwner(), nullptr);
    EXPECT_EQ(item.GetCaption(), L"");
}

TEST_F(HeaderItemTest, WithoutCaptionIsFortyPixelsWide) {
    EXPECT_EQ(WidthOf(*AddItem(Items(), L"")), 40);
}

TEST_F(HeaderItemTest, IsAsWideAsItsCaptionAndBoldWhenSelected) {
    Item* const item = AddItem(Items(), L"Caption");
    EXPECT_EQ(WidthOf(*item), TextWidth(L"Caption", {}));
    item->SetSelected(true);
    EXPECT_EQ(WidthOf(*item), TextWidth(L"Caption", {fsBold}));
    EXPECT_NE(TextWidth(L"Caption", {}), TextWidth(L"Caption", {fsBold}));
}

TEST_F(HeaderItemTest, FollowsTheFontOfTheControl) {
    Item* const item = AddItem(Items(), L"Caption");
    const int before = WidthOf(*item);
    Header->GetFont().SetSize(14);
    Header->Refresh();
    EXPECT_EQ(WidthOf(*item), TextWidth(L"Caption", {}));
    EXPECT_GT(WidthOf(*item), before);
}

TEST_F(HeaderItemTest, IsMeasuredInTheControlsFontBeforeThatShows) {
    TQV7SkinHeaderControl control(nullptr);
    control.GetFont().SetSize(20);
    control.SetBounds(0, 0, 300, 40);
    AddItem(control.GetItems(), L"Caption");
    Header->GetFont().SetSize(20);
    EXPECT_EQ(control.GetItemRect(0).Width(), TextWidth(L"Caption", {}));
}

TEST_F(HeaderItemTest, MeasuresByTheHostsHandlerAlone) {
    Item* const item = AddItem(Items(), L"Caption");
    item->OnMeasure = [](Item*, TCanvas&, int& width) { width += 7; };
    int width = 100;
    item->Measure(Header->GetPaintBox().GetBuffer().GetCanvas(), width);
    EXPECT_EQ(width, 107);
}

TEST_F(HeaderItemTest, FramesItsRectangleWithPenAndBrushOfTheCanvas) {
    Item* const item = AddItem(Items(), L"");
    TBitmap bitmap(60, 20, pf24bit);
    bitmap.GetCanvas().GetPen().SetColor(0x000000FF);
    bitmap.GetCanvas().GetBrush().SetColor(0x0000FF00);
    int x = 5;
    item->Draw(bitmap.GetCanvas(), x, 20);
    EXPECT_EQ(x, 45);
    EXPECT_TRUE(SamePixels(test::ReadBitmap(bitmap.GetHandle()), [](int px, int py) -> COLORREF {
        if (px < 5 || px >= 45) return clWhite;
        const bool onFrame = px == 5 || px == 44 || py == 0 || py == 19;
        return onFrame ? 0x000000FF : 0x0000FF00;
    }));
}

TEST_F(HeaderItemTest, CentresItsCaption) {
    Item* const item = AddItem(Items(), L"HOH");
    item->OnMeasure = [](Item*, TCanvas&, int& width) { width += 100; };
    const test::Pixels shown = DrawnItem(*item, 0, 100, 30, pf24bit);
    const RECT text = shown.Part({1, 1, 99, 29}).Bounds([](COLORREF c) { return c != clWhite; });
    EXPECT_NEAR(text.left + 1, 100 - (text.right + 1), 3);
    EXPECT_NEAR(text.top + 1, 30 - (text.bottom + 1), 5);
}

TEST_F(HeaderItemTest, IsDrawnByTheHostsHandlerAndAdvancesByItsMeasuredWidth) {
    Item* const item = AddItem(Items(), L"");
    int height = 0, left = -1;
    item->OnDraw = [&](Item*, TCanvas& canvas, int h, int& x) {
        height = h;
        left = x;
        canvas.GetBrush().SetColor(0x00123456);
        canvas.FillRect({x, 0, x + 3, h});
    };
    TBitmap bitmap(60, 20, pf24bit);
    int x = 5;
    item->Draw(bitmap.GetCanvas(), x, 20);
    EXPECT_EQ(height, 20);
    EXPECT_EQ(left, 5);
    EXPECT_EQ(x, 45);
    EXPECT_EQ(test::ReadBitmap(bitmap.GetHandle()).Count(0x00123456), 3 * 20);
}

TEST_F(HeaderItemTest, SelectsThroughTheControl) {
    Item* const first = AddItem(Items(), L"A");
    Item* const second = AddItem(Items(), L"B");
    first->SetSelected(true);
    EXPECT_EQ(Header->GetSelectedItem(), first);
    second->SetSelected(false);
    EXPECT_EQ(Header->GetSelectedItem(), first);
    second->SetSelected(true);
    EXPECT_FALSE(first->GetSelected());
    EXPECT_EQ(Header->GetSelectedItem(), second);
    second->SetSelected(false);
    EXPECT_EQ(Header->GetSelectedItem(), nullptr);
}

TEST_F(HeaderItemTest, WithoutAControlDoesNotSelectItself) {
    Item item(L"A");
    item.SetSelected(true);
    EXPECT_FALSE(item.GetSelected());
    item.Invalidate();
    item.Refresh();
    EXPECT_FALSE(item.GetSelected());
}

TEST_F(HeaderItemTest, InvisibleTakesNoRoom) {
    AddBars({50, 60, 70});
    Items()[1]->SetVisible(false);
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int) -> COLORREF {
        if (x < 50) return BarColor(0);
        return x < 120 ? BarColor(2) : probes::RowColor;
    }));
    EXPECT_EQ(Header->GetItemIndexAt(50, 5), 2);
    EXPECT_TRUE(Header->GetItemRect(1).IsEmpty());
}

TEST_F(HeaderItemTest, ANewCaptionIsShownWithTheNextPaintMessage) {
    Item* const item = AddItem(Items(), L"i");
    const test::Pixels before = Shown();
    item->SetCaption(L"Much longer");
    EXPECT_EQ(item->GetCaption(), L"Much longer");
    EXPECT_FALSE(Shown() == before);
    EXPECT_EQ(WidthOf(*item), TextWidth(L"Much longer", {}));
}

TEST_F(HeaderItemTest, TellsWhenTheMouseComesAndGoes) {
    AddBars({50, 60});
    Watch(*Items()[0], "A");
    Watch(*Items()[1], "B");
    Input.MoveTo(Surface(), 10, 5);
    Input.MoveTo(Surface(), 60, 5);
    Input.MoveTo(Surface(), 200, 5);
    Input.MoveTo(Surface(), 109, 5);
    Input.MoveAway();
    ASSERT_TRUE(test::PumpUntil([&] { return Log.size() == 6; }));
    EXPECT_EQ(Log,
              (std::vector<std::string>{"enter A", "leave A", "enter B", "leave B", "enter B", "leave B"}));
}

TEST_F(HeaderItemTest, AClickSelectsAndTellsThePlaceInTheItem) {
    AddBars({50, 60});
    Watch(*Items()[1], "B");
    Input.ClickAt(Surface(), 53, 7);
    EXPECT_TRUE(Items()[1]->GetSelected());
    EXPECT_EQ(Log.back(), "click B 3,7");
}

TEST_F(HeaderItemTest, AClickPaintsTheRowBeforeItTells) {
    probes::TBarItem* const bar = AddBar(50);
    const int before = bar->Draws;
    int drawsAtClick = 0;
    bar->OnClick = [&](Item*, TMouseButton, TShiftState, int, int) { drawsAtClick = bar->Draws; };
    bar->Click(mbLeft, {}, 1, 1);
    EXPECT_EQ(drawsAtClick, before + 1);
}

TEST_F(HeaderItemTest, MayBeFreedInEachOfItsEvents) {
    AddBars({30, 30, 30, 30});
    const auto free = [](Item* item) { delete item; };
    Items()[0]->OnEnter = free;
    Items()[1]->OnLeave = free;
    Items()[2]->OnClick = [](Item* item, TMouseButton, TShiftState, int, int) { delete item; };
    Input.MoveTo(Surface(), 5, 5);
    EXPECT_EQ(Items().GetCount(), 3);
    Input.MoveTo(Surface(), 6, 6);
    Input.MoveAway();
    ASSERT_TRUE(test::PumpUntil([&] { return Items().GetCount() == 2; }));
    Input.ClickAt(Surface(), 5, 5);
    EXPECT_EQ(Items().GetCount(), 1);
    test::PumpAll();
    EXPECT_EQ(Header->GetItemIndexAt(5, 5), 0);
}

TEST_F(HeaderItemTest, MayBeFreedWhileItIsDrawn) {
    AddItem(Items(), L"A")->OnDraw = [](Item* item, TCanvas&, int, int&) { delete item; };
    AddItem(Items(), L"B");
    Header->Refresh();
    test::PumpAll();
    EXPECT_EQ(Items().GetCount(), 1);
    EXPECT_EQ(Items()[0]->GetCaption(), L"B");
}

TEST_F(HeaderItemTest, MayFreeTheControlInItsEvents) {
    AddBars({30});
    Items()[0]->OnClick = [&](Item*, TMouseButton, TShiftState, int, int) {
        delete Header;
        Header = nullptr;
    };
    Input.ClickAt(Surface(), 5, 5);
    EXPECT_EQ(Header, nullptr);
}

}  // namespace
}  // namespace qv7skin
