#pragma once

#include <windows.h>

#include "tests/support/Pump.h"

namespace test {

/// While it exists, tells whether the system is calling a window of this thread: from a message that was
/// sent, or one that the loop took from the queue. Messages run through the application's loop.
class SentMessages {
public:
    SentMessages();
    ~SentMessages();
    SentMessages(const SentMessages&) = delete;
    SentMessages& operator=(const SentMessages&) = delete;

    [[nodiscard]] bool InCallback() const { return FDepth > 0 || FLoop.Depth > 0; }

private:
    struct Loop final : MessageLoop {
        void Handle(MSG& message) override;
        void Idle() override;
        int Depth = 0;
    };
    static LRESULT CALLBACK Before(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK After(int code, WPARAM wParam, LPARAM lParam);

    Loop FLoop;
    int FDepth = 0;
    HHOOK FBefore;
    HHOOK FAfter;
};

}  // namespace test
