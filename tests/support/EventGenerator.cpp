#include "tests/support/EventGenerator.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "tests/support/Desktop.h"
#include "tests/support/Pump.h"

namespace test {
namespace {

/// Input may take a moment from the system to the queue of the thread. For input that nobody gets (a click
/// into a disabled window) the wait ends here.
constexpr std::chrono::milliseconds ArrivalLimit{100};
constexpr int DragSteps = 4;

/// Counts the input messages that the thread takes from its queue.
class ArrivalCounter {
public:
    explicit ArrivalCounter(std::function<bool(const MSG&)> isWanted) : FIsWanted(std::move(isWanted)) {
        Current() = this;
        FHook = SetWindowsHookExW(WH_GETMESSAGE, Look, nullptr, GetCurrentThreadId());
    }
    ~ArrivalCounter() {
        UnhookWindowsHookEx(FHook);
        Current() = FOuter;
    }
    ArrivalCounter(const ArrivalCounter&) = delete;
    ArrivalCounter& operator=(const ArrivalCounter&) = delete;

    void SendAndWait(INPUT& input) {
        SendInput(1, &input, sizeof input);
        (void)PumpUntil([this] { return FArrived; }, ArrivalLimit);
    }

private:
    static ArrivalCounter*& Current() {
        thread_local ArrivalCounter* current = nullptr;
        return current;
    }
    static LRESULT CALLBACK Look(int code, WPARAM removed, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        if (code == HC_ACTION && removed == PM_REMOVE)
            for (ArrivalCounter* each = Current(); each; each = each->FOuter)
                if (each->FIsWanted(message)) each->FArrived = true;
        return CallNextHookEx(nullptr, code, removed, lParam);
    }

    ArrivalCounter* FOuter = Current();
    HHOOK FHook;
    std::function<bool(const MSG&)> FIsWanted;
    bool FArrived = false;
};

bool IsMouse(const MSG& message) {
    return (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) ||
           (message.message >= WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK);
}

bool IsKey(const MSG& message) {
    return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
}

/// Whether a window of this thread would get the mouse now.
bool IsOurs(POINT point) {
    HWND window = GetCapture();
    if (!window) window = WindowFromPoint(point);
    return window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

/// Whether a loop of the system (menu, moving or sizing a window) takes the input now. It must get it from
/// the queue itself.
bool IsInSystemLoop() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) &&
           (info.flags & (GUI_INMENUMODE | GUI_INMOVESIZE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE));
}

/// Sends input that no window of this thread waits for.
void SendOnly(INPUT& input) {
    SendInput(1, &input, sizeof input);
    if (!IsInSystemLoop()) PumpAll();
}

/// Sends the input and handles messages until one of them arrived that `isWanted` accepts.
template <class Predicate>
void SendAndWait(INPUT& input, Predicate isWanted) {
    if (IsInSystemLoop()) {
        SendInput(1, &input, sizeof input);
    } else {
        ArrivalCounter(isWanted).SendAndWait(input);
    }
}

/// How far the clock of the generated input runs ahead of the system's, in milliseconds. It jumps where a
/// click must not be taken for the second half of a double click.
DWORD& ClockAhead() {
    static DWORD ahead = 0;
    return ahead;
}

DWORD Now() {
    return GetTickCount() + ClockAhead();
}

/// Absolute input counts in 65536ths of the screen; rounding up makes the way back exact.
LONG Absolute(LONG pixel, int extent) {
    return (pixel * 65536 + extent - 1) / extent;
}

DWORD ButtonFlag(MouseButton button, bool down) {
    switch (button) {
        case MouseButton::Right:
            return down ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP;
        case MouseButton::Middle:
            return down ? MOUSEEVENTF_MIDDLEDOWN : MOUSEEVENTF_MIDDLEUP;
        default:
            return down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
    }
}

unsigned ButtonBit(MouseButton button) {
    return 1u << static_cast<unsigned>(button);
}

bool IsExtended(WORD key) {
    switch (key) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
        case VK_HOME:
        case VK_END:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_INSERT:
        case VK_DELETE:
            return true;
        default:
            return false;
    }
}

}  // namespace

EventGenerator::~EventGenerator() {
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle})
        if (FButtonsDown & ButtonBit(button)) Release(button);
    for (WORD key = 0; key < 256; ++key)
        if (FKeysDown[key]) KeyUp(key);
}

void EventGenerator::MoveTo(POINT screen) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.time = Now();
    input.mi.dx = Absolute(screen.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Absolute(screen.y, GetSystemMetrics(SM_CYSCREEN));
    const POINT old = Position();
    if (!IsOurs(screen) || (old.x == screen.x && old.y == screen.y)) return SendOnly(input);
    SendAndWait(input, [screen](const MSG& message) {
        return IsMouse(message) && message.pt.x == screen.x && message.pt.y == screen.y;
    });
}

void EventGenerator::MoveTo(HWND window, int x, int y) {
    POINT point{x, y};
    ClientToScreen(window, &point);
    MoveTo(point);
}

void EventGenerator::MoveAway() {
    const POINT corner{GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1};
    MoveTo(corner);
}

POINT EventGenerator::Position() const {
    POINT point;
    GetCursorPos(&point);
    return point;
}

void EventGenerator::Press(MouseButton button) {
    FButtonsDown |= ButtonBit(button);
    SendMouse(ButtonFlag(button, true));
}

void EventGenerator::Release(MouseButton button) {
    FButtonsDown &= ~ButtonBit(button);
    SendMouse(ButtonFlag(button, false));
}

void EventGenerator::Click(MouseButton button) {
    ForgetClicks();
    Press(button);
    Release(button);
}

void EventGenerator::ClickAt(HWND window, int x, int y, MouseButton button) {
    MoveTo(window, x, y);
    Click(button);
}

void EventGenerator::DoubleClickAt(HWND window, int x, int y, MouseButton button) {
    MoveTo(window, x, y);
    Click(button);
    Press(button);
    Release(button);
}

void EventGenerator::Drag(POINT from, POINT to, MouseButton button) {
    MoveTo(from);
    ForgetClicks();
    Press(button);
    for (int step = 1; step <= DragSteps; ++step)
        MoveTo(
            POINT{from.x + (to.x - from.x) * step / DragSteps, from.y + (to.y - from.y) * step / DragSteps});
    Release(button);
}

void EventGenerator::Wheel(int notches) {
    SendMouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches * WHEEL_DELTA));
}

void EventGenerator::KeyDown(WORD virtualKey) {
    FKeysDown[virtualKey & 0xFF] = true;
    SendKey(virtualKey, 0);
}

void EventGenerator::KeyUp(WORD virtualKey) {
    FKeysDown[virtualKey & 0xFF] = false;
    SendKey(virtualKey, KEYEVENTF_KEYUP);
}

void EventGenerator::KeyPress(WORD virtualKey) {
    KeyDown(virtualKey);
    KeyUp(virtualKey);
}

void EventGenerator::Chord(std::initializer_list<WORD> held, WORD virtualKey) {
    for (const WORD key : held)
        KeyDown(key);
    KeyPress(virtualKey);
    for (auto key = held.end(); key != held.begin();)
        KeyUp(*--key);
}

void EventGenerator::Type(std::wstring_view text) {
    for (const wchar_t character : text)
        for (const DWORD up : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = character;
            input.ki.dwFlags = KEYEVENTF_UNICODE | up;
            SendAndWait(input, IsKey);
        }
}

void EventGenerator::SendMouse(DWORD flags, DWORD data) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.time = Now();
    input.mi.mouseData = data;
    if (!IsOurs(Position())) return SendOnly(input);
    SendAndWait(input, [](const MSG& message) {
        return IsMouse(message) && message.message != WM_MOUSEMOVE && message.message != WM_NCMOUSEMOVE;
    });
}

void EventGenerator::SendKey(WORD virtualKey, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (IsExtended(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0);
    SendAndWait(input, IsKey);
}

void EventGenerator::ForgetClicks() {
    ClockAhead() += GetDoubleClickTime() + 1;
}

void FromOtherThread(const std::function<void()>& action) {
    std::atomic<bool> finished = false;
    const DWORD here = GetCurrentThreadId();
    std::thread other([&] {
        JoinDesktopOf(here);
        action();
        finished = true;
    });
    (void)PumpUntil([&] { return finished.load(); }, std::chrono::milliseconds{60000});
    other.join();
}

}  // namespace test
