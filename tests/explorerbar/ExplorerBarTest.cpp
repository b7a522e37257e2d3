#include <cmath>

#include "platform/vcl/stdctrls/Button.h"
#include "tests/explorerbar/ExplorerBarFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::PumpAll;
using test::PumpUntil;

TEST_F(ExplorerBarTest, StartsWithTheStatedValues) {
    TQV7SkinExplorerBar bar(nullptr);
    EXPECT_EQ(bar.GetBoundsRect(), TRect(0, 0, 218, 300));
    EXPECT_FALSE(bar.GetParentColor());
    EXPECT_TRUE(bar.GetParentFont());
    EXPECT_EQ(bar.GetColor(), clWhite);
    EXPECT_TRUE(bar.GetAnimate());
    EXPECT_TRUE(bar.GetAutoTabStop());
    EXPECT_FALSE(bar.GetTabStop());
    EXPECT_TRUE(bar.NeedsMeasure);
    EXPECT_EQ(bar.HotObject, nullptr);
    EXPECT_TRUE(bar.GetAutoScroll());
    EXPECT_EQ(bar.GetVertScrollBar().GetButtonSize(), 17);
    EXPECT_TRUE(bar.GetVertScrollBar().GetSmooth());
    EXPECT_TRUE(bar.GetVertScrollBar().GetTracking());
    EXPECT_FALSE(bar.GetVertScrollBar().GetVisible());
    EXPECT_FALSE(bar.GetHorzScrollBar().GetVisible());
}

TEST_F(ExplorerBarTest, TheSkinHasItsColors) {
    Bar().LineColor = Bar().SpecialHeaderColor = clRed;
    Bar().SetColor(clBlue);
    Bar().SetSkin();
    EXPECT_EQ(Bar().FadeColor, clWhite);
    EXPECT_EQ(Bar().LineColor, 0x00F0EAE7);
    EXPECT_EQ(Bar().BodyColor, clWhite);
    EXPECT_EQ(Bar().HeaderColor, clWhite);
    EXPECT_EQ(Bar().HeaderHotColor, clWhite);
    EXPECT_EQ(Bar().SpecialHeaderColor, clBlack);
    EXPECT_EQ(Bar().SpecialHeaderHotColor, clBlack);
    EXPECT_EQ(Bar().ItemTextColor, clBlack);
    EXPECT_EQ(Bar().ItemHotTextColor, clBlack);
    EXPECT_EQ(Bar().GetColor(), clWhite);
}

// --- layout

TEST_F(ExplorerBarTest, WithoutGroupsThereIsOnlyTheBackground) {
    PumpAll();
    EXPECT_FALSE(Bar().GetTabStop());
    EXPECT_FALSE(HasScrollBar());
    EXPECT_TRUE(SamePixels(Shown(), [](int, int) { return COLORREF{clWhite}; }));
}

TEST_F(ExplorerBarTest, ItIsATabStopWhileItHasGroups) {
    Fill(1, 1);
    EXPECT_TRUE(Bar().GetTabStop());
    Bar().GetGroups().Clear();
    EXPECT_FALSE(Bar().GetTabStop());
    Bar().SetAutoTabStop(false);
    Fill(1, 1);
    EXPECT_FALSE(Bar().GetTabStop());
    Bar().SetAutoTabStop(true);
    EXPECT_TRUE(Bar().GetTabStop());
}

TEST_F(ExplorerBarTest, TheContentIsAsHighAsItsGroups) {
    Fill(2, 3);
    const int group = 19 + 10 + 3 * (LineHeight() + 1) + 10 + 1;
    EXPECT_EQ(Bar().GetContentHeight(), 1 + 2 * group);
    EXPECT_EQ(Box().GetHeight(), 1 + 2 * group);
    Group(1).SetVisible(false);
    EXPECT_EQ(Bar().GetContentHeight(), 1 + group);
}

TEST_F(ExplorerBarTest, ABufferOfTheWholeContentIsWhatIsShown) {
    Fill(2, 4);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, ContentThatDoesNotFitShowsTheScrollBar) {
    Fill(3, 10);
    EXPECT_TRUE(HasScrollBar());
    EXPECT_EQ(Group(0).GetWidth(), Bar().GetClientWidth());
    EXPECT_LT(Bar().GetClientWidth(), 218);
    EXPECT_EQ(Bar().GetVertScrollBar().GetRange(), Bar().GetContentHeight());
    Group(0).OpenClose();
    Group(1).OpenClose();
    EXPECT_FALSE(HasScrollBar());
    EXPECT_EQ(Group(2).GetWidth(), 218);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Group(0).OpenClose();
    EXPECT_TRUE(HasScrollBar());
}

TEST_F(ExplorerBarTest, TheScrollBarStaysUntilAClosingGroupHasClosed) {
    Fill(2, 12);
    ASSERT_TRUE(HasScrollBar());
    Bar().SetAnimate(true);
    Group(0).OpenClose();
    EXPECT_EQ(Group(0).GetState(), egsClosing);
    while (Group(0).GetState() == egsClosing) {
        EXPECT_TRUE(HasScrollBar());
        EXPECT_GE(Box().GetHeight(), Bar().GetClientHeight() - 1);
        Group(0).Timer(nullptr);
    }
    EXPECT_FALSE(HasScrollBar());
}

TEST_F(ExplorerBarTest, ANewWidthIsANewLayout) {
    Fill(1, 1);
    auto& link = AddTo(0, new TLink(L"one two three four five six seven eight nine ten", L""));
    const int wide = link.ClipRect().Height();
    Bar().SetWidth(100);
    EXPECT_EQ(Group(0).GetWidth(), 100);
    EXPECT_EQ(Box().GetWidth(), 100);
    EXPECT_GT(link.ClipRect().Height(), wide);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, NothingHappensDuringAnUpdate) {
    Fill(1, 1);
    const test::Pixels before = Shown();
    const int height = Bar().GetContentHeight();
    Bar().BeginUpdate();
    Bar().BeginUpdate();
    for (int i = 0; i < 5; ++i)
        AddTo(0, new TLink(L"more", L""));
    Group(0).SetTitle(L"other");
    Bar().Repaint();
    Bar().EndUpdate();
    PumpAll();
    EXPECT_EQ(Bar().GetContentHeight(), height);
    EXPECT_TRUE(SamePixels(Shown(), before));
    Bar().EndUpdate();
    EXPECT_EQ(Bar().GetContentHeight(), height + 5 * (LineHeight() + 1));
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, ChangesOutsideOfAnUpdateAreSeenAtOnce) {
    Fill(2, 3);
    AddTo(0, new TLink(L"added", L""));
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    static_cast<TLink&>(Item(1, 0)).SetCaption(L"another caption that takes two rows at least, or more");
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Group(0).GetItems().Delete(0);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Item(1, 1).SetVisible(false);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Bar().GetGroups().Delete(0);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, AnotherFontIsMeasuredAndShown) {
    Fill(1, 2);
    const int before = Bar().GetContentHeight();
    Bar().GetFont().SetHeight(-24);
    EXPECT_GT(Bar().GetContentHeight(), before);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

// --- scrolling

TEST_F(ExplorerBarTest, ScrollingShowsOtherRows) {
    Fill(4, 20);
    const auto whole = WholePicture();
    auto& bar = Bar().GetVertScrollBar();
    for (const int position : {7, 100, 93, 400, 401, 0, 1000000}) {
        bar.SetPosition(position);
        EXPECT_TRUE(ShowsRowsOf(*whole)) << position;
    }
    EXPECT_EQ(bar.GetPosition(), Bar().GetContentHeight() - 300);
}

TEST_F(ExplorerBarTest, TheWheelScrolls) {
    Fill(4, 20);
    Input.MoveTo(Box().GetHandle(), 100, 100);
    Input.Wheel(-1);
    const int notch = ScrollPos();
    EXPECT_GT(notch, 0);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Input.Wheel(1);
    EXPECT_EQ(ScrollPos(), 0);
}

TEST_F(ExplorerBarTest, ItemsComeIntoViewByTheShortestWay) {
    Fill(4, 20);
    Bar().ScrollIntoView(&Item(3, 10));
    EXPECT_EQ(ScrollPos() + 300, Item(3, 10).ClipRect().Bottom);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Bar().ScrollIntoView(&Item(1, 0));
    EXPECT_EQ(ScrollPos(), Item(1, 0).ClipRect().Top);
    Bar().ScrollIntoView(nullptr);
    Group(3).ScrollIntoView(true);
    EXPECT_EQ(ScrollPos() + 300, Group(3).HeaderRect().Bottom);
    Group(2).ScrollIntoView(false);
    EXPECT_EQ(ScrollPos(), Group(2).HeaderRect().Top);
    Bar().SetHeight(400);
    Group(3).ScrollIntoView(false);
    EXPECT_EQ(ScrollPos() + 400, Group(3).BodyRect().Bottom);
    Bar().SetHeight(300);
    Group(0).ScrollIntoView(false);
    EXPECT_EQ(ScrollPos(), 0);
}

TEST_F(ExplorerBarTest, PlacesOfTheContentAreMovedDownByTheScrollPosition) {
    Fill(4, 20);
    Bar().GetVertScrollBar().SetPosition(50);
    TRect moved = Item(0, 5).ClipRect();
    moved.Offset(0, 50);
    EXPECT_EQ(Bar().ClipRectToClient(Item(0, 5)), moved);
    EXPECT_EQ(Bar().ClipRectToClient(TRect(1, 2, 3, 4)), TRect(1, 52, 3, 54));
}

TEST_F(ExplorerBarTest, ContentBeyond16BitsScrollsPaintsAndClicksToItsLastItem) {
    Fill(50, 200);
    ASSERT_GT(Bar().GetContentHeight(), 4 * 32767);
    Bar().GetVertScrollBar().SetPosition(Bar().GetContentHeight());
    EXPECT_EQ(ScrollPos(), Bar().GetContentHeight() - 300);
    TQV7SkinExplorerItemCustom& last = Item(49, 199);
    Watch(last, "last");
    EXPECT_GT(last.ClipRect().Top, 4 * 32767);
    EXPECT_LT(last.ClipRect().Bottom, Bar().GetContentHeight());
    Click(last);
    EXPECT_EQ(Log, (std::vector<std::string>{"enter last", "click last"}));
    Input.MoveAway();
    while (Bar().GetGroups().GetCount() > 1)
        Bar().GetGroups().Delete(0);
    Bar().GetVertScrollBar().SetPosition(Bar().GetContentHeight());
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, TheBufferHoldsNoMoreThanIsSeen) {
    Fill(50, 200);
    const auto& buffer = static_cast<const TRowWindowBitmap&>(Box().GetBuffer());
    EXPECT_EQ(buffer.GetHeight(), Bar().GetContentHeight()) << "as owners see it";
    EXPECT_EQ(buffer.GetRowCount(), 300);
}

// --- mouse

TEST_F(ExplorerBarTest, TheObjectsUnderAPointAreGroupsAndItems) {
    Fill(2, 3);
    EXPECT_EQ(Bar().GetHotArea(100, 5), &Group(0));
    EXPECT_EQ(Bar().GetHotArea(10, Item(0, 1).ClipRect().Top), &Item(0, 1));
    EXPECT_EQ(Bar().GetHotArea(1, Item(0, 1).ClipRect().Top), nullptr) << "left of the item";
    EXPECT_EQ(Bar().GetHotArea(10, 20), nullptr) << "the margin";
    Group(0).SetVisible(false);
    EXPECT_EQ(Bar().GetHotArea(100, 5), &Group(1));
}

TEST_F(ExplorerBarTest, LeavingAnItemComesBeforeEnteringTheNext) {
    Fill(1, 3);
    Watch(Item(0, 0), "0");
    Watch(Item(0, 1), "1");
    MoveTo(Item(0, 0));
    const TRect clip = Item(0, 0).ClipRect();
    Input.MoveTo(Box().GetHandle(), clip.Left + 5, clip.Top + 2);
    Input.MoveTo(Box().GetHandle(), clip.Left + 6, clip.Top + 2);
    EXPECT_EQ(Log, (std::vector<std::string>{"enter 0"}));
    MoveTo(Item(0, 1));
    EXPECT_EQ(Log, (std::vector<std::string>{"enter 0", "leave 0", "enter 1"}));
    EXPECT_EQ(Bar().HotObject, &Item(0, 1));
}

TEST_F(ExplorerBarTest, TheItemUnderTheMouseIsPaintedHotAndTheLastOneNoMore) {
    Fill(2, 5);
    for (const int index : {1, 2, 0, 4}) {
        MoveTo(Item(0, index));
        EXPECT_TRUE(ShowsRowsOf(*WholePicture())) << index;
    }
    MoveToHeader(1);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Input.MoveTo(Box().GetHandle(), 60, 9);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    Input.MoveAway();
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, TheCursorIsAHandOverLinksAndHeaders) {
    Fill(1, 1);
    AddTo(0, new TQV7SkinExplorerItemCaptionValuePair(L"caption", L"value", L""));
    MoveTo(Item(0, 0));
    EXPECT_EQ(Box().GetCursor(), crHandPoint);
    MoveTo(Item(0, 1));
    EXPECT_EQ(Box().GetCursor(), crDefault);
    MoveToHeader(0);
    EXPECT_EQ(Box().GetCursor(), crHandPoint);
    Input.MoveTo(Box().GetHandle(), 1, 22);
    EXPECT_EQ(Box().GetCursor(), crDefault);
    MoveTo(Item(0, 0));
    Input.MoveAway();
    EXPECT_TRUE(PumpUntil([&] { return Box().GetCursor() == crDefault; }));
    const TRect link = Item(0, 0).ClipRect();
    Box().OnMouseMove(&Box(), {}, link.Left + 2, link.Top + 2);
    EXPECT_EQ(Box().GetCursor(), crHandPoint);
    Item(0, 0).OnClick = [&](TObject*) { Group(0).GetItems().Delete(0); };
    Box().OnMouseUp(&Box(), mbLeft, {}, link.Left + 2, link.Top + 2);
    EXPECT_EQ(Bar().HotObject, nullptr);
    EXPECT_EQ(Box().GetCursor(), crDefault) << "what was clicked is gone";
}

TEST_F(ExplorerBarTest, OnlyTheLeftButtonClicks) {
    Fill(1, 1);
    Watch(Item(0, 0), "0");
    MoveTo(Item(0, 0));
    Log.clear();
    for (const auto button : {test::MouseButton::Right, test::MouseButton::Middle}) {
        Input.Press(button);
        Input.Release(button);
    }
    EXPECT_TRUE(Log.empty());
    int paints = 0;
    const TFFPaintEvent painter = Box().OnFFPaint;
    Box().OnFFPaint = [&](TObject*, TBitmap*) { ++paints; };
    Input.Press();
    Input.Release();
    EXPECT_EQ(Log, (std::vector<std::string>{"click 0"}));
    EXPECT_EQ(paints, 1) << "whatever the click changed";
    Box().OnFFPaint = painter;
}

TEST_F(ExplorerBarTest, MovesWithAButtonOrKeyHeldAreIgnored) {
    Fill(1, 3);
    Watch(Item(0, 1), "1");
    MoveTo(Item(0, 0));
    Input.Press();
    MoveTo(Item(0, 1));
    EXPECT_TRUE(Log.empty());
    Input.Release();
    MoveTo(Item(0, 0));
    Input.KeyDown(VK_SHIFT);
    MoveTo(Item(0, 2));
    EXPECT_EQ(Bar().HotObject, &Item(0, 0));
    Input.KeyUp(VK_SHIFT);
    const TRect other = Item(0, 2).ClipRect();
    for (const TShiftKey held : {ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle}) {
        Box().OnMouseMove(&Box(), {held}, other.Left + 2, other.Top + 2);
        EXPECT_EQ(Bar().HotObject, &Item(0, 0));
    }
    Box().OnMouseMove(&Box(), {}, other.Left + 2, other.Top + 2);
    EXPECT_EQ(Bar().HotObject, &Item(0, 2));
}

TEST_F(ExplorerBarTest, AClickNeedsPressAndReleaseOnTheSameItem) {
    Fill(1, 3);
    for (int i = 0; i < 3; ++i)
        Item(0, i).OnClick = [this, i](TObject*) { Log.push_back(std::to_string(i)); };
    Click(Item(0, 1));
    EXPECT_EQ(Log, (std::vector<std::string>{"1"}));
    MoveTo(Item(0, 0));
    Input.Press();
    MoveTo(Item(0, 2));
    Input.Release();
    EXPECT_EQ(Log.size(), 1u);
}

TEST_F(ExplorerBarTest, AClickTogglesACheckBoxAndAHeader) {
    Fill(1, 1);
    auto& box = AddTo(0, new TCheck(L"check", 0, L"", false, true, true));
    Click(box);
    EXPECT_TRUE(box.GetChecked());
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    ClickHeader(0);
    EXPECT_EQ(Group(0).GetState(), egsClosed);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    ClickHeader(0);
    EXPECT_EQ(Group(0).GetState(), egsOpen);
}

TEST_F(ExplorerBarTest, ItIsLeftOnceTheMouseIsOutside) {
    Fill(1, 1);
    int leaves = 0;
    Bar().OnLeave = [&](TObject* sender) {
        EXPECT_EQ(sender, &Bar());
        EXPECT_EQ(Bar().HotObject, nullptr);
        ++leaves;
    };
    Watch(Item(0, 0), "0");
    MoveTo(Item(0, 0));
    Input.MoveTo(Bar().GetHandle(), 100, 250);
    EXPECT_EQ(Bar().HotObject, nullptr);
    EXPECT_EQ(leaves, 0) << "the ground below the content is the bar's";
    EXPECT_EQ(Log.back(), "leave 0");
    Input.MoveAway();
    EXPECT_TRUE(PumpUntil([&] { return leaves == 1; }));
}

TEST_F(ExplorerBarTest, TheHintIsThatOfTheItemUnderTheMouse) {
    Fill(1, 2);
    static_cast<TLink&>(Item(0, 0)).SetHint(L"first hint");
    Bar().SetShowHint(true);
    MoveTo(Item(0, 1));
    EXPECT_FALSE(Bar().GetShowHint()) << "whatever the host said";
    MoveTo(Item(0, 0));
    EXPECT_TRUE(Bar().GetShowHint());
    EXPECT_EQ(Bar().GetHint(), L"first hint");
    MoveTo(Item(0, 1));
    EXPECT_FALSE(Bar().GetShowHint());
    EXPECT_EQ(Bar().GetHint(), L"first hint");
}

TEST_F(ExplorerBarTest, AHintIsShownAboveTheItem) {
    Fill(1, 2);
    static_cast<TLink&>(Item(0, 0)).SetHint(L"first hint");
    static_cast<TLink&>(Item(0, 1)).SetHint(L"second hint");
    Application().SetHintPause(1);
    std::vector<String> shown;
    Application().OnShowHint = [&](String& text, bool&, THintInfo&) { shown.push_back(text); };
    MoveTo(Item(0, 0));
    EXPECT_TRUE(PumpUntil([&] { return shown.size() == 1; }));
    MoveTo(Item(0, 1));
    EXPECT_TRUE(PumpUntil([&] { return shown.size() == 2; }));
    EXPECT_EQ(shown, (std::vector<String>{L"first hint", L"second hint"}));
    Application().OnShowHint = nullptr;
    Application().SetHintPause(500);
    Input.MoveAway();
}

// --- the entrance

TEST_F(ExplorerBarTest, TheEntranceUnfoldsInTenSteps) {
    Fill(2, 4);
    Bar().SetAnimate(true);
    int unfolding = 0;
    const TFFPaintEvent painter = Box().OnFFPaint;
    Box().OnFFPaint = [&](TObject* sender, TBitmap* buffer) {
        unfolding += Box().GetDeformed();
        painter(sender, buffer);
    };
    Bar().ShowAnimate();
    EXPECT_TRUE(Box().GetDeformed());
    // A tenth of the height, a hundredth of the colour.
    const int height = static_cast<int>(std::lround(Box().GetHeight() * 0.1));
    const test::Pixels shown = test::ReadClient(Box().GetHandle());
    for (int y = height; y < shown.Height(); ++y)
        EXPECT_EQ(shown.At(100, y), COLORREF{clWhite});
    EXPECT_TRUE(PumpUntil([&] { return !Box().GetDeformed(); }));
    Box().OnFFPaint = painter;
    EXPECT_EQ(unfolding, 9) << "and with the tenth step the bar as it is";
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarTest, TheEntranceFadesWithTheSquareOfItsHeight) {
    Fill(1, 0);
    Bar().BeginUpdate();
    AddTo(0, new TQV7SkinExplorerItemProgressBar(0, 1, 1, 240, clBlack, clBlack));
    Bar().EndUpdate();
    Bar().SetAnimate(true);
    Bar().NeedsMeasure = true;
    Bar().ShowAnimate();
    EXPECT_FALSE(Bar().NeedsMeasure);
    const auto darkest = [&] {
        const test::Pixels shown = test::ReadClient(Box().GetHandle());
        int least = 255;
        for (int y = 0; y < shown.Height(); ++y)
            least = std::min<int>(least, GetRValue(shown.At(100, y)));
        return least;
    };
    EXPECT_NEAR(darkest(), 255 * (1 - 0.1 * 0.1), 1);
    const test::Pixels first = test::ReadClient(Box().GetHandle());
    EXPECT_TRUE(PumpUntil([&] { return !Box().GetDeformed(); }));
    EXPECT_EQ(darkest(), 0);
    Bar().ShowAnimate();
    EXPECT_TRUE(SamePixels(test::ReadClient(Box().GetHandle()), first)) << "again from the start";
    EXPECT_TRUE(PumpUntil([&] { return !Box().GetDeformed(); }));
}

TEST_F(ExplorerBarTest, WithoutAnimationThereIsNoEntrance) {
    Fill(1, 1);
    Bar().ShowAnimate();
    EXPECT_FALSE(Box().GetDeformed());
    Bar().SetAnimate(true);
    Bar().BeginUpdate();
    Bar().ShowAnimate();
    EXPECT_FALSE(Box().GetDeformed());
    Bar().EndUpdate();
}

TEST_F(ExplorerBarTest, TheEntranceOfAHighBarShowsMoreThanTheBufferHolds) {
    Fill(20, 50);
    Bar().SetAnimate(true);
    Bar().ShowAnimate();
    EXPECT_TRUE(PumpUntil([&] { return !Box().GetDeformed(); }));
    Bar().SetAnimate(false);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

}  // namespace
}  // namespace qv7skin
