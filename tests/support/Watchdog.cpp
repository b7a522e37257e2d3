#include "tests/support/Watchdog.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <cstdio>
#include <mutex>
#include <string>
#include <thread>

namespace test {
namespace {

/// Which test runs and since when; shared between the test thread and the watching one.
class RunningTest : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& info) override {
        const std::lock_guard lock(FMutex);
        FName = std::string(info.test_suite_name()) + "." + info.name();
        FStart = GetTickCount64();
    }
    void OnTestEnd(const testing::TestInfo&) override {
        const std::lock_guard lock(FMutex);
        FName.clear();
    }
    /// The name of the running test when it has run longer than the limit, else empty.
    std::string LateTest(ULONGLONG limit) {
        const std::lock_guard lock(FMutex);
        return GetTickCount64() - FStart > limit ? FName : std::string();
    }
    /// The name of the running test without waiting for anyone; for use after a crash.
    const char* NameAfterCrash() const { return FName.empty() ? "no test" : FName.c_str(); }

private:
    std::mutex FMutex;
    std::string FName;
    ULONGLONG FStart = 0;
};

RunningTest* Running() {
    static RunningTest* const listener = [] {
        auto* made = new RunningTest;  // GoogleTest frees it
        testing::UnitTest::GetInstance()->listeners().Append(made);
        return made;
    }();
    return listener;
}

/// An address as a place in its module, for addr2line.
void PrintPlace(const void* address) {
    std::printf("\n    at %p", address);
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"";
    if (!GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<const wchar_t*>(address), &module))
        return;
    GetModuleFileNameW(module, path, MAX_PATH);
    std::printf(" (%ls + 0x%llx)", path,
                static_cast<unsigned long long>(static_cast<const char*>(address) -
                                                reinterpret_cast<const char*>(module)));
}

/// The calls that led to the crash, the innermost first.
void PrintCalls(CONTEXT context) {
    constexpr int mostCalls = 24;
    for (int i = 0; i < mostCalls && context.Rip; ++i) {
        PrintPlace(reinterpret_cast<const void*>(context.Rip));
        DWORD64 base = 0;
        const auto function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (!function) {
            // Without a description: a leaf, whose caller is on top of the stack.
            context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp);
            context.Rsp += sizeof context.Rip;
            continue;
        }
        void* handler = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handler, &frame, nullptr);
    }
}

/// Where the thread is, which is stopped for that.
void PrintCallsOf(HANDLE thread) {
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    SuspendThread(thread);
    if (GetThreadContext(thread, &context)) PrintCalls(context);
}

void Watch(ULONGLONG limit, HANDLE tested) {
    for (;;) {
        Sleep(500);
        const std::string late = Running()->LateTest(limit);
        if (late.empty()) continue;
        std::printf("\n[  FAILED  ] %s hangs: ended after %llu s", late.c_str(), limit / 1000);
        PrintCallsOf(tested);
        std::printf("\n");
        std::fflush(stdout);
        TerminateProcess(GetCurrentProcess(), 98);
    }
}

LONG WINAPI ReportCrash(EXCEPTION_POINTERS* what) {
    std::printf("\n[  FAILED  ] %s crashed: exception %08lx", Running()->NameAfterCrash(),
                what->ExceptionRecord->ExceptionCode);
    PrintCalls(*what->ContextRecord);
    std::printf("\n");
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 99);
    return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void StartWatchdog(int secondsPerTest) {
    if (secondsPerTest <= 0) return;
    Running();
    HANDLE self = nullptr;
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &self, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    std::thread(Watch, static_cast<ULONGLONG>(secondsPerTest) * 1000, self).detach();
}

void EndOnCrash() {
    Running();
    SetUnhandledExceptionFilter(ReportCrash);
}

}  // namespace test
