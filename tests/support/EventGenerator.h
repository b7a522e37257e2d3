#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string_view>

namespace test {

enum class MouseButton { Left, Right, Middle };

/// Plays the user: moves the mouse and presses keys through the system's own input, so that hit testing,
/// capture, focus, activation and key states are those of real life. Points are screen pixels unless a window
/// is given; then they belong to its client area.
///
/// Every call handles messages until the input has arrived. A call from inside a message handler works too:
/// that is how modal loops are driven, with `Later`. While a loop of the system itself runs (a menu, moving
/// or sizing a window), calls only send and that loop gets the input after the step returned. All buttons and
/// keys that are down are released in the destructor.
class EventGenerator {
public:
    EventGenerator() = default;
    ~EventGenerator();
    EventGenerator(const EventGenerator&) = delete;
    EventGenerator& operator=(const EventGenerator&) = delete;

    void MoveTo(POINT screen);
    void MoveTo(HWND window, int x, int y);
    /// Moves to a place where no window of the test is, so that what is under the mouse gets its leave.
    void MoveAway();
    [[nodiscard]] POINT Position() const;

    void Press(MouseButton button = MouseButton::Left);
    void Release(MouseButton button = MouseButton::Left);
    void Click(MouseButton button = MouseButton::Left);
    void ClickAt(HWND window, int x, int y, MouseButton button = MouseButton::Left);
    /// Two clicks within the system's double click time, whatever was clicked before.
    void DoubleClickAt(HWND window, int x, int y, MouseButton button = MouseButton::Left);
    /// Presses at `from`, moves in steps to `to` and releases there.
    void Drag(POINT from, POINT to, MouseButton button = MouseButton::Left);
    /// Turns the wheel by notches, away from the user when positive.
    void Wheel(int notches);

    void KeyDown(WORD virtualKey);
    void KeyUp(WORD virtualKey);
    void KeyPress(WORD virtualKey);
    /// Presses the key while the others are held: `Chord({VK_CONTROL, VK_SHIFT}, 'A')`.
    void Chord(std::initializer_list<WORD> held, WORD virtualKey);
    /// Types text as a keyboard with every character would.
    void Type(std::wstring_view text);

private:
    void SendMouse(DWORD flags, DWORD data = 0);
    void SendKey(WORD virtualKey, DWORD flags);
    static void ForgetClicks();
    unsigned FButtonsDown = 0;
    bool FKeysDown[256] = {};
};

/// Runs the action in a second thread that sees the windows and the input of the calling one, which handles
/// messages meanwhile until it has finished. For loops of the system that wait for the next input themselves,
/// such as the one between press and release on a scroll bar.
void FromOtherThread(const std::function<void()>& action);

}  // namespace test
