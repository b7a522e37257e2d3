#include "skin/surfaces/ColumnHeaderPainters.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/Loaders.h"
#include "skin/utils/OneShotDrawing.h"

namespace qv7skin {

TQV7SkinColumnHeaderPainter::TQV7SkinColumnHeaderPainter()
    : FTop(CreateBmp(L"COLUMNHEADERTOP")), FBottom(CreateBmp(L"COLUMNHEADERBOTTOM")) {}

TQV7SkinColumnHeaderPainter::~TQV7SkinColumnHeaderPainter() = default;

void TQV7SkinColumnHeaderPainter::Draw(TCanvas& Canvas, const TRect& Rect, bool DrawRightLine) const {
    const auto [left, top, right, bottom] = Rect;
    Canvas.GetBrush().SetColor(GetQV7SkinColorColumnHeaderBG());
    Canvas.FillRect(Rect);
    Canvas.StretchDraw(TRect::OfSize(left, top, Rect.Width(), FTop->GetHeight()), FTop.get());
    Canvas.StretchDraw(TRect::OfSize(left, bottom - FBottom->GetHeight(), Rect.Width(), FBottom->GetHeight()),
                       FBottom.get());

    Canvas.GetPen().SetColor(GetQV7SkinColorColumnHeaderSpacer());
    Canvas.MoveTo(left, bottom - 1);
    Canvas.LineTo(right - 1, bottom - 1);
    if (!DrawRightLine) return;
    Canvas.MoveTo(right - 1, bottom - 1);
    Canvas.LineTo(right - 1, top - 1);
}

TQV7SkinColumnHeaderSortGlyphPainter::TQV7SkinColumnHeaderSortGlyphPainter()
    : FAscending(CreateBmp(L"COLUMNHEADERSORTASCENDING")),
      FDescending(CreateBmp(L"COLUMNHEADERSORTDESCENDING")) {}

TQV7SkinColumnHeaderSortGlyphPainter::~TQV7SkinColumnHeaderSortGlyphPainter() = default;

void TQV7SkinColumnHeaderSortGlyphPainter::Draw(TCanvas& Canvas, const TRect& Rect, bool Ascending) const {
    DrawTransparentBitmap(Canvas, (Ascending ? FAscending : FDescending).get(), Rect.Left, Rect.Top,
                          0x00FF00FF);
}

}  // namespace qv7skin
