#include "platform/vcl/stdctrls/ScrollBox.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

const int Bar = GetSystemMetrics(SM_CXVSCROLL);

/// A box of 100 x 80 pixels without a frame.
class ScrollBoxTest : public FormTest {
protected:
    TScrollBox& Box() {
        if (!FBox) {
            FBox = new TScrollBox(nullptr);
            FBox->SetBorderStyle(bsNone);
            FBox->SetBounds(10, 10, 100, 80);
            FBox->SetParent(&Form());
        }
        return *FBox;
    }
    TPanel* Child(const TRect& bounds) { return Make<TPanel>(bounds, &Box()); }
    [[nodiscard]] bool HasBar(DWORD style) {
        return (GetWindowLongW(Box().GetHandle(), GWL_STYLE) & static_cast<LONG>(style)) != 0;
    }
    /// Where the window of a child stands in the box.
    TRect WindowOf(TWinControl& child) {
        RECT r{};
        GetWindowRect(child.GetHandle(), &r);
        MapWindowPoints(nullptr, Box().GetHandle(), reinterpret_cast<POINT*>(&r), 2);
        return r;
    }
    void Send(UINT message, WORD code, WORD position = 0) {
        SendMessageW(Box().GetHandle(), message, MAKEWPARAM(code, position), 0);
    }
    SCROLLINFO Info(int bar) {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        GetScrollInfo(Box().GetHandle(), bar, &info);
        return info;
    }

private:
    TScrollBox* FBox = nullptr;
};

TEST_F(ScrollBoxTest, ShowsNoBarWhileTheChildrenFit) {
    Child({0, 0, 100, 80});
    EXPECT_FALSE(HasBar(WS_VSCROLL));
    EXPECT_FALSE(HasBar(WS_HSCROLL));
    EXPECT_EQ(Box().GetVertScrollBar().GetRange(), 80);
    EXPECT_EQ(Box().GetVertScrollBar().GetMaxPosition(), 0);
}

TEST_F(ScrollBoxTest, ABarAppearsWithTheChildThatDoesNotFitAndGoesWithIt) {
    TPanel* child = Child({0, 0, 50, 200});
    EXPECT_TRUE(HasBar(WS_VSCROLL));
    EXPECT_FALSE(HasBar(WS_HSCROLL));
    EXPECT_EQ(Box().GetClientWidth(), 100 - Bar);
    EXPECT_EQ(Box().GetVertScrollBar().GetMaxPosition(), 120);
    const SCROLLINFO info = Info(SB_VERT);
    EXPECT_EQ(info.nMax, 199);
    EXPECT_EQ(info.nPage, 80u);
    child->SetHeight(80);
    EXPECT_FALSE(HasBar(WS_VSCROLL));
    EXPECT_EQ(Box().GetClientWidth(), 100);
}

TEST_F(ScrollBoxTest, OneBarMayCallForTheOther) {
    Child({0, 0, 95, 200});
    EXPECT_TRUE(HasBar(WS_VSCROLL));
    EXPECT_TRUE(HasBar(WS_HSCROLL)) << "the vertical bar leaves less than 95 pixels";
    EXPECT_EQ(Box().GetVertScrollBar().GetMaxPosition(), 200 - (80 - Bar));
}

TEST_F(ScrollBoxTest, AMarginStaysFreeBehindTheLastChild) {
    Box().GetVertScrollBar().SetMargin(7);
    Child({0, 0, 50, 90});
    EXPECT_EQ(Box().GetVertScrollBar().GetRange(), 97);
}

TEST_F(ScrollBoxTest, ThePositionMovesTheChildrenAndStaysWithinItsLimits) {
    TPanel* child = Child({5, 10, 55, 210});
    auto* label = Make<TLabel>({5, 20, 50, 40}, &Box());
    Box().GetVertScrollBar().SetPosition(30);
    EXPECT_EQ(child->GetTop(), -20);
    EXPECT_EQ(WindowOf(*child).Top, -20);
    EXPECT_EQ(label->GetTop(), -10);
    EXPECT_EQ(Info(SB_VERT).nPos, 30);
    Box().GetVertScrollBar().SetPosition(1000);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 130);
    EXPECT_EQ(child->GetTop(), 10 - 130);
    Box().GetVertScrollBar().SetPosition(-5);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
    EXPECT_EQ(child->GetTop(), 10);
}

TEST_F(ScrollBoxTest, AShrinkingContentPullsThePositionBack) {
    TPanel* child = Child({0, 0, 50, 300});
    Box().GetVertScrollBar().SetPosition(220);
    child->SetHeight(200);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 120);
    EXPECT_EQ(child->GetTop(), -120);
    child->SetHeight(40);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
    EXPECT_EQ(child->GetTop(), 0);
}

TEST_F(ScrollBoxTest, TheMessagesOfTheBarScrollByLinesPagesAndToTheEnds) {
    Child({0, 0, 50, 400});
    auto& bar = Box().GetVertScrollBar();
    Send(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(bar.GetPosition(), 8);
    Send(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(bar.GetPosition(), 8 + 72);
    Send(WM_VSCROLL, SB_PAGEUP);
    Send(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(bar.GetPosition(), 0);
    Send(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(bar.GetPosition(), 320);
    Send(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(bar.GetPosition(), 0);
    Send(WM_VSCROLL, SB_THUMBPOSITION, 123);
    EXPECT_EQ(bar.GetPosition(), 123);
    bar.SetSmooth(true);
    Send(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(bar.GetPosition(), 123 + 7) << "a tenth of the page of 72";
}

TEST_F(ScrollBoxTest, TheHorizontalBarScrollsAcross) {
    TPanel* child = Child({0, 0, 300, 20});
    EXPECT_TRUE(HasBar(WS_HSCROLL));
    Send(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(child->GetLeft(), -8);
    Send(WM_HSCROLL, SB_RIGHT);
    EXPECT_EQ(child->GetLeft(), -200);
}

TEST_F(ScrollBoxTest, TheContentFollowsTheThumbOnlyWithTracking) {
    Child({0, 0, 50, 400});
    auto& bar = Box().GetVertScrollBar();
    Send(WM_VSCROLL, SB_THUMBTRACK, 50);
    EXPECT_EQ(bar.GetPosition(), 0);
    bar.SetTracking(true);
    Send(WM_VSCROLL, SB_THUMBTRACK, 50);
    EXPECT_EQ(bar.GetPosition(), 50);
}

TEST_F(ScrollBoxTest, ADragOfTheThumbReachesPositionsBeyond16Bits) {
    Child({0, 0, 50, 20});
    Box().GetVertScrollBar().SetRange(200'000);
    Box().GetVertScrollBar().SetTracking(true);
    EXPECT_TRUE(HasBar(WS_VSCROLL));
    const HWND window = Box().GetHandle();
    int reached = 0;
    FromOtherThread([&] {
        EventGenerator input;
        POINT thumb{100 - Bar / 2, Bar + 4};
        POINT below{100 - Bar / 2, 80 - Bar - 2};
        ClientToScreen(window, &thumb);
        ClientToScreen(window, &below);
        input.Drag(thumb, below);
    });
    reached = Box().GetVertScrollBar().GetPosition();
    EXPECT_GT(reached, 100'000);
    EXPECT_LE(reached, 200'000 - 80);
}

TEST_F(ScrollBoxTest, ChildrenBeyond16BitsKeepTheirPlaceAndComeIntoView) {
    TPanel* first = Child({0, 0, 50, 20});
    TPanel* remote = Child({0, 99'900, 50, 99'950});
    EXPECT_EQ(remote->GetTop(), 99'900);
    EXPECT_EQ(Box().GetVertScrollBar().GetRange(), 99'950);
    Box().GetVertScrollBar().SetPosition(1'000'000);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 99'950 - 80);
    EXPECT_EQ(remote->GetTop(), 30);
    EXPECT_EQ(WindowOf(*remote), TRect(0, 30, 50, 80));
    EXPECT_EQ(first->GetTop(), -99'870);
    EXPECT_LT(WindowOf(*first).Bottom, 0);
    Box().GetVertScrollBar().SetPosition(0);
    EXPECT_EQ(first->GetTop(), 0);
    EXPECT_EQ(WindowOf(*first), TRect(0, 0, 50, 20));
    EXPECT_EQ(remote->GetTop(), 99'900);
    EXPECT_GT(WindowOf(*remote).Top, 80);
}

TEST_F(ScrollBoxTest, TheWheelScrollsByTheLinesThatTheUserChose) {
    TPanel* child = Child({0, 0, 80, 400});
    UINT lines = 0;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    Input.MoveTo(child->GetHandle(), 10, 10);
    Input.Wheel(-1);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), static_cast<int>(lines) * 8);
    Input.Wheel(1);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
}

TEST_F(ScrollBoxTest, TheWheelScrollsAcrossWhereThereIsNothingBelow) {
    TPanel* child = Child({0, 0, 400, 40});
    Input.MoveTo(child->GetHandle(), 10, 10);
    Input.Wheel(-1);
    EXPECT_GT(Box().GetHorzScrollBar().GetPosition(), 0);
}

TEST_F(ScrollBoxTest, AHandlerOfTheWheelKeepsItFromScrolling) {
    TPanel* child = Child({0, 0, 80, 400});
    Box().OnMouseWheelDown = [](TObject*, TShiftState, TPoint, bool& handled) { handled = true; };
    Input.MoveTo(child->GetHandle(), 10, 10);
    Input.Wheel(-1);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
}

TEST_F(ScrollBoxTest, AnInvisibleBarKeepsTheContentAtItsBeginning) {
    TPanel* child = Child({0, 0, 80, 400});
    Box().GetVertScrollBar().SetPosition(100);
    Box().GetVertScrollBar().SetVisible(false);
    EXPECT_FALSE(HasBar(WS_VSCROLL));
    EXPECT_EQ(child->GetTop(), 0);
    Box().GetVertScrollBar().SetVisible(true);
    EXPECT_TRUE(HasBar(WS_VSCROLL));
}

TEST_F(ScrollBoxTest, RangesWaitWhileTheyAreDisabled) {
    Box().DisableAutoRange();
    Child({0, 0, 80, 400});
    EXPECT_EQ(Box().GetVertScrollBar().GetRange(), 0);
    Box().EnableAutoRange();
    EXPECT_EQ(Box().GetVertScrollBar().GetRange(), 400);
}

TEST_F(ScrollBoxTest, ARangeOfItsOwnEndsAutoScroll) {
    Box().GetVertScrollBar().SetRange(500);
    EXPECT_FALSE(Box().GetAutoScroll());
    Child({0, 0, 80, 900});
    EXPECT_EQ(Box().GetVertScrollBar().GetRange(), 500);
}

TEST_F(ScrollBoxTest, ScrollInViewMovesJustSoFarThatTheControlIsSeen) {
    Child({0, 0, 50, 20});
    TPanel* below = Child({0, 200, 50, 230});
    auto* inside = Make<TPanel>({0, 5, 10, 15}, below);
    Box().ScrollInView(inside);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 215 - 80);
    Box().ScrollInView(below);
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 230 - 80);
    Box().ScrollInView(Box().GetControl(0));
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
}

TEST_F(ScrollBoxTest, TheControlThatGetsTheFocusComesIntoSight) {
    auto* first = Make<TButton>({0, 0, 60, 20}, &Box());
    auto* inner = Child({0, 190, 80, 240});
    auto* last = Make<TButton>({5, 10, 65, 30}, inner);
    first->SetFocus();
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(last->Focused());
    // The button ends at 220 of the content, and 80 pixels are seen.
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 140);
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(first->Focused());
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 0);
}

TEST_F(ScrollBoxTest, AControlThatFillsTheViewStaysWhereItIsWithTheFocus) {
    auto* tall = Make<TMemo>({0, 0, 80, 300}, &Box());
    auto* other = Make<TButton>({200, 10, 260, 40});
    other->SetFocus();
    Box().GetVertScrollBar().SetPosition(120);
    tall->SetFocus();
    EXPECT_EQ(Box().GetVertScrollBar().GetPosition(), 120);
}

TEST_F(ScrollBoxTest, AlignedChildrenLieOnTheWholeContent) {
    Child({0, 0, 50, 400});
    TPanel* top = Child({0, 0, 10, 20});
    Box().GetVertScrollBar().SetPosition(100);
    top->SetAlign(alTop);
    EXPECT_EQ(top->GetTop(), -100);
    EXPECT_EQ(top->GetWidth(), 100 - Bar);
}

TEST_F(ScrollBoxTest, AFormScrollsToo) {
    TForm form(nullptr);
    form.SetBorderStyle(bsNone);
    form.SetBounds(20, 20, 100, 80);
    auto* child = Make<TPanel>({0, 0, 50, 300}, &form);
    form.Show();
    EXPECT_EQ(GetWindowLongW(form.GetHandle(), GWL_STYLE) & WS_VSCROLL, 0) << "not by itself";
    form.SetAutoScroll(true);
    EXPECT_NE(GetWindowLongW(form.GetHandle(), GWL_STYLE) & WS_VSCROLL, 0);
    SendMessageW(form.GetHandle(), WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_EQ(child->GetTop(), -220);
}

TEST_F(ScrollBoxTest, KeepsItsBarsAndItsPlaceWhenItsWindowIsMadeAnew) {
    TPanel* child = Child({0, 0, 50, 400});
    Box().GetVertScrollBar().SetPosition(60);
    Box().SetBorderStyle(bsSingle);
    EXPECT_TRUE(HasBar(WS_VSCROLL));
    EXPECT_EQ(Info(SB_VERT).nPos, 60);
    EXPECT_EQ(child->GetTop(), -60);
}

TEST_F(ScrollBoxTest, MayBeFreedByTheHandlerOfItsWheel) {
    TPanel* child = Child({0, 0, 80, 400});
    Box().OnMouseWheel = [this](TObject*, TShiftState, int, TPoint, bool&) { Box().Free(); };
    Input.MoveTo(child->GetHandle(), 10, 10);
    Input.Wheel(-1);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

}  // namespace
}  // namespace test
