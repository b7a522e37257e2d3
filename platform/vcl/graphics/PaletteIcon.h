#pragma once

#include "platform/vcl/core/MetaClass.h"

namespace vcl {

class TBitmap;

/// Loads the picture that a designer's palette shows for a class: the bitmap resource in the module of the
/// class that is named after the class in capitals. A class without one gets the default icon, which is drawn
/// here: 24 x 24 pixels, two boxes joined by a line. False for the default icon.
///
/// The colour of the lower left pixel stands for "nothing here".
bool LoadPaletteIcon(const TMetaClass& classType, TBitmap& icon);

}  // namespace vcl
