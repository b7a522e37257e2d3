#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/MathErrors.h"
#include "tests/explorerbar/ExplorerBarFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::PumpAll;

/// An item of 20 rows that counts, and fills its rows while the mouse is over it.
class TFlashingItem : public TQV7SkinExplorerItemCustom {
public:
    int Measured = 0;
    bool Fails = false;

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
        if (Fails) throw Exception(L"can't be painted");
        Place(Bitmap, Left, Top, Width);
        TCanvas& canvas = Bitmap.GetCanvas();
        canvas.GetBrush().SetStyle(bsSolid);
        canvas.GetBrush().SetColor(IsHotArea() ? clRed : clBlue);
        canvas.FillRect({0, Top, Width, Top + 20});
        canvas.GetBrush().SetStyle(bsClear);
        Top += 20;
    }
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
        if (Fails) throw Exception(L"can't be measured");
        ++Measured;
        TQV7SkinExplorerItemCustom::Measure(Bitmap, Left, Top, Width);
    }
};

class ExplorerBarLayoutTest : public ExplorerBarTest {
protected:
    /// A picture that is as wide as the group and scaled to it.
    TQV7SkinExplorerItemBmp& AddPicture(int height) {
        const TBitmap picture(208, height, pf24bit);
        auto* item = new TQV7SkinExplorerItemBmp(&picture);
        item->SetAutoSize(true);
        return AddTo(0, item);
    }
};

TEST_F(ExplorerBarLayoutTest, WhatIsFarBelowIsMeasuredOnceForAllUpdates) {
    Bar().BeginUpdate();
    Bar().GetGroups().Add(L"Group", false);
    for (int i = 0; i < 50; ++i)
        AddTo(0, new TLink(L"Link", L""));
    Bar().GetGroups().Add(L"Group", false);
    auto& last = AddTo(1, new TFlashingItem);
    Bar().EndUpdate();
    EXPECT_TRUE(HasScrollBar());
    EXPECT_EQ(last.Measured, 1) << "neither for the width without the scroll bar nor again";
    EXPECT_EQ(Group(1).GetWidth(), Bar().GetClientWidth());
    EXPECT_EQ(Bar().GetVertScrollBar().GetRange(), Bar().GetContentHeight());
}

TEST_F(ExplorerBarLayoutTest, APictureThatFitsBesideTheScrollBarOnlyKeepsIt) {
    Bar().GetGroups().Add(L"Group", false);
    // 19 and 1 for the header, 20 for margins, 1 above the group, 1 below the picture: 300 in all at 257.
    auto& picture = AddPicture(270);
    PumpAll();
    EXPECT_TRUE(HasScrollBar());
    EXPECT_EQ(Group(0).GetWidth(), Bar().GetClientWidth());
    EXPECT_LT(picture.GetDisplayBitmap().GetHeight(), 257);
    EXPECT_EQ(Bar().GetContentHeight(), Bar().GetClientHeight() + 1);
    Bar().NeedsMeasure = true;
    Bar().Repaint();
    EXPECT_TRUE(HasScrollBar());
    Bar().SetHeight(330);
    PumpAll();
    EXPECT_FALSE(HasScrollBar());
    EXPECT_EQ(picture.GetDisplayBitmap().GetHeight(), 270);
    EXPECT_EQ(Group(0).GetWidth(), 218);
    Bar().SetHeight(300);
    PumpAll();
    EXPECT_TRUE(HasScrollBar());
}

TEST_F(ExplorerBarLayoutTest, MeasuringByHandDuringAnUpdateDoesNothing) {
    Fill(1, 3);
    const int height = Bar().GetContentHeight();
    Bar().BeginUpdate();
    AddTo(0, new TLink(L"more", L""));
    Bar().Measure();
    EXPECT_EQ(Bar().GetContentHeight(), height);
    EXPECT_EQ(Box().GetHeight(), height);
    Bar().EndUpdate();
    EXPECT_EQ(Bar().GetContentHeight(), height + LineHeight() + 1);
}

TEST_F(ExplorerBarLayoutTest, ABarThatComesDuringAnUpdateShowsAtItsEnd) {
    auto* bar = new TQV7SkinExplorerBar(nullptr);
    const auto isSeen = [&] { return ::IsWindowVisible(bar->GetHandle()) != FALSE; };
    bar->BeginUpdate();
    auto* group = bar->GetGroups().Add(L"Group", false);
    for (int i = 0; i < 30; ++i)
        group->GetItems().Add(new TLink(L"Link", L""));
    Bar().SetVisible(false);
    bar->SetParent(&Form());
    EXPECT_FALSE(isSeen());
    bar->EndUpdate();
    EXPECT_TRUE(isSeen());
    const test::Pixels atOnce = test::ReadClient(bar->GetHandle());
    EXPECT_TRUE(SamePixels(atOnce, test::ReadBitmap(bar->GetPaintBox().GetBuffer().GetHandle())
                                       .Part({0, 0, bar->GetClientWidth(), bar->GetClientHeight()})));
    bar->BeginUpdate();
    EXPECT_TRUE(isSeen()) << "one that is seen stays so";
    bar->SetVisible(false);
    EXPECT_FALSE(isSeen());
    bar->SetVisible(true);
    EXPECT_FALSE(isSeen());
    bar->SetVisible(false);
    bar->EndUpdate();
    EXPECT_FALSE(isSeen()) << "the last word counts";
    bar->BeginUpdate();
    bar->SetVisible(true);
    group->GetItems().Add(new TQV7SkinExplorerItemProgressBar);
    group->GetItems().Move(30, 0);
    EXPECT_THROW(bar->EndUpdate(), EZeroDivide) << "a progress bar without a range can't be painted";
    EXPECT_TRUE(isSeen());
    EXPECT_EQ(Errors.size(), 1U) << "painted again as it showed";
    Errors.clear();
    bar->Free();
}

TEST_F(ExplorerBarLayoutTest, TheMouseMovedDuringAnUpdatePaintsNothing) {
    Fill(1, 3);
    MoveTo(Item(0, 0));
    const test::Pixels before = Shown();
    const POINT next = OnScreen(Item(0, 1).ClipRect());
    Bar().BeginUpdate();
    Input.MoveTo(next);
    EXPECT_TRUE(SamePixels(Shown(), before));
    Bar().EndUpdate();
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarLayoutTest, AnItemThatHasTheBarMeasureWhileItIsMeasuredEndsNowhere) {
    class TEager : public TFlashingItem {
    public:
        void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
            TFlashingItem::Measure(Bitmap, Left, Top, Width);
            GetBar()->Measure();
        }
    };
    Fill(1, 1);
    auto& item = AddTo(0, new TEager);
    item.Measured = 0;
    Bar().Measure();
    EXPECT_EQ(item.Measured, 1);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarLayoutTest, WhatAnUpdateHidIsNotHit) {
    Fill(2, 3);
    const TRect link = Item(0, 1).ClipRect();
    const TRect header = Group(1).HeaderRect();
    Bar().BeginUpdate();
    Item(0, 1).SetVisible(false);
    Group(1).SetVisible(false);
    EXPECT_EQ(Bar().GetHotArea(link.Left + 2, link.Top + 2), nullptr);
    EXPECT_EQ(Bar().GetHotArea(header.Left + 2, header.Top + 2), nullptr);
    Bar().EndUpdate();
    EXPECT_EQ(Bar().GetHotArea(link.Left + 2, link.Top + 2), &Item(0, 2)) << "which moved up";
}

TEST_F(ExplorerBarLayoutTest, WhatIsUnderTheCursorIsFoundByThePlaceInTheBar) {
    Fill(2, 30);
    MoveTo(Item(0, 2));
    EXPECT_EQ(Bar().GetHotArea(), &Item(0, 2));
    MoveToHeader(0);
    EXPECT_EQ(Bar().GetHotArea(), &Group(0));
    // Counted from the bar's first row that is seen, wherever the content is scrolled to.
    MoveTo(Item(0, 5));
    Bar().GetVertScrollBar().SetPosition(2 * (LineHeight() + 1));
    EXPECT_EQ(Bar().GetHotArea(), &Item(0, 5));
    Input.MoveAway();
    EXPECT_EQ(Bar().GetHotArea(), nullptr);
}

TEST_F(ExplorerBarLayoutTest, AnErrorOfAnItemStopsNothingForGood) {
    Fill(2, 3);
    auto& item = AddTo(0, new TFlashingItem);
    item.Fails = true;
    MoveTo(item);
    EXPECT_EQ(Errors.size(), 1U);
    EXPECT_THROW(Bar().Repaint(), Exception);
    Bar().NeedsMeasure = true;
    EXPECT_THROW(Bar().Repaint(), Exception);
    item.Fails = false;
    Errors.clear();
    Item(1, 0).SetVisible(false);
    PumpAll();
    EXPECT_TRUE(ShowsRowsOf(*WholePicture())) << "the other group too";
    Errors.clear();
}

TEST_F(ExplorerBarLayoutTest, ItemsOfAllLooksAreRepaintedWholeUnderTheMouse) {
    Fill(1, 0);
    Bar().ItemHotTextColor = clRed;
    Bar().BeginUpdate();
    auto& slanted = AddTo(0, new TLink(L"slanted f", L""));
    slanted.SetFontStyle({fsItalic, fsBold});
    auto& ticked = AddTo(0, new TCheck(L"ticked", 0, L"", true, true, true));
    auto& wrapped = AddTo(0, new TLink(L"a text that is too long for one row of this bar", L""));
    auto& cut = AddTo(0, new TLink(L"a text that is too long for one row of this bar", L""));
    cut.SetWordWrap(false);
    auto& pair = AddTo(0, new TQV7SkinExplorerItemCaptionValuePair(L"caption", true, L"value far away", L""));
    auto& block = AddTo(0, new TQV7SkinExplorerItemCaptionBlockPair(L"caption", true, L"block"));
    auto& flashing = AddTo(0, new TFlashingItem);
    Bar().EndUpdate();
    Bar().SetFocus();
    for (TQV7SkinExplorerItemCustom* item : std::initializer_list<TQV7SkinExplorerItemCustom*>{
             &slanted, &ticked, &wrapped, &cut, &pair, &block, &flashing, &slanted, &flashing}) {
        MoveTo(*item);
        ASSERT_EQ(Bar().HotObject, item);
        EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    }
}

TEST_F(ExplorerBarLayoutTest, SlantedLettersAreRepaintedToTheirEnds) {
    Fill(1, 1);
    Bar().ItemHotTextColor = clRed;
    Bar().GetFont().SetHeight(-30);
    Bar().GetFont().SetStyle({fsItalic});
    class TSlanted : public TCheck {
    public:
        using TCheck::TCheck;
        void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
            const int top = Top;
            TCheck::Draw(Bitmap, Left, Top, Width);
            TCanvas& canvas = Bitmap.GetCanvas();
            canvas.GetFont().SetStyle({fsItalic});
            canvas.TextOut(Left + GetTextIndent(), top, GetCaption());
        }
    };
    auto& box = AddTo(0, new TSlanted(L"dddl", 0, L"", false, true, true));
    const auto reach = [&] {
        PumpAll();
        return Shown().Part({0, box.ClipRect().Top, 200, box.ClipRect().Bottom}).Bounds([](COLORREF color) {
            return color != clWhite;
        });
    };
    ASSERT_GT(reach().right, box.ClipRect().Right) << "letters lean beyond the text's width";
    MoveTo(box);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    MoveTo(Item(0, 0));
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarLayoutTest, ATimerRunsOnlyWhileSomethingMoves) {
    const auto timers = [] { return TLedger::Snapshot()["timer"]; };
    const long before = timers();
    Fill(3, 3);
    EXPECT_EQ(timers(), before);
    Bar().SetAnimate(true);
    Group(0).OpenClose();
    Bar().ShowAnimate();
    EXPECT_EQ(timers(), before + (TLedger::IsActive() ? 2 : 0));
    ASSERT_TRUE(test::PumpUntil([&] { return Group(0).GetState() == egsClosed && !Box().GetDeformed(); }));
    EXPECT_EQ(timers(), before);
}

}  // namespace
}  // namespace qv7skin
