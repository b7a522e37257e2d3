#pragma once

#include <memory>

#include "gallery/Namespace.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace gallery {

/// What the small pictures on tabs and toolbuttons show.
enum class TToolIcon { New, Open, Save, Print, Search, Mail, Chart, Calendar, Note, Delete };

/// A picture of 16 x 16 pixels, magenta (0x00FF00FF) where nothing is drawn.
[[nodiscard]] std::unique_ptr<TBitmap> CreateToolIcon(TToolIcon icon);

}  // namespace gallery
