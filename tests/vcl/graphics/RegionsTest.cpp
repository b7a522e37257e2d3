#include "platform/vcl/graphics/Regions.h"

#include <random>

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

class RegionsTest : public test::LedgerTest {
protected:
    static bool Equal(const TRegionHandle& a, const TRegionHandle& b) {
        return ::EqualRgn(a.Get(), b.Get()) != FALSE;
    }
    /// The same union, one rectangle after the other.
    static TRegionHandle Reference(std::span<const RECT> rects) {
        TRegionHandle all = RectRegion({});
        for (const RECT& r : rects)
            ::CombineRgn(all.Get(), all.Get(), RectRegion(r).Get(), RGN_OR);
        return all;
    }
};

TEST_F(RegionsTest, ARectangleIsARegion) {
    const TRegionHandle region = RectRegion({1, 2, 30, 40});
    RECT box{};
    EXPECT_EQ(::GetRgnBox(region.Get(), &box), SIMPLEREGION);
    EXPECT_EQ(TRect(box), TRect(1, 2, 30, 40));
}

TEST_F(RegionsTest, NoRectanglesMakeAnEmptyRegion) {
    RECT box{};
    EXPECT_EQ(::GetRgnBox(UnionOfRects({}).Get(), &box), NULLREGION);
}

TEST_F(RegionsTest, TheUnionHoldsEveryRectangle) {
    std::mt19937 random(7);
    for (const std::size_t count : {1U, 2U, 31U, 32U, 33U, 64U, 65U, 500U}) {
        std::vector<RECT> rects;
        for (std::size_t i = 0; i < count; ++i) {
            const int x = static_cast<int>(random() % 200);
            const int y = static_cast<int>(random() % 200);
            rects.push_back(
                {x, y, x + 1 + static_cast<int>(random() % 20), y + 1 + static_cast<int>(random() % 5)});
        }
        EXPECT_TRUE(Equal(UnionOfRects(rects), Reference(rects))) << count;
    }
}

TEST_F(RegionsTest, TheRectanglesOfARegionMakeItAgain) {
    const RECT rects[] = {{0, 0, 5, 1}, {7, 0, 9, 1}, {0, 1, 2, 2}};
    const TRegionHandle region = UnionOfRects(rects);
    const std::vector<RECT> back = RectsOfRegion(region.Get());
    ASSERT_EQ(back.size(), 3U);
    EXPECT_EQ(TRect(back[1]), TRect(7, 0, 9, 1));
    EXPECT_TRUE(Equal(UnionOfRects(back), region));
    EXPECT_TRUE(RectsOfRegion(nullptr).empty());
    EXPECT_TRUE(RectsOfRegion(RectRegion({}).Get()).empty());
}

TEST_F(RegionsTest, ACopyIsARegionOfItsOwn) {
    const TRegionHandle region = RectRegion({1, 2, 3, 4});
    const TRegionHandle copy = CopyRegion(region.Get());
    EXPECT_NE(copy.Get(), region.Get());
    EXPECT_TRUE(Equal(copy, region));
}

}  // namespace
}  // namespace vcl
