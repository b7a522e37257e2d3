#include "skin/utils/RectHelper.h"

#include <algorithm>

namespace qv7skin {

TRect TRectHelper::ShrinkRect(const TRect& A, const TRect& B) {
    return TRect::OfSize(B.Left, B.Top, std::min(Width(A), Width(B)), std::min(Height(A), Height(B)));
}

TRect TRectHelper::CenterRectInRect(const TRect& Bounds, const TRect& R, TCenterRectTypes Types) {
    TRect result = TRect::OfSize(Bounds.Left, Bounds.Top, Width(R), Height(R));
    if (Types.IsEmpty()) return result;
    const int dx = Types.Contains(crtHorizontal) ? (Width(Bounds) - Width(R)) / 2 : R.Left - Bounds.Left;
    const int dy = Types.Contains(crtVertical) ? (Height(Bounds) - Height(R)) / 2 : R.Top - Bounds.Top;
    result.Offset(dx, dy);
    return result;
}

String TRectHelper::AsString(const TRect& R) {
    return Format(L"Top: %d - Bottom: %d - Left: %d - Right: %d", R.Top, R.Bottom, R.Left, R.Right);
}

}  // namespace qv7skin
