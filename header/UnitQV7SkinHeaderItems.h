#pragma once

/// The items of header controls, tab controls and toolbars, and the list that keeps them.

#include "header/items/HeaderItem.h"
#include "header/items/HeaderItemHost.h"
#include "header/items/HeaderItemTab.h"
#include "header/items/HeaderItemTabExt.h"
#include "header/items/HeaderItems.h"
#include "header/items/Toolbutton.h"
