#pragma once

/// What header controls and toolbars show when their items do not fit.

#include "header/chevrons/HeaderChevron.h"
#include "header/chevrons/HeaderChevronBase.h"
#include "header/chevrons/ToolbarChevron.h"
