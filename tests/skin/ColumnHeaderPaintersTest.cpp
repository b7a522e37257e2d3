#include "skin/surfaces/ColumnHeaderPainters.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/Loaders.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::PixelsOf;
using test::Pixels;

constexpr TColor Ground = 0x00123456;

class ColumnHeaderPaintersTest : public test::LedgerTest {
protected:
    /// What the band paints on a ground of 50 x 45.
    static Pixels Painted(const TRect& rect, bool rightLine) {
        const auto ground = BitmapOf(50, 45, Ground);
        TQV7SkinColumnHeaderPainter painter;
        painter.Draw(ground->GetCanvas(), rect, rightLine);
        return PixelsOf(*ground);
    }
    /// The rule for a band with room for both bitmaps.
    static Pixels Expected(const TRect& rect, bool rightLine) {
        const Pixels top = PixelsOf(*CreateBmp(L"COLUMNHEADERTOP"));
        const Pixels bottom = PixelsOf(*CreateBmp(L"COLUMNHEADERBOTTOM"));
        const TColor spacer = GetQV7SkinColorColumnHeaderSpacer();
        return Pixels(50, 45, [&](int x, int y) -> COLORREF {
            if (!rect.Contains({x, y})) return Ground;
            if (rightLine && x == rect.Right - 1) return spacer;
            if (y == rect.Bottom - 1 && x < rect.Right - 1) return spacer;  // a line leaves out its end
            if (y < rect.Top + 9) return top.At(0, y - rect.Top);
            if (y >= rect.Bottom - 10) return bottom.At(0, y - (rect.Bottom - 10));
            return GetQV7SkinColorColumnHeaderBG();
        });
    }
};

TEST_F(ColumnHeaderPaintersTest, AHighBandHasItsFillBetweenTopAndBottom) {
    // 30 rows: 9 of the top, 11 of the fill, 10 of the bottom, the last of them the spacer line.
    const TRect rect(5, 3, 45, 33);
    for (const bool rightLine : {false, true})
        EXPECT_TRUE(SamePixels(Painted(rect, rightLine), Expected(rect, rightLine)));
    const Pixels painted = Painted(rect, false).Part({5, 3, 6, 33});
    EXPECT_EQ(painted.Part({0, 9, 1, 20}).Count(GetQV7SkinColorColumnHeaderBG()), 11);
    EXPECT_EQ(painted.At(0, 29), GetQV7SkinColorColumnHeaderSpacer());
}

TEST_F(ColumnHeaderPaintersTest, ABandOfNineteenRowsHasNoFill) {
    const TRect rect(0, 0, 50, 19);
    EXPECT_TRUE(SamePixels(Painted(rect, true), Expected(rect, true)));
}

TEST_F(ColumnHeaderPaintersTest, InALowBandTheBottomCoversTheTop) {
    const Pixels bottom = PixelsOf(*CreateBmp(L"COLUMNHEADERBOTTOM"));
    const Pixels painted = Painted({0, 10, 50, 22}, false);
    for (int y = 12; y < 21; ++y)
        EXPECT_EQ(painted.At(20, y), bottom.At(0, y - 12)) << y;
}

TEST_F(ColumnHeaderPaintersTest, TheRightLineReachesFromTheBottomToTheTop) {
    const Pixels painted = Painted({5, 3, 45, 33}, true);
    for (int y = 3; y < 33; ++y)
        EXPECT_EQ(painted.At(44, y), GetQV7SkinColorColumnHeaderSpacer()) << y;
    EXPECT_EQ(painted.At(44, 2), Ground);
}

TEST_F(ColumnHeaderPaintersTest, AnEmptyRectangleShowsNothing) {
    EXPECT_EQ(Painted({50, 45, 50, 45}, false).Count(Ground), 50 * 35 + 10 * 50);
}

TEST_F(ColumnHeaderPaintersTest, ArrowsAreSixBySix) {
    TQV7SkinColumnHeaderSortGlyphPainter painter;
    EXPECT_EQ(painter.GetWidth(), 6);
    EXPECT_EQ(painter.GetHeight(), 6);
}

TEST_F(ColumnHeaderPaintersTest, ArrowsAreDrawnAtTheCornerWithoutTheirMagenta) {
    TQV7SkinColumnHeaderSortGlyphPainter painter;
    for (const bool ascending : {true, false}) {
        const Pixels arrow =
            PixelsOf(*CreateBmp(ascending ? L"COLUMNHEADERSORTASCENDING" : L"COLUMNHEADERSORTDESCENDING"));
        const auto ground = BitmapOf(20, 20, Ground);
        painter.Draw(ground->GetCanvas(), {4, 7, 100, 100}, ascending);
        EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
            const COLORREF c = arrow.At(x - 4, y - 7);
            return c == CLR_INVALID || c == Magenta ? COLORREF{Ground} : c;
        })) << ascending;
    }
}

}  // namespace
}  // namespace qv7skin
