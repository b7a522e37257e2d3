#include <algorithm>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/Hotkeys.h"
#include "platform/vcl/menus/Menu.h"
#include "platform/vcl/menus/MenuItem.h"

// How items look that the program draws and no handler paints: the system's menu colours, a column for
// pictures and marks, the caption, and the short cut at the right edge.

namespace vcl {
namespace {

constexpr int Margin = 4;
constexpr int LineHeight = 9;
constexpr int ShortCutGap = 16;
constexpr int MarkSize = 9;
constexpr int LeastPictureWidth = 16;

/// Lets texts stand without a ground of their own while it lives; then the brush fills again.
class TClearGround {
public:
    explicit TClearGround(TCanvas& canvas) : FCanvas(canvas) { FCanvas.GetBrush().SetStyle(bsClear); }
    ~TClearGround() { FCanvas.GetBrush().SetStyle(bsSolid); }
    TClearGround(const TClearGround&) = delete;
    TClearGround& operator=(const TClearGround&) = delete;

private:
    TCanvas& FCanvas;
};

/// What stands at the right edge: the text of the short cut, or what follows a tab in the caption.
String RightPart(const TMenuItem& item) {
    const String& caption = item.GetCaption();
    const std::size_t tab = caption.find(L'\t');
    if (tab != String::npos) return caption.substr(tab + 1);
    return item.GetCount() == 0 ? ShortCutToText(item.GetShortCut()) : String();
}

TSize TextSize(TCanvas& canvas, StringView text) {
    TRect r;
    if (!text.empty()) canvas.TextRect(r, text, DT_CALCRECT | DT_SINGLELINE);
    return {r.Width(), r.Height()};
}

TSize PictureSize(const TMenuItem& item) {
    TSize size{LeastPictureWidth, 0};
    if (const TCustomImageList* images = item.GetImageList()) {
        size = {std::max(size.Width, images->GetWidth()), images->GetHeight()};
    } else if (item.IsBitmapStored()) {
        const TBitmap& bitmap = item.GetBitmap();
        size = {std::max(size.Width, bitmap.GetWidth()), bitmap.GetHeight()};
    }
    return size;
}

bool IsInBar(const TMenuItem& item) {
    const TMenu* menu = item.GetParentMenu();
    return menu && menu->IsMenuBar() && item.GetParent() == &menu->GetItems();
}

void DrawMark(TCanvas& canvas, const TRect& column, bool isRadio, TColor color) {
    const int left = column.Left + (column.Width() - MarkSize) / 2;
    const int top = column.Top + (column.Height() - MarkSize) / 2;
    canvas.GetPen().SetColor(color);
    canvas.GetPen().SetWidth(1);
    if (isRadio) {
        canvas.GetBrush().SetColor(color);
        canvas.Ellipse(TRect::OfSize(left + 1, top + 1, MarkSize - 2, MarkSize - 2));
        return;
    }
    for (int row = 0; row < 3; ++row) {
        const TPoint tick[] = {{left + 1, top + 3 + row}, {left + 3, top + 5 + row}, {left + 8, top + row}};
        canvas.Polyline(tick);
    }
}

void DrawLine(TCanvas& canvas, const TRect& rect) {
    const int middle = (rect.Top + rect.Bottom) / 2;
    canvas.GetPen().SetColor(clBtnShadow);
    canvas.MoveTo(rect.Left + Margin / 2, middle);
    canvas.LineTo(rect.Right - Margin / 2, middle);
}

/// The image or bitmap in the middle of the column; a frame around an image says that the item is checked.
void DrawPicture(TCanvas& canvas, const TMenuItem& item, const TRect& column) {
    const TSize size = PictureSize(item);
    const int left = column.Left + (column.Width() - size.Width) / 2;
    const int top = column.Top + (column.Height() - size.Height) / 2;
    if (TCustomImageList* images = item.GetImageIndex() >= 0 ? item.GetImageList() : nullptr) {
        if (item.GetChecked()) canvas.FrameRect(column);
        images->Draw(canvas, left, top, item.GetImageIndex(), item.GetEnabled());
    } else {
        canvas.Draw(left, top, &item.GetBitmap());
    }
}

void DrawTexts(TCanvas& canvas, TRect rect, StringView caption, StringView right, bool hidesAccel) {
    const TClearGround ground(canvas);
    const UINT common = DT_SINGLELINE | DT_VCENTER | (hidesAccel ? DT_HIDEPREFIX : 0U);
    canvas.TextRect(rect, caption, common | DT_LEFT);
    if (!right.empty()) canvas.TextRect(rect, right, common | DT_RIGHT | DT_NOPREFIX);
}

}  // namespace

bool TMenuItem::IsOwnerDrawn() const {
    const TMenu* menu = GetParentMenu();
    if (menu && menu->GetOwnerDraw()) return true;
    const bool inBar = IsInBar(*this);
    if (GetImageList() && (!inBar || FImageIndex >= 0)) return true;
    return IsBitmapStored();
}

void TMenuItem::Measure(TCanvas& canvas, int& width, int& height) {
    const TLifeGuard guard(*this);
    MeasureDefault(canvas, width, height);
    if (guard.IsAlive()) OnMeasureItem(this, canvas, width, height);
}

void TMenuItem::MeasureDefault(TCanvas& canvas, int& width, int& height) {
    if (IsLine()) {
        width = LeastPictureWidth;
        height = LineHeight;
        return;
    }
    TFont& font = canvas.GetFont();
    if (FDefault) font.SetStyle(font.GetStyle() + TFontStyles{fsBold});
    const TSize caption = TextSize(canvas, CaptionText(FCaption));
    if (IsInBar(*this)) {
        width = caption.Width + 2 * Margin;
        height = caption.Height + Margin;
        const bool hasPicture = FImageIndex >= 0 || IsBitmapStored();
        if (hasPicture) width += PictureSize(*this).Width + Margin;
        return;
    }
    const TSize right = TextSize(canvas, RightPart(*this));
    const TSize picture = PictureSize(*this);
    width = picture.Width + 3 * Margin + caption.Width + (right.Width > 0 ? ShortCutGap + right.Width : 0);
    height = std::max({caption.Height, picture.Height, MarkSize}) + Margin;
}

void TMenuItem::Draw(TCanvas& canvas, const TRect& rect, TOwnerDrawState state) {
    if (OnAdvancedDrawItem)
        OnAdvancedDrawItem(this, canvas, rect, state);
    else if (OnDrawItem)
        OnDrawItem(this, canvas, rect, state.Contains(odSelected));
    else
        DrawDefault(canvas, rect, state);
}

void TMenuItem::DrawDefault(TCanvas& canvas, const TRect& rect, TOwnerDrawState state) {
    const bool inBar = IsInBar(*this);
    const bool selected = state.Contains(odSelected) || (inBar && state.Contains(odHotLight));
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(selected && !IsLine() ? clHighlight : (inBar ? clMenuBar : clMenu));
    canvas.FillRect(rect);
    if (IsLine()) return DrawLine(canvas, rect);

    const TColor color = state.Contains(odGrayed) ? clGrayText : (selected ? clHighlightText : clMenuText);
    const bool hasPicture = (GetImageList() && FImageIndex >= 0) || IsBitmapStored();
    TRect column = rect;
    column.Left += inBar ? Margin : Margin / 2;
    column.Right = column.Left + PictureSize(*this).Width + (inBar ? 0 : Margin);
    if (hasPicture)
        DrawPicture(canvas, *this, column);
    else if (FChecked && !inBar)
        DrawMark(canvas, column, FRadioItem, color);

    TFont& font = canvas.GetFont();
    font.SetColor(color);
    if (FDefault) font.SetStyle(font.GetStyle() + TFontStyles{fsBold});
    TRect text = rect;
    text.Left = inBar && !hasPicture ? rect.Left + Margin : column.Right + Margin;
    text.Right -= Margin;
    DrawTexts(canvas, text, CaptionText(FCaption), inBar ? String() : RightPart(*this),
              state.Contains(odNoAccel));
}

}  // namespace vcl
