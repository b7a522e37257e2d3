#include "skin/utils/BitmapRegion.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Regions.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;

constexpr COLORREF Inside = 0x00FFFFFF;

/// White where the region is.
Pixels PixelsOfRegion(const TRegionHandle& region, int width, int height) {
    Pixels result(width, height);
    for (const RECT& r : RectsOfRegion(region.Get()))
        for (LONG y = r.top; y < r.bottom; ++y)
            for (LONG x = r.left; x < r.right; ++x)
                result.Set(x, y, Inside);
    return result;
}

TRect BoundsOf(const TRegionHandle& region) {
    RECT box;
    GetRgnBox(region.Get(), &box);
    return box;
}

class BitmapRegionTest : public test::LedgerTest {
protected:
    /// Compares the region with the rule, both ways round.
    static void ExpectRule(const Pixels& picture, TPixelFormat format, TColor transparent) {
        const auto bitmap = BitmapOf(picture, format);
        const Pixels shown = PixelsOf(*bitmap);
        const COLORREF left = ColorToRGB(transparent);
        for (const bool inverse : {false, true}) {
            const TRegionHandle region = BitmapToRegion(bitmap.get(), transparent, inverse);
            ASSERT_TRUE(region);
            EXPECT_TRUE(
                SamePixels(PixelsOfRegion(region, shown.Width(), shown.Height()),
                           [&](int x, int y) { return (shown.At(x, y) == left) == inverse ? Inside : 0; }))
                << "inverse " << inverse << ", format " << static_cast<int>(format);
        }
    }
};

TEST_F(BitmapRegionTest, NoBitmapAndNoPixelsHaveNoRegion) {
    EXPECT_FALSE(BitmapToRegion(nullptr, false));
    EXPECT_FALSE(BitmapToRegion(nullptr, clRed, true));
    TBitmap empty;
    EXPECT_FALSE(BitmapToRegion(&empty, false));
}

TEST_F(BitmapRegionTest, AllMagentaIsEmptyAndInverselyTheWholeRectangle) {
    const auto bitmap = BitmapOf(13, 9, Magenta);
    const TRegionHandle region = BitmapToRegion(bitmap.get(), false);
    ASSERT_TRUE(region);
    EXPECT_TRUE(RectsOfRegion(region.Get()).empty());
    const TRegionHandle inverse = BitmapToRegion(bitmap.get(), true);
    ASSERT_EQ(RectsOfRegion(inverse.Get()).size(), 1U);
    EXPECT_EQ(BoundsOf(inverse), TRect(0, 0, 13, 9));
}

TEST_F(BitmapRegionTest, ASinglePixelIsARegion) {
    EXPECT_EQ(BoundsOf(BitmapToRegion(BitmapOf(1, 1, clBlack).get(), false)), TRect(0, 0, 1, 1));
    EXPECT_TRUE(RectsOfRegion(BitmapToRegion(BitmapOf(1, 1, clBlack).get(), true).Get()).empty());
    Pixels picture(7, 5, Magenta);
    picture.Set(6, 4, clBlack);
    EXPECT_EQ(BoundsOf(BitmapToRegion(BitmapOf(picture).get(), false)), TRect(6, 4, 7, 5));
}

TEST_F(BitmapRegionTest, AllThreeComponentsAreCompared) {
    const Pixels picture(4, 1, [](int x, int) -> COLORREF {
        constexpr COLORREF colors[] = {0x00FF00FF, 0x00FF00FE, 0x00FE00FF, 0x00FF01FF};
        return colors[x];
    });
    const TRegionHandle region = BitmapToRegion(BitmapOf(picture).get(), false);
    EXPECT_EQ(BoundsOf(region), TRect(1, 0, 4, 1));
}

TEST_F(BitmapRegionTest, AnyFormatFollowsTheRule) {
    RandomColors random(1);
    for (const TPixelFormat format : {pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit, pfDevice})
        ExpectRule(random.Picture(23, 17, {clWhite, clBlack}), format, clWhite);
}

TEST_F(BitmapRegionTest, RandomPicturesFollowTheRule) {
    RandomColors random(2);
    for (int round = 0; round < 40; ++round) {
        const int width = 1 + static_cast<int>(random.Next(40)),
                  height = 1 + static_cast<int>(random.Next(40));
        ExpectRule(random.Picture(width, height, {Magenta, Magenta, clBlack, 0x00FF00FE}),
                   round % 2 ? pf24bit : pf32bit, Magenta);
    }
}

TEST_F(BitmapRegionTest, MoreThanTwoThousandRunsFollowTheRule) {
    // Each second pixel: 8192 runs.
    ExpectRule(Pixels(128, 128, [](int x, int y) -> COLORREF { return (x + y) % 2 ? Magenta : clBlack; }),
               pf24bit, Magenta);
    RandomColors random(3);
    ExpectRule(random.Picture(200, 100, {Magenta, clBlack}), pf32bit, Magenta);
}

TEST_F(BitmapRegionTest, ExactlyTwoThousandRunsFollowTheRule) {
    for (const int rows : {1999, 2000, 2001, 4000})
        ExpectRule(Pixels(3, rows, [](int x, int y) -> COLORREF { return x == y % 2 ? clBlack : Magenta; }),
                   pf24bit, Magenta);
}

TEST_F(BitmapRegionTest, EqualRowsJoinIntoOneRectangle) {
    Pixels picture(50, 400, clBlack);
    for (int y = 0; y < 400; ++y)
        picture.Set(20, y, Magenta);
    const TRegionHandle region = BitmapToRegion(BitmapOf(picture).get(), false);
    EXPECT_EQ(RectsOfRegion(region.Get()).size(), 2U);
}

TEST_F(BitmapRegionTest, AHugeBitmapHasARegion) {
    const auto bitmap = std::make_unique<TBitmap>(6000, 1500, pf24bit);
    bitmap->GetCanvas().GetBrush().SetColor(Magenta);
    bitmap->GetCanvas().FillRect({10, 20, 5990, 1480});
    const TRegionHandle region = BitmapToRegion(bitmap.get(), false);
    EXPECT_EQ(BoundsOf(region), TRect(0, 0, 6000, 1500));
    EXPECT_EQ(RectsOfRegion(region.Get()).size(), 4U);
}

TEST_F(BitmapRegionTest, ASystemColorIsLookedUp) {
    ExpectRule(RandomColors(4).Picture(12, 12, {ColorToRGB(clBtnFace), clRed}), pf24bit, clBtnFace);
}

TEST_F(BitmapRegionTest, TheFourthByteOfAPixelDoesNotCount) {
    const auto bitmap = BitmapOf(4, 3, Magenta, pf32bit);
    const TBitmapBits bits = bitmap->WriteBits();
    bits.Pixel(1, 1)[3] = 0x7F;
    EXPECT_TRUE(RectsOfRegion(BitmapToRegion(bitmap.get(), false).Get()).empty());
}

TEST_F(BitmapRegionTest, ReadingLeavesSharedPixelsShared) {
    const auto bitmap = BitmapOf(64, 64, clRed);
    TBitmap sharer;
    sharer.Assign(bitmap.get());
    const auto before = test::ResourceSnapshot::Take();
    EXPECT_TRUE(BitmapToRegion(&sharer, true));
    EXPECT_EQ(before.ChangeSince(), "");
}

}  // namespace
}  // namespace qv7skin
