#pragma once

#include "gallery/Namespace.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace gallery {

/// How a tab is drawn for a picture of it.
struct TTabPicture {
    TQV7SkinTabBackground Look = bckgrndStandard;
    THeaderItemTabExtStates State;  ///< Also `tesHovered` and `tesSelected`.
    int Height = 21;
    const wchar_t* Caption = L"Reiter";
};

/// Draws an extended tab in that state, on the colour of the strip, and makes the bitmap as large as the tab.
void DrawTabPicture(TBitmap& bitmap, const TTabPicture& picture);

}  // namespace gallery
