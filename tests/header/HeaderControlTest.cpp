#include "header/control/HeaderControl.h"

#include "header/chevrons/HeaderChevronBase.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using probes::RowColor;
using test::Pixels;

class HeaderControlTest : public probes::HeaderTest {
protected:
    /// The row that the bars make from `first` on, from `offset`, in a strip of 300 x 21 pixels.
    [[nodiscard]] Pixels Row(const std::vector<int>& widths, std::size_t first = 0, int offset = 0) const {
        Pixels row(300, 21, RowColor);
        int x = offset;
        for (std::size_t i = first; i < widths.size(); ++i)
            for (int end = x + widths[i]; x < end; ++x)
                for (int y = 0; y < 21 && x < 300; ++y)
                    row.Set(x, y, BarColor(static_cast<int>(i)));
        return row;
    }
};

TEST_F(HeaderControlTest, StartsEmpty) {
    const TQV7SkinHeaderControl control(nullptr);
    EXPECT_EQ(control.GetColor(), RowColor);
    EXPECT_TRUE(control.GetDoubleBuffered());
    EXPECT_TRUE(control.GetParentFont());
    EXPECT_FALSE(control.GetAllowItemDrag());
    EXPECT_FALSE(control.GetAllowItemUndock());
    EXPECT_FALSE(control.GetHideClippedItems());
    EXPECT_FALSE(control.GetChevronVisible());
    EXPECT_FALSE(control.GetUpdating());
    EXPECT_EQ(control.GetHorzOffset(), 0);
    EXPECT_EQ(control.GetFirstVisibleIndex(), 0);
    EXPECT_EQ(control.GetIndexOfItemMouseOver(), -1);
    EXPECT_EQ(control.GetChevronDropDown(), nullptr);
    EXPECT_EQ(control.GetItems().GetCount(), 0);
    EXPECT_EQ(control.GetWidth(), 200);
    EXPECT_EQ(control.GetHeight(), 21);
}

TEST_F(HeaderControlTest, WithoutItemsShowsTheBackgroundAlone) {
    EXPECT_TRUE(SamePixels(Shown(), Pixels(300, 21, RowColor)));
    EXPECT_EQ(Header->GetItemIndexAt(0, 0), -1);
    EXPECT_EQ(Header->GetItemAt(0, 0), nullptr);
    EXPECT_EQ(Header->GetSelectedItem(), nullptr);
    EXPECT_EQ(Header->GetHotItem(), nullptr);
    EXPECT_FALSE(Header->GetChevronVisible());
    EXPECT_FALSE(Header->CanScrollPrior());
    EXPECT_FALSE(Header->CanScrollNext());
    EXPECT_EQ(Header->GetIndexOfLastItemToDraw(), -1);
    Header->ScrollLast();
    Header->ScrollBy(0);
    Header->ScrollInView(0);
    EXPECT_EQ(Header->GetFirstVisibleIndex(), 0);
}

TEST_F(HeaderControlTest, PaintsTheItemsSideBySide) {
    const std::vector<int> widths{50, 60, 70};
    AddBars(widths);
    EXPECT_TRUE(SamePixels(Shown(), Row(widths)));
}

TEST_F(HeaderControlTest, BeginsTheRowAtItsMargin) {
    const std::vector<int> widths{50, 60};
    AddBars(widths);
    Header->SetHorzOffset(12);
    EXPECT_EQ(Header->GetClippedWidth(), 276);
    EXPECT_TRUE(SamePixels(Shown(), Row(widths, 0, 12)));
}

TEST_F(HeaderControlTest, HitTestsWithoutTheMargin) {
    AddBars({50, 60});
    Header->SetHorzOffset(12);
    EXPECT_EQ(Header->GetItemIndexAt(0, 0), 0);
    EXPECT_EQ(Header->GetItemIndexAt(49, 20), 0);
    EXPECT_EQ(Header->GetItemIndexAt(50, 20), 1);
    EXPECT_EQ(Header->GetItemIndexAt(109, 0), 1);
    EXPECT_EQ(Header->GetItemIndexAt(110, 0), -1);
    EXPECT_EQ(Header->GetItemIndexAt(-1, 0), -1);
    EXPECT_EQ(Header->GetItemIndexAt(5, 21), -1);
    EXPECT_EQ(Header->GetItemIndexAt(5, -1), -1);
    EXPECT_EQ(Header->GetItemAt(60, 5), Items()[1]);
}

TEST_F(HeaderControlTest, PaintsNoItemAfterTheOneThatReachesTheMargin) {
    AddBars({100, 100, 100, 50, 50});
    Header->SetHorzOffset(10);
    for (int i = 0; i < 5; ++i)
        static_cast<probes::TBarItem*>(Items()[i])->Draws = 0;
    Header->Refresh();
    const auto draws = [&](int i) { return static_cast<probes::TBarItem*>(Items()[i])->Draws; };
    // 280 pixels between the margins: the third item ends at 310.
    EXPECT_EQ(draws(2), 1);
    EXPECT_EQ(draws(3), 0);
    EXPECT_EQ(draws(4), 0);
}

TEST_F(HeaderControlTest, PaintsTheFirstItemEvenWithoutRoomBetweenTheMargins) {
    AddBars({50, 50});
    Header->SetHorzOffset(160);
    EXPECT_LT(Header->GetClippedWidth(), 0);
    EXPECT_TRUE(SamePixels(Shown().Part({0, 0, 248, 21}), [](int x, int) -> COLORREF {
        return x >= 160 && x < 210 ? BarColor(0) : RowColor;
    }));
}

TEST_F(HeaderControlTest, HidingClippedItemsShowsAtOnce) {
    AddBars({100, 250});
    const auto* const first = static_cast<probes::TBarItem*>(Items()[0]);
    const auto* const last = static_cast<probes::TBarItem*>(Items()[1]);
    const int firstDraws = first->Draws, lastDraws = last->Draws;
    Header->SetHideClippedItems(true);
    EXPECT_EQ(first->Draws, firstDraws + 1);
    EXPECT_EQ(last->Draws, lastDraws);
    Header->SetHideClippedItems(false);
    EXPECT_EQ(last->Draws, lastDraws + 1);
}

TEST_F(HeaderControlTest, HidesTheItemThatWouldBeCutOff) {
    AddBars({100, 100, 101});
    const auto* const last = static_cast<probes::TBarItem*>(Items()[2]);
    Header->SetHideClippedItems(true);
    const int before = last->Draws;
    Header->Refresh();
    EXPECT_EQ(last->Draws, before);
    static_cast<probes::TBarItem*>(Items()[2])->Width = 100;
    Header->Refresh();
    EXPECT_EQ(last->Draws, before + 1);
}

TEST_F(HeaderControlTest, AnItemOfTheExactWidthIsNotClipped) {
    const std::vector<int> widths{100, 100, 100};
    AddBars(widths);
    Header->SetHideClippedItems(true);
    EXPECT_TRUE(SamePixels(Shown(), Row(widths)));
    EXPECT_FALSE(Header->GetChevronVisible());
    EXPECT_EQ(Header->GetIndexOfLastItemToDraw(), -1);
}

TEST_F(HeaderControlTest, KnowsTheLastItemToDraw) {
    AddBars({100, 100, 101, 20});
    EXPECT_EQ(Header->GetIndexOfLastItemToDraw(), 2);
    Header->SetHideClippedItems(true);
    EXPECT_EQ(Header->GetIndexOfLastItemToDraw(), 1);
    static_cast<probes::TBarItem*>(Items()[0])->Width = 400;
    EXPECT_EQ(Header->GetIndexOfLastItemToDraw(), 0);
    Header->ScrollBy(1);
    EXPECT_EQ(Header->GetIndexOfLastItemToDraw(), -1);
}

TEST_F(HeaderControlTest, PaintsNothingWhileUpdating) {
    AddBars({50});
    const auto* const item = static_cast<probes::TBarItem*>(Items()[0]);
    const Pixels before = Shown();
    Header->BeginUpdate();
    Header->BeginUpdate();
    const int draws = item->Draws;
    AddBar(60, clRed);
    Header->Refresh();
    Header->Invalidate();
    EXPECT_TRUE(SamePixels(Shown(), before));
    Header->EndUpdate();
    EXPECT_TRUE(Header->GetUpdating());
    EXPECT_TRUE(SamePixels(Shown(), before));
    EXPECT_EQ(item->Draws, draws);
    Header->EndUpdate();
    EXPECT_FALSE(Header->GetUpdating());
    EXPECT_EQ(item->Draws, draws + 1);
    EXPECT_EQ(Shown().At(60, 5), COLORREF{clRed});
    Header->EndUpdate();
    EXPECT_FALSE(Header->GetUpdating());
}

TEST_F(HeaderControlTest, ForgetsScrollAndHoverThatLiePastTheEnd) {
    AddBars({50, 60, 70});
    Header->ScrollBy(2);
    Header->SetIndexOfItemMouseOver(2);
    Header->BeginUpdate();
    Items().Delete(2);
    Items().Delete(1);
    EXPECT_EQ(Header->GetFirstVisibleIndex(), 2);
    EXPECT_EQ(Header->GetIndexOfItemMouseOver(), 2);
    EXPECT_EQ(Header->GetHotItem(), nullptr);
    Header->EndUpdate();
    EXPECT_EQ(Header->GetFirstVisibleIndex(), 0);
    EXPECT_EQ(Header->GetIndexOfItemMouseOver(), -1);
    EXPECT_TRUE(SamePixels(Shown(), Row({50})));
}

TEST_F(HeaderControlTest, ForgetsThemWithAPaintMessageToo) {
    AddBars({50, 60});
    Header->ScrollBy(1);
    Items().Delete(1);
    EXPECT_TRUE(SamePixels(Shown(), Row({50})));
    EXPECT_EQ(Header->GetFirstVisibleIndex(), 0);
}

TEST_F(HeaderControlTest, SelectsOneItemAlone) {
    AddBars({50, 60, 70});
    Header->SetSelectedItem(Items()[1]);
    Header->SetSelectedItem(Items()[2]);
    EXPECT_FALSE(Items()[1]->GetSelected());
    EXPECT_EQ(Header->GetSelectedItem(), Items()[2]);
    Header->SetSelectedItem(nullptr);
    EXPECT_EQ(Header->GetSelectedItem(), nullptr);
    Header->SetSelectedItem(nullptr);
    EXPECT_FALSE(Items()[2]->GetSelected());
}

TEST_F(HeaderControlTest, KnowsTheRectanglesOfItsItems) {
    AddBars({50, 60, 70});
    Items()[1]->SetVisible(false);
    EXPECT_EQ(Header->GetItemRect(0), TRect(0, 0, 50, 21));
    EXPECT_EQ(Header->GetItemRect(Items()[2]), TRect(50, 0, 120, 21));
    Header->SetIndexOfItemMouseOver(2);
    EXPECT_EQ(Header->GetHotItemRect(), TRect(50, 0, 120, 21));
    Header->ScrollBy(2);
    EXPECT_EQ(Header->GetItemRect(2), TRect(0, 0, 70, 21));
    EXPECT_TRUE(Header->GetItemRect(0).IsEmpty());
    EXPECT_TRUE(Header->GetItemRect(3).IsEmpty());
    EXPECT_TRUE(Header->GetItemRect(-1).IsEmpty());
    EXPECT_TRUE(Header->GetItemRect(nullptr).IsEmpty());
}

TEST_F(HeaderControlTest, FollowsTheMouse) {
    AddBars({50, 60});
    Input.MoveTo(Surface(), 55, 5);
    EXPECT_EQ(Header->GetHotItem(), Items()[1]);
    Input.MoveTo(Surface(), 5, 5);
    EXPECT_EQ(Header->GetIndexOfItemMouseOver(), 0);
    Input.MoveTo(Surface(), 200, 5);
    EXPECT_EQ(Header->GetIndexOfItemMouseOver(), -1);
    Input.MoveTo(Surface(), 5, 5);
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return Header->GetIndexOfItemMouseOver() == -1; }));
}

TEST_F(HeaderControlTest, PutsTheCursorOfItsSurfaceBackWhenTheMouseMoves) {
    AddBars({50});
    Header->GetPaintBox().SetCursor(crHandPoint);
    Input.MoveTo(Surface(), 5, 5);
    EXPECT_EQ(Header->GetPaintBox().GetCursor(), crDefault);
}

TEST_F(HeaderControlTest, ClicksTheItemUnderTheReleaseWithAnyButton) {
    AddBars({50, 60});
    Watch(*Items()[0], "A");
    Watch(*Items()[1], "B");
    std::vector<TMouseButton> buttons;
    Items()[1]->OnClick = [&](TQV7SkinHeaderItemCustom*, TMouseButton button, TShiftState, int, int) {
        buttons.push_back(button);
    };
    Input.MoveTo(Surface(), 5, 5);
    Input.Press();
    Input.MoveTo(Surface(), 58, 5);
    Input.Release();
    Input.ClickAt(Surface(), 58, 5, test::MouseButton::Right);
    Input.ClickAt(Surface(), 200, 5);
    EXPECT_EQ(buttons, (std::vector<TMouseButton>{mbLeft, mbRight}));
}

TEST_F(HeaderControlTest, RepaintsWhenItsSizeChanges) {
    AddBars({50, 60});
    Header->SetBounds(20, 30, 200, 34);
    EXPECT_TRUE(SamePixels(Shown(), [](int x, int) -> COLORREF {
        return x < 50 ? BarColor(0) : x < 110 ? BarColor(1) : RowColor;
    }));
    EXPECT_EQ(Shown().Height(), 34);
}

TEST_F(HeaderControlTest, MovesAnItemAndTells) {
    AddBars({50, 60, 70});
    TQV7SkinHeaderItemCustom* const first = Items()[0];
    std::vector<int> moves;
    Header->OnItemMoved = [&](TObject* sender, int from, int to) {
        EXPECT_EQ(sender, Header);
        moves = {from, to};
    };
    Header->Move(0, 2);
    EXPECT_EQ(Items()[2], first);
    EXPECT_EQ(moves, (std::vector<int>{0, 2}));
    EXPECT_EQ(Shown().At(0, 0), COLORREF{static_cast<COLORREF>(BarColor(1))});
}

TEST_F(HeaderControlTest, PublishesItsPropertiesInThisOrder) {
    std::vector<String> names;
    for (const auto& property : TQV7SkinHeaderControl::StaticClass().OwnProperties())
        names.push_back(property->Name());
    EXPECT_EQ(names, (std::vector<String>{L"AllowItemDrag", L"PopupMenu", L"Anchors", L"Align",
                                          L"HideClippedItems", L"ChevronDropDown", L"HorzOffset"}));
}

TEST_F(HeaderControlTest, GoesWithTheMouseOnIt) {
    AddBars({50});
    Watch(*Items()[0], "A");
    Input.MoveTo(Surface(), 10, 10);
    delete Header;
    Header = nullptr;
    Input.MoveAway();
    EXPECT_EQ(Log.front(), "enter A");
}

TEST_F(HeaderControlTest, ErasesNothing) {
    HWND window = Header->GetHandle();
    EXPECT_EQ(SendMessageW(window, WM_ERASEBKGND, 0, 0), 1);
}

TEST_F(HeaderControlTest, AChevronThatIsFreedIsMadeAnew) {
    AddBars({200, 200});
    ASSERT_TRUE(Header->GetChevronVisible());
    delete &Header->GetChevron();
    EXPECT_FALSE(Header->GetChevronVisible());
    Header->Refresh();
    EXPECT_TRUE(Header->GetChevronVisible());
}

TEST_F(HeaderControlTest, TheChevronComesBackInFrontOfOtherChildren) {
    AddBars({200, 200});
    Make<TPanel>({250, 0, 300, 21}, Header);
    Header->Refresh();
    EXPECT_EQ(Header->GetControl(Header->GetControlCount() - 1), &Header->GetChevron());
}

TEST_F(HeaderControlTest, ScrollingPaintsAtOnceAlsoWhereNothingMoves) {
    AddBars({50});
    const auto* const bar = static_cast<probes::TBarItem*>(Items()[0]);
    int draws = bar->Draws;
    Header->ScrollFirst();
    EXPECT_EQ(bar->Draws, ++draws);
    Header->ScrollLast();
    EXPECT_EQ(bar->Draws, ++draws);
    Header->ScrollBy(0);
    EXPECT_EQ(bar->Draws, ++draws);
}

TEST_F(HeaderControlTest, LetsGoOfAMenuThatIsFreed) {
    {
        TPopupMenu menu(nullptr);
        Header->SetChevronDropDown(&menu);
        EXPECT_EQ(Header->GetChevronDropDown(), &menu);
    }
    EXPECT_EQ(Header->GetChevronDropDown(), nullptr);
}

}  // namespace
}  // namespace qv7skin
