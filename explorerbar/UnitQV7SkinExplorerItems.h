#pragma once

/// What the groups of an explorer bar hold: eight kinds of items, and the list that owns them.
#include "explorerbar/items/ExplorerItem.h"
#include "explorerbar/items/ExplorerItemBmp.h"
#include "explorerbar/items/ExplorerItemCheckBox.h"
#include "explorerbar/items/ExplorerItemLink.h"
#include "explorerbar/items/ExplorerItemList.h"
#include "explorerbar/items/ExplorerItemPairs.h"
#include "explorerbar/items/ExplorerItemProgressBar.h"
#include "explorerbar/items/ExplorerItemSeparator.h"
#include "explorerbar/items/ExplorerItemStaticText.h"
