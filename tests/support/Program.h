#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace test {

/// What a program left behind.
struct ProgramRun {
    unsigned long Code = 0;  ///< Its exit code.
    std::string Output;      ///< What it wrote to its standard output.
    std::string Errors;      ///< The same of its standard error output.
};

/// Where the test program stands, and all programs with what they need.
[[nodiscard]] std::wstring ProgramFolder();

/// Runs a program that stands beside the test program, on the desktop of the test, and waits for its end.
/// `arguments` is the command line behind the program's name.
ProgramRun RunProgram(std::wstring_view name, std::wstring_view arguments);

/// A program of ours while it runs, on the desktop of the test and in the folder of the programs. What still
/// runs at the end is killed.
class RunningProgram {
public:
    RunningProgram(std::wstring_view name, std::wstring_view arguments);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    [[nodiscard]] bool IsRunning() const;
    [[nodiscard]] bool HasEndedWith(DWORD code) const;
    /// Ends it at once, without any chance to tidy up, and waits until it is gone.
    void Kill();
    /// Its first visible window, at any depth, of that class and with that in its text; null when there is
    /// none.
    [[nodiscard]] HWND Window(std::wstring_view className, std::wstring_view textPart = {}) const;

private:
    HANDLE FProcess = nullptr;
    DWORD FId = 0;
};

}  // namespace test
