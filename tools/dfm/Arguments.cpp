#include "tools/dfm/Arguments.h"

#include <optional>

namespace dfm {
namespace {

std::optional<TCommand> CommandOf(StringView word) {
    if (word == L"check") return TCommand::Check;
    if (word == L"text") return TCommand::Text;
    if (word == L"binary") return TCommand::Binary;
    if (word == L"tree") return TCommand::Tree;
    if (word == L"help" || word == L"--help" || word == L"-h") return TCommand::Help;
    return {};
}

/// Walks through the words behind the command.
class TOptions {
public:
    TOptions(TArguments& arguments, std::span<const wchar_t* const> words)
        : FArguments(arguments), FWords(words) {}

    void Read() {
        while (!FWords.empty())
            ReadWord(Take());
    }

private:
    void ReadWord(const String& word) {
        const bool converts = FArguments.Command == TCommand::Text || FArguments.Command == TCommand::Binary;
        const bool checks = FArguments.Command == TCommand::Check;
        if (!word.starts_with(L"-") || word == L"-")
            FArguments.Files.push_back(word);
        else if (word == L"-o" && converts)
            FArguments.Output = ValueOf(word);
        else if (word == L"--resource" && FArguments.Command == TCommand::Binary)
            FArguments.Resource = ValueOf(word);
        else if (word == L"--package" && checks)
            FArguments.Packages.push_back(ValueOf(word));
        else if (word == L"--inherits" && checks)
            FArguments.Ancestors.push_back(ValueOf(word));
        else if (word == L"--foreign" && checks)
            FArguments.Foreign = true;
        else
            throw EUsageError(Format(L"Unknown option %s", word));
    }
    String ValueOf(const String& option) {
        if (FWords.empty()) throw EUsageError(Format(L"%s needs a value", option));
        return Take();
    }
    String Take() {
        const String word = FWords.front();
        FWords = FWords.subspan(1);
        return word;
    }

    TArguments& FArguments;
    std::span<const wchar_t* const> FWords;
};

}  // namespace

TArguments ParseArguments(std::span<const wchar_t* const> words) {
    if (words.empty()) throw EUsageError(L"A command is missing");
    const auto command = CommandOf(words.front());
    if (!command) throw EUsageError(Format(L"Unknown command %s", String(words.front())));
    TArguments arguments;
    arguments.Command = *command;
    if (arguments.Command == TCommand::Help) return arguments;
    TOptions(arguments, words.subspan(1)).Read();
    if (arguments.Files.empty()) throw EUsageError(L"A file is missing");
    return arguments;
}

const char* HelpText() {
    return "dfm check FILE...     builds each form as a designer does and names all that is wrong\n"
           "    --package FILE    registers the classes of another package (a DLL) first; may be repeated\n"
           "    --inherits FILE   the form that the files inherit; may be repeated, the oldest first\n"
           "    --foreign         classes that nobody registers are no problem\n"
           "dfm text FILE...      writes the forms as text\n"
           "dfm binary FILE...    writes the forms in the binary format\n"
           "    -o FILE           to a file, or to files of the same names in a folder; else to the\n"
           "                      standard output, one after another\n"
           "    --resource NAME   binary only: as a resource file of that name\n"
           "dfm tree FILE...      prints the components, each under the one that it stands in\n"
           "dfm help              prints this\n"
           "\n"
           "Files may have either format; their first bytes tell. What is wrong goes to the standard error\n"
           "output, a line each: file, line and column (or offset), component, property, reason.\n"
           "Exit code: 0 all is well, 1 a form is wrong, 2 the arguments are, or a file can't be opened.\n";
}

}  // namespace dfm
