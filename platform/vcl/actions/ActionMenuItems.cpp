#include "platform/vcl/actions/ActionMenuItems.h"

#include <algorithm>

#include "platform/vcl/actions/ActionClients.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Arrows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace vcl {
namespace {

constexpr int Gutter = 24;
constexpr int Margin = 4;
constexpr int Gap = 16;
constexpr int ArrowRoom = 14;
constexpr int SeparatorHeight = 5;
constexpr UINT TextFlags = DT_SINGLELINE | DT_VCENTER;

constexpr TColor XPMenu = 0x00FFFFFF;
constexpr TColor XPGutter = 0x00EFEDEC;

TSize CaptionSize(TCanvas& canvas, const String& text) {
    return text.empty() ? TSize() : MeasureText(canvas, text, DT_SINGLELINE);
}

void DrawTick(TCanvas& canvas, const TRect& column, bool isRadio, TColor color) {
    const int left = column.Left + (column.Width() - 8) / 2;
    const int top = column.Top + (column.Height() - 8) / 2;
    canvas.GetPen().SetColor(color);
    if (isRadio) {
        canvas.GetBrush().SetColor(color);
        canvas.Ellipse(TRect::OfSize(left + 1, top + 1, 6, 6));
        return;
    }
    for (int row = 0; row < 2; ++row) {
        const TPoint tick[] = {{left, top + 4 + row}, {left + 2, top + 6 + row}, {left + 8, top + row}};
        canvas.Polyline(tick);
    }
}

}  // namespace

// --- items that drop down

const TMetaClass& TCustomMenuItem::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomMenuItem>(L"TCustomMenuItem", TCustomActionControl::StaticClass());
    return meta;
}

void TCustomMenuItem::CalcBounds() {
    if (IsSeparator()) return SetBounds(GetLeft(), GetTop(), Gutter + Gap, SeparatorHeight);
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    const TSize caption = CaptionSize(canvas, ItemCaption());
    const TSize shortCut = CaptionSize(canvas, ItemShortCut());
    const TCustomImageList* images = ItemImages();
    const int height = std::max({caption.Height, images ? images->GetHeight() : 0, 12}) + 6;
    int width = Gutter + 2 * Margin + caption.Width + ArrowRoom;
    if (shortCut.Width > 0) width += Gap + shortCut.Width;
    SetBounds(GetLeft(), GetTop(), width, height);
}

void TCustomMenuItem::DrawGlyph(const TRect& rect) {
    const TRect column{rect.Left, rect.Top, rect.Left + Gutter, rect.Bottom};
    TCanvas& canvas = GetCanvas();
    const TCustomImageList* images = ItemImages();
    if (images && GetActionClient()->GetImageIndex() >= 0) {
        images->Draw(canvas, column.Left + (Gutter - images->GetWidth()) / 2,
                     column.Top + (column.Height() - images->GetHeight()) / 2,
                     GetActionClient()->GetImageIndex(), IsItemEnabled());
    } else if (GetActionClient() && GetActionClient()->IsChecked()) {
        DrawTick(canvas, column, GetActionClient()->IsRadio(), TextColor());
    }
}

void TCustomMenuItem::DrawItemText(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    canvas.GetFont().SetColor(TextColor());
    canvas.GetBrush().SetStyle(bsClear);
    TRect text{rect.Left + Gutter + Margin, rect.Top, rect.Right - ArrowRoom, rect.Bottom};
    canvas.TextRect(text, ItemCaption(), TextFlags);
    canvas.TextRect(text, ItemShortCut(), TextFlags | DT_RIGHT | DT_NOPREFIX);
    if (!HasSubmenu()) return;
    canvas.GetPen().SetColor(TextColor());
    DrawArrow(canvas, sdRight, {rect.Right - 10, rect.Top + (rect.Height() - 7) / 2}, 3);
}

void TCustomMenuItem::DrawSeparator(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.GetPen().SetColor(clBtnShadow);
    const int middle = (rect.Top + rect.Bottom) / 2;
    canvas.MoveTo(rect.Left + Gutter + Margin, middle);
    canvas.LineTo(rect.Right, middle);
}

// --- captions in the bar

const TMetaClass& TCustomMenuButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomMenuButton>(L"TCustomMenuButton", TCustomActionControl::StaticClass());
    return meta;
}

void TCustomMenuButton::CalcBounds() {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    const TSize caption = CaptionSize(canvas, ItemCaption());
    const int height = std::max(caption.Height, CaptionSize(canvas, L"Mg").Height) + 6;
    SetBounds(GetLeft(), GetTop(), IsSeparator() ? 6 : caption.Width + 14, height);
}

void TCustomMenuButton::DrawGlyph(const TRect&) {}

void TCustomMenuButton::DrawItemText(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    canvas.GetFont().SetColor(TextColor());
    canvas.GetBrush().SetStyle(bsClear);
    TRect text = rect;
    canvas.TextRect(text, ItemCaption(), TextFlags | DT_CENTER);
}

void TCustomMenuButton::DrawSeparator(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.GetPen().SetColor(clBtnShadow);
    canvas.MoveTo((rect.Left + rect.Right) / 2, rect.Top + 2);
    canvas.LineTo((rect.Left + rect.Right) / 2, rect.Bottom - 2);
}

// --- the flat look

const TMetaClass& TXPStyleMenuItem::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TXPStyleMenuItem>(L"TXPStyleMenuItem", TCustomMenuItem::StaticClass());
    return meta;
}

TColor TXPStyleMenuItem::TextColor() const {
    return IsItemEnabled() ? clBlack : clGrayText;
}

void TXPStyleMenuItem::DrawBackground(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(XPMenu);
    canvas.FillRect(rect);
    canvas.GetBrush().SetColor(XPGutter);
    canvas.FillRect({rect.Left, rect.Top, rect.Left + Gutter, rect.Bottom});
    if (!GetSelected() || IsSeparator()) return;
    canvas.GetPen().SetColor(clHighlight);
    canvas.GetBrush().SetColor(IsItemEnabled() ? BlendColors(clHighlight, clWhite, 178) : XPMenu);
    canvas.Rectangle(rect);
}

const TMetaClass& TXPStyleMenuButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TXPStyleMenuButton>(L"TXPStyleMenuButton", TCustomMenuButton::StaticClass());
    return meta;
}

TColor TXPStyleMenuButton::TextColor() const {
    return IsItemEnabled() ? clBlack : clGrayText;
}

void TXPStyleMenuButton::DrawBackground(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(clBtnFace);
    canvas.FillRect(rect);
    if (!GetSelected() || !IsItemEnabled()) return;
    canvas.GetPen().SetColor(clHighlight);
    canvas.GetBrush().SetColor(BlendColors(clHighlight, clWhite, 178));
    canvas.Rectangle(rect);
}

// --- the system's colours

const TMetaClass& TThemedMenuItem::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TThemedMenuItem>(L"TThemedMenuItem", TCustomMenuItem::StaticClass());
    return meta;
}

TColor TThemedMenuItem::TextColor() const {
    if (!IsItemEnabled()) return clGrayText;
    return GetSelected() ? clHighlightText : clMenuText;
}

void TThemedMenuItem::DrawBackground(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    const bool isLit = GetSelected() && IsItemEnabled() && !IsSeparator();
    canvas.GetBrush().SetColor(isLit ? clMenuHighlight : clMenu);
    canvas.FillRect(rect);
}

const TMetaClass& TThemedMenuButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TThemedMenuButton>(L"TThemedMenuButton", TCustomMenuButton::StaticClass());
    return meta;
}

TColor TThemedMenuButton::TextColor() const {
    if (!IsItemEnabled()) return clGrayText;
    return GetSelected() ? clHighlightText : clMenuText;
}

void TThemedMenuButton::DrawBackground(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(GetSelected() && IsItemEnabled() ? clMenuHighlight : clMenuBar);
    canvas.FillRect(rect);
}

}  // namespace vcl
