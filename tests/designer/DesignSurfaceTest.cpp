#include "designer/surface/DesignSurface.h"

#include "designer/model/Placing.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "tests/designer/SurfaceFixture.h"

namespace designer {
namespace {

using test::MouseButton;

class DesignSurfaceTest : public SurfaceTest {};

TEST_F(DesignSurfaceTest, ShowsTheFormWithItsControls) {
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_EQ(::GetParent(Window()), Surface->WindowHandle());
    EXPECT_TRUE(::IsWindowVisible(Find<TButton>(L"Button1").WindowHandle()));
    EXPECT_EQ(Surface->GetWidth(), 300 + 2 * 16);
}

TEST_F(DesignSurfaceTest, APressChoosesWhatIsUnderIt) {
    Input.ClickAt(Window(), 30, 25);
    EXPECT_EQ(Chosen(), L"Button1");
    Input.ClickAt(Window(), 220, 14);
    EXPECT_EQ(Chosen(), L"Label1") << "a control without a window";
    Input.ClickAt(Window(), 104 + 20, 64 + 20);
    EXPECT_EQ(Chosen(), L"Edit1") << "a control in a control";
    Input.ClickAt(Window(), 104 + 100, 64 + 80);
    EXPECT_EQ(Chosen(), L"Panel1");
    Input.ClickAt(Window(), 10, 180);
    EXPECT_EQ(Chosen(), L"") << "the form itself";
    EXPECT_EQ(::GetFocus(), Surface->WindowHandle()) << "designed controls never get the focus";
}

TEST_F(DesignSurfaceTest, ShiftAddsAndTakesAway) {
    Input.ClickAt(Window(), 30, 25);
    Input.KeyDown(VK_SHIFT);
    Input.ClickAt(Window(), 220, 14);
    EXPECT_EQ(Chosen(), L"Button1,Label1");
    Input.ClickAt(Window(), 30, 25);
    EXPECT_EQ(Chosen(), L"Label1");
    Input.KeyUp(VK_SHIFT);
}

TEST_F(DesignSurfaceTest, ABandChoosesWhatItTouchesInTheControlThatItBeganOn) {
    Drag({4, 4}, {230, 100});
    EXPECT_EQ(Chosen(), L"Label1,Button1,Panel1");
    Input.KeyDown(VK_CONTROL);
    Drag({104 + 100, 64 + 80}, {104 + 20, 64 + 20});
    Input.KeyUp(VK_CONTROL);
    EXPECT_EQ(Chosen(), L"Edit1");
    Drag({10, 150}, {50, 190});
    EXPECT_EQ(Chosen(), L"");
}

TEST_F(DesignSurfaceTest, ADragMovesWhatIsChosenToTheGridAsOneEdit) {
    Drag({30, 25}, {30 + 27, 25 + 42});
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect::OfSize(40, 56, 80, 24));
    EXPECT_EQ(Document->History().Count(), 1u);
    Document->Undo();
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect::OfSize(16, 16, 80, 24));
}

TEST_F(DesignSurfaceTest, AMoveOfAFewPixelsIsNoDrag) {
    Drag({30, 25}, {32, 27});
    EXPECT_EQ(Find<TButton>(L"Button1").GetLeft(), 16);
    EXPECT_FALSE(Document->IsModified());
}

TEST_F(DesignSurfaceTest, SeveralControlsKeepTheirDistance) {
    Input.ClickAt(Window(), 30, 25);
    Input.KeyDown(VK_SHIFT);
    Input.ClickAt(Window(), 104 + 20, 64 + 20);
    Input.KeyUp(VK_SHIFT);
    Drag({30, 25}, {30 + 16, 25 + 8});
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect().TopLeft(), TPoint(32, 24));
    EXPECT_EQ(Find<TEdit>(L"Edit1").GetBoundsRect().TopLeft(), TPoint(24, 16));
}

TEST_F(DesignSurfaceTest, AHandleSizes) {
    Input.ClickAt(Window(), 30, 25);
    Drag({95, 39}, {95 + 17, 39 + 10});
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect(16, 16, 112, 48));
    Drag({16, 16}, {9, 100});
    EXPECT_EQ(Find<TButton>(L"Button1").GetLeft(), 8);
    EXPECT_EQ(Find<TButton>(L"Button1").GetHeight(), 1) << "edges do not cross";
}

TEST_F(DesignSurfaceTest, EscapeBringsADragBack) {
    Input.MoveTo(Window(), 30, 25);
    Input.Press();
    Input.MoveTo(Window(), 90, 90);
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect::OfSize(16, 16, 80, 24));
    EXPECT_FALSE(Document->IsModified());
    EXPECT_EQ(Chosen(), L"Button1");

    Input.MoveTo(Window(), 95, 39);
    Input.Press();
    Input.MoveTo(Window(), 120, 60);
    EXPECT_NE(Find<TButton>(L"Button1").GetWidth(), 80) << "sizing shows the control itself";
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
    EXPECT_EQ(Find<TButton>(L"Button1").GetBoundsRect(), TRect::OfSize(16, 16, 80, 24));
    EXPECT_FALSE(Document->IsModified());
}

TEST_F(DesignSurfaceTest, ALostCaptureBringsADragBackToo) {
    Input.MoveTo(Window(), 30, 25);
    Input.Press();
    Input.MoveTo(Window(), 90, 90);
    ::ReleaseCapture();
    Input.Release();
    EXPECT_EQ(Find<TButton>(L"Button1").GetLeft(), 16);
    EXPECT_FALSE(Document->IsModified());
}

TEST_F(DesignSurfaceTest, KeysMoveAndSize) {
    Input.ClickAt(Window(), 30, 25);
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Find<TButton>(L"Button1").GetLeft(), 24);
    Input.Chord({VK_CONTROL}, VK_DOWN);
    EXPECT_EQ(Find<TButton>(L"Button1").GetTop(), 17);
    Input.Chord({VK_SHIFT}, VK_LEFT);
    EXPECT_EQ(Find<TButton>(L"Button1").GetWidth(), 72);
    Input.Chord({VK_CONTROL, VK_SHIFT}, VK_DOWN);
    EXPECT_EQ(Find<TButton>(L"Button1").GetHeight(), 25);
    EXPECT_EQ(Document->History().Count(), 4u);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Chosen(), L"");
}

TEST_F(DesignSurfaceTest, DeleteFreesWhatIsChosen) {
    Input.ClickAt(Window(), 104 + 100, 64 + 80);
    Input.KeyPress(VK_DELETE);
    EXPECT_FALSE(Document->Root().FindComponent(L"Panel1"));
    EXPECT_FALSE(Document->Root().FindComponent(L"Edit1"));
    Document->Undo();
    EXPECT_EQ(Find<TEdit>(L"Edit1").GetParent(), &Find<TPanel>(L"Panel1"));
    EXPECT_TRUE(::IsWindowVisible(Find<TEdit>(L"Edit1").WindowHandle()));
}

TEST_F(DesignSurfaceTest, AToolIsPlacedByAClickOrDrawnOut) {
    Surface->SetTool(&TButton::StaticClass());
    Input.ClickAt(Window(), 35, 101);
    EXPECT_EQ(Find<TButton>(L"Button2").GetBoundsRect(), TRect::OfSize(32, 104, 75, 25));
    EXPECT_EQ(ToolsUsed, 1);
    EXPECT_EQ(Surface->GetTool(), nullptr);

    Surface->SetTool(&TPanel::StaticClass());
    Drag({104 + 10, 64 + 50}, {104 + 90, 64 + 79});
    EXPECT_EQ(Find<TPanel>(L"Panel2").GetParent(), &Find<TPanel>(L"Panel1"));
    EXPECT_EQ(Find<TPanel>(L"Panel2").GetBoundsRect(), TRect(8, 48, 88, 80));

    Surface->SetTool(&TButton::StaticClass());
    Input.ClickAt(Window(), 30, 25);
    EXPECT_EQ(Find<TButton>(L"Button3").GetParent(), &Document->Root()) << "a button takes no controls";
}

TEST_F(DesignSurfaceTest, ComponentsWithoutASurfaceAreIconsThatCanBeMoved) {
    Surface->SetTool(&TTimer::StaticClass());
    Input.ClickAt(Window(), 40, 120);
    ASSERT_TRUE(Document->Root().FindComponent(L"Timer1"));
    EXPECT_EQ(DesignPlace(Find<TTimer>(L"Timer1")), TPoint(40, 120));
    Input.ClickAt(Window(), 10, 190);
    EXPECT_EQ(Chosen(), L"");
    Input.ClickAt(Window(), 50, 130);
    EXPECT_EQ(Chosen(), L"Timer1");
    Drag({50, 130}, {50 - 24, 130 + 8});
    EXPECT_EQ(DesignPlace(Find<TTimer>(L"Timer1")), TPoint(16, 128));
}

TEST_F(DesignSurfaceTest, TheFormsControlsDoNotAct) {
    bool clicked = false;
    Find<TButton>(L"Button1").OnClick = [&clicked](TObject*) { clicked = true; };
    Input.ClickAt(Window(), 30, 25);
    EXPECT_FALSE(clicked);
    Input.DoubleClickAt(Window(), 104 + 20, 64 + 20);
    EXPECT_EQ(Opened, L"Edit1");
    Input.ClickAt(Window(), 104 + 20, 64 + 20, MouseButton::Right);
    EXPECT_EQ(Menus, 1);
    Find<TButton>(L"Button1").OnClick.Clear();
}

TEST_F(DesignSurfaceTest, GuidesHoldAnEdgeOnThatOfASibling) {
    Surface->Snapping.UseGuides = true;
    Find<TPanel>(L"Panel1").SetLeft(107);
    Input.MoveTo(Window(), 30, 25);
    Input.Press();
    Input.MoveTo(Window(), 30 + 88, 25 + 30);
    Input.Release();
    EXPECT_EQ(Find<TButton>(L"Button1").GetLeft(), 107) << "nearer than the grid's 104";
}

TEST_F(DesignSurfaceTest, TabWalksThroughAllComponents) {
    Input.ClickAt(Window(), 10, 180);
    for (const wchar_t* name : {L"Label1", L"Button1", L"Panel1", L"Edit1", L"", L"Label1"}) {
        Input.KeyPress(VK_TAB);
        EXPECT_EQ(Chosen(), name);
    }
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_EQ(Chosen(), L"") << "the form stands before the first";
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_EQ(Chosen(), L"Edit1");
    EXPECT_EQ(::GetFocus(), Surface->WindowHandle());
}

TEST_F(DesignSurfaceTest, ItIsAsLargeAsTheFormWhateverSizedThat) {
    Document->Edit(L"Größe", [this] { Document->Root().SetClientWidth(500); });
    EXPECT_EQ(Surface->GetWidth(), Document->Root().GetWidth() + 2 * 16);
    Document->Undo();
    EXPECT_EQ(Surface->GetWidth(), Document->Root().GetWidth() + 2 * 16);
}

TEST_F(DesignSurfaceTest, EscapeGoesUpToWhatHoldsTheComponent) {
    Input.ClickAt(Window(), 104 + 20, 64 + 20);
    ASSERT_EQ(Chosen(), L"Edit1");
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Chosen(), L"Panel1");
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Chosen(), L"");
}

TEST_F(DesignSurfaceTest, EscapeGivesTheToolUpFirst) {
    int left = 0;
    Surface->OnToolLeft = [&left] { ++left; };
    Input.ClickAt(Window(), 30, 25);
    Surface->SetTool(&TButton::StaticClass());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Surface->GetTool(), nullptr);
    EXPECT_EQ(left, 1);
    EXPECT_EQ(Chosen(), L"Button1");
}

TEST_F(DesignSurfaceTest, AClickOnOneOfSeveralLetsItLead) {
    Document->Selection().Set({&Find<TButton>(L"Button1"), &Find<TPanel>(L"Panel1")});
    Input.ClickAt(Window(), 104 + 100, 64 + 80);
    EXPECT_EQ(Chosen(), L"Panel1,Button1");
    const std::string before = Document->Text();
    Drag({30, 25}, {46, 41});
    EXPECT_EQ(Chosen(), L"Panel1,Button1") << "a drag is no click";
    EXPECT_NE(Document->Text(), before);
}

TEST_F(DesignSurfaceTest, LockedPlacesStay) {
    Surface->IsLocked = true;
    const std::string before = Document->Text();
    Drag({30, 25}, {62, 57});
    EXPECT_EQ(Chosen(), L"Button1") << "choosing still works";
    Input.KeyPress(VK_RIGHT);
    Input.Chord({VK_SHIFT}, VK_RIGHT);
    Drag({16 + 80, 16 + 24}, {130, 60});
    EXPECT_EQ(Document->Text(), before);
    Surface->IsLocked = false;
    Input.ClickAt(Window(), 30, 25);
    Input.KeyPress(VK_RIGHT);
    EXPECT_NE(Document->Text(), before);
}

}  // namespace
}  // namespace designer
