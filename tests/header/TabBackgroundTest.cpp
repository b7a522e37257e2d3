#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::Pixels;
using test::SamePixels;

constexpr TColor LightFill = 0x00E0DBDA;

class TabBackgrounds : public StripTest<TQV7SkinSimpleTabControl> {
protected:
    [[nodiscard]] Pixels Background(int state, int width, int height) {
        TBitmap bitmap(width, height, pf24bit);
        Strip->DrawBackground(bitmap, state);
        return test::ReadBitmap(bitmap.GetHandle());
    }
};

TEST_F(TabBackgrounds, EveryStateHasItsFillAndItsPieces) {
    Strip->Loaded();
    for (const int height : {18, 20, 21, 27, 34}) {
        EXPECT_TRUE(SamePixels(Background(0, 60, height), ComposedTab(L"TABDEFAULT", LightFill, 60, height)));
        EXPECT_TRUE(SamePixels(Background(1, 60, height), ComposedTab(L"TABHOVERED", LightFill, 60, height)));
        EXPECT_TRUE(SamePixels(Background(2, 60, height), ComposedTab(L"TABPRESSED", clBlack, 60, height)));
    }
}

TEST_F(TabBackgrounds, TheWhiteLookHasNoHoveredPiecesOfItsOwn) {
    Strip->TabBackground = bckgrndWhite;
    Strip->Loaded();
    EXPECT_TRUE(SamePixels(Background(0, 70, 25), ComposedTab(L"WHITETABDEFAULT", clWhite, 70, 25)));
    EXPECT_TRUE(SamePixels(Background(1, 70, 25), ComposedTab(L"WHITETABDEFAULT", clWhite, 70, 25)));
    EXPECT_TRUE(SamePixels(Background(2, 70, 25), ComposedTab(L"WHITETABPRESSED", clWhite, 70, 25)));
}

TEST_F(TabBackgrounds, ATabNoHigherThanItsCornersHasNoSides) {
    Strip->Loaded();
    // 11 and 9 rows of corners: the side pieces begin at 21 pixels.
    const Pixels low = Background(0, 60, 20);
    const Pixels corner = Piece(L"TABDEFAULTTOPRIGHT");
    EXPECT_EQ(low.At(59, 10), corner.At(corner.Width() - 1, 10));
    const Pixels side = Piece(L"TABDEFAULTRIGHTCENTER");
    EXPECT_EQ(Background(0, 60, 21).At(59, 11), side.At(side.Width() - 1, 0));
}

TEST_F(TabBackgrounds, WithoutTheLoadingStepThereAreNoPieces) {
    EXPECT_TRUE(SamePixels(Background(0, 40, 21), Pixels(40, 21, LightFill)));
    EXPECT_TRUE(SamePixels(Background(2, 40, 21), Pixels(40, 21, 0)));
}

TEST_F(TabBackgrounds, LoadingBringsThePiecesToTabsThatShow) {
    AddBlank(60);
    const int height = Strip->GetHeight();
    EXPECT_TRUE(SamePixels(ShownAt(0, 60), Pixels(60, height, LightFill)));
    Strip->Loaded();
    EXPECT_TRUE(
        SamePixels(ShownAt(0, 60), Over(StripColor, ComposedTab(L"TABDEFAULT", LightFill, 60, height))));
}

TEST_F(TabBackgrounds, AChangeAfterLoadingKeepsThePieces) {
    Strip->Loaded();
    Strip->TabBackground = bckgrndWhite;
    EXPECT_TRUE(SamePixels(Background(0, 60, 21), ComposedTab(L"TABDEFAULT", clWhite, 60, 21)));
    Strip->Loaded();
    EXPECT_TRUE(SamePixels(Background(0, 60, 21), ComposedTab(L"WHITETABDEFAULT", clWhite, 60, 21)));
}

TEST_F(TabBackgrounds, TabsShowTheStateThatTheyAreIn) {
    Strip->Loaded();
    AddBlank(60);
    AddBlank(60);
    AddBlank(60)->SetSelected(true);
    const int height = Strip->GetHeight();
    const Pixels resting = Over(StripColor, ComposedTab(L"TABDEFAULT", LightFill, 60, height));
    const Pixels hovered = Over(StripColor, ComposedTab(L"TABHOVERED", LightFill, 60, height));
    const Pixels selected = Over(StripColor, ComposedTab(L"TABPRESSED", clBlack, 60, height));
    EXPECT_TRUE(SamePixels(ShownAt(0, 60), resting));
    EXPECT_TRUE(SamePixels(ShownAt(120, 60), selected));
    Input.MoveTo(Surface(), 30, 10);
    EXPECT_TRUE(SamePixels(ShownAt(0, 60), hovered));
    Input.MoveTo(Surface(), 90, 10);
    EXPECT_TRUE(SamePixels(ShownAt(0, 60), resting));
    EXPECT_TRUE(SamePixels(ShownAt(60, 60), hovered));
    Input.MoveTo(Surface(), 150, 10);
    EXPECT_TRUE(SamePixels(ShownAt(60, 60), resting));
    EXPECT_TRUE(SamePixels(ShownAt(120, 60), selected)) << "a selected tab does not show the mouse";
    Input.Click();
    Input.ClickAt(Surface(), 30, 10);
    EXPECT_TRUE(SamePixels(ShownAt(0, 60), selected));
    EXPECT_TRUE(SamePixels(ShownAt(120, 60), resting));
}

TEST_F(TabBackgrounds, AWhiteTabDoesNotShowTheMouse) {
    Strip->TabBackground = bckgrndWhite;
    Strip->Loaded();
    AddBlank(60, bckgrndWhite);
    const Pixels before = Shown();
    Input.MoveTo(Surface(), 30, 10);
    EXPECT_EQ(Strip->GetIndexOfItemMouseOver(), 0);
    EXPECT_TRUE(SamePixels(Shown(), before));
}

TEST_F(TabBackgrounds, OnlyTheShapeIsHitAtEveryPixel) {
    Strip->Loaded();
    AddBlank(60);
    AddBlank(50);
    (void)Shown();
    const int height = Strip->GetHeight();
    const Pixels first = ComposedTab(L"TABDEFAULT", LightFill, 60, height);
    const Pixels second = ComposedTab(L"TABDEFAULT", LightFill, 50, height);
    int missed = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < 120; ++x) {
            int expected = -1;
            if (x < 60 && first.At(x, y) != static_cast<COLORREF>(NoPixel)) expected = 0;
            if (x >= 60 && x < 110 && second.At(x - 60, y) != static_cast<COLORREF>(NoPixel)) expected = 1;
            missed += expected < 0 && x < 110;
            ASSERT_EQ(Strip->GetItemIndexAt(x, y), expected) << x << ", " << y;
        }
    EXPECT_GT(missed, 0) << "the corners of a tab are cut off";
}

TEST_F(TabBackgrounds, TheWhiteLookHasALineAlongTheLowerEdge) {
    Strip->Loaded();
    const int bottom = Strip->GetHeight() - 1;
    EXPECT_TRUE(SamePixels(Shown(), Pixels(300, bottom + 1, StripColor)));
    Strip->TabBackground = bckgrndWhite;
    Strip->Repaint();
    EXPECT_TRUE(SamePixels(Shown(), [&](int, int y) -> COLORREF {
        return y == bottom ? 0x00555555 : static_cast<COLORREF>(StripColor);
    }));
}

TEST_F(TabBackgrounds, TabsMayBeDraggedFromTheStart) {
    EXPECT_TRUE(Strip->GetAllowItemDrag());
    EXPECT_EQ(Strip->TabBackground, bckgrndStandard);
    EXPECT_FALSE(Strip->OnQueryTabSwitch.IsAssigned());
}

}  // namespace
}  // namespace qv7skin
