#pragma once

/// The collapsible sections of an explorer bar, and the list that owns them.
#include "explorerbar/groups/ExplorerGroup.h"
#include "explorerbar/groups/ExplorerGroupList.h"
