#include "skin/surfaces/RowWindowBitmap.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {

TRowWindowBitmap::TRowWindowBitmap(int width, int height, int firstRow, int rows, TColor color)
    : FWholeHeight(height) {
    SetPixelFormat(pf24bit);
    GetCanvas().GetBrush().SetColor(color);
    SetSize(width, rows);
    SetFirstRow(firstRow);
}

void TRowWindowBitmap::MoveTo(int firstRow) {
    const int by = firstRow - GetFirstRow();
    const int rows = GetRowCount();
    if (by == 0 || GetEmpty()) return;
    if (std::abs(by) < rows) {
        const TBitmapBits bits = WriteBits();
        const auto rowBytes = static_cast<std::size_t>(std::abs(bits.Stride));
        const auto kept = static_cast<std::size_t>(rows - std::abs(by)) * rowBytes;
        // The bottom row comes first in memory.
        std::memmove(bits.Row(by > 0 ? rows - by - 1 : rows - 1), bits.Row(by > 0 ? rows - 1 : rows + by - 1),
                     kept);
    }
    SetFirstRow(firstRow);
}

void TRowWindowBitmap::Draw(TCanvas& canvas, const TRect& rect) const {
    if (GetEmpty()) return;
    const TRect rows(0, GetTop(), GetWidth(), GetBottom());
    if (rect.Height() == FWholeHeight && rect.Width() == GetWidth()) {
        const TRect place = TRect::OfSize(rect.Left, rect.Top + rows.Top, rows.Width(), rows.Height());
        return canvas.CopyFrom(place, GetSourceDC(), rows, canvas.GetCopyMode());
    }
    const auto scaled = [&](int row) { return rect.Top + ::MulDiv(row, rect.Height(), FWholeHeight); };
    const TRect place(rect.Left, scaled(rows.Top), rect.Right, scaled(rows.Bottom));
    canvas.CopyFrom(place, GetSourceDC(), rows, canvas.GetCopyMode());
}

}  // namespace qv7skin
