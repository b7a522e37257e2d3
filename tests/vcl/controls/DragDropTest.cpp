#include "platform/vcl/core/Exceptions.h"
#include "tests/vcl/controls/DragTest.h"

namespace test {
namespace {

using DragDrop = DragTest;

TEST_F(DragDrop, ADropIsAskedForAndTold) {
    MakeTarget(Target);
    Press();
    EXPECT_TRUE(Source->Dragging());
    EXPECT_EQ(GetDragControl(), Source);
    EXPECT_EQ(Taken(), (Log{"down", "up"})) << "a press that becomes a drag is no click";
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    EXPECT_EQ(Taken(), (Log{"target enter", "target move"}));
    EXPECT_EQ(Over, TPoint(30, 20));
    EXPECT_EQ(Dragged, Source) << "without an object of its own the control is the source";
    Input.MoveTo(Target->WindowHandle(), 35, 20);
    EXPECT_EQ(Taken(), Log{"target move"});
    Input.Release();
    EXPECT_EQ(Taken(), (Log{"target leave", "target drop", "end target"}));
    EXPECT_EQ(DroppedAt, TPoint(35, 20));
    EXPECT_EQ(EndedAt, TPoint(35, 20));
    EXPECT_FALSE(Source->Dragging());
    EXPECT_EQ(GetDragObject(), nullptr);
}

TEST_F(DragDrop, ARefusedDropEndsNowhere) {
    MakeTarget(Target);
    Accepts = false;
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    Input.Release();
    EXPECT_EQ(Taken(), (Log{"down", "up", "target enter", "target move", "target leave", "end nowhere"}));
    EXPECT_EQ(EndedAt, Target->ClientToScreen({30, 20})) << "screen pixels, for there is no target";
}

TEST_F(DragDrop, AControlWithoutAHandlerAcceptsNothing) {
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    EXPECT_EQ(GetDragObject()->GetDragTarget(), Target);
    Input.Release();
    EXPECT_EQ(Taken().back(), "end nowhere");
}

TEST_F(DragDrop, AHandlerThatSaysNothingAccepts) {
    Target->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool&) {};
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    Input.Release();
    EXPECT_EQ(Taken().back(), "end target");
}

TEST_F(DragDrop, WithoutImmediateTheThresholdDecides) {
    MakeTarget(Source);
    Immediate = false;
    Threshold = 7;
    Press();
    EXPECT_EQ(Taken(), (Log{"down", "click", "up"})) << "a press without a move stays a click";
    EXPECT_FALSE(Source->Dragging());
    EXPECT_EQ(GetDragControl(), Source);
    Input.MoveTo(Source->WindowHandle(), 26, 26);
    EXPECT_FALSE(Source->Dragging());
    Input.MoveTo(Source->WindowHandle(), 20, 27);
    EXPECT_TRUE(Source->Dragging());
    EXPECT_EQ(Taken(), (Log{"source enter", "source move"}));
    Input.Release();
}

TEST_F(DragDrop, TheThresholdIsTheMousesUnlessGiven) {
    MakeTarget(Source);
    Immediate = false;
    Press();
    Input.MoveTo(Source->WindowHandle(), 20 + Mouse().GetDragThreshold() - 1, 20);
    EXPECT_FALSE(Source->Dragging());
    Input.MoveTo(Source->WindowHandle(), 20 + Mouse().GetDragThreshold(), 20);
    EXPECT_TRUE(Source->Dragging());
    Input.Release();
}

TEST_F(DragDrop, ADragThatNeverPassedTheThresholdDropsNothing) {
    MakeTarget(Source);
    Immediate = false;
    Press();
    Input.Release();
    EXPECT_EQ(Taken(), (Log{"down", "click", "up", "end nowhere"}));
}

TEST_F(DragDrop, EscapeCancelsAndSwallowsTheRelease) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    (void)Taken();
    Target->OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Seen.push_back("late up"); };
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Taken(), (Log{"target leave", "end nowhere"}));
    EXPECT_FALSE(Source->Dragging());
    Input.MoveTo(Target->WindowHandle(), 40, 20);
    Input.Release();
    EXPECT_EQ(Taken(), Log{});
    EXPECT_EQ(::GetCapture(), nullptr);
    Input.Click();
    EXPECT_EQ(Taken(), Log{"late up"}) << "the next press is one like others";
}

TEST_F(DragDrop, TheOtherButtonCancels) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    (void)Taken();
    Target->OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Seen.push_back("late up"); };
    Input.Press(MouseButton::Right);
    EXPECT_EQ(Taken(), (Log{"target leave", "end nowhere"}));
    Input.Release(MouseButton::Right);
    EXPECT_NE(::GetCapture(), nullptr) << "the first button is still down";
    Input.Release();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(Taken(), Log{});
}

TEST_F(DragDrop, TheRightButtonDragsToo) {
    MakeTarget(Target);
    Input.Press(MouseButton::Right);
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    EXPECT_TRUE(Source->Dragging());
    Input.Release(MouseButton::Right);
    EXPECT_EQ(Taken().back(), "end target");
}

TEST_F(DragDrop, OtherKeysDoNotEndIt) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    (void)Taken();
    Input.KeyPress('A');
    EXPECT_TRUE(Source->Dragging());
    Input.KeyPress(VK_CONTROL);
    EXPECT_EQ(Taken(), (Log{"target move", "target move"})) << "the answer may depend on the key";
    Input.Release();
}

TEST_F(DragDrop, LosingTheCaptureCancels) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    (void)Taken();
    ::SetCapture(Form->WindowHandle());
    EXPECT_EQ(Taken(), (Log{"target leave", "end nowhere"}));
    ::ReleaseCapture();
    Input.Release();
}

TEST_F(DragDrop, TheProgramEndsItWithOrWithoutADrop) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    Source->EndDrag(true);
    EXPECT_EQ(Taken().back(), "end target");
    Input.Release();
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    Target->EndDrag(true);
    EXPECT_TRUE(Source->Dragging()) << "only the dragged control ends its drag";
    Source->EndDrag(false);
    EXPECT_EQ(Taken().back(), "end nowhere");
    Input.Release();
}

TEST_F(DragDrop, EndingItInOnStartDragBeginsNone) {
    MakeTarget(Source);
    Source->OnStartDrag = [this](TObject*, TDragObject*&) { Source->EndDrag(false); };
    Press();
    EXPECT_EQ(GetDragControl(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(Taken(), (Log{"down", "up"}));
    Input.Release();
}

TEST_F(DragDrop, OutsideOfTheWindowNobodyIsAsked) {
    MakeTarget(Source);
    Press();
    (void)Taken();
    Input.MoveAway();
    EXPECT_EQ(Taken(), Log{"source leave"});
    EXPECT_EQ(GetDragObject()->GetDragTarget(), nullptr);
    const POINT out = Input.Position();
    Input.Release();
    EXPECT_EQ(Taken(), Log{"end nowhere"});
    EXPECT_EQ(EndedAt, TPoint(out));
}

TEST_F(DragDrop, LeavingTellsWhereThePointerWent) {
    MakeTarget(Source);
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    EXPECT_EQ(Taken().back(), "source leave");
    EXPECT_EQ(Over, TPoint(220, 20));
    Input.Release();
}

TEST_F(DragDrop, AGraphicControlIsDraggedAndDroppedOn) {
    auto* from = Make<TProbeGraphic>({10, 100, 60, 150});
    auto* to = Make<TProbeGraphic>({100, 100, 150, 150});
    MakeTarget(to);
    from->OnMouseDown = [from](TObject*, TMouseButton, TShiftState, int, int) { from->BeginDrag(true); };
    Input.MoveTo(Form->WindowHandle(), 20, 110);
    Input.Press();
    Input.MoveTo(Form->WindowHandle(), 107, 109);
    EXPECT_EQ(Taken(), (Log{"other enter", "other move"}));
    EXPECT_EQ(Over, TPoint(7, 9));
    EXPECT_EQ(Dragged, from);
    Input.Release();
    EXPECT_EQ(DroppedAt, TPoint(7, 9));
}

TEST_F(DragDrop, AnAutomaticDragBeginsWithThePress) {
    MakeTarget(Target);
    Source->SetDragMode(dmAutomatic);
    Press();
    EXPECT_TRUE(Source->Dragging());
    EXPECT_EQ(Taken(), Log{}) << "neither press nor click";
    Input.MoveTo(Target->WindowHandle(), 5, 5);
    Input.Release();
    EXPECT_EQ(Taken().back(), "end target");
}

TEST_F(DragDrop, AFormCanNotBeDragged) {
    EXPECT_THROW(Form->BeginDrag(true), EInvalidOperation);
    EXPECT_EQ(GetDragControl(), nullptr);
}

TEST_F(DragDrop, TheTargetCanBeAskedAgain) {
    MakeTarget(Target);
    RepeatDragOver();
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    (void)Taken();
    RepeatDragOver();
    EXPECT_EQ(Taken(), Log{"target move"});
    Input.Release();
}

TEST_F(DragDrop, ASecondDragDoesNotBegin) {
    Press();
    Target->BeginDrag(true);
    EXPECT_EQ(GetDragControl(), Source);
    Input.Release();
}

TEST_F(DragDrop, TheHotControlIsLeftAndFoundAgain) {
    Source->OnMouseLeave = [this](TObject*) { Seen.push_back("leave"); };
    Target->OnMouseEnter = [this](TObject*) { Seen.push_back("enter"); };
    Press();
    EXPECT_EQ(Taken(), (Log{"down", "up", "leave"}));
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    Input.Release();
    EXPECT_TRUE(PumpUntil([this] { return Target->GetMouseInClient(); }));
    EXPECT_EQ(Taken(), (Log{"end nowhere", "enter"}));
}

TEST_F(DragDrop, AnErrorInAHandlerCancels) {
    Target->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool&) {
        ::SendMessageW(::GetCapture(), WM_CANCELMODE, 0, 0);
        throw Exception(L"no");
    };
    Press();
    Input.MoveTo(Target->WindowHandle(), 30, 20);
    EXPECT_EQ(GetDragControl(), nullptr);
    EXPECT_EQ(Taken().back(), "end nowhere");
    EXPECT_FALSE(Services.Errors.empty());
    Services.Errors.clear();
    Input.Release();
}

}  // namespace
}  // namespace test
