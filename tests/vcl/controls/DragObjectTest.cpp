#include "platform/vcl/controls/DragImageList.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/vcl/controls/DragTest.h"

namespace test {
namespace {

/// Drags with an object of the test's own.
class OwnDragObject : public DragTest {
protected:
    void SetUp() override {
        DragTest::SetUp();
        Object = std::make_unique<TNotedDrag>(Source);
        Source->OnStartDrag = [this](TObject*, TDragObject*& object) { object = Object.get(); };
    }
    void TearDown() override {
        Object.reset();
        DragTest::TearDown();
    }
    std::unique_ptr<TNotedDrag> Object;
};

TEST_F(OwnDragObject, TargetsGetItAsSource) {
    MakeTarget(Target);
    Press();
    EXPECT_EQ(GetDragObject(), Object.get());
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    EXPECT_EQ(Dragged, Object.get());
    EXPECT_EQ(Object->GetDragTarget(), Target);
    EXPECT_EQ(Object->GetDragTargetPos(), TPoint(50, 10));
    EXPECT_EQ(Object->GetDragPos(), Target->ClientToScreen({50, 10}));
    EXPECT_DOUBLE_EQ(Object->GetMouseDeltaX(), 0.5);
    EXPECT_DOUBLE_EQ(Object->GetMouseDeltaY(), 0.2);
    Input.Release();
    EXPECT_EQ(Object->Ends, 1);
    EXPECT_TRUE(Object->Accepted);
    EXPECT_TRUE(Object->GetDropped());
    EXPECT_EQ(Taken().back(), "end target");
}

TEST_F(OwnDragObject, MayBeFreedInOnEndDrag) {
    MakeTarget(Target);
    Source->OnEndDrag = [this](TObject*, TObject*, int, int) { Object.reset(); };
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    Input.Release();
    EXPECT_EQ(Object, nullptr);
    EXPECT_EQ(GetDragObject(), nullptr);
}

TEST_F(OwnDragObject, FreedUnderWayItCancels) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    Object.reset();
    EXPECT_EQ(GetDragControl(), nullptr);
    (void)Taken();
    Input.MoveTo(Target->WindowHandle(), 55, 10);
    Input.Release();
    EXPECT_EQ(Taken(), Log{});
}

TEST_F(OwnDragObject, MayBeFreedByTheTarget) {
    MakeTarget(Target);
    Press();
    Target->OnDragOver = [this](TObject*, TObject*, int, int, TDragState, bool&) { Object.reset(); };
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    EXPECT_EQ(GetDragControl(), nullptr);
    Input.Release();
}

TEST_F(OwnDragObject, SurvivesItsControl) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    (void)Taken();
    std::exchange(Source, nullptr)->Free();
    EXPECT_EQ(Taken(), Log{"target leave"}) << "a control that goes is not told";
    EXPECT_EQ(Object->Ends, 1);
    EXPECT_EQ(Object->GetControl(), nullptr);
    EXPECT_EQ(GetDragControl(), nullptr);
    Input.Release();
}

TEST_F(OwnDragObject, ATargetMayGoWhileItIsAsked) {
    Press();
    Target->OnDragOver = [this](TObject*, TObject*, int, int, TDragState, bool& accept) {
        accept = true;
        std::exchange(Target, nullptr)->Free();
    };
    Input.MoveTo(Form->WindowHandle(), 250, 30);
    EXPECT_EQ(Target, nullptr);
    EXPECT_TRUE(Source->Dragging()) << "the drag itself goes on";
    Input.Release();
    EXPECT_EQ(Taken().back(), "end nowhere");
}

TEST_F(OwnDragObject, ATargetMayGoWhileItTakesTheDrop) {
    MakeTarget(Target);
    Target->OnDragDrop = [this](TObject*, TObject*, int, int) { std::exchange(Target, nullptr)->Free(); };
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    Input.Release();
    EXPECT_EQ(Target, nullptr);
    EXPECT_EQ(Object->Ends, 1);
    EXPECT_EQ(Taken().back(), "end nowhere");
}

TEST_F(OwnDragObject, TheSourceMayGoInItsOwnEvents) {
    MakeTarget(Target);
    Source->OnEndDrag = [this](TObject*, TObject*, int, int) { std::exchange(Source, nullptr)->Free(); };
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    Input.Release();
    EXPECT_EQ(Source, nullptr);
    EXPECT_EQ(GetDragControl(), nullptr);
}

TEST_F(OwnDragObject, TheSourceMayGoInOnStartDrag) {
    Source->OnStartDrag = [this](TObject*, TDragObject*&) { std::exchange(Source, nullptr)->Free(); };
    Press();
    EXPECT_EQ(GetDragControl(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
    Input.Release();
}

TEST_F(OwnDragObject, ExObjectsAreFreedByTheFramework) {
    Source->OnStartDrag = [this](TObject*, TDragObject*& object) {
        object = new TDragControlObjectEx(Source);
    };
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    EXPECT_NE(Dragged, Source) << "an object that was supplied is the source";
    Input.Release();
    EXPECT_EQ(Taken().back(), "end target");
    EXPECT_EQ(GetDragObject(), nullptr);
}

TEST_F(OwnDragObject, TheCursorFollowsTheAnswer) {
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    EXPECT_EQ(::GetCursor(), Services.CursorHandle(crDrag));
    Accepts = false;
    Input.MoveTo(Target->WindowHandle(), 51, 10);
    EXPECT_EQ(::GetCursor(), Services.CursorHandle(crNoDrop));
    Object->Cursor = crMultiDrag;
    Input.MoveTo(Target->WindowHandle(), 52, 10);
    EXPECT_EQ(::GetCursor(), Services.CursorHandle(crMultiDrag));
    Input.Release();
}

TEST_F(OwnDragObject, APlainDragShowsTheControlsCursor) {
    Source->OnStartDrag = nullptr;
    Source->SetDragCursor(crCross);
    MakeTarget(Target);
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 10);
    EXPECT_EQ(::GetCursor(), Services.CursorHandle(crCross));
    Input.Release();
}

/// The same with a picture of 20 x 10 pixels whose left half is transparent.
class DragImage : public OwnDragObject {
protected:
    void SetUp() override {
        OwnDragObject::SetUp();
        Images = std::make_unique<TDragImageList>(nullptr);
        Images->SetSize(20, 10);
        TBitmap picture(20, 10, pf24bit);
        picture.GetCanvas().GetBrush().SetColor(clFuchsia);
        picture.GetCanvas().FillRect(TRect(0, 0, 10, 10));
        picture.GetCanvas().GetBrush().SetColor(clBlue);
        picture.GetCanvas().FillRect(TRect(10, 0, 20, 10));
        Images->AddMasked(&picture, clFuchsia);
        Object->Images = Images.get();
    }
    void TearDown() override {
        Object.reset();
        Images.reset();
        OwnDragObject::TearDown();
    }
    [[nodiscard]] TRect ShownAt() const {
        RECT r{};
        ::GetWindowRect(Images->GetDragWindow(), &r);
        return r;
    }
    std::unique_ptr<TDragImageList> Images;
};

TEST_F(DragImage, FollowsThePointerByItsHotSpot) {
    MakeTarget(Target);
    ASSERT_TRUE(Images->SetDragImage(0, 4, 3));
    Target->ControlStyle.Include(csDisplayDragImage);
    Press();
    EXPECT_TRUE(Images->GetDragging());
    EXPECT_FALSE(::IsWindowVisible(Images->GetDragWindow())) << "the source does not show images";
    Input.MoveTo(Target->WindowHandle(), 50, 20);
    EXPECT_TRUE(::IsWindowVisible(Images->GetDragWindow()));
    const TPoint pointer = Target->ClientToScreen({50, 20});
    EXPECT_EQ(ShownAt(), TRect::OfSize(pointer.X - 4, pointer.Y - 3, 20, 10));
    EXPECT_EQ(Object->GetDragTarget(), Target) << "the mouse does not see it";
    Input.Release();
    EXPECT_FALSE(Images->GetDragging());
    EXPECT_EQ(Taken().back(), "end target");
}

TEST_F(DragImage, ShowsOverEverythingOnDemand) {
    ASSERT_TRUE(Images->SetDragImage(0, 0, 0));
    Object->AlwaysShowDragImages = true;
    Press();
    Input.MoveTo(Target->WindowHandle(), 50, 20);
    EXPECT_TRUE(::IsWindowVisible(Images->GetDragWindow()));
    Object->HideDragImage();
    EXPECT_FALSE(::IsWindowVisible(Images->GetDragWindow()));
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Images->GetDragWindow(), nullptr);
    Input.Release();
}

TEST_F(DragImage, NeedsAnImageToShow) {
    EXPECT_FALSE(Images->SetDragImage(1, 0, 0));
    EXPECT_FALSE(Images->BeginDrag({0, 0}));
    EXPECT_FALSE(Images->DragMove({0, 0}));
    EXPECT_FALSE(Images->EndDrag());
    Press();
    EXPECT_FALSE(Images->GetDragging());
    Input.Release();
}

}  // namespace
}  // namespace test
