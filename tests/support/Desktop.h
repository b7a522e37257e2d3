#pragma once

#include <windows.h>

namespace test {

/// Puts the calling thread on a desktop that no other process uses, so that focus, cursor and capture belong
/// to this process alone. Must run before the first window or drawing call of the thread. The desktop lives
/// as long as the process. False, and a line that says what to do, when no window can be made there.
[[nodiscard]] bool EnterPrivateDesktop();

/// Moves the calling thread to the desktop of another thread. Threads start on the default desktop, where
/// they would see neither the test's windows nor its cursor.
void JoinDesktopOf(DWORD threadId);

}  // namespace test
