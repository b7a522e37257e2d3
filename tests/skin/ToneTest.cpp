#include "skin/utils/Tone.h"

#include <algorithm>
#include <cmath>

#include "platform/vcl/graphics/Canvas.h"
#include "skin/utils/ToneBits.h"
#include "skin/utils/TonePixels.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;
using test::SamePixels;

class ToneTest : public test::LedgerTest {};

/// The rule of lightening, in whole numbers.
int LightenedPart(int component, int percent) {
    const int hundredths = (255 - component) * percent;
    const int whole = hundredths / 100, rest = hundredths % 100;
    const bool up = rest > 50 || (rest == 50 && whole % 2 == 1);
    return component + whole + (up ? 1 : 0);
}

TColor Lightened(TColor c, int percent) {
    const auto component = [&](int value) {
        return static_cast<std::uint8_t>(LightenedPart(value, percent));
    };
    return RGBToColor(component(RedOf(c)), component(GreenOf(c)), component(BlueOf(c)));
}

/// The rule of greying, without the memory of the last colour.
TColor Greyed(TColor c, int percent) {
    const int missing = 765 - RedOf(c) - GreenOf(c) - BlueOf(c);
    const auto g = static_cast<std::uint8_t>(std::min(255 - missing * std::min(percent, 100) / 300, 240));
    return RGBToColor(g, g, g);
}

/// Every byte of the memory.
std::vector<std::uint8_t> BytesOf(const TBitmap& bitmap) {
    std::vector<std::uint8_t> bytes;
    const TConstBitmapBits bits = bitmap.ReadBits();
    for (int y = 0; y < bits.Height; ++y)
        bytes.insert(bytes.end(), bits.Row(y), bits.Row(y) + bits.Width * bits.BytesPerPixel);
    return bytes;
}

TEST_F(ToneTest, LighteningMovesEveryComponentTowardWhite) {
    for (const int percent : {0, 1, 10, 25, 50, 77, 99, 100}) {
        const Pixels before = RandomColors(1).Picture(37, 11);
        for (const TPixelFormat format : {pf24bit, pf32bit}) {
            const auto bitmap = BitmapOf(before, format);
            DimBitmap(bitmap.get(), percent);
            EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), [&](int x, int y) {
                return Lightened(before.At(x, y), percent);
            })) << percent;
        }
    }
}

TEST_F(ToneTest, LighteningRoundsTiesToTheEvenNumber) {
    // 255 - 254 = 1 and half of it is a tie, as are 3 / 2 and 5 / 2.
    const auto bitmap = BitmapOf(1, 1, RGBToColor(254, 252, 250));
    DimBitmap(bitmap.get(), 50);
    EXPECT_EQ(PixelsOf(*bitmap).At(0, 0), RGBToColor(254, 254, 252));
}

TEST_F(ToneTest, LighteningByMoreThanAllGivesWhite) {
    const auto bitmap = BitmapOf(3, 3, 0x00123456);
    DimBitmap(bitmap.get(), 1000);
    EXPECT_EQ(PixelsOf(*bitmap).Count(clWhite), 9);
}

TEST_F(ToneTest, LighteningByLessThanNothingDarkensDownToBlack) {
    const auto bitmap = BitmapOf(1, 1, RGBToColor(200, 100, 255));
    DimBitmap(bitmap.get(), -100);
    EXPECT_EQ(PixelsOf(*bitmap).At(0, 0), RGBToColor(145, 0, 255));
    DimBitmap(bitmap.get(), INT_MIN);
    EXPECT_EQ(PixelsOf(*bitmap).At(0, 0), RGBToColor(0, 0, 255));
}

TEST_F(ToneTest, GreyingFollowsTheSumOfTheComponents) {
    Pixels before = RandomColors(2).Picture(37, 11);
    before.Set(0, 0, 0x00010203);  // no black start
    for (const int percent : {0, 1, 50, 99, 100, 250}) {
        for (const TPixelFormat format : {pf24bit, pf32bit}) {
            const auto bitmap = BitmapOf(before, format);
            GrayBitmap(bitmap.get(), percent);
            EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), [&](int x, int y) {
                return Greyed(before.At(x, y), percent);
            })) << percent;
        }
    }
}

TEST_F(ToneTest, GreyIsNeverLighterThan240) {
    const auto bitmap = BitmapOf(2, 1, clWhite);
    GrayBitmap(bitmap.get(), 100);
    EXPECT_EQ(PixelsOf(*bitmap).Count(RGBToColor(240, 240, 240)), 2);
}

TEST_F(ToneTest, GreyingByLessThanNothingGivesTheLightestGrey) {
    const auto bitmap = BitmapOf(1, 1, 0x00102030);
    GrayBitmap(bitmap.get(), INT_MIN);
    EXPECT_EQ(PixelsOf(*bitmap).At(0, 0), RGBToColor(240, 240, 240));
}

TEST_F(ToneTest, BlackStaysBlackUntilTheFirstOtherColor) {
    Pixels before(4, 1, clBlack);
    before.Set(2, 0, clWhite);
    const auto bitmap = BitmapOf(before);
    GrayBitmap(bitmap.get(), 50);
    const Pixels after = PixelsOf(*bitmap);
    EXPECT_EQ(after.At(0, 0), clBlack);
    EXPECT_EQ(after.At(1, 0), clBlack);
    EXPECT_EQ(after.At(2, 0), Greyed(clWhite, 50));
    EXPECT_EQ(after.At(3, 0), Greyed(clBlack, 50));
    EXPECT_NE(after.At(3, 0), clBlack);
}

TEST_F(ToneTest, WhatIsReadBeyondTheFirstRowEndsTheBlackStart) {
    const auto bitmap = BitmapOf(3, 2, clBlack);
    GrayBitmap(bitmap.get(), 50);
    EXPECT_TRUE(SamePixels(PixelsOf(*bitmap),
                           [](int, int y) { return y == 0 ? TColor{clBlack} : Greyed(clBlack, 50); }));
}

TEST_F(ToneTest, GreyingLeavesTheTransparentColorAsItIs) {
    Pixels before = RandomColors(3).Picture(23, 9, {Magenta, 0x00102030, clBlack, clWhite});
    before.Set(0, 0, 0x00102030);
    const auto bitmap = BitmapOf(before);
    GrayBitmap(bitmap.get(), 70, Magenta);
    EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), [&](int x, int y) {
        return before.At(x, y) == Magenta ? Magenta : Greyed(before.At(x, y), 70);
    }));
}

TEST_F(ToneTest, TransparentPixelsDoNotEndTheBlackStart) {
    Pixels before(3, 1, clBlack);
    before.Set(0, 0, Magenta);
    const auto bitmap = BitmapOf(before);
    GrayBitmap(bitmap.get(), 50, Magenta);
    EXPECT_EQ(PixelsOf(*bitmap).At(0, 0), Magenta);
    EXPECT_EQ(PixelsOf(*bitmap).Count(clBlack), 2);
}

TEST_F(ToneTest, ReplacingChangesOnePixelColorOnly) {
    const Pixels before = RandomColors(4).Picture(31, 7, {0x00112233, 0x00112234, clBlack});
    for (const TPixelFormat format : {pf24bit, pf32bit}) {
        const auto bitmap = BitmapOf(before, format);
        ReplaceColor(bitmap.get(), 0x00112233, clLime);
        EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), [&](int x, int y) {
            return before.At(x, y) == 0x00112233 ? COLORREF{clLime} : before.At(x, y);
        }));
    }
}

TEST_F(ToneTest, ASystemColorMatchesNoPixelButCanBeTheNewOne) {
    const auto bitmap = BitmapOf(2, 2, ColorToRGB(clBtnFace));
    ReplaceColor(bitmap.get(), clBtnFace, clRed);
    EXPECT_EQ(PixelsOf(*bitmap).Count(clRed), 0);
    ReplaceColor(bitmap.get(), ColorToRGB(clBtnFace), clHighlight);
    EXPECT_EQ(PixelsOf(*bitmap).Count(ColorToRGB(clHighlight)), 4);
}

TEST_F(ToneTest, NoBitmapAndNoPixelsAreLeftAlone) {
    DimBitmap(nullptr, 50);
    GrayBitmap(nullptr, 50);
    GrayBitmap(nullptr, 50, clRed);
    ReplaceColor(nullptr, clRed, clBlue);
    TBitmap empty;
    DimBitmap(&empty, 50);
    GrayBitmap(&empty, 50);
    ReplaceColor(&empty, clRed, clBlue);
    EXPECT_TRUE(empty.GetEmpty());
}

TEST_F(ToneTest, ChangesAreTold) {
    const auto bitmap = BitmapOf(2, 2, clRed);
    int changes = 0;
    bitmap->OnChange = [&](TObject*) { ++changes; };
    DimBitmap(bitmap.get(), 50);
    EXPECT_EQ(changes, 1);
    GrayBitmap(bitmap.get(), 50);
    EXPECT_EQ(changes, 2);
    ReplaceColor(bitmap.get(), clRed, clBlue);
    EXPECT_EQ(changes, 3);
}

TEST_F(ToneTest, SharersOfThePixelsKeepThem) {
    const auto bitmap = BitmapOf(2, 2, clRed);
    TBitmap sharer;
    sharer.Assign(bitmap.get());
    GrayBitmap(bitmap.get(), 100);
    EXPECT_EQ(PixelsOf(sharer).Count(clRed), 4);
}

// --- The work in memory and the work through the canvas agree to the byte.

struct PathsCase {
    TPixelFormat Format;
    int Width, Height;
};

class TonePathsTest : public test::LedgerTest, public ::testing::WithParamInterface<PathsCase> {
protected:
    /// Two equal bitmaps of few colours, black among them, and black at the start.
    void MakeBitmaps(unsigned seed) {
        const auto [format, width, height] = GetParam();
        Pixels picture = RandomColors(seed).Picture(
            width, height, {clBlack, clBlack, Magenta, clWhite, 0x00010203, 0x00FEFDFC});
        picture.Set(0, 0, clBlack);
        FByBits = BitmapOf(picture, format);
        FByPixels = BitmapOf(picture, format);
    }
    void TearDown() override {
        FByBits.reset();
        FByPixels.reset();
        LedgerTest::TearDown();
    }
    void ExpectSame() { EXPECT_EQ(BytesOf(*FByBits), BytesOf(*FByPixels)); }

    std::unique_ptr<TBitmap> FByBits, FByPixels;
};

TEST_P(TonePathsTest, AgreeOnLightening) {
    for (const int percent : {-30, 0, 33, 50, 100, 120}) {
        MakeBitmaps(5);
        DimBits(FByBits->WriteBits(), percent);
        DimPixels(*FByPixels, percent);
        ExpectSame();
    }
}

TEST_P(TonePathsTest, AgreeOnGreying) {
    for (const int percent : {-30, 0, 33, 50, 100, 120}) {
        MakeBitmaps(6);
        GrayBits(FByBits->WriteBits(), percent, std::nullopt);
        GrayPixels(*FByPixels, percent, std::nullopt);
        ExpectSame();
    }
}

TEST_P(TonePathsTest, AgreeOnGreyingAroundAColor) {
    for (const TColor transparent : {TColor{Magenta}, TColor{clBlack}, TColor{clNone}, TColor{clInvalid}}) {
        MakeBitmaps(7);
        GrayBits(FByBits->WriteBits(), 60, transparent);
        GrayPixels(*FByPixels, 60, transparent);
        ExpectSame();
    }
}

TEST_P(TonePathsTest, AgreeOnReplacing) {
    MakeBitmaps(8);
    ReplaceInBits(FByBits->WriteBits(), clBlack, 0x00A1B2C3);
    ReplacePixels(*FByPixels, clBlack, 0x00A1B2C3);
    ExpectSame();
}

INSTANTIATE_TEST_SUITE_P(Formats, TonePathsTest,
                         ::testing::Values(PathsCase{pf24bit, 17, 13}, PathsCase{pf32bit, 17, 13},
                                           PathsCase{pfDevice, 5, 3}, PathsCase{pf24bit, 1, 1},
                                           PathsCase{pf24bit, 1, 9}, PathsCase{pf32bit, 9, 1}));

TEST_F(ToneTest, FewColorsBecomeTheNearestThatTheFormatHas) {
    for (const TPixelFormat format : {pf8bit, pf16bit, pf4bit}) {
        const Pixels before = RandomColors(9).Picture(8, 8, {0x00800000, 0x00008080, clWhite});
        const auto bitmap = BitmapOf(before, format);
        const Pixels shown = PixelsOf(*bitmap);
        Pixels expected(8, 8);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x)
                expected.Set(x, y,
                             GetNearestColor(bitmap->GetCanvas().GetHandle(), Lightened(shown.At(x, y), 40)));
        DimBitmap(bitmap.get(), 40);
        const Pixels after = PixelsOf(*bitmap);
        EXPECT_TRUE(SamePixels(after, expected)) << static_cast<int>(format);
        EXPECT_EQ(bitmap->GetPixelFormat(), format);
    }
}

}  // namespace
}  // namespace qv7skin
