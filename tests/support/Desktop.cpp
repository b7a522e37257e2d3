#include "tests/support/Desktop.h"

#include <cstdio>
#include <string>

namespace test {

namespace {

/// The first window on a desktop starts the process that owns the desktop's own window. That takes a moment,
/// and many on a machine whose processors are all busy with other tests.
bool WaitUntilWindowsCanBeMade() {
    for (const ULONGLONG end = GetTickCount64() + 10'000; GetTickCount64() < end; Sleep(20)) {
        const HWND window = CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                            GetModuleHandleW(nullptr), nullptr);
        if (window && DestroyWindow(window)) return true;
    }
    return false;
}

}  // namespace

bool EnterPrivateDesktop() {
    const std::wstring name = L"Test" + std::to_wstring(GetCurrentProcessId());
    const HDESK desktop = CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (!desktop || !SetThreadDesktop(desktop))
        std::fprintf(stderr, "No private desktop (error %lu); input tests may disturb each other\n",
                     GetLastError());
    if (WaitUntilWindowsCanBeMade()) return true;
    std::fprintf(stderr,
                 "No window can be made on the test's desktop (error %lu). Under Wine, make the prefix with\n"
                 "scripts/wine-prefix FOLDER null; a prefix of another make wants a display.\n",
                 GetLastError());
    return false;
}

void JoinDesktopOf(DWORD threadId) {
    SetThreadDesktop(GetThreadDesktop(threadId));
}

}  // namespace test
