#include "platform/vcl/core/Geometry.h"

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

TEST(GeometryTest, RectanglesEndBeforeTheirRightAndBottomEdge) {
    constexpr TRect rect(2, 3, 5, 7);
    EXPECT_EQ(rect.Width(), 3);
    EXPECT_EQ(rect.Height(), 4);
    EXPECT_TRUE(rect.Contains({2, 3}));
    EXPECT_TRUE(rect.Contains({4, 6}));
    EXPECT_FALSE(rect.Contains({5, 6}));
    EXPECT_FALSE(rect.Contains({4, 7}));
    EXPECT_EQ(rect, TRect::OfSize(2, 3, 3, 4));
}

TEST(GeometryTest, ARectangleWithoutPixelsIsEmpty) {
    EXPECT_TRUE(TRect().IsEmpty());
    EXPECT_TRUE(TRect(5, 0, 5, 9).IsEmpty());
    EXPECT_TRUE(TRect(5, 0, 4, 9).IsEmpty());
    EXPECT_FALSE(TRect(0, 0, 1, 1).IsEmpty());
}

TEST(GeometryTest, RectanglesMoveAndGrow) {
    TRect rect(0, 0, 10, 10);
    rect.Offset(3, -2);
    EXPECT_EQ(rect, TRect(3, -2, 13, 8));
    rect.Inflate(1, 2);
    EXPECT_EQ(rect, TRect(2, -4, 14, 10));
    rect.Inflate(-1, -2);
    EXPECT_EQ(rect, TRect(3, -2, 13, 8));
}

TEST(GeometryTest, TheIntersectionOfDistantRectanglesIsEmpty) {
    EXPECT_EQ(TRect(0, 0, 10, 10).Intersect({5, 6, 20, 20}), TRect(5, 6, 10, 10));
    EXPECT_EQ(TRect(0, 0, 10, 10).Intersect({10, 0, 20, 10}), TRect());
}

TEST(GeometryTest, TypesOfTheSystemConvertWithoutLoss) {
    const RECT system = TRect(1, 2, 3, 4);
    EXPECT_EQ(TRect(system), TRect(1, 2, 3, 4));
    TRect rect;
    SetRect(rect.AsRect(), 5, 6, 7, 8);
    EXPECT_EQ(rect, TRect(5, 6, 7, 8));
    EXPECT_EQ(TPoint(POINT{1, 2}), TPoint(1, 2));
    EXPECT_EQ(TSize(SIZE{1, 2}), TSize(1, 2));
}

}  // namespace
}  // namespace vcl
