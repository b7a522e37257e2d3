#include "platform/vcl/graphics/ImageList.h"
#include "tests/explorerbar/ExplorerBarFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::PumpAll;
using test::PumpUntil;

enum class TEventOf { Click, Enter, Leave };
enum class TFreed { Item, Group, Bar };

/// A handler of the second item frees the item, its group or the bar.
class FreedByItemTest : public ExplorerBarTest,
                        public testing::WithParamInterface<std::tuple<TEventOf, TFreed>> {
protected:
    void FreeIt(TFreed what) {
        switch (what) {
            case TFreed::Item:
                return Group(0).GetItems().Delete(1);
            case TFreed::Group:
                return Bar().GetGroups().Delete(0);
            case TFreed::Bar:
                return Bar().Free();
        }
    }
};

TEST_P(FreedByItemTest, NothingTouchesWhatIsGone) {
    const auto [event, freed] = GetParam();
    Fill(2, 3);
    bool raised = false;
    const auto handler = [this, &raised, freed = freed](TObject*) {
        raised = true;
        FreeIt(freed);
    };
    const POINT second = OnScreen(Item(0, 1).ClipRect());
    const POINT third = OnScreen(Item(0, 2).ClipRect());
    if (event == TEventOf::Click) Item(0, 1).OnClick = TNotifyEvent(handler);
    if (event == TEventOf::Enter) Item(0, 1).OnEnter = TNotifyEvent(handler);
    if (event == TEventOf::Leave) Item(0, 1).OnLeave = TNotifyEvent(handler);
    Input.MoveTo(second);
    Input.Press();
    Input.Release();
    Input.MoveTo(third);
    PumpAll();
    EXPECT_TRUE(raised);
    if (freed == TFreed::Bar) {
        EXPECT_EQ(Form().GetControlCount(), 0);
        return;
    }
    EXPECT_EQ(Bar().GetGroups().GetCount(), freed == TFreed::Group ? 1 : 2);
    Input.MoveAway();
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

INSTANTIATE_TEST_SUITE_P(Each, FreedByItemTest,
                         testing::Combine(testing::Values(TEventOf::Click, TEventOf::Enter, TEventOf::Leave),
                                          testing::Values(TFreed::Item, TFreed::Group, TFreed::Bar)));

class ExplorerBarFreedTest : public ExplorerBarTest {};

TEST_F(ExplorerBarFreedTest, AKeyMayFreeTheBar) {
    Fill(1, 1);
    Item(0, 0).OnClick = [this](TObject*) { Bar().Free(); };
    Bar().SetFocus();
    Input.KeyPress(VK_TAB);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(ExplorerBarFreedTest, TheHandlerOfLeavingMayFreeTheBar) {
    Fill(1, 1);
    Bar().OnLeave = [this](TObject*) { Bar().Free(); };
    MoveTo(Item(0, 0));
    Input.MoveAway();
    EXPECT_TRUE(PumpUntil([&] { return Form().GetControlCount() == 0; }));
}

TEST_F(ExplorerBarFreedTest, TheFormMayBeClosedAndFreedDuringASlide) {
    auto form = std::make_unique<TForm>(nullptr);
    form->SetBounds(50, 50, 300, 400);
    auto* bar = new TQV7SkinExplorerBar(form.get());
    bar->SetParent(form.get());
    bar->BeginUpdate();
    auto* group = bar->GetGroups().Add(L"Group", false);
    for (int i = 0; i < 10; ++i)
        group->GetItems().Add(new TLink(L"Link", L""));
    bar->EndUpdate();
    form->Show();
    group->OpenClose();
    bar->ShowAnimate();
    const int height = group->GetBodyHeight();
    ASSERT_TRUE(PumpUntil([&] { return group->GetBodyHeight() < height; }));
    ASSERT_EQ(group->GetState(), egsClosing);
    form->Close();
    PumpAll();
    form.reset();
    PumpAll();
}

TEST_F(ExplorerBarFreedTest, AHotItemThatIsTakenOutIsForgotten) {
    Fill(1, 2);
    MoveTo(Item(0, 0));
    ASSERT_EQ(Bar().HotObject, &Item(0, 0));
    const std::unique_ptr<TQV7SkinExplorerItemCustom> item(Group(0).GetItems().Extract(0));
    EXPECT_EQ(Bar().HotObject, nullptr);
    EXPECT_EQ(item->GetOwner(), nullptr);
}

TEST_F(ExplorerBarFreedTest, AGroupThatIsTakenOutForgetsItsBar) {
    Fill(2, 2);
    MoveTo(Item(0, 0));
    const std::unique_ptr<TQV7SkinExplorerGroup> group(Bar().GetGroups().Extract(&Group(0)));
    EXPECT_EQ(Bar().HotObject, nullptr);
    EXPECT_EQ(group->GetExBar(), nullptr);
    group->SetTitle(L"alone");
    group->GetItems().Delete(0);
    group->OpenClose();
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarFreedTest, ImageListsThatGoAreForgotten) {
    auto icons = std::make_unique<TImageList>(nullptr);
    Bar().SetGroupIcons(icons.get());
    Bar().SetItemIcons(icons.get());
    icons.reset();
    EXPECT_EQ(Bar().GetGroupIcons(), nullptr);
    EXPECT_EQ(Bar().GetItemIcons(), nullptr);
}

}  // namespace
}  // namespace qv7skin
