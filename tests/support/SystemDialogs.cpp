#include "tests/support/SystemDialogs.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <utility>

#include "tests/support/Desktop.h"
#include "tests/support/Pump.h"

namespace test {
namespace {

constexpr wchar_t DialogClass[] = L"#32770";

/// The first open dialogs of a system are slow: it reads folders and icons.
constexpr std::chrono::seconds DialogLimit{20};
constexpr std::chrono::milliseconds LookAgain{10};

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 1024> text{};
    DWORD_PTR length = 0;
    ::SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL,
                          1000, &length);
    return {text.data(), length};
}

bool IsDialog(HWND window) {
    std::array<wchar_t, 16> name{};
    return ::GetClassNameW(window, name.data(), static_cast<int>(name.size())) &&
           std::wstring_view(name.data()) == DialogClass;
}

void Send(INPUT input) {
    ::SendInput(1, &input, sizeof input);
}

void SendKey(WORD virtualKey, WORD character, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = character;
    input.ki.dwFlags = flags;
    Send(input);
}

/// The keys that opened the dialog are still down: the thread that pressed them is inside of it.
void ReleaseKeys() {
    for (WORD key = VK_BACK; key < 0xFF; ++key)
        if (::GetAsyncKeyState(key) & 0x8000) SendKey(key, 0, KEYEVENTF_KEYUP);
}

void SendMouse(DWORD flags, POINT point) {
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    const int height = ::GetSystemMetrics(SM_CYSCREEN);
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = (point.x * 65536 + width - 1) / width;
    input.mi.dy = (point.y * 65536 + height - 1) / height;
    Send(input);
}

BOOL CALLBACK CloseDialog(HWND window, LPARAM) {
    if (IsDialog(window)) ::PostMessageW(window, WM_CLOSE, 0, 0);
    return TRUE;
}

}  // namespace

HWND SystemDialogUser::Focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(FThread, &info) ? info.hwndFocus : nullptr;
}

void SystemDialogUser::Require(const std::function<bool()>& condition, const std::string& what) {
    const auto end = std::chrono::steady_clock::now() + DialogLimit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            FFailure = what;
            throw Stopped();
        }
        std::this_thread::sleep_for(LookAgain);
    }
}

void SystemDialogUser::CloseAll() const {
    // A question before a dialog goes first, then the dialog takes its turn.
    for (int i = 0; i < 3; ++i) {
        ::EnumThreadWindows(FThread, CloseDialog, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds{200});
    }
}

void SystemDialogUser::WaitForDialog(std::wstring_view titlePart) {
    const auto waits = [&] {
        const HWND focus = Focus();
        const HWND top = focus ? ::GetAncestor(focus, GA_ROOT) : nullptr;
        if (!top || !IsDialog(top) || !::IsWindowVisible(top) || !::IsWindowEnabled(top)) return false;
        if (TextOf(top).find(titlePart) == std::wstring::npos) return false;
        FDialog = top;
        return true;
    };
    Require(waits, "no dialog waits for input");
    ReleaseKeys();
}

void SystemDialogUser::WaitUntilLeft() {
    const HWND dialog = FDialog;
    Require([dialog] { return !::IsWindowVisible(dialog) || !::IsWindowEnabled(dialog); },
            "the dialog stays");
}

void SystemDialogUser::TypeInstead(std::wstring_view text) {
    const HWND field = Focus();
    KeyPress(VK_END);
    SendKey(VK_SHIFT, 0, 0);
    KeyPress(VK_HOME);
    SendKey(VK_SHIFT, 0, KEYEVENTF_KEYUP);
    for (const wchar_t character : text) {
        SendKey(0, character, KEYEVENTF_UNICODE);
        SendKey(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
    }
    Require([field, text] { return TextOf(field) == text; }, "the text does not arrive in the field");
}

void SystemDialogUser::KeyPress(WORD virtualKey) {
    const DWORD extended =
        virtualKey >= VK_PRIOR && virtualKey <= VK_DELETE ? DWORD{KEYEVENTF_EXTENDEDKEY} : DWORD{0};
    SendKey(virtualKey, 0, extended);
    SendKey(virtualKey, 0, extended | KEYEVENTF_KEYUP);
}

void SystemDialogUser::ClickButton(int id) {
    const HWND button = ::GetDlgItem(FDialog, id);
    Require([button] { return ::IsWindowVisible(button) && ::IsWindowEnabled(button); },
            "the dialog has no button " + std::to_string(id));
    RECT place{};
    ::GetWindowRect(button, &place);
    const POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    SendMouse(MOUSEEVENTF_MOVE, middle);
    SendMouse(MOUSEEVENTF_LEFTDOWN, middle);
    SendMouse(MOUSEEVENTF_LEFTUP, middle);
}

std::wstring SystemDialogUser::FocusedText() const {
    return TextOf(Focus());
}

SystemDialogs::SystemDialogs(std::function<void(SystemDialogUser&)> steps)
    : FUser(::GetCurrentThreadId()), FThread([this, steps = std::move(steps)] {
          JoinDesktopOf(FUser.FThread);
          try {
              steps(FUser);
          } catch (const SystemDialogUser::Stopped&) {
              FUser.CloseAll();
          }
      }) {}

SystemDialogs::~SystemDialogs() {
    std::atomic<bool> ended = false;
    std::thread waiter([&] {
        FThread.join();
        ended = true;
    });
    (void)PumpUntil([&] { return ended.load(); }, DialogLimit * 2);
    waiter.join();
    EXPECT_EQ(FUser.FFailure, "");
}

}  // namespace test
