#include "platform/vcl/menus/MenuCommands.h"

#include <unordered_map>

#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

struct TCommandTable {
    std::unordered_map<WORD, TMenuItem*> Items;
    WORD Last = 0;
};

TCommandTable& Table() {
    static TCommandTable table;
    return table;
}

// Above are the commands of the system menu.
constexpr WORD LastCommand = 0xEFFF;

}  // namespace

WORD TakeMenuCommand(TMenuItem* item) {
    TCommandTable& table = Table();
    if (table.Items.size() >= LastCommand) throw EOutOfResources(L"Menu item limit reached");
    do {
        table.Last = table.Last >= LastCommand ? WORD{1} : static_cast<WORD>(table.Last + 1);
    } while (table.Items.contains(table.Last));
    table.Items.emplace(table.Last, item);
    return table.Last;
}

void GiveBackMenuCommand(WORD command) {
    Table().Items.erase(command);
}

TMenuItem* FindMenuCommand(WORD command) {
    const auto found = Table().Items.find(command);
    return found == Table().Items.end() ? nullptr : found->second;
}

}  // namespace vcl
