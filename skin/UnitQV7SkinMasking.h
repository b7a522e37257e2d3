#pragma once

/// Frames of eight pieces and the panels that round a control's corners with them.

#include "skin/masking/MaskingPanel.h"
#include "skin/masking/MaskingPanelEllipse.h"
#include "skin/masking/MaskingPanelImages.h"
#include "skin/masking/MaskingPanelImagesFromResource.h"
#include "skin/masking/NinePartFrame.h"
#include "skin/masking/Skinner.h"
