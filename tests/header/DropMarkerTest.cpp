#include <gtest/gtest.h>

#include "header/UnitQV7SkinHeaderChevron.h"
#include "header/UnitQV7SkinHeaderDragObject.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::Pixels;
using test::SamePixels;

constexpr int ItemWidth = 60;
constexpr int Middle = 10;

/// A tab control whose drag objects are of the class, and which lets tests reach them.
template <class Object>
class TDragStrip : public TQV7SkinSimpleTabControl {
public:
    using TQV7SkinSimpleTabControl::TQV7SkinSimpleTabControl;
    [[nodiscard]] std::shared_ptr<TQV7SkinHeaderDragObjectBase> CreateDragDropObject() override {
        return std::make_shared<Object>(this, GetHotItem());
    }
};

/// Makes the timer's step a call.
template <class Base>
class TStepping : public Base {
public:
    using Base::Base;
    using Base::DoTimer;
};

template <class Object>
class MarkerTest : public StripTest<TDragStrip<TStepping<Object>>> {
protected:
    using Fixture = StripTest<TDragStrip<TStepping<Object>>>;
    using Fixture::Form;
    using Fixture::Input;
    using Fixture::Shown;
    using Fixture::Strip;
    using Fixture::Surface;

    void SetUp() override {
        Fixture::SetUp();
        for (int i = 0; i < 4; ++i)
            Fixture::AddBlank(ItemWidth);
    }
    void Lift(int x) {
        Input.MoveTo(Surface(), x, Middle);
        Input.Press();
        Input.MoveTo(Surface(), x + 11, Middle);
    }
    [[nodiscard]] static TStepping<Object>* Carrier() {
        return dynamic_cast<TStepping<Object>*>(vcl::GetDragObject());
    }
    /// What the row shows under the marker: items as high as the strip, in the fill of their state.
    [[nodiscard]] Pixels Row() const {
        return Pixels(300, Strip->GetHeight(), [&](int x, int) -> COLORREF {
            return x < 4 * ItemWidth ? 0x00E0DBDA : static_cast<COLORREF>(StripColor);
        });
    }
    static void PutBar(Pixels& row, int x, int halfWidth) {
        for (int y = 0; y < row.Height(); ++y)
            for (int column = x - halfWidth; column < x + halfWidth; ++column)
                if (column >= 0) row.Set(column, y, 0x00FFFFFF);
    }
};

using PlainMarker = MarkerTest<TQV7SkinHeaderDragObjectBase>;

TEST_F(PlainMarker, IsAWhiteBarAtTheNearerSide) {
    Lift(20);
    Input.MoveTo(Surface(), ItemWidth + 29, Middle);
    Pixels expected = Row();
    PutBar(expected, ItemWidth, 2);
    EXPECT_TRUE(SamePixels(Shown(), expected));
    EXPECT_EQ(Carrier()->GetLeftIndex(), 0);
    EXPECT_EQ(Carrier()->GetRightIndex(), 1);
    Input.MoveTo(Surface(), ItemWidth + 30, Middle);
    expected = Row();
    PutBar(expected, 2 * ItemWidth, 2);
    EXPECT_TRUE(SamePixels(Shown(), expected)) << "the middle belongs to the right half";
    EXPECT_EQ(Carrier()->GetLeftIndex(), 1);
    EXPECT_EQ(Carrier()->GetRightIndex(), 2);
    Input.Release();
    EXPECT_TRUE(SamePixels(Shown(), Row()));
}

TEST_F(PlainMarker, StandsBehindTheMargin) {
    Strip->SetHorzOffset(12);
    Lift(20);
    Input.MoveTo(Surface(), ItemWidth + 10, Middle);
    const Pixels shown = Shown();
    for (int y = 0; y < shown.Height(); ++y) {
        EXPECT_EQ(shown.At(12 + ItemWidth - 2, y), 0x00FFFFFFu);
        EXPECT_EQ(shown.At(12 + ItemWidth + 1, y), 0x00FFFFFFu);
        EXPECT_NE(shown.At(12 + ItemWidth + 2, y), 0x00FFFFFFu);
    }
    Input.Release();
}

TEST_F(PlainMarker, GoesWhenThePointerLeavesTheItems) {
    Lift(20);
    Input.MoveTo(Surface(), ItemWidth + 10, Middle);
    Input.MoveTo(Surface(), 280, Middle);
    EXPECT_TRUE(SamePixels(Shown(), Row()));
    Input.MoveTo(Surface(), ItemWidth + 10, Middle);
    Input.MoveAway();
    EXPECT_TRUE(SamePixels(Shown(), Row()));
    Input.Release();
}

TEST_F(PlainMarker, GoesWhenTheDragIsCancelled) {
    Lift(20);
    Input.MoveTo(Surface(), ItemWidth + 10, Middle);
    ASSERT_FALSE(Shown() == Row());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_TRUE(SamePixels(Shown(), Row()));
    Input.Release();
}

TEST_F(PlainMarker, TheTargetFollowsFromTheSides) {
    Lift(ItemWidth + 20);  // the second
    struct {
        int X;
        int Target;
    } const places[] = {{5, 0}, {50, -1}, {70, -1}, {110, -1}, {130, -1}, {170, 2}, {190, 2}, {230, 3}};
    for (const auto& place : places) {
        Input.MoveTo(Surface(), place.X, Middle);
        EXPECT_EQ(Carrier()->GetTargetDropTabIndex(), place.Target) << place.X;
    }
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
}

using ArrowMarker = MarkerTest<TQV7SkinHeaderDragObjectWithDragArrows>;

TEST_F(ArrowMarker, AnArrowPointsAtTheBar) {
    const Pixels left = Piece(L"TABDRAGLEFT");
    const Pixels right = Piece(L"TABDRAGRIGHT");
    const auto putArrow = [](Pixels& row, const Pixels& arrow, int x) {
        const int top = (row.Height() - arrow.Height()) / 2;
        for (int y = 0; y < arrow.Height(); ++y)
            for (int column = 0; column < arrow.Width(); ++column)
                if (arrow.At(column, y) != static_cast<COLORREF>(NoPixel))
                    row.Set(x + column, top + y, arrow.At(column, y));
    };
    Lift(20);
    Input.MoveTo(Surface(), ItemWidth + 10, Middle);
    Pixels expected = Row();
    PutBar(expected, ItemWidth, 1);
    putArrow(expected, left, ItemWidth + 3);
    EXPECT_TRUE(SamePixels(Shown(), expected));
    Input.MoveTo(Surface(), ItemWidth + 50, Middle);
    expected = Row();
    PutBar(expected, 2 * ItemWidth, 1);
    putArrow(expected, right, 2 * ItemWidth - 3 - right.Width());
    EXPECT_TRUE(SamePixels(Shown(), expected));
    Input.Release();
}

/// Ten items, so that the row can be scrolled; the chevron shows.
class AutoScroll : public PlainMarker {
protected:
    void SetUp() override {
        PlainMarker::SetUp();
        for (int i = 0; i < 6; ++i)
            AddBlank(ItemWidth);
        ASSERT_TRUE(Strip->GetChevronVisible());
    }
    void Step() { Carrier()->DoTimer(nullptr); }
    [[nodiscard]] int First() const { return Strip->GetFirstVisibleIndex(); }
};

TEST_F(AutoScroll, NearTheLeftEdgeItGoesBackItemByItem) {
    Strip->ScrollBy(3);
    Lift(2 * ItemWidth);
    Input.MoveTo(Surface(), 11, Middle);
    Step();
    EXPECT_EQ(First(), 3);
    Input.MoveTo(Surface(), 10, Middle);
    Step();
    EXPECT_EQ(First(), 2);
    Step();
    Step();
    Step();
    EXPECT_EQ(First(), 0);
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
}

TEST_F(AutoScroll, TheTimerDoesItEveryHalfSecond) {
    Strip->ScrollBy(1);
    Lift(ItemWidth);
    EXPECT_EQ(Carrier()->GetScrollTimer().GetInterval(), 500u);
    Input.MoveTo(Surface(), 5, Middle);
    EXPECT_TRUE(test::PumpUntil([this] { return First() == 0; }));
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
}

TEST_F(AutoScroll, NearTheChevronItGoesOn) {
    const int chevron = Strip->GetChevron().GetWidth();
    ASSERT_GE(Strip->GetChevron().GetHeight() * 3, Strip->GetHeight() * 2);
    Lift(20);
    Input.MoveTo(Surface(), 300 - chevron - 11, Middle);
    Step();
    EXPECT_EQ(First(), 0);
    Input.MoveTo(Surface(), 300 - chevron - 10, Middle);
    Step();
    EXPECT_EQ(First(), 1);
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
}

TEST_F(AutoScroll, ALowChevronDoesNotCount) {
    Strip->SetHeight(33);  // two thirds are 22, the chevron has 21
    Lift(20);
    Input.MoveTo(Surface(), 300 - 11, 29);
    Step();
    EXPECT_EQ(First(), 0);
    Input.MoveTo(Surface(), 300 - 10, 29);
    Step();
    EXPECT_EQ(First(), 1);
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
}

TEST_F(AutoScroll, OnlyOverAnItem) {
    Strip->ScrollBy(3);
    Lift(2 * ItemWidth);
    Input.MoveTo(Surface(), 5, Middle);
    Input.MoveTo(Form().GetHandle(), 5, 200);
    Step();
    EXPECT_EQ(First(), 3);
    Input.Release();
}

TEST_F(AutoScroll, TheItemThatComesUnderThePointerIsTheTarget) {
    Strip->ScrollBy(1);
    Lift(2 * ItemWidth);
    Input.MoveTo(Surface(), 5, Middle);
    EXPECT_EQ(Strip->GetIndexOfItemMouseOver(), 1);
    Step();
    EXPECT_EQ(Strip->GetIndexOfItemMouseOver(), 0);
    EXPECT_EQ(Carrier()->GetTargetDropTabIndex(), 0);
    Input.KeyPress(VK_ESCAPE);
    Input.Release();
}

/// Drags with the picture of the item.
class PicturedDrag : public MarkerTest<TQV7SkinHeaderDragObject> {
protected:
    void TearDown() override {
        Screen().SetCursorHandle(4711, nullptr);
        MarkerTest::TearDown();
    }
};

/// The visible window of the drag image, or null.
HWND ImageWindow() {
    const HWND window = ::FindWindowW(L"TDragImageWindow", nullptr);
    return window && ::IsWindowVisible(window) ? window : nullptr;
}

TEST_F(PicturedDrag, ThePictureOfTheItemFollowsThePointer) {
    Lift(ItemWidth + 20);
    const HWND image = ImageWindow();
    ASSERT_NE(image, nullptr);
    Input.MoveTo(Form().GetHandle(), 200, 200);
    RECT place{};
    ::GetWindowRect(image, &place);
    EXPECT_EQ(place.right - place.left, ItemWidth);
    EXPECT_EQ(place.bottom - place.top, Strip->GetHeight());
    // Taken up 31 pixels from the item's left edge.
    const TPoint pointer = Form().ClientToScreen({200, 200});
    EXPECT_EQ(place.left, pointer.X - 31);
    EXPECT_EQ(place.top, pointer.Y - Middle);
    Input.Release();
    EXPECT_EQ(ImageWindow(), nullptr);
}

TEST_F(PicturedDrag, ThePictureIsInTheControlsFont) {
    class TOpenObject : public TQV7SkinHeaderDragObject {
    public:
        using TQV7SkinHeaderDragObject::DrawDragIcon;
        using TQV7SkinHeaderDragObject::TQV7SkinHeaderDragObject;
    };
    Strip->GetFont().SetSize(16);
    TQV7SkinHeaderItemTab* const tab = AddTab(L"Caption");
    const TRect place = Strip->GetItemRect(tab);
    TBitmap picture(place.Width(), place.Height(), pf24bit), expected(place.Width(), place.Height(), pf24bit);
    TOpenObject(Strip, tab).DrawDragIcon(picture);
    expected.GetCanvas().SetFont(Strip->GetFont());
    int x = 0;
    tab->Draw(expected.GetCanvas(), x, place.Height());
    EXPECT_EQ(x, place.Width());
    EXPECT_TRUE(SamePixels(test::ReadBitmap(picture.GetHandle()), test::ReadBitmap(expected.GetHandle())));
}

TEST_F(PicturedDrag, TheCursorIsRegisteredAndTellsTheAnswer) {
    Lift(20);
    const HCURSOR arrow = Screen().GetCursorHandle(crArrow);
    EXPECT_NE(Screen().GetCursorHandle(4711), arrow);
    Input.MoveTo(Surface(), ItemWidth + 10, Middle);
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(4711));
    Input.MoveTo(Surface(), 280, Middle);
    EXPECT_EQ(::GetCursor(), Screen().GetCursorHandle(crNoDrop));
    Input.Release();
}

TEST_F(PicturedDrag, ACursorOfTheProgramStays) {
    const HCURSOR own = ::CopyIcon(::LoadCursorW(nullptr, IDC_CROSS));
    Screen().SetCursorHandle(4711, own);
    Lift(20);
    EXPECT_EQ(Screen().GetCursorHandle(4711), own);
    Input.Release();
}

TEST_F(PicturedDrag, TheItemMayGoBeforeThePictureIsMade) {
    TQV7SkinHeaderDragObject object(Strip, nullptr);
    EXPECT_EQ(object.GetItem(), nullptr);
    EXPECT_EQ(object.GetTargetDropTabIndex(), -1);
}

}  // namespace
}  // namespace qv7skin
