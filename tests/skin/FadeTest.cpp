#include "skin/surfaces/Fade.h"

#include <algorithm>
#include <cmath>

#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;

class FadeTest : public test::LedgerTest {};

/// The rule for one component with a strength in hundredths, in whole numbers.
std::uint8_t MixedPart(int colorComponent, int sourceComponent, int hundredths) {
    const int sum = (100 - hundredths) * colorComponent + hundredths * sourceComponent;
    const int whole = sum / 100, rest = sum % 100;
    return static_cast<std::uint8_t>(whole + (rest > 50 || (rest == 50 && whole % 2 == 1) ? 1 : 0));
}

COLORREF Mixed(TColor color, COLORREF source, int hundredths) {
    return RGBToColor(MixedPart(RedOf(color), RedOf(source), hundredths),
                      MixedPart(GreenOf(color), GreenOf(source), hundredths),
                      MixedPart(BlueOf(color), BlueOf(source), hundredths));
}

TEST_F(FadeTest, TheBitmapTellsThatItChanged) {
    TBitmap source(4, 4, pf24bit), dest(4, 4, pf24bit);
    int changes = 0;
    dest.OnChange = [&](TObject*) { ++changes; };
    Fade(dest, clWhite, 0, 0, 0.5L, source, {0, 0, 4, 4});
    EXPECT_EQ(changes, 1);
}

TEST_F(FadeTest, MixesEachComponent) {
    const Pixels picture = RandomColors(1).Picture(31, 17);
    for (const int hundredths : {0, 25, 50, 75}) {
        const auto source = BitmapOf(picture);
        TBitmap dest(31, 17, pf24bit);
        Fade(dest, 0x00204060, 0, 0, hundredths / 100.0L, *source, {0, 0, 31, 17});
        EXPECT_TRUE(SamePixels(PixelsOf(dest), [&](int x, int y) {
            return Mixed(0x00204060, picture.At(x, y), hundredths);
        })) << hundredths;
    }
}

TEST_F(FadeTest, RoundsTiesToTheEvenNumber) {
    // Halfway between 0 and 1, 3, 5: 0.5, 1.5, 2.5.
    const auto source = BitmapOf(1, 1, RGBToColor(1, 3, 5));
    TBitmap dest(1, 1, pf24bit);
    Fade(dest, clBlack, 0, 0, 0.5L, *source, {0, 0, 1, 1});
    EXPECT_EQ(PixelsOf(dest).At(0, 0), RGBToColor(0, 2, 2));
}

TEST_F(FadeTest, FullStrengthCopiesAsItIs) {
    const Pixels picture = RandomColors(2).Picture(9, 5);
    for (const long double alpha : {1.0L, 2.5L}) {
        const auto source = BitmapOf(picture, pf32bit);
        TBitmap dest(9, 5, pf32bit);
        Fade(dest, clRed, 0, 0, alpha, *source, {0, 0, 9, 5});
        EXPECT_TRUE(SamePixels(PixelsOf(dest), picture));
        EXPECT_EQ(dest.GetPixelFormat(), pf32bit);
    }
}

TEST_F(FadeTest, OtherFormatsBecome24Bits) {
    const auto source = BitmapOf(6, 4, 0x00808080, pf32bit);
    TBitmap dest(6, 4, pf16bit);
    Fade(dest, clBlack, 0, 0, 0.5L, *source, {0, 0, 6, 4});
    EXPECT_EQ(dest.GetPixelFormat(), pf24bit);
    EXPECT_EQ(source->GetPixelFormat(), pf24bit);
    EXPECT_EQ(PixelsOf(dest).Count(0x00404040), 24);
}

TEST_F(FadeTest, TakesAPartToAPlaceAndStaysInside) {
    const Pixels picture = RandomColors(3).Picture(20, 20);
    for (const TPoint place : {TPoint(0, 0), TPoint(3, 4), TPoint(-5, -6), TPoint(11, 12), TPoint(50, 0)}) {
        const auto source = BitmapOf(picture);
        const auto dest = BitmapOf(15, 15, clLime);
        const TRect part(4, 6, 14, 18);
        Fade(*dest, clWhite, place.X, place.Y, 0.25L, *source, part);
        EXPECT_TRUE(SamePixels(PixelsOf(*dest), [&](int x, int y) -> COLORREF {
            const int fromX = x - place.X + part.Left, fromY = y - place.Y + part.Top;
            return part.Contains({fromX, fromY}) ? Mixed(clWhite, picture.At(fromX, fromY), 25) : clLime;
        }));
    }
}

TEST_F(FadeTest, APartBeyondTheSourceIsCutToIt) {
    const Pixels picture = RandomColors(4).Picture(5, 5);
    const auto source = BitmapOf(picture);
    const auto dest = BitmapOf(10, 10, clLime);
    Fade(*dest, clBlack, 0, 0, 0.5L, *source, {-2, -2, 20, 20});
    EXPECT_TRUE(SamePixels(PixelsOf(*dest), [&](int x, int y) -> COLORREF {
        const COLORREF c = picture.At(x - 2, y - 2);
        return c == CLR_INVALID ? COLORREF{clLime} : Mixed(clBlack, c, 50);
    }));
}

TEST_F(FadeTest, OvershootingStrengthStaysInRange) {
    const auto source = BitmapOf(1, 1, RGBToColor(0, 128, 255));
    TBitmap dest(1, 1, pf24bit);
    Fade(dest, RGBToColor(255, 128, 0), 0, 0, -1.0L, *source, {0, 0, 1, 1});
    EXPECT_EQ(PixelsOf(dest).At(0, 0), RGBToColor(255, 128, 0));
}

TEST_F(FadeTest, ASystemColorIsLookedUp) {
    const auto source = BitmapOf(1, 1, clBlack);
    TBitmap dest(1, 1, pf24bit);
    Fade(dest, clBtnFace, 0, 0, 0.0L, *source, {0, 0, 1, 1});
    EXPECT_EQ(PixelsOf(dest).At(0, 0), ColorToRGB(clBtnFace));
}

}  // namespace
}  // namespace qv7skin
