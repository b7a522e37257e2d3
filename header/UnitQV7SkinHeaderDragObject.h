#pragma once

/// What carries the drag of an item along the row of a header control.

#include "header/drag/HeaderDragArrows.h"
#include "header/drag/HeaderDragImage.h"
#include "header/drag/HeaderDragObject.h"
