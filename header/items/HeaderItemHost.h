#pragma once

#include "platform/vcl/core/LifeGuard.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCanvas;
}  // namespace vcl

namespace qv7skin {

class TQV7SkinHeaderItemCustom;

/// What items ask of the header control that holds them.
class THeaderItemHost {
public:
    /// Marks the row for being measured and painted.
    virtual void Invalidate() = 0;
    /// Paints the row now.
    virtual void Repaint() = 0;
    [[nodiscard]] virtual TQV7SkinHeaderItemCustom* GetSelectedItem() const = 0;
    /// Selects the item alone; null selects none.
    virtual void SetSelectedItem(TQV7SkinHeaderItemCustom* Item) = 0;
    [[nodiscard]] virtual bool IsUnderMouse(const TQV7SkinHeaderItemCustom& Item) const = 0;
    /// Takes the item out of the row; it lives on and is the caller's.
    virtual void ReleaseItem(TQV7SkinHeaderItemCustom& Item) = 0;
    /// Tells, after a call-out, whether the control still lives.
    [[nodiscard]] virtual TLifeGuard HostGuard() const = 0;

protected:
    ~THeaderItemHost() = default;
};

/// States of an item's background, as `DrawBackground` numbers them.
enum THeaderItemState { hisDefault, hisHovered, hisPressed };
inline constexpr int HeaderItemStateCount = 3;

/// A header control that paints the backgrounds of its items: the tab controls and the toolbar.
class THeaderBackgroundPainter {
public:
    /// Paints the background of one item over the whole bitmap. Magenta (0x00FF00FF) pixels do not belong to
    /// the item's shape.
    virtual void DrawBackground(TBitmap& Bitmap, int State) = 0;
    /// A number that changes whenever `DrawBackground` begins to paint something else, so that items know
    /// how long their renderings are good for.
    [[nodiscard]] virtual int GetBackgroundLook() const = 0;

protected:
    ~THeaderBackgroundPainter() = default;
};

/// A header control that paints the running marker of extended tabs.
class THeaderAnimationPainter {
public:
    /// Draws the current frame for the state (2 on a selected tab, else 0) at (X, 3).
    virtual void DrawAnimation(TCanvas& Canvas, int State, int X) = 0;

protected:
    ~THeaderAnimationPainter() = default;
};

}  // namespace qv7skin
