#include "platform/vcl/graphics/KeyedCopy.h"

#include <optional>

#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

bool CopyKeyed(TCanvas& canvas, const TRect& dest, const TConstBitmapBits& source, TColor key) {
    const std::optional<TDirectBits> target = canvas.DirectBits();
    if (!target || target->Bits.Data == source.Data) return false;
    const TRect area = TRect::OfSize(dest.Left, dest.Top, source.Width, source.Height)
                           .Intersect(dest)
                           .Intersect(target->Clip);
    for (int y = area.Top; y < area.Bottom; ++y)
        for (int x = area.Left; x < area.Right; ++x) {
            const TColor color = source.GetColor(x - dest.Left, y - dest.Top);
            if (color != key) target->Bits.SetColor(x, y, color);
        }
    return true;
}

}  // namespace vcl
