#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/graphics/Canvas.h"

namespace designer {

/// Edge length of palette icons in pixels.
inline constexpr int PaletteIconSize = 24;

/// Draws the icon of a component class: the bitmap that its module holds under the class's name in capitals,
/// for a class of the framework without one a sheet with its letters, and else the default icon.
void DrawPaletteIcon(TCanvas& canvas, int x, int y, const TMetaClass& classType);

/// Frees the icons that were drawn so far. Needed before a module that classes belong to is unloaded.
void ForgetPaletteIcons();

}  // namespace designer
