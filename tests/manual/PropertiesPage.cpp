#include "tests/manual/PropertiesPage.h"

#include <sstream>
#include <vector>

#include "platform/vcl/core/Streams.h"
#include "platform/vcl/core/WindowsApi.h"

namespace test {
namespace {

std::string PageText() {
    vcl::TResourceStream stream(GetModuleHandleW(nullptr), L"PROPERTIES", RT_RCDATA);
    std::string text(static_cast<std::size_t>(stream.GetSize()), ' ');
    stream.ReadBuffer(text.data(), text.size());
    return text;
}

/// The words in back quotes.
std::vector<std::string> NamesIn(const std::string& text) {
    std::vector<std::string> names;
    for (std::size_t from = text.find('`'); from != std::string::npos; from = text.find('`', from)) {
        const std::size_t to = text.find('`', from + 1);
        names.push_back(text.substr(from + 1, to - from - 1));
        from = to + 1;
    }
    return names;
}

/// The cells of a row, without the blanks around them.
std::vector<std::string> CellsOf(const std::string& row) {
    std::vector<std::string> cells;
    std::istringstream rest(row.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');) {
        const std::size_t from = cell.find_first_not_of(' ');
        cells.push_back(from == std::string::npos ? ""
                                                  : cell.substr(from, cell.find_last_not_of(' ') + 1 - from));
    }
    return cells;
}

void ReadRow(const std::string& row, PropertiesSection& section) {
    const std::vector<std::string> cells = CellsOf(row);
    for (const std::string& name : NamesIn(cells.front()))
        if (cells.size() == 2)
            section.Events.insert(name);
        else
            section.Values[name] = cells.at(1);
}

}  // namespace

std::map<std::string, PropertiesSection> ReadPropertiesPage() {
    std::map<std::string, PropertiesSection> sections;
    std::istringstream page(PageText());
    PropertiesSection* section = nullptr;
    bool isList = false;  // "And:" goes on to the next empty line
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("## ")) section = &sections[line.substr(3)];
        if (!section) continue;
        isList = line.starts_with("And: ") || (isList && !line.empty());
        if (line.starts_with("| `")) ReadRow(line, *section);
        if (isList)
            for (const std::string& name : NamesIn(line))
                section->Others.insert(name);
    }
    return sections;
}

}  // namespace test
