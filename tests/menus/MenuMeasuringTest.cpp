#include <algorithm>
#include <tuple>

#include "menus/MenuItemPainter.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

const std::wstring Texts[] = {L"Short",
                              L"Two\nlines",
                              L"Smile \U0001F600 and \U0001F468\u200D\U0001F469\u200D\U0001F467!",
                              L"&Mnemonic && more",
                              std::wstring(120, L'W'),
                              L"\u00c4\u00d6\u00dc g\u0308 \u00e7"};

/// What is measured against what is drawn: caption, description, whether by the variant, whether with a
/// gutter and a short cut.
class MenuMeasuringTest
    : public PainterTest,
      public testing::WithParamInterface<std::tuple<std::wstring, std::wstring, bool, bool>> {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        const auto& [caption, description, isNice, hasParts] = GetParam();
        if (isNice) Painter = std::make_unique<TQV7SkinMenuItemPainterNice>();
        Painter->SetIncludeGutter(hasParts);
        std::wstring hint = description;
        if (const std::size_t at = hint.find(L"\r\n"); at != std::wstring::npos)
            hint.replace(at, 2, L"#13#10");
        Item = AddItem(caption, hint);
        if (hasParts) Item->SetShortCut(ShortCut('S', {ssShift, ssCtrl}));
    }
    /// The item drawn into the rectangle of a picture that is larger by 10 pixels.
    [[nodiscard]] Pixels DrawIn(TSize size) {
        TBitmap bitmap(size.Width + 10, size.Height + 10, pf24bit);
        TCanvas& canvas = bitmap.GetCanvas();
        canvas.GetBrush().SetColor(clWhite);
        canvas.FillRect({0, 0, bitmap.GetWidth(), bitmap.GetHeight()});
        Painter->DrawItem(*Item, canvas, {0, 0, size.Width, size.Height}, false, false);
        return ReadBitmap(bitmap.GetHandle());
    }
    static bool IsText(COLORREF color) { return color == clBlack; }

    TMenuItem* Item = nullptr;
};

TEST_P(MenuMeasuringTest, WhatIsDrawnFitsWhatIsMeasured) {
    const auto& [caption, description, isNice, hasParts] = GetParam();
    const TSize size = Measure(*Item);
    const Pixels exact = DrawIn(size);
    // Nothing beside and below the item ...
    EXPECT_EQ(exact.Part({size.Width, 0, exact.Width(), exact.Height()}).Count(clWhite), 10 * exact.Height());
    EXPECT_EQ(exact.Part({0, size.Height, exact.Width(), exact.Height()}).Count(clWhite), 10 * exact.Width());
    // ... and nothing more with more room. Only glyphs that stand over their own width lose a pixel.
    const RECT text = exact.Bounds(&IsText);
    EXPECT_LE(text.right, size.Width - 4);
    EXPECT_EQ(DrawIn({size.Width, size.Height + 80}).Count(clBlack), exact.Count(clBlack));
    if (!hasParts) {
        EXPECT_NEAR(DrawIn({size.Width + 60, size.Height}).Bounds(&IsText).right, text.right, 1);
    }
    const TSize captionSize = TextSize(Painter->GetTitleFont(), caption);
    const TSize descriptionSize = TextSize(Painter->GetDescriptionFont(), description);
    const TSize shortCut = TextSize(Painter->GetTitleFont(), hasParts ? L"Shift+Ctrl+S" : L"");
    const int first = captionSize.Width + (hasParts ? shortCut.Width + 8 : 0);
    EXPECT_EQ(size, TSize(std::max(first, descriptionSize.Width) + 8 + (hasParts ? 26 : 0),
                          captionSize.Height + descriptionSize.Height + 8));
}

TEST_P(MenuMeasuringTest, TheTextStandsWhereItsSpaceBegins) {
    const auto& [caption, description, isNice, hasParts] = GetParam();
    const Pixels shown = DrawIn(Measure(*Item));
    const RECT text = shown.Bounds(&IsText);
    if (text.left >= text.right) return;
    EXPECT_GE(text.left, hasParts ? 30 : 4);
    EXPECT_GE(text.top, description.empty() ? 4 : 2);
}

TEST_F(PainterTest, AnItemWithoutACaptionIsAsHighAsItsDescription) {
    EXPECT_EQ(Measure(*AddItem(L"")), TSize(8 + 26, 8));
    const TSize description = TextSize(Painter->GetDescriptionFont(), L"Says more");
    EXPECT_EQ(Measure(*AddItem(L"", L"Says more")),
              TSize(description.Width + 8 + 26, description.Height + 8));
}

INSTANTIATE_TEST_SUITE_P(Texts, MenuMeasuringTest,
                         testing::Combine(testing::ValuesIn(Texts),
                                          testing::Values(L"", L"One\r\ntwo", L"\U0001F600 smiles"),
                                          testing::Bool(), testing::Bool()));

}  // namespace
}  // namespace test
