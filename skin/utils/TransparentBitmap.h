#pragma once

#include <memory>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCanvas;
}  // namespace vcl

namespace qv7skin {

/// A picture with pixels that are left out when it is drawn, prepared for drawing often: the picture with
/// those pixels black, and a mask of them. For a single drawing see `DrawTransparentBitmap`.
class TTransparentBitmap : public TObject {
public:
    /// `ATransparentColor` is compared with the pixels as it stands: a system colour equals none.
    explicit TTransparentBitmap(TColor ATransparentColor);
    ~TTransparentBitmap() override;

    /// The picture, its transparent pixels black; 32 bits per pixel whatever the source has.
    [[nodiscard]] const TBitmap& GetBitmap() const { return *FBitmap; }
    /// Takes over a copy of the picture; null empties it.
    void SetBitmap(const TBitmap* Source);
    /// As large as the picture, black where it is opaque, white where it is transparent.
    [[nodiscard]] const TBitmap& GetMask() const { return *FMask; }
    [[nodiscard]] TColor GetTransparentColor() const { return FTransparentColor; }
    /// For the next picture. Raises EAssertionFailed "Set TransparentColor first, then assign Bitmap" while
    /// there is one.
    void SetTransparentColor(TColor Value);
    [[nodiscard]] int GetWidth() const;
    [[nodiscard]] int GetHeight() const;
    [[nodiscard]] bool GetEmpty() const;

    /// Draws the picture; leaves the canvas in the copy mode source-PAINT, as the other two do.
    void Draw(TCanvas& Canvas, int X, int Y) const;
    /// Draws the picture in the vertical middle of the rectangle, `XOffset` right of its left edge.
    void DrawCentered(TCanvas& Canvas, const TRect& Rect, int XOffset) const;
    /// Draws the part of the picture that starts at (SourceLeft, SourceTop) and is as large as the whole
    /// picture, scaled to the rectangle.
    void DrawClipped(TCanvas& Canvas, int SourceLeft, int SourceTop, const TRect& Dest) const;

private:
    void MakeMask();
    void MakeTransparentColorBlack();
    [[nodiscard]] bool MixDirectly(TCanvas& canvas, const TRect& dest, const TRect& source) const;
    void CopyMasked(TCanvas& canvas, const TRect& dest, const TRect& source) const;

    std::unique_ptr<TBitmap> FBitmap;
    std::unique_ptr<TBitmap> FMask;
    TColor FTransparentColor;
};

}  // namespace qv7skin
