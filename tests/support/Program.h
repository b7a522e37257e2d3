#pragma once

#include <string>
#include <string_view>

namespace test {

/// What a program left behind.
struct ProgramRun {
    unsigned long Code = 0;  ///< Its exit code.
    std::string Output;      ///< What it wrote to its standard output.
    std::string Errors;      ///< The same of its standard error output.
};

/// Runs a program that stands beside the test program, on the desktop of the test, and waits for its end.
/// `arguments` is the command line behind the program's name.
ProgramRun RunProgram(std::wstring_view name, std::wstring_view arguments);

}  // namespace test
