#pragma once

/// The raster toolbox under the skin: transparent drawing, regions, tones, stretching and rectangles.

#include "skin/utils/BitmapRegion.h"
#include "skin/utils/Fit.h"
#include "skin/utils/OneShotDrawing.h"
#include "skin/utils/RectHelper.h"
#include "skin/utils/StretchedBitmap.h"
#include "skin/utils/Tone.h"
#include "skin/utils/TransparentBitmap.h"
