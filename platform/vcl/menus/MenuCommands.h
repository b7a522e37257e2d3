#pragma once

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TMenuItem;

/// Gives the item a command number that no other living item of the process has. Numbers come round late, so
/// that a command still in a queue does not reach another item. Raises EOutOfResources when all are taken.
[[nodiscard]] WORD TakeMenuCommand(TMenuItem* item);
void GiveBackMenuCommand(WORD command);
/// The item with the command number, or null.
[[nodiscard]] TMenuItem* FindMenuCommand(WORD command);

}  // namespace vcl
