#pragma once

#include <vector>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Handles.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCanvas;
}  // namespace vcl

namespace qv7skin {

/// The outline of an item: the pixels of its background that are not magenta.
class TItemShape {
public:
    TItemShape();
    ~TItemShape();

    void TakeFrom(const TBitmap& background);
    [[nodiscard]] bool Contains(TPoint point) const;
    /// Null before the first `TakeFrom`; stays the shape's.
    [[nodiscard]] HRGN GetRegion() const { return FRegion.Get(); }

    friend bool operator==(const TItemShape& a, const TItemShape& b) { return a.FRects == b.FRects; }

    /// Narrows the clip region of the canvas to the shape at (x, 0) of its coordinates.
    void ClipTo(TCanvas& canvas, int x) const;
    /// Copies the shape's pixels of the picture to (x, 0).
    void Copy(TCanvas& canvas, int x, const TBitmap& picture) const;

private:
    [[nodiscard]] bool CopyDirectly(TCanvas& canvas, int x, const TBitmap& picture) const;

    TRegionHandle FRegion;
    std::vector<TRect> FRects;  ///< What the region is made of.
};

}  // namespace qv7skin
