#pragma once

#include <windows.h>

#include <functional>
#include <optional>

namespace test {

/// A plain top-level window of the Windows API, for tests of what lies below forms: a parent for controls, a
/// surface to draw on. It is visible, active and painted white unless the handler says otherwise.
class TestWindow {
public:
    /// Answers a message, or leaves it to the default handling with an empty result.
    using Handler = std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)>;

    /// `bounds` are those of the client area in screen pixels; the window has no frame.
    explicit TestWindow(const RECT& bounds = {100, 100, 500, 400}, Handler handler = nullptr);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    /// The window, or null after something destroyed it.
    [[nodiscard]] HWND Handle() const { return FHandle; }
    operator HWND() const { return FHandle; }
    /// A point of the client area in screen pixels.
    [[nodiscard]] POINT ToScreen(int x, int y) const;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND FHandle = nullptr;
    Handler FHandler;
};

}  // namespace test
