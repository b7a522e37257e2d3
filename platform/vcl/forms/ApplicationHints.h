#pragma once

#include <memory>
#include <optional>

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/core/LifeGuard.h"

namespace vcl {

class TApplication;
class TControl;
class THintWindow;
class TTimer;
struct THintInfo;

/// The hints of the application: waits while the pointer rests on a control that has one, shows it, and takes
/// it away after its time or when the pointer goes on.
class TApplicationHints {
public:
    explicit TApplicationHints(TApplication& application);
    ~TApplicationHints();
    TApplicationHints(const TApplicationHints&) = delete;
    TApplicationHints& operator=(const TApplicationHints&) = delete;

    /// A mouse message reached the control.
    void MouseMessage(TControl* control, const TMessage& message);
    /// A message from the queue, before anyone handles it: keys and clicks end a hint.
    void QueueMessage(const MSG& message);
    /// The program has nothing to do: notices that the pointer left all controls.
    void Idle();
    /// Shows the hint at the point (screen pixels) at once.
    void Show(TPoint cursorPos);
    void Cancel();
    [[nodiscard]] bool IsShown() const { return FShown; }

private:
    void TimerElapsed(TObject* sender);
    void PointerOn(TControl* control, TPoint screenPos);
    void Wait(int milliseconds);
    void ShowFor(TControl& control, TPoint cursorPos);
    [[nodiscard]] bool Ask(TControl& control, THintInfo& info);
    void Open(THintInfo& info);
    void Hide();
    [[nodiscard]] TControl* Control() const { return FGuard && FGuard->IsAlive() ? FControl : nullptr; }
    void SetControl(TControl* control);

    TApplication& FApplication;
    std::unique_ptr<TTimer> FTimer;
    std::unique_ptr<THintWindow> FWindow;
    TControl* FControl = nullptr;  ///< For whom a hint waits or was shown; valid while the guard says so.
    std::optional<TLifeGuard> FGuard;
    TControl* FPointed = nullptr;  ///< Whose texts `Hint` shows; compared only, never used.
    TRect FCursorRect;             ///< Of the control, in client pixels: leaving it ends the hint.
    bool FShown = false;
    bool FReshow = false;  ///< The timer asks again instead of hiding.
};

}  // namespace vcl
