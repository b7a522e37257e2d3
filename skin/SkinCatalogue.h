#pragma once

#include <span>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Strings.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// One bitmap that the package carries.
struct TSkinBitmapInfo {
    String Name;
    TSize Size;  ///< Pixels.
};
/// Every skin bitmap: 24 bits per pixel, language neutral.
[[nodiscard]] std::span<const TSkinBitmapInfo> SkinBitmapCatalogue();
/// The icons of the palette page "QV7", named after the component classes in capitals: 24 x 24 pixels, 16
/// colours, language German (1031).
[[nodiscard]] std::span<const TSkinBitmapInfo> PaletteIconCatalogue();

}  // namespace qv7skin
