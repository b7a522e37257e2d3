#pragma once

namespace test {

/// Ends the process with exit code 98 and names the running test when a single test takes longer than the
/// given number of seconds. Zero or less watches nothing.
void StartWatchdog(int secondsPerTest);

/// Prints what went wrong and ends the process with exit code 99 when an error of the processor (a wild
/// pointer, say) reaches the top, instead of waiting for a debugger.
void EndOnCrash();

}  // namespace test
