#include "menus/MenuItemPainter.h"
#include "platform/vcl/graphics/ImageList.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/FilledBitmap.h"
#include "tests/support/PixelProbe.h"

// The gutter ends at one place of the menu's canvas, wherever an item begins.

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

constexpr int Edge = 26;

/// Where an item begins and ends.
class ItemGutterTest : public PainterTest, public testing::WithParamInterface<std::pair<int, int>> {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        const auto& [left, right] = GetParam();
        Place = {left, 10, right, 40};
    }
    /// What an item shows on its empty ground, and white around it.
    [[nodiscard]] Pixels Ground(COLORREF ground) const {
        return {Width, Height, [&](int x, int y) -> COLORREF {
                    if (!Place.Contains({x, y})) return clWhite;
                    if (x == Edge) return GutterLine;
                    return x < Edge ? Gutter : ground;
                }};
    }
    TRect Place;
};

TEST_P(ItemGutterTest, AnItemHasTheGutterThatLiesInIt) {
    TMenuItem* item = AddItem(L"");
    EXPECT_TRUE(SamePixels(Draw(*item, Place), Ground(ItemGround)));
    Painter->SetIncludeGutter(false);
    EXPECT_EQ(Draw(*item, Place).Count(ItemGround), Place.Width() * Place.Height());
    TImageList images(nullptr);
    Menu->SetImages(&images);
    EXPECT_TRUE(SamePixels(Draw(*item, Place), Ground(ItemGround)));
}

TEST_P(ItemGutterTest, ASeparatorHasTheGutterThatLiesInIt) {
    TMenuItem* line = AddItem(L"-");
    const Pixels expected = Ground(SeparatorGround);
    const auto rule = [&](int x, int y) -> COLORREF {
        if (!Place.Contains({x, y}) || x <= Edge || y < Place.Bottom - 2) return expected.At(x, y);
        return y == Place.Bottom - 2 ? GutterLine : ItemGround;
    };
    EXPECT_TRUE(SamePixels(Draw(*line, Place), rule));
}

TEST_P(ItemGutterTest, TheHighlightCoversTheWholeItem) {
    TMenuItem* item = AddItem(L"");
    const Pixels shown = Draw(*item, Place, true);
    for (int x = Place.Left + 2; x < Place.Right - 2; ++x)
        EXPECT_EQ(shown.At(x, 20), GradientRow(10, 29, 0x00EFE8E4, 0x00DEC5B8)) << x;
    EXPECT_EQ(shown.Count(clWhite), Width * Height - Place.Width() * Place.Height());
}

INSTANTIATE_TEST_SUITE_P(Places, ItemGutterTest,
                         testing::Values(std::pair(0, 150), std::pair(10, 150), std::pair(25, 150),
                                         std::pair(26, 150), std::pair(27, 150), std::pair(60, 150),
                                         std::pair(2, 20), std::pair(2, 26), std::pair(2, 27)),
                         [](const auto& place) {
                             return "From" + std::to_string(place.param.first) + "To" +
                                    std::to_string(place.param.second);
                         });

/// Marks, texts and pictures of items that begin somewhere else than at the left edge.
class FurtherColumnTest : public PainterTest {
protected:
    [[nodiscard]] static TRect BlackIn(const Pixels& shown) {
        return shown.Bounds([](COLORREF c) { return c == clBlack; });
    }
};

TEST_F(FurtherColumnTest, TheMarkStandsInTheMiddleOfTheGutterThatLiesInTheItem) {
    TMenuItem* item = AddItem(L"");
    item->SetRadioItem(true);
    item->SetChecked(true);
    // The middle of 10 .. 26 and 10 .. 40.
    EXPECT_EQ(BlackIn(Draw(*item, {10, 10, 150, 40})), TRect(14, 21, 22, 29));
}

TEST_F(FurtherColumnTest, BehindTheEdgeTheMarkStandsBeforeTheCaption) {
    TMenuItem* item = AddItem(L"");
    item->SetChecked(true);
    for (const bool isRadio : {true, false}) {
        item->SetRadioItem(isRadio);
        for (const int left : {26, 27, 60}) {
            const Pixels first = Draw(*item, {0, 10, 90, 40});
            const Pixels shown = Draw(*item, {left, 10, left + 90, 40});
            const TRect mark = BlackIn(first);
            EXPECT_EQ(BlackIn(shown), TRect(mark.Left + left, mark.Top, mark.Right + left, mark.Bottom));
            EXPECT_EQ(shown.Part({0, 0, left, Height}).Count(clWhite), left * Height);
        }
    }
}

TEST_F(FurtherColumnTest, CaptionsAndPicturesKeepTheirDistance) {
    TImageList images(nullptr);
    const FilledBitmap picture(16, 16, clRed);
    images.Add(&picture, nullptr);
    Menu->SetImages(&images);
    TMenuItem* item = AddItem(L"H");
    item->SetImageIndex(0);
    for (const int left : {0, 10, 60}) {
        const Pixels shown = Draw(*item, {left, 10, 150, 40});
        EXPECT_EQ(TRect(shown.Bounds([](COLORREF c) { return c == clRed; })),
                  TRect(left + 4, 12, left + 20, 28));
        EXPECT_EQ(BlackIn(shown).Left - left, BlackIn(Draw(*item, {0, 10, 150, 40})).Left);
        EXPECT_GE(BlackIn(shown).Left, left + 30);
    }
}

}  // namespace
}  // namespace test
