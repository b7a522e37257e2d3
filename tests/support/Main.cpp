// The entry point of every test program.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/forms/Application.h"
#include "tests/support/Desktop.h"
#include "tests/support/Watchdog.h"

namespace {

/// Gives back what lives as long as the process; returns 1 and names what is still there afterwards and was
/// not made when the modules were loaded.
int ReportRemains(const vcl::TLedger::Counts& atLoad) {
    vcl::DoneApplication();
    const auto remains = vcl::TLedger::Difference(atLoad, vcl::TLedger::Snapshot());
    for (const auto& [kind, count] : remains)
        std::printf("[  FAILED  ] left at the end of the program: %s %+ld\n", kind.c_str(), count);
    return remains.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const auto atLoad = vcl::TLedger::Snapshot();
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    testing::InitGoogleTest(&argc, argv);
    test::EndOnCrash();
    // TEST_TIMEOUT: seconds that a single test may take; 0 switches the watch off (for a debugger).
    const char* limit = std::getenv("TEST_TIMEOUT");
    test::StartWatchdog(limit ? std::atoi(limit) : 60);
    if (!testing::GTEST_FLAG(list_tests) && !test::EnterPrivateDesktop()) return 1;
    int result = RUN_ALL_TESTS();
    if (result == 0 && !testing::GTEST_FLAG(list_tests)) result = ReportRemains(atLoad);
    std::fflush(stdout);
    return result;
}
