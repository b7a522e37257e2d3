#pragma once

#include "gallery/Namespace.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Canvas.h"

namespace gallery {

/// Sets the canvas' font to Tahoma: `size` in points, black or in another colour.
void UseFont(TCanvas& canvas, int size, bool bold = false, TColor color = clBlack);
/// A heading of a part of a page.
void DrawTitle(TCanvas& canvas, int left, int top, StringView text);
/// The same with a line of the palette's blue-grey below; `right` is where the line ends. Returns the
/// vertical position where the part's contents start.
int DrawHeading(TCanvas& canvas, int left, int top, int right, StringView text);
/// Small grey text, cut with dots at the width of the rectangle.
void DrawNote(TCanvas& canvas, TRect rect, StringView text, UINT flags = DT_LEFT);
/// Fills the rectangle with one colour.
void Fill(TCanvas& canvas, const TRect& rect, TColor color);
/// A one-pixel line around the rectangle.
void Outline(TCanvas& canvas, const TRect& rect, TColor color);
/// The squares of light grey and white that stand for "nothing here".
void DrawChecker(TCanvas& canvas, const TRect& rect);
/// The bitmap with each pixel as a square of `factor` pixels. With `clNone` as `transparent` all pixels are
/// drawn, otherwise the ones of that colour are left out.
void DrawMagnified(TCanvas& canvas, int left, int top, const TBitmap& bitmap, int factor, TColor transparent);
/// A colour as form files and programs write it: "0x00F0EAE7".
[[nodiscard]] String ColorCode(TColor color);

}  // namespace gallery
