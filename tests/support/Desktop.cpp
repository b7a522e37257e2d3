#include "tests/support/Desktop.h"

#include <cstdio>
#include <string>

namespace test {

void EnterPrivateDesktop() {
    const std::wstring name = L"Test" + std::to_wstring(GetCurrentProcessId());
    const HDESK desktop = CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (!desktop || !SetThreadDesktop(desktop))
        std::fprintf(stderr, "No private desktop (error %lu); input tests may disturb each other\n",
                     GetLastError());
}

void JoinDesktopOf(DWORD threadId) {
    SetThreadDesktop(GetThreadDesktop(threadId));
}

}  // namespace test
