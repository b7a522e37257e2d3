#include "skin/utils/RectHelper.h"

#include <gtest/gtest.h>

namespace qv7skin {
namespace {

TEST(RectHelperTest, MeasuresAndFindsTheMiddle) {
    const TRect r(10, 20, 33, 48);
    EXPECT_EQ(TRectHelper::Width(r), 23);
    EXPECT_EQ(TRectHelper::Height(r), 28);
    EXPECT_EQ(TRectHelper::CenterH(r), 10 + 11);
    EXPECT_EQ(TRectHelper::CenterV(r), 20 + 14);
}

TEST(RectHelperTest, HalvesOfNegativeSizesTruncateTowardZero) {
    const TRect inverted(10, 10, 5, 3);
    EXPECT_EQ(TRectHelper::CenterH(inverted), 10 - 2);
    EXPECT_EQ(TRectHelper::CenterV(inverted), 10 - 3);
}

TEST(RectHelperTest, OnlyTheZeroRectangleIsEmpty) {
    EXPECT_TRUE(TRectHelper::IsEmptyRect({0, 0, 0, 0}));
    EXPECT_FALSE(TRectHelper::IsEmptyRect({5, 5, 5, 5}));
    EXPECT_FALSE(TRectHelper::IsEmptyRect({0, 0, 0, 1}));
    EXPECT_FALSE(TRectHelper::IsEmptyRect({-1, 0, 0, 0}));
}

TEST(RectHelperTest, ShrinkingTakesTheSmallerSizeAtTheSecondPlace) {
    EXPECT_EQ(TRectHelper::ShrinkRect({0, 0, 10, 50}, {5, 6, 25, 26}), TRect(5, 6, 15, 26));
    EXPECT_EQ(TRectHelper::ShrinkRect({0, 0, 100, 100}, {5, 6, 25, 26}), TRect(5, 6, 25, 26));
}

TEST(RectHelperTest, CentersInTheWantedDirections) {
    const TRect bounds(100, 200, 200, 300), r(3, 4, 13, 24);
    EXPECT_EQ(TRectHelper::CenterRectInRect(bounds, r, {crtHorizontal, crtVertical}),
              TRect(145, 240, 155, 260));
    EXPECT_EQ(TRectHelper::CenterRectInRect(bounds, r, {crtHorizontal}), TRect(145, 4, 155, 24));
    EXPECT_EQ(TRectHelper::CenterRectInRect(bounds, r, {crtVertical}), TRect(3, 240, 13, 260));
}

TEST(RectHelperTest, CenteringInNoDirectionGoesToTheCornerOfTheBounds) {
    EXPECT_EQ(TRectHelper::CenterRectInRect({100, 200, 200, 300}, {3, 4, 13, 24}, {}),
              TRect(100, 200, 110, 220));
}

TEST(RectHelperTest, CentersWhatIsLargerThanTheBounds) {
    EXPECT_EQ(TRectHelper::CenterRectInRect({0, 0, 10, 10}, {0, 0, 15, 13}, {crtHorizontal, crtVertical}),
              TRect(-2, -1, 13, 12));
}

TEST(RectHelperTest, TextNamesTopBottomLeftRight) {
    EXPECT_EQ(TRectHelper::AsString({3, 1, 4, 2}), L"Top: 1 - Bottom: 2 - Left: 3 - Right: 4");
    EXPECT_EQ(TRectHelper::AsString({-3, -1, 0, 0}), L"Top: -1 - Bottom: 0 - Left: -3 - Right: 0");
}

}  // namespace
}  // namespace qv7skin
