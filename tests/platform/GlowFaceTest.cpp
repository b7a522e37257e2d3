#include "platform/tms/GlowFace.h"

#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace tms;
using test::Pixels;

constexpr TGlowColors Colors{.Border = 0x00123456,
                             .Color = 0x00102030,
                             .ColorTo = 0x00F0E0D0,
                             .ColorMirror = 0x000000FF,
                             .ColorMirrorTo = 0x0000FF00};

class GlowFace : public test::LedgerTest {
protected:
    static Pixels Face(int width, int height, const TGlowColors& colors, bool rounded = false,
                       bool glow = false, TColor background = clWhite) {
        TBitmap bitmap(width, height, pf32bit);
        bitmap.GetCanvas().GetBrush().SetColor(background);
        bitmap.GetCanvas().FillRect({0, 0, width, height});
        PaintGlowFace(bitmap.WriteBits(), colors, rounded, glow);
        return test::ReadBitmap(bitmap.GetHandle());
    }
};

TEST_F(GlowFace, HasABorderOfOnePixel) {
    const Pixels face = Face(40, 21, Colors);
    for (int x = 0; x < 40; ++x) {
        EXPECT_EQ(face.At(x, 0), Colors.Border);
        EXPECT_EQ(face.At(x, 20), Colors.Border);
    }
    for (int y = 0; y < 21; ++y) {
        EXPECT_EQ(face.At(0, y), Colors.Border);
        EXPECT_EQ(face.At(39, y), Colors.Border);
    }
}

TEST_F(GlowFace, TheHalvesRunFromFirstToSecondColour) {
    // Inside the border 19 rows: 10 of the upper, 9 of the mirror gradient.
    const Pixels face = Face(40, 21, Colors);
    EXPECT_EQ(face.At(20, 1), Colors.Color);
    EXPECT_EQ(face.At(20, 10), Colors.ColorTo);
    EXPECT_EQ(face.At(20, 11), Colors.ColorMirror);
    EXPECT_EQ(face.At(20, 19), Colors.ColorMirrorTo);
}

TEST_F(GlowFace, RowsBetweenAreMixedInProportion) {
    const Pixels face = Face(40, 21, Colors);
    for (int i = 0; i < 10; ++i) {
        const auto mixed = [&](int from, int to) { return (from * (9 - i) + to * i + 4) / 9; };
        const COLORREF expected = RGB(mixed(0x30, 0xD0), mixed(0x20, 0xE0), mixed(0x10, 0xF0));
        for (int x = 1; x < 39; ++x)
            EXPECT_EQ(face.At(x, 1 + i), expected) << x << ", row " << i;
    }
    for (int i = 0; i < 9; ++i) {
        const COLORREF expected = RGB((255 * (8 - i) + 4) / 8, (255 * i + 4) / 8, 0);
        EXPECT_EQ(face.At(20, 11 + i), expected) << "mirror row " << i;
    }
}

TEST_F(GlowFace, EachKindOfGradientHasItsDirection) {
    const TSize area{11, 21};
    const TColor from = 0x00000000, to = 0x00646464;
    EXPECT_EQ(GradientColor(gdpPlain, from, to, {10, 20}, area), from);
    EXPECT_EQ(GradientColor(gdpVertical, from, to, {0, 20}, area), to);
    EXPECT_EQ(GradientColor(gdpVertical, from, to, {10, 10}, area), 0x00323232u);
    EXPECT_EQ(GradientColor(gdpHorizontal, from, to, {10, 0}, area), to);
    EXPECT_EQ(GradientColor(gdpHorizontal, from, to, {5, 20}, area), 0x00323232u);
    EXPECT_EQ(GradientColor(gdpDiagonal, from, to, {10, 20}, area), to);
    EXPECT_EQ(GradientColor(gdpDiagonal, from, to, {10, 0}, area), 0x00323232u);
    EXPECT_EQ(GradientColor(gdpVertical, from, to, {0, 0}, {1, 1}), from);
}

TEST_F(GlowFace, TheGlowIsStrongestInTheMiddleOfTheBottom) {
    const TSize size{101, 25};
    for (int x = 0; x < 101; ++x) {
        EXPECT_LE(GlowStrength({x, 24}, size), GlowStrength({50, 24}, size));
        EXPECT_EQ(GlowStrength({x, 24}, size), GlowStrength({100 - x, 24}, size));
    }
    for (int y = 1; y < 25; ++y)
        EXPECT_GE(GlowStrength({50, y}, size), GlowStrength({50, y - 1}, size));
    EXPECT_EQ(GlowStrength({50, 24}, size), 160);
    EXPECT_EQ(GlowStrength({0, 0}, size), 0);
    EXPECT_EQ(GlowStrength({100, 12}, size), 0);
}

TEST_F(GlowFace, TheGlowMixesItsLightIntoTheGradients) {
    const Pixels plain = Face(61, 25, Colors), glowing = Face(61, 25, Colors, false, true);
    for (int y = 1; y < 24; ++y) {
        for (int x = 1; x < 60; ++x) {
            const int strength = GlowStrength({x, y}, {61, 25});
            // Halfway from the mirror colour, red, to white.
            const auto lit = [&](int c, int light) {
                return (c * (255 - strength) + light * strength + 127) / 255;
            };
            const COLORREF c = plain.At(x, y);
            ASSERT_EQ(glowing.At(x, y),
                      RGB(lit(GetRValue(c), 255), lit(GetGValue(c), 128), lit(GetBValue(c), 128)))
                << x << ", " << y;
        }
    }
    EXPECT_EQ(glowing.At(0, 24), Colors.Border);
}

TEST_F(GlowFace, RoundCornersShowWhatWasThereBefore) {
    const Pixels round = Face(40, 21, Colors, true, false, 0x0000FF00), square = Face(40, 21, Colors);
    EXPECT_EQ(round.At(0, 0), 0x0000FF00u);
    EXPECT_EQ(round.At(39, 20), 0x0000FF00u);
    for (int y = 0; y < 21; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool inCorner = (x < GlowCornerRadius || x >= 40 - GlowCornerRadius) &&
                                  (y < GlowCornerRadius || y >= 21 - GlowCornerRadius);
            if (!inCorner) {
                EXPECT_EQ(round.At(x, y), square.At(x, y)) << x << ", " << y;
            }
        }
    }
}

TEST_F(GlowFace, RoundCornersAreSymmetrical) {
    TGlowColors plain = Colors;
    plain.Color = plain.ColorTo = plain.ColorMirror = plain.ColorMirrorTo = 0x00808080;
    const Pixels face = Face(40, 30, plain, true);
    EXPECT_TRUE(test::SamePixels(face, [&](int x, int y) { return face.At(39 - x, 29 - y); }));
    EXPECT_TRUE(test::SamePixels(face, [&](int x, int y) { return face.At(39 - x, y); }));
}

TEST_F(GlowFace, TinyFacesArePainted) {
    for (const TSize size : {TSize{1, 1}, {2, 2}, {3, 3}, {1, 30}, {30, 1}}) {
        const Pixels face = Face(size.Width, size.Height, Colors, true, true);
        EXPECT_EQ(face.Width(), size.Width);
    }
    PaintGlowFace({}, Colors, true, true);
}

}  // namespace
