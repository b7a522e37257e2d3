#pragma once

#include <windows.h>

#include <chrono>
#include <functional>

namespace test {

/// How long a wait may take before it counts as failed. Reached only by failing tests.
inline constexpr std::chrono::milliseconds WaitLimit{5000};

/// What pumping does with each message, for as long as the object exists; without one messages are translated
/// and dispatched. `FormTest` puts the application's loop here.
class MessageLoop {
public:
    MessageLoop();
    virtual ~MessageLoop();
    MessageLoop(const MessageLoop&) = delete;
    MessageLoop& operator=(const MessageLoop&) = delete;
    virtual void Handle(MSG& message) = 0;
    /// The queue is empty and the condition waited for does not hold yet.
    virtual void Idle() {}

private:
    MessageLoop* FOuter;
};

/// Handles all messages that stand in the calling thread's queue, and those that handling them adds.
void PumpAll();

/// Handles messages until the condition holds or the time is over; returns whether it holds. Use it as
/// `ASSERT_TRUE(PumpUntil([&] { return clicked; }))`.
[[nodiscard]] bool PumpUntil(const std::function<bool()>& condition,
                             std::chrono::milliseconds limit = WaitLimit);

/// Calls `step` from the message loop that runs next in this thread, be it one of a menu, a modal form or a
/// drag. Steps run in the order in which they were added, the next one only after the one before returned.
void Later(std::function<void()> step);

/// Like `Later`, but waits for the condition, which is looked at whenever the loop runs (every 10 ms).
void When(std::function<bool()> condition, std::function<void()> step);

/// Forgets steps that did not run; returns how many there were.
int DropSteps();

}  // namespace test
