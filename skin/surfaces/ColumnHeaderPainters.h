#pragma once

#include <memory>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Draws the dark band behind the titles of columns.
class TQV7SkinColumnHeaderPainter : public TObject {
public:
    TQV7SkinColumnHeaderPainter();
    ~TQV7SkinColumnHeaderPainter() override;

    /// Fills the rectangle, with the spacer line along its bottom and, on demand, along its right edge.
    /// Changes brush and pen of the canvas.
    void Draw(TCanvas& Canvas, const TRect& Rect, bool DrawRightLine) const;

private:
    std::unique_ptr<TBitmap> FTop;
    std::unique_ptr<TBitmap> FBottom;
};

/// Draws the arrows that show by which column a list is sorted.
class TQV7SkinColumnHeaderSortGlyphPainter : public TObject {
public:
    TQV7SkinColumnHeaderSortGlyphPainter();
    ~TQV7SkinColumnHeaderSortGlyphPainter() override;

    /// Draws the arrow at the rectangle's top left corner.
    void Draw(TCanvas& Canvas, const TRect& Rect, bool Ascending) const;
    /// The size of an arrow in pixels.
    [[nodiscard]] int GetWidth() const { return FAscending->GetWidth(); }
    [[nodiscard]] int GetHeight() const { return FAscending->GetHeight(); }

private:
    std::unique_ptr<TBitmap> FAscending;
    std::unique_ptr<TBitmap> FDescending;
};

}  // namespace qv7skin
