#pragma once

/// Surfaces that paint without flicker, the rounded container, painters of column headers, and the loaders of
/// skin bitmaps.

#include "skin/masking/SkinContainer.h"
#include "skin/surfaces/ColumnHeaderPainters.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "skin/surfaces/FlickerFreePanel.h"
#include "skin/surfaces/Loaders.h"
