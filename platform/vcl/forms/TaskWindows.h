#pragma once

#include <vector>

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// Disables the visible top-level windows of the thread for the length of a scope, as a modal window needs
/// it; those that were enabled before are enabled again.
class TTaskWindowsDisabled {
public:
    /// `except` stays enabled; null disables all.
    explicit TTaskWindowsDisabled(HWND except);
    ~TTaskWindowsDisabled() { Enable(); }
    TTaskWindowsDisabled(const TTaskWindowsDisabled&) = delete;
    TTaskWindowsDisabled& operator=(const TTaskWindowsDisabled&) = delete;
    /// Ends the scope early.
    void Enable();

private:
    std::vector<HWND> FWindows;
};

}  // namespace vcl
