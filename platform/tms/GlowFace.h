#pragma once

#include "platform/tms/GlowButtonAppearance.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/BitmapBits.h"

namespace tms {

/// The colour of a gradient at a pixel of an area of that size: the first colour at its first row (column,
/// corner), the second one at its last, in between mixed in proportion and rounded.
[[nodiscard]] TColor GradientColor(TGDIPGradient kind, TColor from, TColor to, TPoint pixel, TSize area);

/// How much of its colour the glow mixes in at a pixel of a face of that size, 0 to 255: most in the middle
/// of the bottom row, less with the distance from it, nothing beyond half the width to the sides and the
/// height upwards.
[[nodiscard]] int GlowStrength(TPoint pixel, TSize face);

/// The radius of round corners in pixels.
inline constexpr int GlowCornerRadius = 4;

/// Paints the face of a glow button over all of the pixels, which have 32 bits: a border of one pixel, inside
/// it the gradient over the upper half (the larger one when they differ) and the mirror gradient over the
/// lower. `glow` lightens it from below. Round corners blend with what was there before.
void PaintGlowFace(const TBitmapBits& bits, const TGlowColors& colors, bool rounded, bool glow);

}  // namespace tms
