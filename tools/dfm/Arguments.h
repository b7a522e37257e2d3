#pragma once

#include <span>
#include <vector>

#include "platform/vcl/core/Exceptions.h"
#include "tools/dfm/Namespace.h"

namespace dfm {

enum class TCommand { Help, Check, Text, Binary, Tree };

/// What the program was asked to do.
struct TArguments {
    TCommand Command = TCommand::Help;
    std::vector<String> Files;      ///< At least one for every command but Help.
    String Output;                  ///< A file or an existing folder; empty: the standard output.
    String Resource;                ///< The name in the header of a resource file; empty for none.
    std::vector<String> Packages;   ///< Modules that bring more classes.
    std::vector<String> Ancestors;  ///< Forms that the checked ones inherit, the oldest first.
    bool Foreign = false;           ///< Unknown classes are no problem.
};

/// The arguments make no sense.
class EUsageError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EUsageError"; }
};

/// Reads the arguments behind the program's name. Raises EUsageError.
[[nodiscard]] TArguments ParseArguments(std::span<const wchar_t* const> words);

/// What the program prints for `help`.
[[nodiscard]] const char* HelpText();

}  // namespace dfm
