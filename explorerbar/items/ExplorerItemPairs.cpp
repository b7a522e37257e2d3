#include "explorerbar/items/ExplorerItemPairs.h"

#include <algorithm>

#include "explorerbar/items/ItemText.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace qv7skin {
namespace {

constexpr UINT PaintingFlags = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

/// The space of a text in one row, at (0, 0).
TRect RowRect(TCanvas& canvas, const String& text) {
    return {0, 0, text.empty() ? 0 : canvas.TextWidth(text), LineHeight(canvas)};
}

void DrawRow(TCanvas& canvas, TRect rect, const String& text) {
    canvas.TextRect(rect, text, PaintingFlags);
}

/// What both kinds of pairs write with.
void SetPairFont(TCanvas& canvas, bool underlined, TColor color) {
    canvas.GetFont().SetStyle(underlined ? TFontStyles{fsUnderline} : TFontStyles{});
    canvas.GetFont().SetColor(color);
    canvas.GetBrush().SetStyle(bsClear);
}

/// Measuring takes the regular style, as painting does but under the mouse.
int MeasuredLine(TBitmap& bitmap) {
    TCanvas& canvas = bitmap.GetCanvas();
    canvas.GetFont().SetStyle({});
    return LineHeight(canvas);
}

}  // namespace

// --- caption and value

TQV7SkinExplorerItemCaptionValuePair::TQV7SkinExplorerItemCaptionValuePair(const String& Caption,
                                                                           const String& Value,
                                                                           const String& Hint)
    : TQV7SkinExplorerItemCaptionValuePair(Caption, false, Value, Hint) {}

TQV7SkinExplorerItemCaptionValuePair::TQV7SkinExplorerItemCaptionValuePair(const String& Caption,
                                                                           bool Clickable,
                                                                           const String& Value,
                                                                           const String& Hint)
    : FCaption(Caption), FValue(Value), FClickable(Clickable) {
    FHint = Hint;
}

void TQV7SkinExplorerItemCaptionValuePair::CalcTextRects(TBitmap& Bitmap, int Left, int Top, int Width,
                                                         TRect& CaptionRect, TRect& ValueRect) const {
    TCanvas& canvas = Bitmap.GetCanvas();
    CaptionRect = RowRect(canvas, FCaption);
    CaptionRect.Offset(Left + 5, Top);
    ValueRect = RowRect(canvas, FValue);
    ValueRect.Offset(Width - 5 - ValueRect.Right, Top);
    TRect wide = ValueRect;
    wide.Left -= 5;
    TRect overlap = CaptionRect.Intersect(wide);
    if (!overlap.IsEmpty()) {
        overlap.Right = std::max(overlap.Right, CaptionRect.Right - Left + 5);
        CaptionRect.Right -= overlap.Width();
    }
    ValueRect.Left = std::max(ValueRect.Left, Left + 5);
}

void TQV7SkinExplorerItemCaptionValuePair::PlaceAt(TCanvas& Canvas, int Left, int Top, int Width) {
    FClipRect = {Left + 5, Top, Width + 10, Top + LineHeight(Canvas)};
}

void TQV7SkinExplorerItemCaptionValuePair::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    TCanvas& canvas = Bitmap.GetCanvas();
    const bool hot = FClickable && IsHotArea();
    SetPairFont(canvas, hot, TextColor(hot));
    PlaceAt(canvas, Left, Top, Width);
    TRect caption;
    TRect value;
    CalcTextRects(Bitmap, Left, Top, Width, caption, value);
    if (caption.Width() > 0) DrawRow(canvas, caption, FCaption);
    DrawRow(canvas, value, FValue);
    if (IsFocused()) DrawFocusRect(canvas, {caption.Left, caption.Top, value.Right, caption.Bottom});
    Top += LineHeight(canvas);
}

void TQV7SkinExplorerItemCaptionValuePair::Measure(TBitmap& Bitmap, int&, int& Top, int&) {
    Top += MeasuredLine(Bitmap);
}

void TQV7SkinExplorerItemCaptionValuePair::Place(TBitmap& Bitmap, int Left, int Top, int Width) {
    Bitmap.GetCanvas().GetFont().SetStyle({});
    PlaceAt(Bitmap.GetCanvas(), Left, Top, Width);
}

void TQV7SkinExplorerItemCaptionValuePair::DoEnter(TCursor& Cursor) {
    if (FClickable) Cursor = crHandPoint;
    TQV7SkinExplorerItemCustom::DoEnter(Cursor);
}

// --- caption and block

TQV7SkinExplorerItemCaptionBlockPair::TQV7SkinExplorerItemCaptionBlockPair(const String& Caption,
                                                                           const String& Blocktext)
    : TQV7SkinExplorerItemCaptionBlockPair(Caption, false, Blocktext, String()) {}

TQV7SkinExplorerItemCaptionBlockPair::TQV7SkinExplorerItemCaptionBlockPair(const String& Caption,
                                                                           const String& Blocktext,
                                                                           const String& Hint)
    : TQV7SkinExplorerItemCaptionBlockPair(Caption, false, Blocktext, Hint) {}

TQV7SkinExplorerItemCaptionBlockPair::TQV7SkinExplorerItemCaptionBlockPair(const String& Caption,
                                                                           bool Clickable,
                                                                           const String& Blocktext,
                                                                           const String& Hint)
    : FCaption(Caption), FBlocktext(Blocktext), FClickable(Clickable) {
    FHint = Hint;
}

void TQV7SkinExplorerItemCaptionBlockPair::Draw(TBitmap&, int&, int&, int&) {
    throw Exception(L"do not call me! -> call method \"DrawWithOffset\"");
}

void TQV7SkinExplorerItemCaptionBlockPair::CalcTextRects(TBitmap& Bitmap, int Width, TRect& BlockRect,
                                                         TRect& CaptionRect, int BlockOffset) const {
    TCanvas& canvas = Bitmap.GetCanvas();
    CaptionRect = RowRect(canvas, FCaption);
    BlockRect = RowRect(canvas, FBlocktext);
    const int available = Width - 10;
    const int column = std::max(BlockOffset, CaptionRect.Right);
    if (column + 5 + BlockRect.Right > available) {
        BlockRect.Right = std::max(30, available - column - 5);
        if (CaptionRect.Right + 5 + BlockRect.Right > available)
            CaptionRect.Right = available - BlockRect.Right - 5;
    }
}

void TQV7SkinExplorerItemCaptionBlockPair::PlaceAt(TCanvas& Canvas, int Left, int Top, int Width) {
    FClipRect = {Left + 5, Top, Width + 10, Top + LineHeight(Canvas)};
}

void TQV7SkinExplorerItemCaptionBlockPair::DrawWithOffset(TBitmap& Bitmap, int BlockOffset, int& Left,
                                                          int& Top, int& Width) {
    TCanvas& canvas = Bitmap.GetCanvas();
    const bool hot = FClickable && IsHotArea();
    SetPairFont(canvas, hot, TextColor(hot));
    PlaceAt(canvas, Left, Top, Width);
    TRect block;
    TRect caption;
    CalcTextRects(Bitmap, Width, block, caption, BlockOffset);
    caption.Offset(Left + 5, Top);
    block.Offset(Left + 10 + BlockOffset, Top);
    if (caption.Width() > 0) DrawRow(canvas, caption, FCaption);
    DrawRow(canvas, block, FBlocktext);
    if (IsFocused()) DrawFocusRect(canvas, {caption.Left, caption.Top, block.Right, caption.Bottom});
    Top += LineHeight(canvas);
}

void TQV7SkinExplorerItemCaptionBlockPair::Measure(TBitmap& Bitmap, int&, int& Top, int&) {
    Top += MeasuredLine(Bitmap);
}

void TQV7SkinExplorerItemCaptionBlockPair::Place(TBitmap& Bitmap, int Left, int Top, int Width) {
    Bitmap.GetCanvas().GetFont().SetStyle({});
    PlaceAt(Bitmap.GetCanvas(), Left, Top, Width);
}

void TQV7SkinExplorerItemCaptionBlockPair::DoEnter(TCursor& Cursor) {
    if (FClickable) Cursor = crHandPoint;
    TQV7SkinExplorerItemCustom::DoEnter(Cursor);
}

}  // namespace qv7skin
