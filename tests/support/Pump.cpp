#include "tests/support/Pump.h"

#include <deque>
#include <utility>

namespace test {
namespace {

using Clock = std::chrono::steady_clock;

struct Step {
    std::function<bool()> Condition;
    std::function<void()> Action;
};

std::deque<Step>& Steps() {
    thread_local std::deque<Step> steps;
    return steps;
}

UINT_PTR& StepTimer() {
    thread_local UINT_PTR timer = 0;
    return timer;
}

void StopTimer() {
    if (StepTimer()) KillTimer(nullptr, std::exchange(StepTimer(), 0));
}

/// A thread timer reaches every message loop of the thread, also those inside the system.
void CALLBACK RunStep(HWND, UINT, UINT_PTR, DWORD) {
    if (Steps().empty()) return StopTimer();
    if (Steps().front().Condition && !Steps().front().Condition()) return;
    const Step step = std::move(Steps().front());
    Steps().pop_front();
    if (Steps().empty()) StopTimer();
    step.Action();
}

MessageLoop*& CurrentLoop() {
    thread_local MessageLoop* loop = nullptr;
    return loop;
}

void Handle(MSG& message) {
    if (CurrentLoop()) return CurrentLoop()->Handle(message);
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace

MessageLoop::MessageLoop() : FOuter(std::exchange(CurrentLoop(), this)) {}

MessageLoop::~MessageLoop() {
    CurrentLoop() = FOuter;
}

void PumpAll() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        Handle(message);
}

bool PumpUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const auto end = Clock::now() + limit;
    for (;;) {
        PumpAll();
        if (condition()) return true;
        if (CurrentLoop()) CurrentLoop()->Idle();
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0) return false;
        // Conditions may depend on other threads too, so look again now and then without any message.
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left < 10 ? left : 10), QS_ALLINPUT,
                                    MWMO_INPUTAVAILABLE);
    }
}

void Later(std::function<void()> step) {
    When(nullptr, std::move(step));
}

void When(std::function<bool()> condition, std::function<void()> step) {
    Steps().push_back({std::move(condition), std::move(step)});
    if (!StepTimer()) StepTimer() = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, RunStep);
}

int DropSteps() {
    StopTimer();
    const int count = static_cast<int>(Steps().size());
    Steps().clear();
    return count;
}

}  // namespace test
