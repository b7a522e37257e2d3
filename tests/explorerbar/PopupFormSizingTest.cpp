#include "tests/explorerbar/PopupFormFixture.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;
using test::PumpAll;

/// Asks again and again for half a second at most.
template <class Condition>
bool WaitFor(Condition condition) {
    for (const ULONGLONG end = ::GetTickCount64() + 500; ::GetTickCount64() < end; ::SwitchToThread())
        if (condition()) return true;
    return false;
}

/// Whether the thread is in the system's loop of sizing, which takes a moment to begin.
bool IsSizing(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(thread, &info) && (info.flags & GUI_INMOVESIZE) != 0;
}

TRect WindowRect(HWND window) {
    TRect rect;
    ::GetWindowRect(window, rect.AsRect());
    return rect;
}

class PopupFormSizing : public PopupFormTest {
protected:
    void Open(TPopupResizeDirections directions) {
        Popup().SetResizeDirection(directions);
        PopupFormTest::Open();
        Popup().SetBounds(200, 160, 202, 122);
        PumpAll();
    }
    [[nodiscard]] TCursor CursorAt(int x, int y) {
        Input.MoveTo(Popup().GetHandle(), 50, 50);
        Input.MoveTo(Popup().GetHandle(), x, y);
        return Popup().GetCursor();
    }
    /// Presses at the point of the client area, drags by the distance and releases.
    void DragFrom(int x, int y, int dx, int dy) {
        const TPoint from = Popup().ClientToScreen({x, y});
        Input.MoveTo(Popup().GetHandle(), 50, 50);
        Input.MoveTo(from);
        test::FromOtherThread([&, window = Popup().GetHandle(), thread = ::GetCurrentThreadId()] {
            test::EventGenerator other;
            other.Press();
            const bool sizes = WaitFor([thread] { return IsSizing(thread); });
            for (int step = 1; step <= 4; ++step) {
                const TRect before = WindowRect(window);
                other.MoveTo(POINT{from.X + dx * step / 4, from.Y + dy * step / 4});
                // The loop loses a move that comes together with the release.
                if (sizes) WaitFor([&] { return WindowRect(window) != before; });
            }
            other.Release();
        });
        PumpAll();
    }
    int Right() { return Popup().GetClientWidth() - 1; }
    int Bottom() { return Popup().GetClientHeight() - 1; }
};

struct SizingCase {
    TPopupResizeDirections Directions;
    TCursor BottomRight;
    TCursor BottomLeft;
    TCursor Right;
    TCursor Bottom;
    TCursor Left;
};

TEST_F(PopupFormSizing, TheCursorTellsWhatCanBeSized) {
    const SizingCase cases[] = {
        {{}, crDefault, crDefault, crDefault, crDefault, crDefault},
        {{rdRight}, crSizeWE, crDefault, crSizeWE, crDefault, crDefault},
        {{rdLeft}, crDefault, crSizeWE, crDefault, crDefault, crSizeWE},
        {{rdBottom}, crSizeNS, crSizeNS, crDefault, crSizeNS, crDefault},
        {{rdRight, rdBottom}, crSizeNWSE, crSizeNS, crSizeWE, crSizeNS, crDefault},
        {{rdLeft, rdBottom}, crSizeNS, crSizeNESW, crDefault, crSizeNS, crSizeWE},
        {{rdLeft, rdRight}, crSizeWE, crSizeWE, crSizeWE, crDefault, crSizeWE},
        {{rdLeft, rdRight, rdBottom}, crSizeNWSE, crSizeNESW, crSizeWE, crSizeNS, crSizeWE},
    };
    for (const SizingCase& expected : cases) {
        SCOPED_TRACE(expected.Directions.Bits());
        Open(expected.Directions);
        EXPECT_EQ(CursorAt(Right(), Bottom()), expected.BottomRight);
        EXPECT_EQ(CursorAt(0, Bottom()), expected.BottomLeft);
        EXPECT_EQ(CursorAt(Right(), 60), expected.Right);
        EXPECT_EQ(CursorAt(100, Bottom()), expected.Bottom);
        EXPECT_EQ(CursorAt(0, 60), expected.Left);
        EXPECT_EQ(CursorAt(100, 60), crDefault);
    }
}

TEST_F(PopupFormSizing, TheZonesEndFourPixelsFromTheEdgesAndFiveFromTheLeft) {
    Open({rdLeft, rdRight, rdBottom});
    const int right = Popup().GetClientWidth();
    const int bottom = Popup().GetClientHeight();
    EXPECT_EQ(CursorAt(right - 4, 60), crSizeWE);
    EXPECT_EQ(CursorAt(right - 5, 60), crDefault);
    EXPECT_EQ(CursorAt(100, bottom - 4), crSizeNS);
    EXPECT_EQ(CursorAt(100, bottom - 5), crDefault);
    EXPECT_EQ(CursorAt(4, 60), crSizeWE);
    EXPECT_EQ(CursorAt(5, 60), crDefault);
    EXPECT_EQ(CursorAt(4, bottom - 4), crSizeNESW);
    EXPECT_EQ(CursorAt(5, bottom - 4), crSizeNS);
}

TEST_F(PopupFormSizing, EachEdgeSizesByDragging) {
    Open({rdRight, rdBottom});
    DragFrom(Right(), 60, 30, 0);
    EXPECT_EQ(Popup().GetBoundsRect(), TRect::OfSize(200, 160, 232, 122));
    DragFrom(100, Bottom(), 0, 20);
    EXPECT_EQ(Popup().GetBoundsRect(), TRect::OfSize(200, 160, 232, 142));
    DragFrom(Right(), Bottom(), -12, 8);
    EXPECT_EQ(Popup().GetBoundsRect(), TRect::OfSize(200, 160, 220, 150));
}

TEST_F(PopupFormSizing, TheLeftEdgeSizesByDragging) {
    Open({rdLeft, rdBottom});
    DragFrom(0, 60, -30, 0);
    EXPECT_EQ(Popup().GetBoundsRect(), TRect::OfSize(170, 160, 232, 122));
    DragFrom(0, Bottom(), 10, 16);
    EXPECT_EQ(Popup().GetBoundsRect(), TRect::OfSize(180, 160, 222, 138));
}

TEST_F(PopupFormSizing, WithBothSidesTheLeftEdgeSizesAtTheRight) {
    Open({rdLeft, rdRight});
    DragFrom(0, 60, 24, 0);
    EXPECT_EQ(Popup().GetLeft(), 200);
    EXPECT_NE(Popup().GetWidth(), 202);
}

TEST_F(PopupFormSizing, NothingIsSizedWithoutDirections) {
    Open({});
    const TRect before = Popup().GetBoundsRect();
    for (const TPoint at :
         {TPoint(Right(), 60), TPoint(Right(), Bottom()), TPoint(0, 60), TPoint(100, Bottom())})
        DragFrom(at.X, at.Y, 20, 20);
    EXPECT_EQ(Popup().GetBoundsRect(), before);
}

}  // namespace
