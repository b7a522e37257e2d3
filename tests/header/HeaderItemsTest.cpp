#include "header/items/HeaderItems.h"

#include "platform/vcl/core/Exceptions.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using HeaderItemsTest = probes::HeaderTest;

TEST_F(HeaderItemsTest, AddGivesTheItemToTheControlAndPaintsTheRow) {
    probes::TBarItem* const item = AddBar(50);
    EXPECT_EQ(item->GetOwner(), Header);
    EXPECT_EQ(item->Draws, 1);
    EXPECT_EQ(Items().GetCount(), 1);
    EXPECT_EQ(Items()[0], item);
}

TEST_F(HeaderItemsTest, TellsEachChangeOfTheCount) {
    std::vector<int> counts;
    TObject* sender = nullptr;
    Items().OnCountChanged = [&](TObject* s) {
        sender = s;
        counts.push_back(Items().GetCount());
    };
    AddBars({10, 20, 30, 40});
    EXPECT_EQ(sender, &Items());
    Items().Delete(0);
    delete Items().Extract(0);
    delete Items()[0];
    Items().CheckForItemCountChanges();
    Items().Clear();
    EXPECT_EQ(counts, (std::vector<int>{1, 2, 3, 4, 3, 2, 1, 0}));
}

TEST_F(HeaderItemsTest, ExtractedItemsLiveOnWithoutAControl) {
    probes::TBarItem* const item = AddBar(50);
    EXPECT_EQ(Items().Extract(item), item);
    EXPECT_EQ(item->GetOwner(), nullptr);
    EXPECT_EQ(Items().Extract(item), nullptr);
    EXPECT_EQ(Items().GetCount(), 0);
    delete item;
    const std::unique_ptr<probes::TBarItem> first(AddBar(20)), second(AddBar(30));
    Items().ClearWithoutFree();
    EXPECT_EQ(first->GetOwner(), nullptr);
    EXPECT_EQ(second->GetOwner(), nullptr);
    EXPECT_TRUE(Items().GetOwnsObjects());
    EXPECT_EQ(Items().GetCount(), 0);
}

TEST_F(HeaderItemsTest, AnItemAddedElsewhereLeavesItsFormerControl) {
    auto* const other = Make<probes::TProbeStrip>({20, 80, 320, 101});
    probes::TBarItem* const item = AddBar(50);
    EXPECT_EQ(other->GetItems().Add(item), 0);
    EXPECT_EQ(Items().GetCount(), 0);
    EXPECT_EQ(item->GetOwner(), other);
}

TEST_F(HeaderItemsTest, RaisesErrorsOfTheListForBadIndices) {
    AddBar(50);
    EXPECT_THROW(Items().Delete(1), EListError);
    EXPECT_THROW(static_cast<void>(Items()[-1]), EListError);
    EXPECT_EQ(Items().GetCount(), 1);
}

TEST_F(HeaderItemsTest, DeletingShowsWithTheNextPaintMessage) {
    AddBars({50, 60});
    test::PumpAll();
    Items().Delete(0);
    EXPECT_TRUE(
        SamePixels(Shown(), [](int x, int) -> COLORREF { return x < 60 ? BarColor(1) : probes::RowColor; }));
}

TEST_F(HeaderItemsTest, AListWithoutAControlKeepsItems) {
    TQV7SkinHeaderItems items(nullptr);
    int changes = 0;
    items.OnCountChanged = [&](TObject*) { ++changes; };
    items.Add(new probes::TBarItem(10, clRed));
    items.Delete(0);
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace qv7skin
