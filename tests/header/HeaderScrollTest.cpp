#include "header/control/HeaderControl.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

/// Ten items of 50 pixels in a strip of 300.
class HeaderScrollTest : public probes::HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        AddBars(std::vector<int>(10, 50));
    }
    [[nodiscard]] int First() const { return Header->GetFirstVisibleIndex(); }
};

TEST_F(HeaderScrollTest, ScrollsByWholeItems) {
    Header->ScrollBy(3);
    EXPECT_EQ(First(), 3);
    EXPECT_EQ(Shown().At(0, 0), static_cast<COLORREF>(BarColor(3)));
    EXPECT_EQ(Header->GetItemIndexAt(60, 5), 4);
    Header->ScrollBy(-2);
    EXPECT_EQ(First(), 1);
}

TEST_F(HeaderScrollTest, IgnoresAStepThatLeavesTheRow) {
    Header->ScrollBy(3);
    Header->ScrollBy(-4);
    EXPECT_EQ(First(), 3);
    Header->ScrollBy(7);
    EXPECT_EQ(First(), 3);
    Header->ScrollBy(6);
    EXPECT_EQ(First(), 9);
    Header->ScrollBy(-9);
    EXPECT_EQ(First(), 0);
}

TEST_F(HeaderScrollTest, KnowsWhetherItCanScroll) {
    EXPECT_FALSE(Header->CanScrollPrior());
    EXPECT_TRUE(Header->CanScrollNext());
    Header->ScrollBy(4);
    EXPECT_TRUE(Header->CanScrollPrior());
    // 300 pixels are left: they fit the paint box, but not beside the chevron.
    EXPECT_TRUE(Header->CanScrollNext());
    Header->ScrollBy(2);
    EXPECT_FALSE(Header->CanScrollNext());
}

TEST_F(HeaderScrollTest, AChevronThatIsHiddenTakesNoRoom) {
    while (Items().GetCount() > 6)
        Items().Delete(6);
    test::PumpAll();
    EXPECT_FALSE(Header->GetChevronVisible());
    EXPECT_FALSE(Header->CanScrollNext());
}

TEST_F(HeaderScrollTest, ScrollsToBothEnds) {
    Header->ScrollLast();
    EXPECT_EQ(First(), 4);
    Header->ScrollFirst();
    EXPECT_EQ(First(), 0);
}

TEST_F(HeaderScrollTest, ScrollsToTheEndByAllWidthsAlsoThoseOfInvisibleItems) {
    Items()[9]->SetVisible(false);
    Header->ScrollLast();
    EXPECT_EQ(First(), 4);
}

TEST_F(HeaderScrollTest, StaysAtTheLastItemWhenThatDoesNotFit) {
    static_cast<probes::TBarItem*>(Items()[9])->Width = 400;
    Header->ScrollLast();
    EXPECT_EQ(First(), 9);
}

TEST_F(HeaderScrollTest, DoesNotScrollToTheEndWhenAllFits) {
    while (Items().GetCount() > 6)
        Items().Delete(6);
    Header->ScrollBy(2);
    Header->ScrollLast();
    EXPECT_EQ(First(), 2);
}

TEST_F(HeaderScrollTest, ScrollsAnItemIntoViewFromTheLeft) {
    Header->ScrollBy(5);
    Header->ScrollInView(2);
    EXPECT_EQ(First(), 2);
}

TEST_F(HeaderScrollTest, ScrollsAnItemIntoViewFromTheRightNoFartherThanNeeded) {
    Header->ScrollInView(5);
    EXPECT_EQ(First(), 0);
    Header->ScrollInView(6);
    EXPECT_EQ(First(), 1);
    Header->ScrollInView(Items()[9]);
    EXPECT_EQ(First(), 4);
}

TEST_F(HeaderScrollTest, CountsTheMarginsWhereItemsAreHidden) {
    Header->SetHorzOffset(10);
    Header->ScrollInView(5);
    EXPECT_EQ(First(), 0);
    Header->SetHideClippedItems(true);
    Header->ScrollInView(5);
    EXPECT_EQ(First(), 1);
}

TEST_F(HeaderScrollTest, DoesNotScrollToWhatDoesNotFitOrIsNotThere) {
    static_cast<probes::TBarItem*>(Items()[7])->Width = 301;
    Header->ScrollInView(7);
    EXPECT_EQ(First(), 0);
    Header->ScrollInView(10);
    Header->ScrollInView(-1);
    Header->ScrollInView(nullptr);
    const probes::TBarItem foreign(10, clRed);
    Header->ScrollInView(&foreign);
    EXPECT_EQ(First(), 0);
}

TEST_F(HeaderScrollTest, ShowsTheChevronAtTheRightEdgeWhenTheRowIsTooLong) {
    EXPECT_TRUE(Header->GetChevronVisible());
    EXPECT_EQ(Header->GetChevron().GetBoundsRect(), TRect(248, 0, 300, 21));
    Header->SetWidth(400);
    EXPECT_EQ(Header->GetChevron().GetBoundsRect(), TRect(348, 0, 400, 21));
    Header->SetWidth(500);
    EXPECT_FALSE(Header->GetChevronVisible());
    Header->SetHorzOffset(1);
    EXPECT_TRUE(Header->GetChevronVisible());
}

TEST_F(HeaderScrollTest, KeepsTheChevronWhenTheRestOfTheRowFits) {
    Header->ScrollBy(9);
    EXPECT_TRUE(Header->GetChevronVisible());
}

TEST_F(HeaderScrollTest, InvisibleItemsNeedNoChevron) {
    for (int i = 6; i < 10; ++i)
        Items()[i]->SetVisible(false);
    test::PumpAll();
    EXPECT_FALSE(Header->GetChevronVisible());
}

TEST_F(HeaderScrollTest, PaintsAsManyItemsOfALongRowAsOfAShortOne) {
    Header->BeginUpdate();
    AddBars(std::vector<int>(990, 50));
    Header->EndUpdate();
    const auto draws = [&] {
        int sum = 0;
        for (int i = 0; i < Items().GetCount(); ++i)
            sum += static_cast<probes::TBarItem*>(Items()[i])->Draws;
        return sum;
    };
    for (const int first : {0, 500}) {
        Header->ScrollBy(first - First());
        const int before = draws();
        Header->Refresh();
        EXPECT_EQ(draws() - before, 7) << first;
        EXPECT_EQ(Header->GetItemIndexAt(120, 5), first + 2);
    }
}

}  // namespace
}  // namespace qv7skin
