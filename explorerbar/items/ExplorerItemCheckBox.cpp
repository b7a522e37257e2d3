#include "explorerbar/items/ExplorerItemCheckBox.h"

#include <algorithm>

#include "explorerbar/items/CheckBoxGlyph.h"
#include "explorerbar/items/ItemText.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace qv7skin {

TQV7SkinExplorerItemCheckBox::TQV7SkinExplorerItemCheckBox() = default;

TQV7SkinExplorerItemCheckBox::TQV7SkinExplorerItemCheckBox(const String& Caption, int, const String& Hint,
                                                           bool Checked, bool Enabled, bool Flat)
    : TQV7SkinExplorerItemLink(Caption, Hint), FChecked(Checked), FEnabled(Enabled), FFlat(Flat) {}

void TQV7SkinExplorerItemCheckBox::DoClick() {
    SetChecked(!FChecked);
    TQV7SkinExplorerItemLink::DoClick();
}

void TQV7SkinExplorerItemCheckBox::SetFont(TCanvas& Canvas) const {
    const bool hot = FEnabled && IsHotArea();
    TFontStyles style;
    style.Put(fsUnderline, hot);
    style.Put(fsBold, FChecked && FEnabled);
    Canvas.GetFont().SetStyle(style);
    Canvas.GetFont().SetColor(TextColor(hot));
}

void TQV7SkinExplorerItemCheckBox::Run(TBitmap& Bitmap, int Left, int& Top, int Width, bool Painting) {
    TCanvas& canvas = Bitmap.GetCanvas();
    const TSize glyph = CheckBoxGlyphSize();
    SetFont(canvas);
    const int lineHeight = LineHeight(canvas);
    const int start = Top;
    if (Painting) {
        DrawCheckBoxGlyph(canvas, Left + 5, Top, FChecked ? cbChecked : cbUnchecked, FEnabled, FFlat);
        canvas.GetBrush().SetStyle(bsClear);
    }
    FTextIndent = glyph.Width + 7;
    FBoxHeight = glyph.Height;
    if (lineHeight < FBoxHeight) Top += (FBoxHeight - lineHeight) / 2;
    int widest = 0;
    ForEachRow(canvas, GetCaption(), GroupWidth(Width) - FTextIndent + Left - 10, [&](const TTextRow& row) {
        if (Painting) row.Draw(canvas, Left + FTextIndent, Top);
        widest = std::max(widest, row.Width);
        Top += lineHeight + 1;
    });
    Top = std::max(Top, start + FBoxHeight);
    FClipRect = {Left + 5, start, Left + FTextIndent + widest, Top};
    if (Painting && IsFocused()) DrawFocusRect(canvas, FClipRect);
}

void TQV7SkinExplorerItemCheckBox::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Run(Bitmap, Left, Top, Width, true);
}

void TQV7SkinExplorerItemCheckBox::Place(TBitmap& Bitmap, int Left, int Top, int Width) {
    Run(Bitmap, Left, Top, Width, false);
}

void TQV7SkinExplorerItemCheckBox::Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.GetFont().SetStyle({});
    const TSize glyph = CheckBoxGlyphSize();
    const int lineHeight = LineHeight(canvas);
    const int start = Top;
    if (lineHeight < glyph.Height) Top += (glyph.Height - lineHeight) / 2;
    // Without the 7 pixels between box and caption: measuring allows for rows that much longer.
    const int limit = GroupWidth(Width) - glyph.Width + Left - 10;
    Top += CountRows(canvas, GetCaption(), limit) * (lineHeight + 1);
    Top = std::max(Top, start + glyph.Height);
}

}  // namespace qv7skin
