#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Sets.h"
#include "platform/vcl/core/Strings.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The directions in which `TRectHelper::CenterRectInRect` centres.
enum class TCenterRectType { crtHorizontal, crtVertical };
using TCenterRectTypes = TSet<TCenterRectType>;
using enum TCenterRectType;

/// Small rectangle arithmetic, in pixels. Divisions truncate toward zero.
class TRectHelper {
public:
    TRectHelper() = delete;

    [[nodiscard]] static int Width(const TRect& R) { return R.Right - R.Left; }
    [[nodiscard]] static int Height(const TRect& R) { return R.Bottom - R.Top; }
    /// The middle column.
    [[nodiscard]] static int CenterH(const TRect& R) { return R.Left + Width(R) / 2; }
    /// The middle row.
    [[nodiscard]] static int CenterV(const TRect& R) { return R.Top + Height(R) / 2; }
    /// True only when all four coordinates are 0: a rectangle without pixels elsewhere is not empty.
    [[nodiscard]] static bool IsEmptyRect(const TRect& R) { return R == TRect{}; }
    /// At B's top left corner, as wide and as high as the smaller of both.
    [[nodiscard]] static TRect ShrinkRect(const TRect& A, const TRect& B);
    /// R centred in `Bounds` in the directions of `Types`. In the other direction R keeps its own place; with
    /// no direction at all it goes to the top left corner of `Bounds`.
    [[nodiscard]] static TRect CenterRectInRect(const TRect& Bounds, const TRect& R, TCenterRectTypes Types);
    /// "Top: 1 - Bottom: 2 - Left: 3 - Right: 4"
    [[nodiscard]] static String AsString(const TRect& R);
};

}  // namespace qv7skin
