#pragma once

#include <array>
#include <memory>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Font.h"
#include "skin/UnitQV7SkinConsts.h"
#include "skin/utils/TransparentBitmap.h"

namespace qv7skin {

/// The bitmaps of the groups' headers, read from the package once for all groups that live.
class TExplorerSkin {
public:
    /// The bitmaps in use, or fresh ones; they live as long as somebody holds them.
    [[nodiscard]] static std::shared_ptr<const TExplorerSkin> Shared();

    TExplorerSkin();
    /// The strips along the header's top and bottom, one pixel wide.
    [[nodiscard]] const TBitmap& HeaderTop() const { return *FHeaderTop; }
    [[nodiscard]] const TBitmap& HeaderBottom() const { return *FHeaderBottom; }
    /// The button of a closed or an open group: `ssDefault`, `ssHovered` or `ssDisabled`.
    [[nodiscard]] const TTransparentBitmap& Button(bool closed, TSkinState state) const;
    [[nodiscard]] TSize ButtonSize() const;
    /// Keeps the font of the item under the mouse, which is wanted again as soon as the mouse moves on.
    void KeepHotFont(const TSharedFont& font) const { FHotFont = font; }

private:
    mutable TSharedFont FHotFont;
    std::unique_ptr<TBitmap> FHeaderTop;
    std::unique_ptr<TBitmap> FHeaderBottom;
    std::array<std::unique_ptr<TTransparentBitmap>, 4> FMaximize;
    std::array<std::unique_ptr<TTransparentBitmap>, 4> FMinimize;
};

}  // namespace qv7skin
