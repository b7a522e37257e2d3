#include <gtest/gtest.h>

#include "header/UnitQV7SkinHeaderDragObject.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;

constexpr int ItemWidth = 60;
constexpr int Middle = 10;

/// Four items A to D of 60 pixels; the rest of the strip, from 240 to 300, is empty.
class RowDrag : public StripTest<TQV7SkinSimpleTabControl> {
protected:
    void SetUp() override {
        StripTest::SetUp();
        for (const wchar_t* caption : {L"A", L"B", L"C", L"D"})
            Add(caption);
        Strip->OnItemMoved = [this](TObject* sender, int from, int to) {
            EXPECT_EQ(sender, Strip);
            Moves.emplace_back(from, to);
        };
    }
    void Add(const wchar_t* caption) {
        auto* const tab = new TQV7SkinHeaderItemTab(bckgrndStandard, caption);
        Blank(tab, ItemWidth);
        tab->OnClick = [this](TQV7SkinHeaderItemCustom* item, TMouseButton, TShiftState, int, int) {
            Clicked += item->GetCaption();
        };
        tab->OnUndock = [this](TQV7SkinHeaderItemCustom* item) { Undocked += item->GetCaption(); };
    }
    /// A point of the item: from 0 (left) to 59.
    [[nodiscard]] static int At(int index, int inside) { return index * ItemWidth + inside; }
    /// Presses there and moves so far that the drag begins.
    void Lift(int x) {
        Input.MoveTo(Surface(), x, Middle);
        Input.Press();
        Input.MoveTo(Surface(), x + 11, Middle);
    }
    /// Takes the item to the point and drops it there.
    void DragItem(int index, int x) {
        Lift(At(index, 20));
        Input.MoveTo(Surface(), x, Middle);
        Input.Release();
    }
    [[nodiscard]] static TQV7SkinHeaderDragObjectBase* Carrier() {
        return dynamic_cast<TQV7SkinHeaderDragObjectBase*>(vcl::GetDragObject());
    }

    std::vector<std::pair<int, int>> Moves;
    std::wstring Clicked;
    std::wstring Undocked;
};

TEST_F(RowDrag, TenPixelsAreNoDragAndElevenAre) {
    Input.MoveTo(Surface(), 20, Middle);
    Input.Press();
    Input.MoveTo(Surface(), 30, Middle);
    EXPECT_EQ(Carrier(), nullptr);
    Input.MoveTo(Surface(), 20, Middle + 10);
    EXPECT_EQ(Carrier(), nullptr);
    Input.MoveTo(Surface(), 31, Middle);
    ASSERT_NE(Carrier(), nullptr);
    EXPECT_EQ(Carrier()->GetItem(), Items()[0]);
    EXPECT_NE(dynamic_cast<TQV7SkinHeaderDragObjectWithDragArrows*>(Carrier()), nullptr);
    Input.Release();
    EXPECT_EQ(Carrier(), nullptr);
    EXPECT_EQ(Clicked, L"") << "a drag is no click";
}

TEST_F(RowDrag, UpAndDownCountsAsFarAsToTheSides) {
    Input.MoveTo(Surface(), 20, 2);
    Input.Press();
    Input.MoveTo(Surface(), 20, 12);
    EXPECT_EQ(Carrier(), nullptr);
    Input.MoveTo(Surface(), 20, 13);
    EXPECT_NE(Carrier(), nullptr);
    Input.Release();
}

TEST_F(RowDrag, TheItemThatThePointerWasOnIsTaken) {
    Input.MoveTo(Surface(), At(0, 55), Middle);
    Input.Press();
    Input.MoveTo(Surface(), At(1, 10), Middle);
    ASSERT_NE(Carrier(), nullptr);
    EXPECT_EQ(Carrier()->GetItem(), Items()[0]);
    Input.Release();
}

TEST_F(RowDrag, AReleaseEndsWhatThePressBegan) {
    Input.ClickAt(Surface(), At(0, 20), Middle);
    // The button went down elsewhere, and the pointer comes over the row.
    ::SendMessageW(Surface(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(At(1, 20), Middle));
    EXPECT_EQ(Carrier(), nullptr);
}

TEST_F(RowDrag, TheSurfaceGetsItsUsualCursorUnderWay) {
    Lift(At(0, 20));
    Strip->GetPaintBox().SetCursor(crHandPoint);
    Input.MoveTo(Surface(), At(2, 20), Middle);
    EXPECT_EQ(Strip->GetPaintBox().GetCursor(), crDefault);
    Input.Release();
}

TEST_F(RowDrag, TheFirstGoesBehindTheSecond) {
    DragItem(0, At(1, 45));
    EXPECT_EQ(Captions(), L"BACD");
    EXPECT_EQ(Moves, (std::vector<std::pair<int, int>>{{0, 1}}));
}

TEST_F(RowDrag, TheLastGoesBeforeTheFirst) {
    DragItem(3, At(0, 10));
    EXPECT_EQ(Captions(), L"DABC");
    EXPECT_EQ(Moves, (std::vector<std::pair<int, int>>{{3, 0}}));
}

TEST_F(RowDrag, EveryItemGoesToEveryPlace) {
    for (int item = 0; item < 4; ++item)
        for (int place = 0; place < 4; ++place)
            for (const bool before : {true, false}) {
                Items().Clear();
                for (const wchar_t* caption : {L"A", L"B", L"C", L"D"})
                    Add(caption);
                DragItem(item, At(place, before ? 12 : 48));
                // Take it out and put it into the gap.
                std::wstring expected = L"ABCD";
                const wchar_t taken = expected[static_cast<std::size_t>(item)];
                int gap = before ? place : place + 1;
                if (gap > item) --gap;
                expected.erase(static_cast<std::size_t>(item), 1);
                expected.insert(static_cast<std::size_t>(gap), 1, taken);
                EXPECT_EQ(Captions(), expected)
                    << item << " to " << place << (before ? " before" : " behind");
            }
}

TEST_F(RowDrag, EitherSideOfItselfChangesNothing) {
    for (const int x : {At(0, 48), At(1, 5), At(1, 55), At(2, 12)}) {
        DragItem(1, x);
        EXPECT_EQ(Captions(), L"ABCD") << x;
    }
    EXPECT_TRUE(Moves.empty());
}

TEST_F(RowDrag, ItIsRefusedBesideTheItemsAndOutside) {
    Lift(At(0, 20));
    Input.MoveTo(Surface(), 260, Middle);
    EXPECT_FALSE(Carrier()->GetOverItem());
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCD");
    Lift(At(0, 20));
    Input.MoveTo(Form().GetHandle(), 100, 200);
    EXPECT_FALSE(Carrier()->GetOverItem());
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCD");
    Lift(At(0, 20));
    Input.MoveAway();
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCD");
    EXPECT_TRUE(Moves.empty());
}

TEST_F(RowDrag, OutsideAndBackAgainItIsTaken) {
    Lift(At(0, 20));
    Input.MoveAway();
    Input.MoveTo(Surface(), At(2, 50), Middle);
    EXPECT_TRUE(Carrier()->GetOverItem());
    Input.Release();
    EXPECT_EQ(Captions(), L"BCAD");
}

TEST_F(RowDrag, AnItemCutOffByTheEdgeIsNotUnderThePointerOutside) {
    Add(L"E");
    Add(L"F");
    Strip->SetWidth(200);
    auto* neighbour = Make<TPanel>({220, 30, 380, 60});
    Lift(At(0, 20));
    Input.MoveTo(neighbour->GetHandle(), 20, Middle);  // where the row would go on
    EXPECT_FALSE(Carrier()->GetOverItem());
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCDEF");
}

TEST_F(RowDrag, EscapeLeavesTheRowAsItIs) {
    Lift(At(0, 20));
    Input.MoveTo(Surface(), At(2, 50), Middle);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Carrier(), nullptr);
    Input.MoveTo(Surface(), At(3, 50), Middle);
    EXPECT_EQ(Carrier(), nullptr) << "the button is still down, but the drag is over";
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCD");
    EXPECT_EQ(Clicked, L"");
    Input.ClickAt(Surface(), At(1, 20), Middle);
    EXPECT_EQ(Clicked, L"B");
}

TEST_F(RowDrag, LosingTheCaptureLeavesTheRowAsItIs) {
    Lift(At(0, 20));
    Input.MoveTo(Surface(), At(2, 50), Middle);
    ::SetCapture(Form().GetHandle());
    ::ReleaseCapture();
    EXPECT_EQ(Carrier(), nullptr);
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCD");
}

TEST_F(RowDrag, ItIsOffOnDemand) {
    Strip->SetAllowItemDrag(false);
    DragItem(0, At(2, 50));
    EXPECT_EQ(Captions(), L"ABCD");
    EXPECT_EQ(Clicked, L"C") << "without dragging, the release is a click where it happens";
}

TEST_F(RowDrag, APressBesideTheItemsDragsNothing) {
    Input.MoveTo(Surface(), 250, Middle);
    Input.Press();
    Input.MoveTo(Surface(), 262, Middle);
    EXPECT_EQ(Carrier(), nullptr);
    Input.MoveTo(Surface(), At(2, 20), Middle);
    EXPECT_EQ(Carrier(), nullptr);
    Input.Release();
}

TEST_F(RowDrag, ADropFromElsewhereIsRefused) {
    auto* stranger = Make<TPanel>({20, 100, 80, 140});
    stranger->SetDragMode(dmAutomatic);
    Input.MoveTo(stranger->GetHandle(), 10, 10);
    Input.Press();
    Input.MoveTo(Surface(), At(1, 20), Middle);
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(crNoDrop));
    Input.Release();
    EXPECT_EQ(Captions(), L"ABCD");
}

TEST_F(RowDrag, TheHoveredItemIsRightAfterTheDrop) {
    DragItem(0, At(2, 50));
    ASSERT_EQ(Captions(), L"BCAD");
    EXPECT_EQ(Strip->GetIndexOfItemMouseOver(), 2);
    EXPECT_EQ(Strip->GetHotItem()->GetCaption(), L"A");
}

TEST_F(RowDrag, MovingInCodeBringsTheHoveredItemUpToDate) {
    Input.MoveTo(Surface(), At(0, 20), Middle);
    std::wstring entered;
    for (int i = 0; i < 4; ++i)
        Items()[i]->OnEnter = [&](TQV7SkinHeaderItemCustom* item) { entered += item->GetCaption(); };
    Strip->Move(0, 3);
    EXPECT_EQ(Captions(), L"BCDA");
    EXPECT_EQ(Strip->GetHotItem()->GetCaption(), L"B");
    EXPECT_EQ(Moves.size(), 1u);
}

// --- the item and the control go

TEST_F(RowDrag, TheItemMayBeDeletedUnderWay) {
    Strip->SetAllowItemUndock(true);
    Lift(At(0, 20));
    Items().Delete(0);
    EXPECT_EQ(Carrier()->GetItem(), nullptr);
    EXPECT_EQ(Carrier()->GetItemIndex(), -1);
    Input.MoveTo(Surface(), At(1, 50), Middle);
    Input.Release();
    EXPECT_EQ(Captions(), L"BCD");
    EXPECT_TRUE(Moves.empty());
    EXPECT_EQ(Undocked, L"");
}

TEST_F(RowDrag, AllItemsMayBeDeletedUnderWay) {
    Lift(At(0, 20));
    Items().Clear();
    Input.MoveTo(Surface(), At(1, 50), Middle);
    EXPECT_FALSE(Carrier()->GetOverItem());
    Input.Release();
    EXPECT_EQ(Captions(), L"");
}

TEST_F(RowDrag, TheControlMayBeFreedUnderWay) {
    Lift(At(0, 20));
    Input.MoveTo(Surface(), At(2, 50), Middle);
    std::exchange(Strip, nullptr)->Free();
    EXPECT_EQ(vcl::GetDragObject(), nullptr);
    Input.Release();
}

TEST_F(RowDrag, TheControlMayBeFreedByTheMove) {
    Strip->OnItemMoved = [this](TObject*, int, int) { std::exchange(Strip, nullptr)->Free(); };
    DragItem(0, At(1, 45));
    EXPECT_EQ(Strip, nullptr);
}

TEST_F(RowDrag, AnErrorInTheMoveLeavesTheControlWhole) {
    Strip->OnItemMoved = [](TObject*, int, int) { throw Exception(L"no"); };
    DragItem(0, At(1, 45));
    EXPECT_EQ(Errors.size(), 1u);
    Errors.clear();
    EXPECT_FALSE(Strip->GetUpdating());
    EXPECT_EQ(Captions(), L"BACD");
}

// --- undocking

TEST_F(RowDrag, UndockingIsReportedAfterEveryDrag) {
    DragItem(0, At(1, 45));
    EXPECT_EQ(Undocked, L"");
    Strip->SetAllowItemUndock(true);
    DragItem(0, At(1, 45));
    EXPECT_EQ(Undocked, L"B") << "after a drop inside the row too";
    Lift(At(2, 20));
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(crDrag));
    Input.MoveAway();
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(crDrag)) << "wherever it is taken";
    Input.Release();
    EXPECT_EQ(Undocked, L"BC");
    Lift(At(3, 20));
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Undocked, L"BCD");
    Input.Release();
}

TEST_F(RowDrag, UndockingCountsFromTheStartOfTheDrag) {
    Lift(At(0, 20));
    Strip->SetAllowItemUndock(true);
    Input.Release();
    EXPECT_EQ(Undocked, L"");
}

TEST_F(RowDrag, TheHandlerMayTakeTheItemElsewhere) {
    Strip->SetAllowItemUndock(true);
    auto* other = Make<TQV7SkinSimpleTabControl>({20, 100, 300, 121});
    Items()[1]->OnUndock = [&](TQV7SkinHeaderItemCustom* item) { other->GetItems().Add(item); };
    Lift(At(1, 20));
    Input.MoveTo(other->GetPaintBox().GetHandle(), 20, 10);
    Input.Release();
    EXPECT_EQ(Captions(), L"ACD");
    EXPECT_EQ(other->GetItems().GetCount(), 1);
}

TEST_F(RowDrag, AnErrorInTheReportIsSwallowed) {
    Strip->SetAllowItemUndock(true);
    Items()[0]->OnUndock = [](TQV7SkinHeaderItemCustom*) { throw Exception(L"no"); };
    Lift(At(0, 20));
    Input.Release();
    EXPECT_TRUE(Errors.empty());
    EXPECT_EQ(Carrier(), nullptr);
    DragItem(0, At(1, 45));
    EXPECT_EQ(Captions(), L"BACD");
}

TEST_F(RowDrag, TheReportMayFreeTheControl) {
    Strip->SetAllowItemUndock(true);
    Items()[0]->OnUndock = [this](TQV7SkinHeaderItemCustom*) { std::exchange(Strip, nullptr)->Free(); };
    Lift(At(0, 20));
    Input.Release();
    EXPECT_EQ(Strip, nullptr);
}

}  // namespace
}  // namespace qv7skin
