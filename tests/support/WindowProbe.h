#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace test {

/// A message as it reached a window.
struct SeenMessage {
    UINT Message;
    WPARAM WParam;
    LPARAM LParam;
};

/// Listens to a window: notes the messages it gets, in order, before the window handles them. Ends with the
/// probe or the window, whichever comes first.
class WindowProbe {
public:
    explicit WindowProbe(HWND window);
    ~WindowProbe();
    WindowProbe(const WindowProbe&) = delete;
    WindowProbe& operator=(const WindowProbe&) = delete;

    [[nodiscard]] const std::vector<SeenMessage>& Messages() const { return FMessages; }
    /// How many messages of that kind came.
    [[nodiscard]] int Count(UINT message) const;
    [[nodiscard]] bool Saw(UINT message) const { return Count(message) > 0; }
    /// The kinds of the messages that are in `wanted`, in the order in which they came.
    [[nodiscard]] std::vector<UINT> Order(const std::vector<UINT>& wanted) const;
    void Forget() { FMessages.clear(); }

private:
    static LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR self);
    HWND FWindow;
    std::vector<SeenMessage> FMessages;
};

}  // namespace test
