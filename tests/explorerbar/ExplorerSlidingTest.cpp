#include "tests/explorerbar/ExplorerBarFixture.h"

// A bar whose group is opening or closing: what counts as open, how high the content is, what is shown.

namespace qv7skin {
namespace {

class ExplorerSlidingTest : public probes::ExplorerBarTest {
protected:
    void SetUp() override {
        ExplorerBarTest::SetUp();
        Fill(2, 4);
        Bar().SetAnimate(true);
    }
    /// Starts a slide of the first group and lets it do some steps.
    void Slide(int steps) {
        Group(0).OpenClose();
        for (int i = 0; i < steps; ++i)
            Group(0).Timer(nullptr);
    }
    void CloseAtOnce() {
        Bar().SetAnimate(false);
        Group(0).OpenClose();
        Bar().SetAnimate(true);
        ASSERT_EQ(Group(0).GetState(), egsClosed);
    }
    [[nodiscard]] int Rows(int links) { return links * (LineHeight() + 1); }
};

TEST_F(ExplorerSlidingTest, AClosingGroupCountsAsClosedAndAnOpeningOneAsOpen) {
    const int open = 19 + 20 + Rows(4) + 1;
    Slide(3);
    ASSERT_EQ(Group(0).GetState(), egsClosing);
    EXPECT_TRUE(Group(0).IsClosed());
    EXPECT_EQ(Bar().GetContentHeight(), 1 + 19 + 1 + open);
    EXPECT_EQ(Bar().GetFocus().FindNextVisible({0, true, 0}, false), (TFocusIndex{1, true, 0}));
    Group(0).OpenClose();
    ASSERT_EQ(Group(0).GetState(), egsOpening);
    EXPECT_FALSE(Group(0).IsClosed());
    EXPECT_EQ(Bar().GetContentHeight(), 1 + 2 * open) << "the whole body, not what is seen of it";
    EXPECT_EQ(Bar().GetFocus().FindNextVisible({0, true, 0}, false), (TFocusIndex{0, false, 0}));
}

TEST_F(ExplorerSlidingTest, ABodyThatLosesItemsIsNoHigherThanTheRest) {
    Slide(2);
    ASSERT_EQ(Group(0).GetState(), egsClosing);
    ASSERT_GT(Group(0).GetBodyHeight(), 20 + Rows(1));
    for (int i = 1; i < 4; ++i)
        Item(0, i).SetVisible(false);
    EXPECT_EQ(Group(0).GetFullHeight(), 20 + Rows(1));
    EXPECT_EQ(Group(0).GetBodyHeight(), 20 + Rows(1));
}

TEST_F(ExplorerSlidingTest, AGroupThatShowsNothingStaysAsItIs) {
    Bar().GetGroups().Add(L"empty", false);
    Group(2).OpenClose();
    EXPECT_EQ(Group(2).GetState(), egsOpen);
    CloseAtOnce();
    for (int i = 0; i < 4; ++i)
        Item(0, i).SetVisible(false);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsClosed);
}

TEST_F(ExplorerSlidingTest, WithoutAnimationASlideEndsAtOnce) {
    Slide(2);
    ASSERT_EQ(Group(0).GetState(), egsClosing);
    Bar().SetAnimate(false);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsOpen);
    EXPECT_EQ(Group(0).GetBodyHeight(), Group(0).GetFullHeight());
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerSlidingTest, ABodyFadesTowardsTheBarsFadeColor) {
    Bar().FadeColor = clBlack;
    Slide(4);
    ASSERT_EQ(Group(0).GetState(), egsClosing);
    const int shown = Group(0).GetBodyHeight();
    const int full = Group(0).GetFullHeight();
    // The margin of the white body, of which that much is left.
    const int grey = 255 * shown / full;
    const TColor color = Box().GetBuffer().GetCanvas().GetPixel(2, Group(0).BodyRect().Bottom - 3);
    for (const int component : {RedOf(color), GreenOf(color), BlueOf(color)})
        EXPECT_NEAR(component, grey, 1);
}

TEST_F(ExplorerSlidingTest, TheScrollRangeDoesNotShrinkUnderAClosingGroup) {
    // Content that is just too high for the bar, and fits without the first body.
    Bar().SetHeight(Bar().GetContentHeight() - 10);
    ASSERT_TRUE(HasScrollBar());
    const int room = Bar().GetClientHeight();
    Slide(1);
    ASSERT_LT(Bar().GetContentHeight(), room - 1);
    EXPECT_EQ(Box().GetHeight(), room - 1);
    EXPECT_TRUE(HasScrollBar());
    while (Group(0).GetState() == egsClosing)
        Group(0).Timer(nullptr);
    EXPECT_EQ(Box().GetHeight(), Bar().GetContentHeight());
    EXPECT_FALSE(HasScrollBar());
}

}  // namespace
}  // namespace qv7skin
