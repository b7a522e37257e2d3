// The entry point of every test program.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "tests/support/Desktop.h"
#include "tests/support/Watchdog.h"

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    testing::InitGoogleTest(&argc, argv);
    test::EndOnCrash();
    // TEST_TIMEOUT: seconds that a single test may take; 0 switches the watch off (for a debugger).
    const char* limit = std::getenv("TEST_TIMEOUT");
    test::StartWatchdog(limit ? std::atoi(limit) : 60);
    if (!testing::GTEST_FLAG(list_tests)) test::EnterPrivateDesktop();
    const int result = RUN_ALL_TESTS();
    std::fflush(stdout);
    return result;
}
