#pragma once

#include <memory>

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"
#include "skin/utils/TransparentBitmap.h"

namespace vcl {
class TFont;
}

namespace qv7skin {

/// Gives the font the skin's typeface, Tahoma; all else stays.
void SetSkinFont(TFont& Font);

/// A bitmap of the package, or of the module, by its resource name. Raises EResNotFound with the name.
[[nodiscard]] std::unique_ptr<TBitmap> CreateBmp(const String& Name);
[[nodiscard]] std::unique_ptr<TBitmap> CreateBmp(HINSTANCE Module, const String& Name);
/// The same, ready to be drawn without its magenta (0x00FF00FF) pixels.
[[nodiscard]] std::unique_ptr<TTransparentBitmap> CreateTransparentBmp(const String& Name);
[[nodiscard]] std::unique_ptr<TTransparentBitmap> CreateTransparentBmp(HINSTANCE Module, const String& Name);

}  // namespace qv7skin
