#include "explorerbar/items/ExplorerItemStaticText.h"

#include "explorerbar/items/ItemText.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace qv7skin {

void TQV7SkinExplorerItemStaticText::Run(TCanvas& Canvas, int Left, int& Top, int Width,
                                         bool Painting) const {
    TFont& font = Canvas.GetFont();
    const TFontStyles style = font.GetStyle();
    const TColor color = font.GetColor();
    font.SetStyle(FFontStyle);
    font.SetColor(FFontColor);
    if (Painting) Canvas.GetBrush().SetStyle(bsClear);
    const int lineHeight = LineHeight(Canvas);
    const auto use = [&](const TTextRow& row) {
        row.Draw(Canvas, Left + 5, Top);
        Top += lineHeight + 1;
    };
    const int limit = GroupWidth(Width) - 10;
    if (!Painting)
        Top += (FWordWrap ? CountRows(Canvas, FCaption, limit) : 1) * (lineHeight + 1);
    else if (FWordWrap)
        ForEachRow(Canvas, FCaption, limit, use);
    else
        use(CutRow(Canvas, FCaption, limit));
    font.SetStyle(style);
    font.SetColor(color);
}

void TQV7SkinExplorerItemStaticText::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Run(Bitmap.GetCanvas(), Left, Top, Width, true);
}

void TQV7SkinExplorerItemStaticText::Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Run(Bitmap.GetCanvas(), Left, Top, Width, false);
}

void TQV7SkinExplorerItemStaticText::Place(TBitmap&, int, int, int) {}

}  // namespace qv7skin
