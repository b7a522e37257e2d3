#include "menus/MenuGradient.h"

#include "tests/menus/PainterFixture.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

constexpr COLORREF Top = 0x00EFE8E4;
constexpr COLORREF Bottom = 0x00DEC5B8;

class MenuGradientTest : public PainterTest {
protected:
    /// A picture of the format with a gradient in the rectangle, white around it.
    static Pixels OnSurface(TPixelFormat format, TSize size, const TRect& rect, COLORREF from, COLORREF to) {
        TBitmap bitmap(size.Width, size.Height, format);
        bitmap.GetCanvas().GetBrush().SetColor(clWhite);
        bitmap.GetCanvas().FillRect({0, 0, size.Width, size.Height});
        DrawGradientBands(bitmap.GetCanvas().GetHandle(), rect, 256, from, to, gdVertical);
        return ReadBitmap(bitmap.GetHandle());
    }
    static void ExpectGradient(const Pixels& shown, const TRect& rect, COLORREF from, COLORREF to) {
        for (int y = 0; y < shown.Height(); ++y) {
            const bool inside = y >= rect.Top && y < rect.Bottom;
            const COLORREF row = inside ? GradientRow(y - rect.Top, rect.Height(), from, to) : clWhite;
            for (int x = 0; x < shown.Width(); ++x) {
                const COLORREF expected = x >= rect.Left && x < rect.Right ? row : clWhite;
                ASSERT_EQ(shown.At(x, y), expected) << x << ", " << y;
            }
        }
    }
};

TEST_F(MenuGradientTest, GradientsHaveExactlyTheirBands) {
    for (const int length : {1, 7, 39, 60}) {
        const Pixels shown = DrawOn([&](TCanvas& canvas) {
            DrawGradientBands(canvas.GetHandle(), {0, 0, Width, length}, 256, 0x00112233, 0x00FF0080,
                              gdVertical);
        });
        for (int y = 0; y < length; ++y)
            EXPECT_EQ(shown.At(50, y), GradientRow(y, length, 0x00112233, 0x00FF0080))
                << y << " of " << length;
        if (length < Height) {
            EXPECT_EQ(shown.At(50, length), COLORREF{clWhite});
        }
    }
    const Pixels across = DrawOn([&](TCanvas& canvas) {
        DrawGradientBands(canvas.GetHandle(), {10, 0, 110, 9}, 256, 0, 0x00FFFFFF, gdHorizontal);
    });
    for (int x = 0; x < 100; ++x)
        EXPECT_EQ(across.At(10 + x, 4), GradientRow(x, 100, 0, 0x00FFFFFF));
}

TEST_F(MenuGradientTest, FewStepsMakeWideBandsAndNoneDrawNothing) {
    const Pixels shown = DrawOn([&](TCanvas& canvas) {
        DrawGradientBands(canvas.GetHandle(), {0, 0, Width, 10}, 4, 0, 0x00040404, gdVertical);
    });
    // Edges at 0, 2 (2.5), 5, 8 (7.5), 10.
    for (const auto& [y, level] : {std::pair{1, 1}, {2, 2}, {4, 2}, {5, 3}, {7, 3}, {8, 4}, {9, 4}})
        EXPECT_EQ(shown.At(3, y), RGB(level, level, level)) << y;
    const Pixels nothing = DrawOn([&](TCanvas& canvas) {
        DrawGradientBands(canvas.GetHandle(), {0, 0, Width, 10}, 0, 0, 0, gdVertical);
        DrawGradientBands(canvas.GetHandle(), {0, 0, Width, 0}, 256, 0, 0, gdVertical);
    });
    EXPECT_EQ(nothing.Count(clWhite), Width * Height);
}

TEST_F(MenuGradientTest, SystemColoursAreLookedUp) {
    const Pixels shown = DrawOn([&](TCanvas& canvas) {
        DrawGradientBands(canvas.GetHandle(), {0, 0, Width, 5}, 256, clHighlight, clHighlight, gdVertical);
    });
    EXPECT_EQ(shown.At(0, 0), ColorToRGB(clHighlight));
}

TEST_F(MenuGradientTest, AreasOfAnySizeLookAlikeOnEveryTrueColourSurface) {
    for (const TPixelFormat format : {pf24bit, pf32bit})
        for (const TSize size : {TSize(3, 1), TSize(40, 20), TSize(40, 48), TSize(40, 49), TSize(40, 300),
                                 TSize(512, 5), TSize(513, 5), TSize(1100, 7)}) {
            const TRect rect = TRect::OfSize(2, 1, size.Width, size.Height);
            ExpectGradient(OnSurface(format, {size.Width + 5, size.Height + 3}, rect, Top, Bottom), rect, Top,
                           Bottom);
        }
}

TEST_F(MenuGradientTest, WhatWasDrawnBeforeDoesNotShow) {
    // More sizes and colours than are kept, each drawn again later.
    const std::pair<COLORREF, COLORREF> colors[] = {{Top, Bottom},   {0x00D8BAAB, Top}, {0, 0x00FFFFFF},
                                                    {0x00FFFFFF, 0}, {Bottom, Top},     {0, 0}};
    const TRect rect{0, 0, 20, 17};
    for (int round = 0; round < 2; ++round)
        for (const auto& [from, to] : colors) {
            ExpectGradient(OnSurface(pf32bit, {20, 17}, rect, from, to), rect, from, to);
            const TRect lower{0, 0, 20, 16};
            ExpectGradient(OnSurface(pf32bit, {20, 17}, lower, from, to), lower, from, to);
        }
}

TEST_F(MenuGradientTest, OnAShiftedSurfaceItMovesAndOnAScaledOneItGrows) {
    const Pixels shifted = DrawOn([&](TCanvas& canvas) {
        SetViewportOrgEx(canvas.GetHandle(), 10, 5, nullptr);
        DrawGradientBands(canvas.GetHandle(), {0, 0, 30, 20}, 256, Top, Bottom, gdVertical);
        SetViewportOrgEx(canvas.GetHandle(), 0, 0, nullptr);
    });
    ExpectGradient(shifted, {10, 5, 40, 25}, Top, Bottom);
    const Pixels scaled = DrawOn([&](TCanvas& canvas) {
        const HDC dc = canvas.GetHandle();
        const int state = SaveDC(dc);
        SetMapMode(dc, MM_ANISOTROPIC);
        SetWindowExtEx(dc, 1, 1, nullptr);
        SetViewportExtEx(dc, 2, 2, nullptr);
        DrawGradientBands(dc, {0, 0, 30, 20}, 256, Top, Bottom, gdVertical);
        RestoreDC(dc, state);
    });
    for (int y = 0; y < 40; ++y)
        EXPECT_EQ(scaled.At(59, y), GradientRow(y / 2, 20, Top, Bottom)) << y;
    EXPECT_EQ(scaled.At(60, 10), COLORREF{clWhite});
    EXPECT_EQ(scaled.At(10, 40), COLORREF{clWhite});
}

TEST_F(MenuGradientTest, TheBrushOfTheSurfaceStaysAsItWas) {
    for (const TPixelFormat format : {pf16bit, pf24bit}) {
        TBitmap bitmap(20, 60, format);
        const HDC dc = bitmap.GetCanvas().GetHandle();
        SetDCBrushColor(dc, 0x00123456);
        for (const int height : {20, 60})
            DrawGradientBands(dc, {0, 0, 20, height}, 256, Top, Bottom, gdVertical);
        EXPECT_EQ(GetDCBrushColor(dc), 0x00123456U);
    }
}

TEST_F(MenuGradientTest, WithFewColoursEachBandHasTheNearestOne) {
    const Pixels shown = OnSurface(pf16bit, {9, 30}, {0, 0, 9, 30}, Top, Bottom);
    for (int y = 0; y < 30; ++y) {
        const COLORREF color = GradientRow(y, 30, Top, Bottom);
        for (int x = 0; x < 9; ++x)
            ASSERT_EQ(shown.At(x, y), shown.At(0, y)) << "mixed at " << x << ", " << y;
        EXPECT_NEAR(GetRValue(shown.At(0, y)), GetRValue(color), 8) << y;
        EXPECT_NEAR(GetBValue(shown.At(0, y)), GetBValue(color), 8) << y;
    }
}

}  // namespace
}  // namespace test
