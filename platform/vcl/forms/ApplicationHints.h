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

/// Remembers a control that may be freed meanwhile.
class TControlReference {
public:
    /// The control, or null when there is none or it was freed.
    [[nodiscard]] TControl* Get() const { return FGuard && FGuard->IsAlive() ? FControl : nullptr; }
    /// True when a control was set and not cleared, be it alive or not.
    [[nodiscard]] bool IsSet() const { return FControl != nullptr; }
    void Set(TControl* control);

private:
    TControl* FControl = nullptr;
    std::optional<TLifeGuard> FGuard;
};

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

    TApplication& FApplication;
    std::unique_ptr<TTimer> FTimer;
    std::unique_ptr<THintWindow> FWindow;
    TControlReference FControl;  ///< For whom a hint waits or was shown.
    TControlReference FPointed;  ///< What is under the pointer, whose long text the application tells.
    TRect FCursorRect;           ///< Of the control, in client pixels: leaving it ends the hint.
    bool FShown = false;
    bool FReshow = false;  ///< The timer asks again instead of hiding.
};

}  // namespace vcl
