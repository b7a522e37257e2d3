#include <cmath>

#include "platform/vcl/stdctrls/Timer.h"
#include "tests/explorerbar/ExplorerBarFixture.h"

namespace qv7skin {
namespace {

using namespace probes;

class ExplorerGroupTest : public ExplorerBarTest {};

using TSeparator = TQV7SkinExplorerItemSeparator;

TEST_F(ExplorerGroupTest, StartsOpenWithTheHeightsOfAnEmptyBody) {
    TQV7SkinExplorerGroup group(nullptr);
    EXPECT_EQ(group.GetState(), egsOpen);
    EXPECT_EQ(group.GetBodyHeight(), 25);
    EXPECT_EQ(group.GetFullHeight(), 25);
    EXPECT_EQ(group.GetTargetHeight(), 25);
    EXPECT_EQ(group.GetGroupIconIndex(), -1);
    EXPECT_TRUE(group.GetVisible());
    EXPECT_FALSE(group.GetSpecialGroup());
    EXPECT_TRUE(group.IsClosed()) << "there is nothing to open";
}

TEST_F(ExplorerGroupTest, MeasuresHeaderMarginsAndItems) {
    Fill(1, 3);
    TBitmap bitmap(218, 10, pf24bit);
    bitmap.GetCanvas().SetFont(Bar().GetFont());
    int top = 7;
    Group(0).Measure(bitmap, top);
    const int items = 3 * (bitmap.GetCanvas().TextHeight(L"A") + 1);
    EXPECT_EQ(Group(0).GetFullHeight(), 10 + items + 10);
    EXPECT_EQ(Group(0).GetBodyHeight(), Group(0).GetFullHeight());
    EXPECT_EQ(top, 7 + 19 + 10 + items + 10 + 1);
    EXPECT_EQ(Group(0).MeasuredItems(), 3);
}

TEST_F(ExplorerGroupTest, PaintsWhereItMeasured) {
    Fill(2, 3);
    const int body = Group(0).GetFullHeight();
    EXPECT_EQ(Group(0).HeaderRect(), TRect(0, 0, 218, 19));
    EXPECT_EQ(Group(0).BodyRect(), TRect(0, 19, 218, 19 + body));
    EXPECT_EQ(Group(1).HeaderRect(), TRect(0, 19 + body, 218, 38 + body));
    EXPECT_EQ(Item(0, 0).ClipRect().Top, 19 + 10);
    EXPECT_EQ(Item(0, 1).ClipRect().Top, 19 + 10 + LineHeight() + 1);
}

TEST_F(ExplorerGroupTest, WithoutItemsItIsAHeaderAndARow) {
    Fill(1, 0);
    EXPECT_EQ(Bar().GetContentHeight(), 1 + 19 + 1);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsOpen) << "there is nothing to close";
    const auto whole = WholePicture();
    // The disabled button to maximise.
    TBitmap button;
    button.Assign(CreateBmp(L"EXPLORERBARBUTTONMAXIMIZEDISABLED").get());
    int compared = 0;
    for (int y = 0; y < button.GetHeight(); ++y)
        for (int x = 0; x < button.GetWidth(); ++x) {
            const TColor pixel = button.GetCanvas().GetPixel(x, y);
            if (pixel == 0x00FF00FF) continue;
            EXPECT_EQ(whole->GetCanvas().GetPixel(218 - button.GetWidth() - 4 + x, 2 + y), pixel);
            ++compared;
        }
    EXPECT_GT(compared, 0);
}

TEST_F(ExplorerGroupTest, ItemsThatAreAllHiddenCountAsNone) {
    Fill(1, 2);
    Item(0, 0).SetVisible(false);
    Item(0, 1).SetVisible(false);
    EXPECT_EQ(Group(0).MeasuredItems(), 0);
    EXPECT_TRUE(Group(0).IsClosed());
    EXPECT_EQ(Bar().GetContentHeight(), 1 + 19 + 1);
}

TEST_F(ExplorerGroupTest, ShowsSeparatorsBetweenItemsOnly) {
    Fill(1, 0);
    Bar().BeginUpdate();
    std::vector<TQV7SkinExplorerItemCustom*> items;
    const auto add = [&](TQV7SkinExplorerItemCustom* item) { items.push_back(&AddTo(0, item)); };
    add(new TSeparator(5));
    add(new TLink(L"a", L""));
    add(new TSeparator(6));
    add(new TSeparator(7));
    add(new TLink(L"b", L""));
    add(new TSeparator(8));
    add(new TLink(L"hidden", L""));
    items.back()->SetVisible(false);
    Bar().EndUpdate();
    const std::vector shown{false, true, true, false, true, false, false};
    for (std::size_t i = 0; i < items.size(); ++i)
        EXPECT_EQ(items[i]->GetShown(), shown[i]) << i;
    EXPECT_EQ(Group(0).GetFullHeight(), 10 + 2 * (LineHeight() + 1) + 6 + 10);
}

TEST_F(ExplorerGroupTest, OnlyTheLastVisibleBodyHasNoLineBelow) {
    Fill(3, 2);
    Group(2).SetVisible(false);
    const auto whole = WholePicture();
    const auto rowBelow = [&](int group) {
        return whole->GetCanvas().GetPixel(100, Group(group).BodyRect().Bottom - 1);
    };
    EXPECT_TRUE(Group(1).IsLastVisibleGroup());
    EXPECT_EQ(rowBelow(0), 0x00F0EAE7);
    EXPECT_EQ(rowBelow(1), clWhite);
}

TEST_F(ExplorerGroupTest, AClosedBodyIsOneLine) {
    Fill(2, 2);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsClosed);
    EXPECT_EQ(Group(1).HeaderRect().Top, 19 + 1);
    const auto whole = WholePicture();
    EXPECT_EQ(whole->GetCanvas().GetPixel(0, 19), 0x00F0EAE7);
    EXPECT_EQ(whole->GetCanvas().GetPixel(217, 19), 0x00F0EAE7);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsOpen);
    EXPECT_EQ(Group(0).GetBodyHeight(), Group(0).GetFullHeight());
}

TEST_F(ExplorerGroupTest, ThePictureOfTheBodyStandsInItsBottomRightCorner) {
    Fill(1, 4);
    TBitmap picture(10, 6, pf24bit);
    picture.GetCanvas().GetBrush().SetColor(clRed);
    picture.GetCanvas().FillRect({0, 0, 10, 6});
    Group(0).SetBgImage(&picture);
    const auto whole = WholePicture();
    const TRect body = Group(0).BodyRect();
    EXPECT_EQ(whole->GetCanvas().GetPixel(body.Right - 10, body.Bottom - 6), clRed);
    EXPECT_EQ(whole->GetCanvas().GetPixel(body.Right - 1, body.Bottom - 1), clRed);
    EXPECT_EQ(whole->GetCanvas().GetPixel(body.Right - 11, body.Bottom - 6), clWhite);
    Group(0).SetBgImage(nullptr);
    EXPECT_EQ(Group(0).GetBgImage(), nullptr);
}

TEST_F(ExplorerGroupTest, ATitleIsWhiteInANormalGroupAndBlackInASpecialOne) {
    Fill(1, 1);
    Group(0).SetTitle(L"MMMM");
    const auto count = [&](TColor color) {
        const auto whole = WholePicture();
        int found = 0;
        for (int y = 2; y < 17; ++y)
            for (int x = 5; x < 80; ++x)
                found += whole->GetCanvas().GetPixel(x, y) == color;
        return found;
    };
    EXPECT_EQ(count(clBlack), 0);
    Group(0).SetSpecialGroup(true);
    EXPECT_GT(count(clBlack), 20);
}

TEST_F(ExplorerGroupTest, HotHeadersTakeTheHotColor) {
    Fill(1, 1);
    Group(0).SetTitle(L"MMMM");
    Bar().HeaderHotColor = clRed;
    MoveToHeader(0);
    EXPECT_TRUE(Group(0).IsHotArea());
    const auto whole = WholePicture();
    int red = 0;
    for (int x = 5; x < 80; ++x)
        red += whole->GetCanvas().GetPixel(x, 9) == clRed;
    EXPECT_GT(red, 0);
}

TEST_F(ExplorerGroupTest, TheButtonUnderTheMouseIsHovered) {
    Fill(1, 1);
    const auto button = [&](const wchar_t* name) {
        const auto piece = CreateBmp(name);
        int differing = 0;
        for (int y = 0; y < piece->GetHeight(); ++y)
            for (int x = 0; x < piece->GetWidth(); ++x) {
                const TColor pixel = piece->GetCanvas().GetPixel(x, y);
                const TColor shown = Box().GetBuffer().GetCanvas().GetPixel(218 - 14 - 4 + x, 2 + y);
                differing += pixel != 0x00FF00FF && pixel != shown;
            }
        return differing;
    };
    EXPECT_EQ(button(L"EXPLORERBARBUTTONMINIMIZEDEFAULT"), 0);
    Input.MoveTo(Box().GetHandle(), 30, 9);
    EXPECT_EQ(button(L"EXPLORERBARBUTTONMINIMIZEDEFAULT"), 0);
    Input.MoveTo(Box().GetHandle(), 218 - 11, 9);
    EXPECT_EQ(button(L"EXPLORERBARBUTTONMINIMIZEHOVERED"), 0);
    Input.MoveTo(Box().GetHandle(), 30, 9);
    EXPECT_EQ(button(L"EXPLORERBARBUTTONMINIMIZEDEFAULT"), 0);
    Input.Click();
    EXPECT_EQ(button(L"EXPLORERBARBUTTONMAXIMIZEDEFAULT"), 0);
}

TEST_F(ExplorerGroupTest, BlockTextsShareAColumn) {
    Fill(1, 0);
    Bar().BeginUpdate();
    auto& narrow = AddTo(0, new TQV7SkinExplorerItemCaptionBlockPair(L"i", L"x"));
    auto& wide = AddTo(0, new TQV7SkinExplorerItemCaptionBlockPair(L"wider caption", L"x"));
    Bar().EndUpdate();
    TBitmap bitmap(218, 10, pf24bit);
    bitmap.GetCanvas().SetFont(Bar().GetFont());
    const int column = bitmap.GetCanvas().TextWidth(L"wider caption");
    EXPECT_EQ(Group(0).CalcBlockOffset(bitmap, 218, 0), column);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    // Both block texts start there, less what the first column of the letter is free.
    const auto whole = WholePicture();
    const auto firstInk = [&](const TRect& clip) {
        for (int x = 10 + column; x < 218; ++x)
            for (int y = clip.Top; y < clip.Bottom; ++y)
                if (whole->GetCanvas().GetPixel(x, y) != clWhite) return x;
        return -1;
    };
    EXPECT_GE(firstInk(narrow.ClipRect()), 10 + column);
    EXPECT_EQ(firstInk(narrow.ClipRect()), firstInk(wide.ClipRect()));
    wide.SetVisible(false);
    EXPECT_EQ(Group(0).CalcBlockOffset(bitmap, 218, 0), bitmap.GetCanvas().TextWidth(L"i"));
}

TEST_F(ExplorerGroupTest, AnItemThatPaintsHigherThanItMeasuresPushesTheNextOnesDown) {
    Fill(1, 0);
    Bar().BeginUpdate();
    // Bold and 7 pixels narrower: the longer the text, the surer the difference.
    String text;
    for (int i = 0; i < 60; ++i)
        text += L"word ";
    auto& box = AddTo(0, new TCheck(text, 0, L"", true, true, true));
    auto& after = AddTo(0, new TLink(L"after", L""));
    Bar().EndUpdate();
    Group(0).PlaceItem(after);
    EXPECT_EQ(after.ClipRect().Top, box.ClipRect().Bottom);
    int measured = 0;
    int left = 0;
    int width = 218;
    box.Measure(Box().GetBuffer(), left, measured, width);
    EXPECT_GT(box.ClipRect().Height(), measured);
}

// --- sliding

class SlideTest : public ExplorerBarTest, public testing::WithParamInterface<int> {
protected:
    /// A group with a body of that height.
    void FillTo(int fullHeight) {
        Fill(1, 0);
        Bar().BeginUpdate();
        // One item fills the rest; separators alone would not show.
        AddTo(0, new TQV7SkinExplorerItemProgressBar(0, 100, 50, fullHeight - 21, clBlack, clBlue));
        Bar().EndUpdate();
        Bar().SetAnimate(true);
        ASSERT_EQ(Group(0).GetFullHeight(), fullHeight);
    }
    /// The steps as the rules make them, from the shortest.
    static std::vector<int> Steps(int fullHeight) {
        std::vector<int> steps;
        const int increment = fullHeight / 150 + 1;
        int step = 1;
        for (int position = 0; fullHeight > position; step += increment) {
            steps.push_back(step);
            position += step;
        }
        steps.push_back(step);  // the step that ends the slide
        return steps;
    }
};

TEST_P(SlideTest, ClosesFasterAndFaster) {
    FillTo(GetParam());
    const int full = GetParam();
    const int increment = full / 150 + 1;
    const int maxStep = Steps(full).back();
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsClosing);
    EXPECT_EQ(Group(0).GetMaxStep(), maxStep);
    int body = full;
    int step = 0;
    for (int tick = 0; Group(0).GetState() == egsClosing; ++tick) {
        ASSERT_LT(tick, 100);
        body = std::max(body - step, 0);
        step += increment;
        if (step >= maxStep) body = 0;
        Group(0).Timer(nullptr);
        EXPECT_EQ(Group(0).GetBodyHeight(), body) << "tick " << tick;
    }
    EXPECT_EQ(Group(0).GetState(), egsClosed);
    EXPECT_GE(step, maxStep);
}

TEST_P(SlideTest, OpensSlowerAndSlower) {
    FillTo(GetParam());
    Bar().SetAnimate(false);
    Group(0).OpenClose();
    Bar().SetAnimate(true);
    const int full = GetParam();
    const int increment = full / 150 + 1;
    int step = Steps(full).back() - 1;
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsOpening);
    EXPECT_EQ(Group(0).GetStep(), step);
    int body = 0;
    for (int tick = 0; Group(0).GetState() == egsOpening; ++tick) {
        ASSERT_LT(tick, 100);
        body = std::min(body + step, full);
        step -= increment;
        if (step < 0) body = full;
        Group(0).Timer(nullptr);
        EXPECT_EQ(Group(0).GetBodyHeight(), body) << "tick " << tick;
    }
    EXPECT_EQ(Group(0).GetState(), egsOpen);
    EXPECT_EQ(Group(0).GetBodyHeight(), full);
}

TEST_P(SlideTest, TurnsRoundWithoutJumping) {
    FillTo(GetParam());
    Group(0).OpenClose();
    for (int i = 0; i < 3; ++i)
        Group(0).Timer(nullptr);
    const int body = Group(0).GetBodyHeight();
    const int step = Group(0).GetStep();
    ASSERT_EQ(Group(0).GetState(), egsClosing);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsOpening);
    EXPECT_EQ(Group(0).GetBodyHeight(), body);
    EXPECT_EQ(Group(0).GetStep(), step);
    EXPECT_EQ(Group(0).GetTargetHeight(), GetParam());
    Group(0).Timer(nullptr);
    EXPECT_EQ(Group(0).GetBodyHeight(), std::min(body + step, GetParam()));
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsClosing);
    EXPECT_EQ(Group(0).GetTargetHeight(), 0);
}

INSTANTIATE_TEST_SUITE_P(Heights, SlideTest, testing::Values(40, 75, 149, 150, 300, 451, 1000));

TEST_F(ExplorerGroupTest, TheTicksOfAnAnimationByTheTable) {
    // A body of 40 pixels: steps of 1, 2, 3 ... that reach 40 with the ninth; the tenth ends it.
    Fill(1, 0);
    Bar().BeginUpdate();
    AddTo(0, new TQV7SkinExplorerItemProgressBar(0, 100, 50, 19, clBlack, clBlue));
    Bar().EndUpdate();
    Bar().SetAnimate(true);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetMaxStep(), 10);
    const std::vector expected{40, 39, 37, 34, 30, 25, 19, 12, 4, 0};
    for (const int height : expected) {
        Group(0).Timer(nullptr);
        EXPECT_EQ(Group(0).GetBodyHeight(), height);
    }
    EXPECT_EQ(Group(0).GetState(), egsClosed);
    Group(0).OpenClose();
    for (const int height : {9, 17, 24, 30, 35, 39, 40, 40, 40}) {
        Group(0).Timer(nullptr);
        EXPECT_EQ(Group(0).GetBodyHeight(), height);
    }
    EXPECT_EQ(Group(0).GetState(), egsOpening);
    Group(0).Timer(nullptr);
    EXPECT_EQ(Group(0).GetState(), egsOpen);
}

/// Counts how often it is measured and drawn.
class TCountingItem : public TQV7SkinExplorerItemCustom {
public:
    int Measured = 0;
    int Drawn = 0;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
        ++Measured;
        TQV7SkinExplorerItemCustom::Measure(Bitmap, Left, Top, Width);
    }
    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
        ++Drawn;
        TQV7SkinExplorerItemCustom::Draw(Bitmap, Left, Top, Width);
        --Measured;  // by which drawing moves on
    }
};

TEST_F(ExplorerGroupTest, ASlideMeasuresNothingThatHasNotChanged) {
    Fill(2, 2);
    auto& item = AddTo(1, new TCountingItem);
    Bar().SetAnimate(true);
    item.Measured = 0;
    Group(0).OpenClose();
    for (int i = 0; i < 3; ++i)
        Group(0).Timer(nullptr);
    EXPECT_EQ(item.Measured, 0);
    item.Refresh(true);
    EXPECT_EQ(item.Measured, 1);
    while (Group(0).GetState() == egsClosing)
        Group(0).Timer(nullptr);
    EXPECT_EQ(item.Measured, 1);
}

TEST_F(ExplorerGroupTest, DrawsOnlyWhatTheBitmapCanShow) {
    Fill(1, 0);
    Bar().BeginUpdate();
    std::vector<TCountingItem*> items;
    for (int i = 0; i < 100; ++i)
        items.push_back(&AddTo(0, new TCountingItem));
    Bar().EndUpdate();
    test::PumpAll();
    for (TCountingItem* item : items)
        item->Drawn = 0;
    Bar().Repaint();
    int drawn = 0;
    for (const TCountingItem* item : items)
        drawn += item->Drawn;
    EXPECT_EQ(drawn, (300 - 19 - 10 + 19) / 20) << "of 20 pixels each, from row 29 to row 300";
    (void)WholePicture();
    for (const TCountingItem* item : items)
        EXPECT_GE(item->Drawn, 1);
}

TEST_F(ExplorerGroupTest, ItSlidesByItsTimerWhenTheHeaderIsClicked) {
    Fill(2, 4);
    Bar().SetAnimate(true);
    ClickHeader(0);
    EXPECT_EQ(Group(0).GetState(), egsClosing);
    ASSERT_TRUE(test::PumpUntil([&] { return Group(0).GetState() == egsClosed; }));
    EXPECT_EQ(Group(1).HeaderRect().Top, 20);
    ClickHeader(0);
    EXPECT_EQ(Group(0).GetState(), egsOpening);
    ASSERT_TRUE(test::PumpUntil([&] { return Group(0).GetState() == egsOpen; }));
    EXPECT_EQ(Group(0).GetBodyHeight(), Group(0).GetFullHeight());
}

TEST_F(ExplorerGroupTest, ASlidingBodyMovesUpAndFadesToTheBackground) {
    Fill(1, 0);
    Bar().BeginUpdate();
    AddTo(0, new TQV7SkinExplorerItemProgressBar(0, 1, 1, 79, clRed, clRed));
    Bar().EndUpdate();
    Bar().SetAnimate(true);
    Group(0).OpenClose();
    for (int i = 0; i < 9; ++i)
        Group(0).Timer(nullptr);
    ASSERT_EQ(Group(0).GetState(), egsClosing);
    const int body = Group(0).GetBodyHeight();
    ASSERT_GT(body, 20);
    ASSERT_LT(body, 90);
    // The last row of the fill, shifted by what is hidden already.
    const int row = 19 + 10 + 79 - 3 - (100 - body);
    const double factor = 1 - static_cast<double>(body) / 100;
    const auto faded = static_cast<int>(std::lround(255 * factor));
    const TColor shown = Box().GetBuffer().GetCanvas().GetPixel(100, row);
    EXPECT_EQ(RedOf(shown), 255);
    EXPECT_NEAR(GreenOf(shown), faded, 1);
    EXPECT_NEAR(BlueOf(shown), faded, 1);
}

}  // namespace
}  // namespace qv7skin
