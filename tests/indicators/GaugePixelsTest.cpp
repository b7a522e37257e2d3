#include <cmath>
#include <numbers>

#include "platform/vcl/graphics/Font.h"
#include "tests/indicators/GaugeFixture.h"

namespace test {
namespace {

using namespace qv7skin;

/// All percentages in a size, with and without border.
struct TCase {
    TSize Size;
    TBorderStyle Border;
};

class GaugePixelsTest : public GaugeTest, public testing::WithParamInterface<TCase> {
protected:
    [[nodiscard]] int Width() const { return GetParam().Size.Width; }
    [[nodiscard]] int Height() const { return GetParam().Size.Height; }
    [[nodiscard]] int Frame() const { return GetParam().Border == bsSingle ? 1 : 0; }
    /// Inside of the border.
    [[nodiscard]] TRect Area() const { return {Frame(), Frame(), Width() - Frame(), Height() - Frame()}; }
    [[nodiscard]] std::unique_ptr<ProbeGauge> MakeCase(TQV7SkinGaugeKind kind) const {
        auto gauge = Bare(kind);
        gauge->SetBorderStyle(GetParam().Border);
        return gauge;
    }
    /// Compares the picture of every percentage with a rule for the pixels inside of the border, which is
    /// black.
    void ExpectEach(ProbeGauge& gauge, const std::function<COLORREF(int percent, int x, int y)>& inside) {
        for (int percent = 0; percent <= 100; ++percent) {
            gauge.SetProgress(percent);
            ASSERT_TRUE(SamePixels(PictureOf(gauge, Width(), Height()),
                                   [&](int x, int y) {
                                       return Area().Contains({x, y}) ? inside(percent, x, y) : RGB(0, 0, 0);
                                   }))
                << percent << '%';
        }
    }
};

std::vector<TCase> CasesOf(std::span<const TSize> sizes) {
    std::vector<TCase> cases;
    for (const TSize size : sizes)
        for (const TBorderStyle border : {bsSingle, bsNone})
            cases.push_back({size, border});
    return cases;
}

std::string CaseName(const testing::TestParamInfo<TCase>& info) {
    return std::to_string(info.param.Size.Width) + "x" + std::to_string(info.param.Size.Height) +
           (info.param.Border == bsSingle ? "Bordered" : "Plain");
}

INSTANTIATE_TEST_SUITE_P(Sizes, GaugePixelsTest, testing::ValuesIn(CasesOf(GaugeSizes)), CaseName);

/// In sizes that are large enough to tell angles.
class GaugeShapesTest : public GaugePixelsTest {};

constexpr TSize LargeSizes[] = {{100, 100}, {37, 53}, {160, 40}, {40, 120}};
INSTANTIATE_TEST_SUITE_P(Sizes, GaugeShapesTest, testing::ValuesIn(CasesOf(LargeSizes)), CaseName);

TEST_P(GaugePixelsTest, TextAloneStandsOnTheBackColor) {
    ExpectEach(*MakeCase(gkText), [](int, int, int) { return Back; });
}

TEST_P(GaugePixelsTest, AHorizontalBarGrowsFromTheLeftToTheFullWidth) {
    ExpectEach(*MakeCase(gkHorizontalBar), [&](int percent, int x, int) {
        return x < Area().Left + percent * Area().Width() / 100 ? Fore : Back;
    });
}

TEST_P(GaugePixelsTest, AVerticalBarGrowsFromTheBottomToTheSecondRow) {
    ExpectEach(*MakeCase(gkVerticalBar), [&](int percent, int, int y) {
        const int length = std::min(percent * Area().Height() / 100, Area().Height() - 1);
        return y >= Area().Bottom - length ? Fore : Back;
    });
}

TEST_P(GaugeShapesTest, APieGrowsClockwiseFromTwelve) {
    auto gauge = MakeCase(gkPie);
    const TRect area = Area();
    const double radiusX = (area.Width() - 1) / 2.0, radiusY = (area.Height() - 1) / 2.0;
    for (int percent = 0; percent <= 100; ++percent) {
        gauge->SetProgress(percent);
        const Pixels shown = PictureOf(*gauge, Width(), Height());
        for (int y = area.Top; y < area.Bottom; ++y) {
            for (int x = area.Left; x < area.Right; ++x) {
                const double dx = (x - area.Left - radiusX) / radiusX;
                const double dy = (y - area.Top - radiusY) / radiusY;
                const double distance = std::hypot(dx, dy);
                // Hundredths of the way round, by the directions of the parts in a circle.
                double turn = std::atan2(dx, -dy) / (2 * std::numbers::pi) * 100;
                if (turn < 0) turn += 100;
                const double slack =
                    100 * 2.5 / (2 * std::numbers::pi * distance * std::min(radiusX, radiusY));
                if (distance > 1 + 2.5 / std::min(radiusX, radiusY)) {
                    ASSERT_EQ(shown.At(x, y), Ground) << percent << "% " << x << ' ' << y;
                } else if (distance < 1 - 2.5 / std::min(radiusX, radiusY) && turn > slack &&
                           turn < 100 - slack && std::abs(turn - percent) > slack) {
                    ASSERT_EQ(shown.At(x, y), turn < percent ? Fore : Back)
                        << percent << "% " << x << ' ' << y;
                }
            }
        }
    }
}

TEST_P(GaugePixelsTest, AnEmptyPieIsADiscAndAFullOneHasNoHole) {
    auto gauge = MakeCase(gkPie);
    const TRect area = Area();
    if (area.Width() < 3) return;
    const Pixels empty = PictureOf(*gauge, Width(), Height());
    if (area.Width() > 4) {
        EXPECT_EQ(empty.At(Width() / 2, Height() / 2), Back);
    }
    gauge->SetProgress(100);
    const Pixels full = PictureOf(*gauge, Width(), Height());
    EXPECT_EQ(full.Count(Back), 0);
    EXPECT_EQ(full.Count(Ground), empty.Count(Ground));
}

TEST_P(GaugePixelsTest, TheFirstPercentsOfAPieAreNeverTheWholeDisc) {
    auto gauge = MakeCase(gkPie);
    if (Area().Width() < 5) return;
    const int rim = PictureOf(*gauge, Width(), Height()).Count(Fore);
    int before = rim;
    for (int percent = 1; percent <= 25; ++percent) {
        gauge->SetProgress(percent);
        const int now = PictureOf(*gauge, Width(), Height()).Count(Fore);
        // Where it is thinner than a pixel it is a line.
        const int most = Area().Width() * Area().Height() * (percent + 5) / 100 + Area().Height() / 2;
        EXPECT_GE(now, before - 2) << percent;
        EXPECT_LE(now - rim, most) << percent;
        before = now;
    }
}

TEST_P(GaugeShapesTest, ANeedleTurnsFromLeftToRightOverHalfAnEllipse) {
    auto gauge = MakeCase(gkNeedle);
    const TRect area = Area();
    const double radiusX = area.Width() / 2.0, radiusY = area.Height();
    const double middleX = (area.Left + area.Right - 1) / 2.0, baseY = area.Bottom - 1;
    for (int percent = 0; percent <= 100; ++percent) {
        gauge->SetProgress(percent);
        const Pixels shown = PictureOf(*gauge, Width(), Height());
        const double angle = std::numbers::pi * percent / 100;
        const double tipX = -std::cos(angle) * radiusX, tipY = -std::sin(angle) * radiusY;
        const double length = std::hypot(tipX, tipY);
        for (int y = area.Top; y < area.Bottom; ++y) {
            for (int x = area.Left; x < area.Right; ++x) {
                const double dx = x - middleX, dy = y - baseY;
                const double distance = std::hypot(dx / radiusX, dy / radiusY);
                const double slack = 2.5 / std::min(radiusX, radiusY);
                const double aside = std::abs(dx * tipY - dy * tipX) / length;
                if (y == area.Bottom - 1) {
                    ASSERT_EQ(shown.At(x, y), Fore) << percent << "% " << x;
                } else if (distance > 1 + slack) {
                    ASSERT_EQ(shown.At(x, y), Ground) << percent << "% " << x << ' ' << y;
                } else if (distance < 1 - slack && (percent == 0 || aside > 2.5)) {
                    ASSERT_EQ(shown.At(x, y), Back) << percent << "% " << x << ' ' << y;
                }
            }
        }
        if (percent == 0) continue;
        // Half way along the needle some pixel beside the ideal line is the needle's.
        bool found = false;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                found |= shown.At(static_cast<int>(std::lround(middleX + tipX / 2)) + dx,
                                  static_cast<int>(std::lround(baseY + tipY / 2)) + dy) == Fore;
        EXPECT_TRUE(found) << percent << '%';
    }
}

TEST_P(GaugePixelsTest, TheTextInvertsWhatItLiesOn) {
    for (const TQV7SkinGaugeKind kind : {gkText, gkHorizontalBar, gkVerticalBar, gkPie, gkNeedle}) {
        auto gauge = MakeCase(kind);
        gauge->GetFont().SetQuality(fqNonAntialiased);
        gauge->GetFont().SetName(L"Tahoma");
        gauge->SetProgress(50);
        const Pixels bare = PictureOf(*gauge, Width(), Height());
        gauge->SetShowText(true);
        const Pixels written = PictureOf(*gauge, Width(), Height());
        // The same letters, white on black.
        const Pixels letters = Drawn(Width(), Height(), RGB(0, 0, 0), [&](HDC dc) {
            ::SelectObject(dc, gauge->GetFont().GetHandle());
            ::SetTextColor(dc, RGB(255, 255, 255));
            ::SetBkMode(dc, TRANSPARENT);
            SIZE size{};
            ::GetTextExtentPoint32W(dc, L"50%", 3, &size);
            ::TextOutW(dc, Area().Left + (Area().Width() - size.cx) / 2,
                       Area().Top + (Area().Height() - size.cy) / 2, L"50%", 3);
            ::SelectObject(dc, ::GetStockObject(SYSTEM_FONT));
        });
        EXPECT_TRUE(SamePixels(written, [&](int x, int y) { return bare.At(x, y) ^ letters.At(x, y); }));
    }
}

TEST_F(GaugeTest, WhiteOnBlackTurnsBlackOnWhiteInTheMiddleOfTheText) {
    TQV7SkinGauge gauge(nullptr);
    gauge.GetFont().SetName(L"Tahoma");
    gauge.GetFont().SetQuality(fqNonAntialiased);
    gauge.SetProgress(50);
    const Pixels shown = PictureOf(gauge, 100, 100);
    const Pixels left = shown.Part({30, 40, 50, 60}), right = shown.Part({50, 40, 70, 60});
    EXPECT_GT(left.Count(RGB(255, 255, 255)), 10);
    EXPECT_GT(left.Count(RGB(0, 0, 0)), 300);
    EXPECT_GT(right.Count(RGB(0, 0, 0)), 10);
    EXPECT_GT(right.Count(RGB(255, 255, 255)), 300);
}

TEST_F(GaugeTest, TheScreenShowsTheSamePicture) {
    ProbeGauge* gauge = MakeGauge();
    gauge->GetFont().SetQuality(fqNonAntialiased);
    for (const TQV7SkinGaugeKind kind : {gkText, gkHorizontalBar, gkVerticalBar, gkPie, gkNeedle}) {
        gauge->SetKind(kind);
        gauge->SetProgress(42 + static_cast<int>(kind));
        const Pixels shown = ReadClient(Form().WindowHandle()).Part({20, 10, 120, 110});
        EXPECT_TRUE(SamePixels(shown, PictureOf(*gauge, 100, 100)));
    }
}

TEST_F(GaugeTest, PaintToLeavesControlAndCanvasAsTheyWere) {
    auto gauge = Bare(gkHorizontalBar);
    gauge->SetProgress(100);
    bool resized = false;
    gauge->OnResize = [&](TObject*) { resized = true; };
    TBitmap sheet(60, 40, pf32bit);
    sheet.GetCanvas().SetCopyMode(cmSrcInvert);
    gauge->PaintTo(sheet.GetCanvas(), TRect::OfSize(10, 5, 30, 20));
    EXPECT_EQ(sheet.GetCanvas().GetCopyMode(), cmSrcInvert);
    EXPECT_EQ(gauge->GetBoundsRect(), TRect::OfSize(0, 0, 100, 100));
    EXPECT_FALSE(resized);
    EXPECT_TRUE(SamePixels(ReadBitmap(sheet.GetHandle()), [](int x, int y) {
        if (x < 10 || x >= 40 || y < 5 || y >= 25) return RGB(255, 255, 255);
        const bool border = x == 10 || x == 39 || y == 5 || y == 24;
        return border ? RGB(0, 0, 0) : Fore;
    }));
}

TEST_F(GaugeTest, GaugesWithoutRoomDrawNothing) {
    auto gauge = Bare(gkPie);
    TBitmap sheet(10, 10, pf32bit);
    for (const TSize size : {TSize{0, 5}, TSize{5, 0}, TSize{-3, -3}})
        EXPECT_NO_THROW(gauge->PaintTo(sheet.GetCanvas(), TRect::OfSize(2, 2, size.Width, size.Height)));
    EXPECT_EQ(ReadBitmap(sheet.GetHandle()).Count(RGB(255, 255, 255)), 100);
    gauge->PaintTo(sheet.GetCanvas(), TRect::OfSize(2, 2, 2, 2));
    EXPECT_EQ(ReadBitmap(sheet.GetHandle()).Count(RGB(0, 0, 0)), 4);
}

TEST_F(GaugeTest, ABitmapMadeLikeAnotherHasTheColorOfWindowFrames) {
    TBitmap source(12, 7);
    TBltBitmap bitmap;
    bitmap.MakeLike(source);
    const COLORREF frame = ::GetSysColor(COLOR_WINDOWFRAME);
    EXPECT_TRUE(SamePixels(ReadBitmap(bitmap.GetHandle()), Pixels(12, 7, frame)));
    TBitmap empty;
    bitmap.MakeLike(empty);
    EXPECT_TRUE(bitmap.GetEmpty());
}

}  // namespace
}  // namespace test
