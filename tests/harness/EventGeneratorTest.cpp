#include "tests/support/EventGenerator.h"

#include <windowsx.h>

#include <string>

#include "tests/support/LedgerTest.h"
#include "tests/support/Pump.h"
#include "tests/support/TestWindow.h"
#include "tests/support/WindowProbe.h"

namespace test {
namespace {

class EventGeneratorTest : public LedgerTest {};

TEST_F(EventGeneratorTest, MovesReachTheWindowAtTheExactPixel) {
    TestWindow window({37, 41, 337, 241});
    WindowProbe probe(window);
    EventGenerator events;
    for (int i = 0; i < 20; ++i) {
        events.MoveTo(window, i * 7 + 1, i * 5 + 2);
        ASSERT_TRUE(probe.Saw(WM_MOUSEMOVE));
        EXPECT_EQ(GET_X_LPARAM(probe.Messages().back().LParam), i * 7 + 1);
        EXPECT_EQ(GET_Y_LPARAM(probe.Messages().back().LParam), i * 5 + 2);
    }
}

TEST_F(EventGeneratorTest, ClicksNeverMakeADoubleClickAndDoubleClicksAlwaysDo) {
    TestWindow window;
    WindowProbe probe(window);
    EventGenerator events;
    const std::vector<UINT> kinds{WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK};
    events.ClickAt(window, 10, 10);
    events.ClickAt(window, 10, 10);
    EXPECT_EQ(probe.Order(kinds),
              (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDOWN, WM_LBUTTONUP}));
    probe.Forget();
    events.DoubleClickAt(window, 10, 10);
    events.ClickAt(window, 10, 10);
    EXPECT_EQ(probe.Order(kinds), (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK,
                                                     WM_LBUTTONUP, WM_LBUTTONDOWN, WM_LBUTTONUP}));
}

TEST_F(EventGeneratorTest, TypedTextArrivesCharacterByCharacter) {
    TestWindow window;
    std::wstring typed;
    WindowProbe probe(window);
    EventGenerator events;
    events.Type(L"Weiß 1!");
    for (const SeenMessage& seen : probe.Messages())
        if (seen.Message == WM_CHAR) typed.push_back(static_cast<wchar_t>(seen.WParam));
    EXPECT_EQ(typed, L"Weiß 1!");
}

TEST_F(EventGeneratorTest, HeldKeysShowInTheKeyState) {
    bool shift = false, control = false;
    TestWindow window({100, 100, 200, 200}, [&](UINT message, WPARAM key, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_KEYDOWN && key == 'A') {
            shift = GetKeyState(VK_SHIFT) < 0;
            control = GetKeyState(VK_CONTROL) < 0;
        }
        return std::nullopt;
    });
    EventGenerator events;
    events.Chord({VK_CONTROL, VK_SHIFT}, 'A');
    EXPECT_TRUE(shift);
    EXPECT_TRUE(control);
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST_F(EventGeneratorTest, DragMovesWithTheButtonDown) {
    TestWindow window;
    WindowProbe probe(window);
    EventGenerator events;
    events.Drag(window.ToScreen(10, 10), window.ToScreen(90, 50));
    EXPECT_EQ(probe.Count(WM_LBUTTONDOWN), 1);
    EXPECT_EQ(probe.Count(WM_LBUTTONUP), 1);
    int moves = 0;
    for (const SeenMessage& seen : probe.Messages())
        moves += seen.Message == WM_MOUSEMOVE && (seen.WParam & MK_LBUTTON);
    EXPECT_GE(moves, 4);
}

TEST_F(EventGeneratorTest, WheelReachesTheWindowUnderTheMouse) {
    TestWindow window;
    WindowProbe probe(window);
    EventGenerator events;
    events.MoveTo(window, 20, 20);
    events.Wheel(-2);
    ASSERT_EQ(probe.Count(WM_MOUSEWHEEL), 1);
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(probe.Messages().back().WParam), -240);
}

TEST_F(EventGeneratorTest, StepsRunInsideTheLoopOfAMenu) {
    TestWindow window;
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 7, L"Seven");
    EventGenerator events;
    When([] { return FindWindowW(MAKEINTATOM(32768), nullptr) != nullptr; },
         [&] {
             events.KeyPress(VK_DOWN);
             events.KeyPress(VK_RETURN);
         });
    EXPECT_EQ(TrackPopupMenu(menu, TPM_RETURNCMD, 150, 150, 0, window, nullptr), 7);
    DestroyMenu(menu);
}

TEST_F(EventGeneratorTest, AnotherThreadSeesTheWindowsOfTheTest) {
    TestWindow window;
    HWND seen = nullptr;
    FromOtherThread([&] { seen = FindWindowW(L"TestWindow", nullptr); });
    EXPECT_EQ(seen, window.Handle());
}

}  // namespace
}  // namespace test
