#include <gtest/gtest.h>

#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/DragObject.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ListBox.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

/// Two lists; what is selected in the left one can be dragged to others.
class DraggedControls : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        From = Make<TListBox>({10, 10, 110, 110});
        To = Make<TListBox>({150, 10, 250, 110});
        for (const wchar_t* row : {L"A", L"B", L"C"})
            From->GetItems().Add(row);
        From->OnMouseDown = [this](TObject*, TMouseButton button, TShiftState, int, int) {
            if (button == mbLeft) From->BeginDrag(false);
        };
        Accept(To);
    }
    void Accept(TControl* target) {
        target->OnDragOver = [this](TObject*, TObject* source, int, int, TDragState, bool& accept) {
            accept = source == From;
        };
        target->OnDragDrop = [this](TObject*, TObject* source, int, int) {
            Dropped = static_cast<TListBox*>(source)->GetItemIndex();
        };
    }
    void TakeRow(int row) {
        Input.MoveTo(From->GetHandle(), 20, row * From->GetItemHeight() + 4);
        Input.Press();
    }

    TListBox* From = nullptr;
    TListBox* To = nullptr;
    int Dropped = -1;
};

TEST_F(DraggedControls, ARowOfAListGoesToAnotherList) {
    TakeRow(1);
    EXPECT_EQ(From->GetItemIndex(), 1) << "the press selects as ever";
    EXPECT_FALSE(From->Dragging());
    Input.MoveTo(To->GetHandle(), 20, 20);
    EXPECT_TRUE(From->Dragging());
    Input.Release();
    EXPECT_EQ(Dropped, 1);
}

TEST_F(DraggedControls, APressWithoutAMoveOnlySelects) {
    TakeRow(2);
    Input.Release();
    EXPECT_EQ(From->GetItemIndex(), 2);
    EXPECT_EQ(Dropped, -1);
    EXPECT_EQ(GetDragControl(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(DraggedControls, AnotherFormTakesTheDrop) {
    TForm other(nullptr);
    other.SetBorderStyle(bsNone);
    other.SetBounds(550, 150, 200, 150);
    auto* panel = new TPanel(&other);
    panel->SetAlign(alClient);
    panel->SetParent(&other);
    Accept(panel);
    other.Show();
    TakeRow(0);
    Input.MoveTo(panel->GetHandle(), 40, 40);
    EXPECT_EQ(GetDragObject()->GetDragTarget(), panel);
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(crDrag));
    Input.Release();
    EXPECT_EQ(Dropped, 0);
}

TEST_F(DraggedControls, ACursorOfTheProgramShowsWhileItIsDragged) {
    ICONINFO shape{};
    ::GetIconInfo(::LoadCursorW(nullptr, IDC_UPARROW), &shape);
    Screen().SetCursorHandle(4711, ::CreateIconIndirect(&shape));
    ::DeleteObject(shape.hbmMask);
    if (shape.hbmColor) ::DeleteObject(shape.hbmColor);
    From->SetDragCursor(4711);
    TakeRow(0);
    Input.MoveTo(To->GetHandle(), 20, 20);
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(4711));
    Input.Release();
    Screen().SetCursorHandle(4711, nullptr);
}

TEST_F(DraggedControls, AMessageLoopInTheDropHandlerIsNoPartOfTheDrag) {
    int typed = 0;
    To->OnDragDrop = [this](TObject*, TObject*, int, int) {
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_FALSE(From->Dragging());
        PumpAll();
        Input.KeyPress(VK_ESCAPE);
    };
    auto* edit = Make<TEdit>({10, 150, 110, 171});
    edit->OnKeyDown = [&](TObject*, WORD& key, TShiftState) { typed = key; };
    edit->SetFocus();
    From->SetDragMode(dmAutomatic);  // leaves the focus where it is
    TakeRow(0);
    Input.MoveTo(To->GetHandle(), 20, 20);
    Input.Release();
    EXPECT_EQ(typed, VK_ESCAPE);
}

TEST_F(DraggedControls, FormFilesNameModeAndCursor) {
    RegisterClass(TLabel::StaticClass());
    TReader(ParseFormText(LR"(object Form: TForm
  object Badge: TLabel
    DragCursor = crMultiDrag
    DragKind = dkDock
    DragMode = dmAutomatic
  end
end)"))
        .ReadRootComponent(&Form());
    const auto& badge = dynamic_cast<TLabel&>(*Form().FindComponent(L"Badge"));
    EXPECT_EQ(badge.GetDragCursor(), crMultiDrag);
    EXPECT_EQ(badge.GetDragKind(), dkDock);
    EXPECT_EQ(badge.GetDragMode(), dmAutomatic);
}

}  // namespace
}  // namespace test
