#include "tests/support/SentMessages.h"

#include "platform/vcl/forms/Application.h"

namespace test {
namespace {

SentMessages*& Current() {
    thread_local SentMessages* current = nullptr;
    return current;
}

}  // namespace

SentMessages::SentMessages()
    : FBefore(SetWindowsHookExW(WH_CALLWNDPROC, Before, nullptr, GetCurrentThreadId())),
      FAfter(SetWindowsHookExW(WH_CALLWNDPROCRET, After, nullptr, GetCurrentThreadId())) {
    Current() = this;
}

SentMessages::~SentMessages() {
    Current() = nullptr;
    UnhookWindowsHookEx(FAfter);
    UnhookWindowsHookEx(FBefore);
}

void SentMessages::Loop::Handle(MSG& message) {
    const int outer = Depth++;
    try {
        vcl::Application().HandleMessage(message);
    } catch (...) {
        Depth = outer;
        throw;
    }
    Depth = outer;
}

void SentMessages::Loop::Idle() {
    vcl::Application().DoIdle();
}

LRESULT CALLBACK SentMessages::Before(int code, WPARAM wParam, LPARAM lParam) {
    ++Current()->FDepth;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK SentMessages::After(int code, WPARAM wParam, LPARAM lParam) {
    --Current()->FDepth;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace test
