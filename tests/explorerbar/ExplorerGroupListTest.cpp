#include <memory>

#include "tests/explorerbar/ExplorerBarFixture.h"

// The list of a bar's groups: what comes, goes and moves, and what the bar makes of it.

namespace qv7skin {
namespace {

class ExplorerGroupListTest : public probes::ExplorerBarTest {
protected:
    void SetUp() override {
        ExplorerBarTest::SetUp();
        Fill(3, 1);
    }
    TQV7SkinExplorerGroups& Groups() { return Bar().GetGroups(); }
    /// The titles from top to bottom as the bar shows them.
    [[nodiscard]] std::vector<String> ShownTitles() {
        std::vector<String> titles;
        int top = 0;
        for (int i = 0; i < Groups().GetCount(); ++i) {
            EXPECT_EQ(Group(i).HeaderRect().Top, top) << "painted since";
            EXPECT_EQ(Group(i).GetExBar(), &Bar());
            EXPECT_EQ(Group(i).GetWidth(), Bar().GetClientWidth());
            top = Group(i).BodyRect().Bottom + (Group(i).IsClosed() ? 1 : 0);
            titles.push_back(Group(i).GetTitle());
        }
        EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
        return titles;
    }
};

TEST_F(ExplorerGroupListTest, AGroupOfTheHostComesWhereItIsPut) {
    auto* group = new TQV7SkinExplorerGroup(nullptr);
    group->SetTitle(L"host's");
    EXPECT_EQ(Groups().Add(group), 3);
    auto* first = new TQV7SkinExplorerGroup(nullptr);
    first->SetTitle(L"first");
    Groups().Insert(0, first);
    EXPECT_EQ(ShownTitles(), (std::vector<String>{L"first", L"Group 0", L"Group 1", L"Group 2", L"host's"}));
}

TEST_F(ExplorerGroupListTest, GroupsMove) {
    Groups().Move(0, 2);
    EXPECT_EQ(ShownTitles(), (std::vector<String>{L"Group 1", L"Group 2", L"Group 0"}));
}

TEST_F(ExplorerGroupListTest, AReplacedGroupIsFreedAndTheNewOneShows) {
    auto* group = new TQV7SkinExplorerGroup(nullptr);
    group->SetTitle(L"new");
    Bar().HotObject = &Group(1);
    Groups().SetItem(1, group);
    EXPECT_EQ(Groups().GetItem(1), group);
    EXPECT_EQ(Bar().HotObject, nullptr);
    Groups().SetItem(1, group);
    EXPECT_EQ(ShownTitles(), (std::vector<String>{L"Group 0", L"new", L"Group 2"}));
}

TEST_F(ExplorerGroupListTest, GroupsAreRemovedByTheirPlaceAndByThemselves) {
    EXPECT_EQ(Groups().Remove(&Group(1)), 1);
    EXPECT_EQ(ShownTitles(), (std::vector<String>{L"Group 0", L"Group 2"}));
    TQV7SkinExplorerGroup stranger(nullptr);
    EXPECT_EQ(Groups().Remove(&stranger), -1);
    Groups().Delete(0);
    EXPECT_EQ(ShownTitles(), (std::vector<String>{L"Group 2"}));
    Groups().Clear();
    EXPECT_EQ(Bar().GetContentHeight(), 1);
    EXPECT_FALSE(Bar().GetTabStop());
}

TEST_F(ExplorerGroupListTest, AnExtractedGroupIsTheHostsAndForgottenByTheBar) {
    MoveTo(Item(1, 0));
    ASSERT_EQ(Bar().HotObject, &Item(1, 0));
    const std::unique_ptr<TQV7SkinExplorerGroup> taken(Groups().Extract(&Group(1)));
    EXPECT_EQ(taken->GetTitle(), L"Group 1");
    EXPECT_EQ(taken->GetExBar(), nullptr);
    EXPECT_NE(Bar().HotObject, taken->GetItems()[0]);
    EXPECT_EQ(Groups().Extract(taken.get()), nullptr);
    EXPECT_EQ(ShownTitles(), (std::vector<String>{L"Group 0", L"Group 2"}));
}

}  // namespace
}  // namespace qv7skin
