#pragma once

#include <memory>

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The pictures of the two buttons on extended tabs. All tabs share one set, loaded when the first needs it
/// and freed with the last.
class TTabGlyphs {
public:
    TTabGlyphs();
    ~TTabGlyphs();
    [[nodiscard]] static std::shared_ptr<const TTabGlyphs> Shared();

    /// On a selected tab, or on others.
    [[nodiscard]] TBitmap& Close(bool selected) const { return *(selected ? FClosePressed : FCloseDefault); }
    /// The closed lock of a locked tab, or the open one.
    [[nodiscard]] TBitmap& Lock(bool selected, bool locked) const;

private:
    std::unique_ptr<TBitmap> FCloseDefault;
    std::unique_ptr<TBitmap> FClosePressed;
    std::unique_ptr<TBitmap> FUnlockDefault;
    std::unique_ptr<TBitmap> FUnlockPressed;
    std::unique_ptr<TBitmap> FLockDefault;
    std::unique_ptr<TBitmap> FLockPressed;
};

}  // namespace qv7skin
