#pragma once

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TApplication;

/// The hidden window of the application: the owner of forms that have no other, and the receiver of what the
/// application sends to itself.
class TApplicationWindow {
public:
    explicit TApplicationWindow(TApplication& application);
    ~TApplicationWindow();
    TApplicationWindow(const TApplicationWindow&) = delete;
    TApplicationWindow& operator=(const TApplicationWindow&) = delete;

    [[nodiscard]] HWND Handle() const { return FHandle; }
    /// Lets the application free the released forms once the message under way has been handled.
    void WakeForReleasedForms() const;

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Handle(UINT message);

    TApplication& FApplication;
    HWND FHandle = nullptr;
};

}  // namespace vcl
