#include <functional>

#include "designer/surface/DesignSurface.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/streaming/FormText.h"
#include "skin/UnitQV7SkinColors.h"
#include "tests/designer/SurfaceFixture.h"
#include "tests/support/PixelProbe.h"

namespace designer {
namespace {

using test::Pixels;
using test::ReadWindow;
using test::SamePixels;

/// Dragging on a form with overlapping, aligned and nested controls.
class SurfaceDragTest : public SurfaceTest {
protected:
    void SetUp() override {
        SurfaceTest::SetUp();
        Document->Begin(
            ParseFormText(L"object Form1: TForm1 BorderStyle = bsNone ClientWidth = 300 ClientHeight = 200\n"
                          L"object Label1: TLabel Left = 40 Top = 90 Width = 60 Height = 40 AutoSize = False "
                          L"Caption = 'Text' Transparent = True end\n"
                          L"object Side: TPanel Align = alLeft Width = 32 end\n"
                          L"object Rest: TPanel Align = alBottom Height = 60\n"
                          L"  object Edit1: TEdit Left = 8 Top = 8 Width = 64 Height = 24 end\n"
                          L"end\n"
                          L"object Button1: TButton Left = 48 Top = 16 Width = 80 Height = 24 end\n"
                          L"object Button2: TButton Left = 72 Top = 32 Width = 80 Height = 24 end\n"
                          L"object Timer1: TTimer Left = 200 Top = 8 end\n"
                          L"end"));
        Form().Update();
    }
    /// What the form shows now; nothing that waits to be painted is done first.
    [[nodiscard]] Pixels Shown() const { return ReadWindow(Window()); }
    [[nodiscard]] Pixels PaintedAnew() const {
        ::RedrawWindow(Window(), nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return Shown();
    }
    void PressAt(TPoint point) {
        Input.MoveTo(Window(), point.X, point.Y);
        Input.Press();
    }
    void MoveTo(TPoint point) { Input.MoveTo(Window(), point.X, point.Y); }
    /// Drags by many distances, and expects the form to show what it shows when all of it is painted anew.
    void ExpectCompleteDrops(TPoint from, const char* what) {
        const TSelection& selection = Document->Selection();
        for (const TPoint step :
             {TPoint{9, 4}, TPoint{24, 40}, TPoint{-14, 71}, TPoint{60, 100}, TPoint{0, 9}}) {
            PressAt(from);
            MoveTo({from.X + 5, from.Y - 5});
            MoveTo({from.X + step.X, from.Y + step.Y});
            Input.Release();
            const Pixels dropped = Shown();
            EXPECT_TRUE(SamePixels(dropped, PaintedAnew())) << what;
            if (Document->History().CanUndo()) Document->Undo();
            EXPECT_FALSE(selection.IsEmpty());
        }
    }
};

TEST_F(SurfaceDragTest, ADropPaintsWhatACompletePaintingWould) {
    ExpectCompleteDrops({60, 20}, "a control with a window");
    ExpectCompleteDrops({50, 100}, "one without, under others");
    ExpectCompleteDrops({210, 20}, "an icon");
    ExpectCompleteDrops({48, 152}, "one in another");
    Document->Selection().Set({&Find<TControl>(L"Label1"), &Find<TControl>(L"Button2"),
                               &Find<TControl>(L"Edit1"), Document->Root().FindComponent(L"Timer1")});
    ExpectCompleteDrops({50, 100}, "several");
    Document->Selection().SetOnly(&Find<TPanel>(L"Side"));
    ExpectCompleteDrops({31, 70}, "the edge of an aligned one");
    Document->Selection().SetOnly(&Find<TPanel>(L"Rest"));
    ExpectCompleteDrops({165, 140}, "another one");
}

TEST_F(SurfaceDragTest, TheControlsStayUntilTheDrop) {
    PressAt({60, 20});
    MoveTo({60 + 40, 20 + 32});
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect::OfSize(48, 16, 80, 24));
    Input.Release();
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect::OfSize(88, 48, 80, 24));
}

TEST_F(SurfaceDragTest, APictureMovesAndWhatItLeavesIsPale) {
    const TRect from = Find<TButton>(L"Button2").GetBoundsRect();
    const Pixels before = Shown();
    PressAt({140, 40});
    MoveTo({140 + 96, 40 + 40});
    const Pixels during = Shown();
    Input.Release();
    TRect to = from;
    to.Offset(96, 40);
    EXPECT_TRUE(SamePixels(during.Part(to), before.Part(from)));
    const TColor ground = ColorToRGB(Document->Root().GetColor());
    const auto paleAt = [&](int x, int y) { return BlendColors(before.At(x, y), ground, 176); };
    EXPECT_TRUE(SamePixels(during.Part(from),
                           [&](int x, int y) -> COLORREF { return paleAt(from.Left + x, from.Top + y); }));
}

TEST_F(SurfaceDragTest, SizingShowsTheControlInItsNewSize) {
    Input.ClickAt(Window(), 110, 50);
    PressAt({151, 55});
    MoveTo({151 + 41, 55 + 25});
    const Pixels during = Shown();
    Input.Release();
    const TRect place = Find<TButton>(L"Button2").GetBoundsRect();
    EXPECT_EQ(place, TRect(72, 32, 192, 80));
    Document->Selection().Clear();
    EXPECT_TRUE(SamePixels(during.Part(place), PaintedAnew().Part(place)));
}

TEST_F(SurfaceDragTest, ASizedControlIsDroppedAsACompletePaintingWouldShowIt) {
    const auto size = [&](const wchar_t* name, TPoint handle, bool givenUp) {
        Document->Selection().SetOnly(&Find<TControl>(name));
        for (const TPoint step : {TPoint{17, 24}, TPoint{-20, -12}, TPoint{40, -24}}) {
            PressAt(handle);
            MoveTo({handle.X + 6, handle.Y + 6});
            MoveTo({handle.X + step.X, handle.Y + step.Y});
            if (givenUp) Input.KeyPress(VK_ESCAPE);
            Input.Release();
            const Pixels dropped = Shown();
            EXPECT_TRUE(SamePixels(dropped, PaintedAnew())) << "a control with its handles";
            if (Document->History().CanUndo()) Document->Undo();
        }
    };
    for (const bool givenUp : {false, true}) {
        size(L"Button2", {151, 55}, givenUp);
        size(L"Label1", {99, 129}, givenUp);
        size(L"Rest", {150, 140}, givenUp);
        size(L"Side", {31, 70}, givenUp);
    }
}

TEST_F(SurfaceDragTest, WhatLiesUnderATransparentLabelShowsThrough) {
    PressAt({50, 100});
    MoveTo({50 + 64, 100 - 72});
    const Pixels during = Shown();
    // The label's right lower part, where it has no text, over the second button.
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
    Document->Selection().Clear();
    const TRect empty(140, 40, 150, 54);
    EXPECT_TRUE(SamePixels(during.Part(empty), PaintedAnew().Part(empty)));
}

TEST_F(SurfaceDragTest, APictureIsCutWhereItsParentEnds) {
    const Pixels before = Shown();
    PressAt({48, 152});
    MoveTo({48, 152 - 24});
    const Pixels during = Shown();
    Input.Release();
    const TRect above(32, 80, 300, 140);
    EXPECT_TRUE(SamePixels(during.Part(above), before.Part(above)));
    EXPECT_EQ(Find<TEdit>(L"Edit1").GetTop(), 8 - 24 + 4) << "16 pixels above, by the grid of the form";
}

TEST_F(SurfaceDragTest, GuidesShowInThePictureAndLeaveWithIt) {
    Surface->Snapping.UseGuides = true;
    PressAt({140, 40});
    MoveTo({140 - 23, 40 + 40});
    const Pixels during = Shown();
    const Pixels guide = during.Part(TRect(48, 24, 49, 72));
    EXPECT_GT(guide.Count(ColorToRGB(GetQV7SkinColorLinkText())), 30)
        << "along the left edges of both buttons";
    Input.Release();
    const Pixels dropped = Shown();
    EXPECT_TRUE(SamePixels(dropped, PaintedAnew()));
    EXPECT_EQ(Find<TButton>(L"Button2").GetLeft(), 48);
}

TEST_F(SurfaceDragTest, AGivenUpDragLeavesTheFormAsItWas) {
    Input.ClickAt(Window(), 140, 40);
    const Pixels before = Shown();
    PressAt({110, 50});
    MoveTo({200, 90});
    ASSERT_FALSE(Shown() == before);
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
    EXPECT_TRUE(SamePixels(Shown(), before));
    EXPECT_FALSE(Document->IsModified());
}

TEST_F(SurfaceDragTest, KeysDoNothingElseDuringADrag) {
    PressAt({110, 50});
    MoveTo({200, 90});
    Input.KeyPress(VK_DELETE);
    Input.KeyPress(VK_RIGHT);
    ASSERT_TRUE(Document->Root().FindComponent(L"Button2"));
    MoveTo({110 + 16, 50 + 8});
    Input.Release();
    EXPECT_EQ(Find<TButton>(L"Button2").GetBoundsRect().TopLeft(), TPoint(88, 40));
    EXPECT_EQ(Document->History().Count(), 1u);
    Input.KeyPress(VK_DELETE);
    EXPECT_FALSE(Document->Root().FindComponent(L"Button2"));
}

/// Fails when a picture of it is taken.
class TUnpaintable : public TPanel {
public:
    using TPanel::TPanel;

protected:
    void Paint() override {
        if (IsControlState(csPaintCopy)) throw EInvalidOperation(L"No paint");
        TPanel::Paint();
    }
};

TEST_F(SurfaceDragTest, AControlThatCantBePaintedIsNotDragged) {
    auto* bad = new TUnpaintable(&Document->Root());
    bad->SetBounds(200, 40, 60, 40);
    bad->SetParent(&Document->Root());
    bad->Update();
    PressAt({220, 60});
    MoveTo({240, 90});
    EXPECT_EQ(Errors, (std::vector<std::string>{"EInvalidOperation: No paint"}));
    MoveTo({250, 95});
    EXPECT_EQ(Errors.size(), 1u) << "the drag has ended";
    EXPECT_NE(::GetCapture(), Surface->WindowHandle());
    Input.Release();
    EXPECT_EQ(bad->GetLeft(), 200);
    Errors.clear();
}

}  // namespace
}  // namespace designer
