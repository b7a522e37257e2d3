#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "platform/vcl/core/Streams.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "tools/dfm/Arguments.h"
#include "tools/dfm/Check.h"
#include "tools/dfm/Packages.h"
#include "tools/dfm/Tree.h"

namespace dfm {
namespace {

// Exit codes.
constexpr int AllIsWell = 0;
constexpr int FormIsWrong = 1;
constexpr int CannotWork = 2;

void PrintError(const String& message) {
    std::fprintf(stderr, "%s\n", ToUtf8(message).c_str());
}

void Print(std::span<const std::byte> bytes) {
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

void Print(const std::string& text) {
    Print(std::as_bytes(std::span(text)));
}

/// Where a converted file goes; empty for the standard output.
String TargetOf(const String& file, const TArguments& arguments) {
    const std::filesystem::path target(arguments.Output);
    if (!target.empty() && std::filesystem::is_directory(target))
        return (target / std::filesystem::path(file).filename()).wstring();
    return arguments.Output;
}

void RequireOneTarget(const TArguments& arguments) {
    if (arguments.Files.size() > 1 && !arguments.Output.empty() &&
        !std::filesystem::is_directory(arguments.Output))
        throw EUsageError(L"Several files need a folder to go to");
}

int Convert(const String& file, const TArguments& arguments) {
    const TFormDocument document = LoadFormFile(file);
    const bool isText = arguments.Command == TCommand::Text;
    auto bytes = FormToBytes(document, isText ? TFormFormat::Text : TFormFormat::Binary);
    if (!arguments.Resource.empty()) bytes = WrapInResource(bytes, arguments.Resource);
    const String target = TargetOf(file, arguments);
    if (target.empty()) {
        Print(bytes);
    } else {
        TFileStream stream(target, fmCreate);
        stream.WriteBuffer(bytes.data(), bytes.size());
    }
    return AllIsWell;
}

int Check(const String& file, const TCheckOptions& options) {
    const TCheckResult result = CheckForm(LoadFormFile(file), options);
    for (const TFormProblem& problem : result.Problems)
        PrintError(problem.Message());
    if (!result.Problems.empty()) return FormIsWrong;
    Print(ToUtf8(Format(L"%s: %d components\r\n", file, result.Components)));
    return AllIsWell;
}

int PrintTree(const String& file) {
    Print(TreeOf(LoadFormFile(file)));
    return AllIsWell;
}

/// Does it with each file; what can't be read is told, and the next one follows.
template <class Work>
int ForEachFile(const std::vector<String>& files, Work work) {
    int worst = AllIsWell;
    for (const String& file : files) {
        int code = AllIsWell;
        try {
            code = work(file);
        } catch (const EFormError& error) {
            PrintError(error.Message());
            code = FormIsWrong;
        } catch (const EStreamError& error) {
            PrintError(error.Message());
            code = CannotWork;
        }
        worst = std::max(worst, code);
    }
    return worst;
}

int RunCheck(const TArguments& arguments) {
    RegisterOwnClasses();
    for (const String& package : arguments.Packages)
        LoadPackage(package);
    TCheckOptions options;
    options.Foreign = arguments.Foreign;
    const int read = ForEachFile(arguments.Ancestors, [&](const String& file) {
        options.Ancestors.push_back(LoadFormFile(file));
        return AllIsWell;
    });
    if (read != AllIsWell) return read;
    return ForEachFile(arguments.Files, [&](const String& file) { return Check(file, options); });
}

int Run(const TArguments& arguments) {
    switch (arguments.Command) {
        case TCommand::Check:
            return RunCheck(arguments);
        case TCommand::Text:
        case TCommand::Binary:
            RequireOneTarget(arguments);
            return ForEachFile(arguments.Files, [&](const String& file) { return Convert(file, arguments); });
        case TCommand::Tree:
            return ForEachFile(arguments.Files, PrintTree);
        default:
            Print(std::string(HelpText()));
            return AllIsWell;
    }
}

}  // namespace
}  // namespace dfm

int main() {
    // Forms go out byte by byte, and names may hold letters of every language.
    _setmode(_fileno(stdout), _O_BINARY);
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    int code = dfm::CannotWork;
    try {
        const std::span<wchar_t* const> all(words, static_cast<std::size_t>(count));
        code = dfm::Run(dfm::ParseArguments(all.subspan(1)));
    } catch (const dfm::EUsageError& error) {
        std::fprintf(stderr, "%s\n\n%s", error.what(), dfm::HelpText());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "dfm: %s\n", error.what());
    }
    LocalFree(words);
    return code;
}
