#pragma once

#include <memory>

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TDragSession;

/// The invisible window that holds the mouse during a drag, so that the window under the pointer can be
/// found by its place. The session learns of moves, releases and of the capture's loss.
class TDragCapture {
public:
    /// Takes the mouse. Raises EOSError.
    explicit TDragCapture(TDragSession& session);
    /// Gives it back, without telling the session, and lets the window under the pointer know of it again.
    ~TDragCapture();
    TDragCapture(const TDragCapture&) = delete;
    TDragCapture& operator=(const TDragCapture&) = delete;

    /// After a drag that was cancelled while a button is down: keeps the mouse until the release, which would
    /// otherwise end a press on what lies below. Nothing is kept when no button is down or the mouse is lost.
    static void HoldUntilRelease(std::unique_ptr<TDragCapture> capture);
    /// Ends what `HoldUntilRelease` began.
    static void StopHolding();

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Handle(UINT message, WPARAM wParam, LPARAM lParam);

    HWND FHandle = nullptr;
    TDragSession* FSession;
};

}  // namespace vcl
