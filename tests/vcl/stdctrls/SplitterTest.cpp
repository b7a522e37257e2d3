#include "platform/vcl/stdctrls/Splitter.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/vcl/stdctrls/SplitterFixture.h"

namespace test {
namespace {

using namespace vcl;

class SplitterTest : public SplitterFixture<TSplitter> {};

/// What holds for each edge of the parent.
class SplitterEdgeTest : public SplitterFixture<TSplitter>, public testing::WithParamInterface<TAlign> {
protected:
    void SetUp() override {
        SplitterFixture::SetUp();
        Build(GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(Edges, SplitterEdgeTest, testing::ValuesIn(SplitterAligns),
                         [](const auto& info) { return AlignName(info.param); });

TEST_P(SplitterEdgeTest, DraggingResizesTheControlBehindIt) {
    Drag(*Bar, 40);
    EXPECT_EQ(SizeOf(*Side), 140);
    EXPECT_EQ(SizeOf(*Rest), ParentSize() - 143);
    Drag(*Bar, -60);
    EXPECT_EQ(SizeOf(*Side), 80);
    EXPECT_EQ(SizeOf(*Bar), 3);
}

TEST_P(SplitterEdgeTest, TheControlGrowsToWhatOthersLeave) {
    Drag(*Bar, 1000);
    EXPECT_EQ(SizeOf(*Side), ParentSize() - 3);
    EXPECT_EQ(SizeOf(*Rest), 0);
    Drag(*Bar, -100);
    EXPECT_EQ(SizeOf(*Side), ParentSize() - 103);
}

TEST_P(SplitterEdgeTest, BelowTheMinimumTheControlSnapsShutAndOpensAgain) {
    Drag(*Bar, -69);
    EXPECT_EQ(SizeOf(*Side), 31);
    Drag(*Bar, -1);
    EXPECT_EQ(SizeOf(*Side), 0);
    Form().SetClientWidth(410);
    Form().SetClientHeight(310);
    EXPECT_EQ(SizeOf(*Side), 0);
    EXPECT_EQ(Bar->FindControl(), Side);
    Drag(*Bar, 50);
    EXPECT_EQ(SizeOf(*Side), 50);
    EXPECT_EQ(Bar->FindControl(), Side);
}

TEST_P(SplitterEdgeTest, WithoutSnappingItStopsAtTheMinimum) {
    Bar->SetAutoSnap(false);
    Drag(*Bar, -95);
    EXPECT_EQ(SizeOf(*Side), 30);
    Bar->SetMinSize(12);
    Drag(*Bar, -25);
    EXPECT_EQ(SizeOf(*Side), 12);
}

TEST_P(SplitterEdgeTest, EscapeGivesTheFormerSizeBack) {
    for (const TResizeStyle style : {rsNone, rsLine, rsUpdate, rsPattern}) {
        Bar->SetResizeStyle(style);
        PressOn(*Bar);
        Input.MoveTo(Grip(*Bar, 30));
        Input.KeyPress(VK_ESCAPE);
        EXPECT_EQ(SizeOf(*Side), 100);
        EXPECT_FALSE(Bar->GetMouseCapture());
        Input.MoveTo(Grip(*Bar, 50));
        Input.Release();
        EXPECT_EQ(SizeOf(*Side), 100);
    }
}

TEST_P(SplitterEdgeTest, ABarShowsTheWayAndLeavesNoTrace) {
    const Pixels before = Shown();
    const TRect at = Bar->GetBoundsRect();
    const POINT to = Grip(*Bar, 25);
    for (const TResizeStyle style : {rsLine, rsPattern}) {
        Bar->SetResizeStyle(style);
        PressOn(*Bar);
        Input.MoveTo(to);
        const Pixels during = Shown();
        TRect bar = at;
        const int way = GrowsAhead(Align) ? 25 : -25;
        bar.Offset(IsUpright(Align) ? way : 0, IsUpright(Align) ? 0 : way);
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 400; ++x) {
                const bool inverted =
                    bar.Contains({x, y}) && (style == rsLine || during.At(x, y) != before.At(x, y));
                ASSERT_EQ(during.At(x, y), before.At(x, y) ^ (inverted ? 0xFFFFFFU : 0U)) << x << ' ' << y;
            }
        }
        int changed = 0;
        for (int y = bar.Top; y < bar.Bottom; ++y)
            for (int x = bar.Left; x < bar.Right; ++x)
                changed += during.At(x, y) != before.At(x, y);
        const int area = bar.Width() * bar.Height();
        EXPECT_EQ(changed, style == rsLine ? area : area / 2);
        Input.KeyPress(VK_ESCAPE);
        Input.Release();
        EXPECT_TRUE(SamePixels(Shown(), before));
    }
}

TEST_P(SplitterEdgeTest, TheControlAtOnceShowsNoBar) {
    Bar->SetResizeStyle(rsUpdate);
    int moved = 0;
    Bar->OnMoved = [&](TObject*) { ++moved; };
    PressOn(*Bar);
    Input.MoveTo(Grip(*Bar, 20));
    EXPECT_EQ(SizeOf(*Side), 120);
    EXPECT_EQ(moved, 1);
    Input.MoveTo(Grip(*Bar, 15));
    EXPECT_EQ(SizeOf(*Side), 135);
    EXPECT_EQ(moved, 2);
    Input.Release();
    EXPECT_EQ(SizeOf(*Side), 135);
    EXPECT_EQ(moved, 2);
}

TEST_P(SplitterEdgeTest, OtherStylesMoveOnceAtTheEnd) {
    for (const TResizeStyle style : {rsNone, rsLine, rsPattern}) {
        Bar->SetResizeStyle(style);
        int moved = 0;
        Bar->OnMoved = [&](TObject*) { ++moved; };
        const int size = SizeOf(*Side);
        PressOn(*Bar);
        Input.MoveTo(Grip(*Bar, 5));
        Input.MoveTo(Grip(*Bar, 10));
        EXPECT_EQ(SizeOf(*Side), size);
        EXPECT_EQ(moved, 0);
        Input.Release();
        EXPECT_EQ(SizeOf(*Side), size + 10);
        EXPECT_EQ(moved, 1);
    }
}

TEST_P(SplitterEdgeTest, OnCanResizeMayChangeAndRefuseASize) {
    std::vector<int> asked;
    Bar->OnCanResize = [&](TObject*, int& size, bool& accept) {
        asked.push_back(size);
        size = size / 10 * 10;
        accept = size != 130;
    };
    PressOn(*Bar);
    Input.MoveTo(Grip(*Bar, 27));
    Input.MoveTo(Grip(*Bar, 33));
    EXPECT_EQ(asked.front(), 127);
    EXPECT_EQ(asked.back(), 133);
    Input.Release();
    EXPECT_EQ(SizeOf(*Side), 120);
}

TEST_P(SplitterEdgeTest, ConstraintsOfTheControlLimitIt) {
    Side->GetConstraints().SetMaxWidth(IsUpright(Align) ? 130 : 0);
    Side->GetConstraints().SetMaxHeight(IsUpright(Align) ? 0 : 130);
    for (const TResizeStyle style : {rsPattern, rsUpdate}) {
        Bar->SetResizeStyle(style);
        Drag(*Bar, 80);
        EXPECT_EQ(SizeOf(*Side), 130);
        EXPECT_EQ(Bar->FindControl(), Side);
        Drag(*Bar, -30);
        EXPECT_EQ(SizeOf(*Side), 100);
    }
}

TEST_P(SplitterEdgeTest, InAChainEachBarResizesItsOwnControl) {
    TPanel* second = AddPanel(Align, 50);
    TSplitter* bar = AddSplitter(Align);
    EXPECT_EQ(Bar->FindControl(), Side);
    EXPECT_EQ(bar->FindControl(), second);
    Drag(*bar, 10);
    EXPECT_EQ(SizeOf(*second), 60);
    EXPECT_EQ(SizeOf(*Side), 100);
    Drag(*bar, -55);
    EXPECT_EQ(SizeOf(*second), 0);
    EXPECT_EQ(bar->FindControl(), second);
    Drag(*Bar, -90);
    EXPECT_EQ(SizeOf(*Side), 0);
    Drag(*bar, 40);
    EXPECT_EQ(SizeOf(*second), 40);
    Drag(*Bar, 35);
    EXPECT_EQ(SizeOf(*Side), 35);
    EXPECT_EQ(SizeOf(*second), 40);
    Side->SetVisible(false);
    EXPECT_EQ(Bar->FindControl(), nullptr);
}

TEST_P(SplitterEdgeTest, TheLossOfTheMouseEndsTheDrag) {
    PressOn(*Bar);
    Input.MoveTo(Grip(*Bar, 30));
    ::ReleaseCapture();
    Input.MoveTo(Grip(*Bar, 60));
    Input.Release();
    EXPECT_EQ(SizeOf(*Side), 100);
}

TEST_P(SplitterEdgeTest, TheControlFreedOnTheWayEndsTheDrag) {
    const Pixels before = Shown();
    PressOn(*Bar);
    Input.MoveTo(Grip(*Bar, 30));
    delete Side;
    Input.MoveTo(Grip(*Bar, 60));
    Input.Release();
    EXPECT_EQ(Bar->FindControl(), nullptr);
    EXPECT_EQ(SizeOf(*Rest), ParentSize() - 3);
}

TEST_P(SplitterEdgeTest, HandlersMayFreeTheControl) {
    Bar->OnCanResize = [&](TObject*, int&, bool&) { delete std::exchange(Side, nullptr); };
    Drag(*Bar, 30);
    EXPECT_EQ(Side, nullptr);
}

TEST_P(SplitterEdgeTest, HandlersMayFreeTheSplitter) {
    for (const int handler : {0, 1, 2, 3}) {
        if (!Bar) Bar = AddSplitter(Align);
        const auto bye = [&] { delete std::exchange(Bar, nullptr); };
        if (handler == 0) Bar->OnCanResize = [&](TObject*, int&, bool&) { bye(); };
        if (handler == 1) Bar->OnMoved = [&](TObject*) { bye(); };
        if (handler == 2) Bar->OnMouseMove = [&](TObject*, TShiftState, int, int) { bye(); };
        if (handler == 3) Side->OnResize = [&](TObject*) { bye(); };
        Drag(*Bar, 30);
        EXPECT_EQ(Bar, nullptr) << handler;
        Side->OnResize = nullptr;
        Side->SetBounds(Side->GetLeft(), Side->GetTop(), IsUpright(Align) ? 100 : Side->GetWidth(),
                        IsUpright(Align) ? Side->GetHeight() : 100);
        Input.MoveAway();
    }
}

TEST_P(SplitterEdgeTest, BeveledEdgesAreLightAndDark) {
    const TRect r = Bar->GetBoundsRect();
    Bar->SetBeveled(true);
    Bar->SetColor(RGB(1, 2, 3));
    const Pixels shown = Shown().Part(r);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), dark = ::GetSysColor(COLOR_BTNSHADOW);
    EXPECT_TRUE(SamePixels(shown, [&](int x, int y) {
        const int at = IsUpright(Align) ? x : y;
        return at == 0 ? light : at == 2 ? dark : RGB(1, 2, 3);
    }));
    Bar->SetBeveled(false);
    EXPECT_EQ(Shown().Part(r).Count(RGB(1, 2, 3)), r.Width() * r.Height());
}

TEST_P(SplitterEdgeTest, TheCursorShowsTheDirection) {
    EXPECT_EQ(Bar->GetCursor(), IsUpright(Align) ? crHSplit : crVSplit);
}

TEST_F(SplitterTest, ABarThatComesToLieTakesItsThicknessAlong) {
    TSplitter bar(nullptr);
    EXPECT_EQ(bar.GetBoundsRect(), TRect::OfSize(0, 0, 3, 100));
    bar.SetAlign(alRight);
    EXPECT_EQ(bar.GetBoundsRect(), TRect::OfSize(0, 0, 3, 100));
    bar.SetAlign(alTop);
    EXPECT_EQ(bar.GetBoundsRect(), TRect::OfSize(0, 0, 100, 3));
    bar.SetAlign(alNone);
    bar.SetAlign(alBottom);
    EXPECT_EQ(bar.GetHeight(), 3);
    bar.SetCursor(crHandPoint);
    bar.SetAlign(alLeft);
    EXPECT_EQ(bar.GetWidth(), 3);
    EXPECT_EQ(bar.GetCursor(), crHandPoint);
}

TEST_F(SplitterTest, OneThatIsNotAlignedResizesNothing) {
    Build(alLeft);
    Bar->SetAlign(alNone);
    Bar->SetBounds(100, 0, 3, 300);
    EXPECT_EQ(Bar->FindControl(), nullptr);
    Drag(*Bar, 30);
    EXPECT_EQ(Side->GetWidth(), 100);
}

TEST_F(SplitterTest, EscapeWhileDraggingIsForNobodyElse) {
    Build(alLeft);
    auto* cancel = Make<TButton>({120, 10, 200, 40}, Rest);
    bool clicked = false;
    cancel->SetCancel(true);
    cancel->OnClick = [&](TObject*) { clicked = true; };
    auto* edit = Make<TEdit>({120, 60, 200, 80}, Rest);
    edit->SetFocus();
    bool typed = false;
    edit->OnKeyDown = [&](TObject*, WORD&, TShiftState) { typed = true; };
    PressOn(*Bar);
    Input.MoveTo(Grip(*Bar, 30));
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(clicked);
    EXPECT_FALSE(typed);
    Input.Release();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_TRUE(clicked);
}

TEST_F(SplitterTest, OtherKeysReachTheFocusWhileDragging) {
    Build(alLeft);
    auto* edit = Make<TEdit>({120, 60, 200, 80}, Rest);
    edit->SetFocus();
    PressOn(*Bar);
    Input.Type(L"a");
    Input.Release();
    EXPECT_EQ(edit->GetText(), L"a");
}

TEST_F(SplitterTest, OnPaintDrawsOnTop) {
    Build(alLeft);
    Bar->OnPaint = [](TObject* sender) {
        auto* bar = static_cast<TSplitter*>(sender);
        bar->GetCanvas().GetBrush().SetColor(clRed);
        bar->GetCanvas().FillRect({0, 0, 3, 10});
    };
    Bar->Invalidate();
    EXPECT_EQ(Shown().Part(Bar->GetBoundsRect()).Count(RGB(255, 0, 0)), 30);
}

TEST_F(SplitterTest, TheRightButtonDoesNothing) {
    Build(alLeft);
    Input.Drag(Grip(*Bar), Grip(*Bar, 30), MouseButton::Right);
    EXPECT_EQ(Side->GetWidth(), 100);
}

TEST_F(SplitterTest, MayBeFreedWhenItIsPaintedAtItsNewPlace) {
    Build(alLeft);
    Bar->SetResizeStyle(rsUpdate);
    int moved = 0;
    Bar->OnMoved = [&](TObject*) { ++moved; };
    PressOn(*Bar);
    Bar->OnPaint = [this](TObject*) { delete std::exchange(Bar, nullptr); };
    Input.MoveTo(Grip(*Bar, 30));
    EXPECT_EQ(Bar, nullptr);
    EXPECT_EQ(moved, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    Input.Release();
}

}  // namespace
}  // namespace test
