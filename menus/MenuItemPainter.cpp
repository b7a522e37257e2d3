#include "menus/MenuItemPainter.h"

#include <algorithm>

#include "menus/MenuGradient.h"
#include "platform/vcl/graphics/Arrows.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/graphics/TextLayout.h"
#include "skin/UnitGraphicsUtils.h"

namespace qv7skin {
namespace {

constexpr TColor ItemColor = 0x00FAFAFA;
constexpr TColor GutterColor = 0x00F0EAE7;
constexpr TColor LineColor = 0x00C5C5C5;
constexpr TColor SeparatorColor = 0x00EEE7DD;
constexpr TColor HighlightTop = 0x00EFE8E4;
constexpr TColor HighlightBottom = 0x00DEC5B8;
constexpr TColor DescriptionTop = 0x00D8BAAB;
constexpr TColor DescriptionBottom = 0x00EFE8E4;
constexpr TColor DisabledTextColor = 0x00DEC5D8;

/// The right edge of the gutter on the menu's canvas, and what captions stand further right for it.
constexpr int GutterEdge = 26;

/// Where a check mark stands in the middle. Items of further columns and of a bar begin behind the edge:
/// there the mark stands in the space before the caption, since in the gutter it would lie on their
/// neighbours.
TRect MarkRoom(const TRect& item) {
    const int edge = item.Left < GutterEdge ? GutterEdge : item.Left + GutterEdge;
    return {item.Left, item.Top, edge, item.Bottom};
}

constexpr int GradientSteps = 256;
constexpr UINT TextFlags = DT_EXTERNALLEADING;

void DrawGradient(TCanvas& canvas, const TRect& r, TColor from, TColor to) {
    canvas.DrawDirectly([&](HDC dc) { DrawGradientBands(dc, r, GradientSteps, from, to, gdVertical); });
}

void Fill(TCanvas& canvas, const TRect& r, TColor color) {
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    canvas.FillRect(r);
}

void Line(TCanvas& canvas, TColor color, TPoint from, TPoint to) {
    TPen& pen = canvas.GetPen();
    pen.SetStyle(psSolid);
    pen.SetWidth(1);
    pen.SetColor(color);
    canvas.MoveTo(from.X, from.Y);
    canvas.LineTo(to.X, to.Y);
}

void RoundFrame(TCanvas& canvas, const TRect& r) {
    TPen& pen = canvas.GetPen();
    pen.SetStyle(psSolid);
    pen.SetWidth(1);
    pen.SetColor(LineColor);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.RoundRect(r, 3, 3);
}

void UseFont(TCanvas& canvas, const TFont& font, bool addBold) {
    canvas.SetFont(font);
    if (addBold) canvas.GetFont().SetStyle(font.GetStyle() + TFontStyles{fsBold});
}

/// The description of an item, with real line breaks.
String DescriptionOf(const TMenuItem& item) {
    static constexpr StringView written = L"#13#10";
    String text = item.GetHint();
    for (std::size_t at = text.find(written); at != String::npos; at = text.find(written, at + 2))
        text.replace(at, written.size(), L"\r\n");
    return text;
}

TSize Measured(TCanvas& canvas, StringView text, UINT flags = TextFlags) {
    return text.empty() ? TSize() : MeasureText(canvas, text, flags);
}

}  // namespace

TQV7SkinMenuItemPainter::TQV7SkinMenuItemPainter() {
    FTitleFont.SetName(L"Tahoma");
    FTitleFont.SetStyle({fsBold});
    FDescriptionFont.SetName(L"Tahoma");
}

void TQV7SkinMenuItemPainter::SetIncludeDescription(bool Value) {
    FDrawingParts.Put(mipDescription, Value);
}

bool TQV7SkinMenuItemPainter::HasGutter(const TMenuItem& Item) const {
    return GetIncludeGutter() || Item.GetImageList();
}

// --- measuring

void TQV7SkinMenuItemPainter::MeasureItem(TMenuItem& Sender, TCanvas& ACanvas, int& Width, int& Height) {
    if (Sender.IsLine())
        MeasureSeparator(Sender, ACanvas, Width, Height);
    else
        MeasureMenuItem(Sender, ACanvas, Width, Height);
}

void TQV7SkinMenuItemPainter::MeasureSeparator(TMenuItem& Item, TCanvas& ACanvas, int& Width, int& Height) {
    if (!GetIncludeSeparatorText() || Item.GetHint().empty()) {
        Width = 10;
        Height = 4;
        return;
    }
    UseFont(ACanvas, FTitleFont, false);
    const TSize text = Measured(ACanvas, Item.GetHint());
    Width = text.Width + 14;
    Height = text.Height + 8;
}

void TQV7SkinMenuItemPainter::MeasureMenuItem(TMenuItem& Item, TCanvas& ACanvas, int& Width, int& Height) {
    UseFont(ACanvas, FTitleFont, Item.GetDefault());
    TSize caption = Measured(ACanvas, Item.GetCaption());
    const String shortCut = GetIncludeShortCut() ? ShortCutToText(Item.GetShortCut()) : String();
    if (!shortCut.empty()) caption.Width += Measured(ACanvas, shortCut, TextFlags | DT_RIGHT).Width + 8;
    TSize description;
    if (GetIncludeDescription()) {
        UseFont(ACanvas, FDescriptionFont, Item.GetDefault());
        description = Measured(ACanvas, DescriptionOf(Item));
    }
    Width = std::max(caption.Width, description.Width) + 8 + (HasGutter(Item) ? GutterEdge : 0);
    Height = caption.Height + description.Height + 8;
}

// --- drawing

void TQV7SkinMenuItemPainter::DrawItem(TMenuItem& Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected,
                                       bool iPaintArrow) {
    if (Sender.IsLine())
        DrawSeparator(Sender, ACanvas, ARect, Selected);
    else
        DrawMenuItem(Sender, ACanvas, ARect, Selected, iPaintArrow);
}

void TQV7SkinMenuItemPainter::DrawGutter(TCanvas& ACanvas, const TRect& R) const {
    // Neither what lies beside the item is painted over, nor has an item behind the edge a gutter.
    const TRect gutter{R.Left, R.Top, std::min(GutterEdge, R.Right), R.Bottom};
    if (!gutter.IsEmpty()) Fill(ACanvas, gutter, GutterColor);
    if (R.Left <= GutterEdge && GutterEdge < R.Right)
        Line(ACanvas, LineColor, {GutterEdge, R.Top}, {GutterEdge, R.Bottom});
}

void TQV7SkinMenuItemPainter::DrawSeparator(TMenuItem& Item, TCanvas& ACanvas, const TRect& ARect, bool) {
    Fill(ACanvas, ARect, SeparatorColor);
    Line(ACanvas, LineColor, {ARect.Left, ARect.Bottom - 2}, {ARect.Right, ARect.Bottom - 2});
    Line(ACanvas, ItemColor, {ARect.Left, ARect.Bottom - 1}, {ARect.Right, ARect.Bottom - 1});
    if (GetIncludeSeparatorText() && !Item.GetHint().empty()) {
        UseFont(ACanvas, FTitleFont, false);
        ACanvas.GetFont().SetColor(clBlack);
        ACanvas.GetBrush().SetStyle(bsClear);
        TRect text = ARect;
        text.Left += 4 + (HasGutter(Item) ? 6 : 0);
        text.Right -= 4;
        ACanvas.TextRect(text, Item.GetHint(), DT_SINGLELINE | DT_VCENTER);
        return;
    }
    if (GetIncludeGutter()) DrawGutter(ACanvas, ARect);
}

void TQV7SkinMenuItemPainter::DrawMenuItem(TMenuItem& Item, TCanvas& ACanvas, const TRect& ARect,
                                           bool Selected, bool iPaintArrow) {
    const String description = DescriptionOf(Item);
    UseFont(ACanvas, FTitleFont, Item.GetDefault());
    const int captionHeight = Measured(ACanvas, Item.GetCaption()).Height;
    Fill(ACanvas, ARect, ItemColor);
    if (HasGutter(Item)) DrawGutter(ACanvas, ARect);
    if (Selected && Item.GetEnabled()) DrawHighlight(ACanvas, ARect, !description.empty(), captionHeight);
    DrawTexts(Item, ACanvas, ARect, description, captionHeight);
    if (const TCustomImageList* images = Item.GetImageList(); images && Item.GetImageIndex() >= 0)
        images->Draw(ACanvas, ARect.Left + 4, ARect.Top + 2, Item.GetImageIndex());
    DrawCheckMark(Item, ACanvas, ARect, Selected);
    if (iPaintArrow && Item.GetCount() > 0) {
        ACanvas.GetPen().SetStyle(psSolid);
        ACanvas.GetPen().SetWidth(1);
        ACanvas.GetPen().SetColor(Selected ? clWhite : clBlack);
        DrawArrow(ACanvas, sdRight, {ARect.Right - 8, ARect.Top - 1 + (ARect.Height() - 5) / 2}, 3);
    }
}

void TQV7SkinMenuItemPainter::DrawHighlight(TCanvas& ACanvas, const TRect& R, bool HasDescription,
                                            int CaptionHeight) const {
    TRect band = R;
    if (HasDescription) {
        band.Bottom = R.Top + CaptionHeight + 4;
        DrawGradient(ACanvas, band, HighlightTop, HighlightBottom);
        band.Top = band.Bottom;
        band.Bottom = R.Bottom - 1;
        DrawGradient(ACanvas, band, DescriptionTop, DescriptionBottom);
    } else {
        --band.Bottom;
        DrawGradient(ACanvas, band, HighlightTop, HighlightBottom);
    }
    RoundFrame(ACanvas, R);
}

void TQV7SkinMenuItemPainter::DrawTexts(TMenuItem& Item, TCanvas& ACanvas, const TRect& R,
                                        const String& Description, int CaptionHeight) const {
    const TColor color = Item.GetEnabled() ? clBlack : DisabledTextColor;
    const bool withDescription = GetIncludeDescription() && !Description.empty();
    ACanvas.GetBrush().SetStyle(bsClear);
    UseFont(ACanvas, FTitleFont, Item.GetDefault());
    ACanvas.GetFont().SetColor(color);
    TRect text{R.Left + 4 + (HasGutter(Item) ? GutterEdge : 0), R.Top + (withDescription ? 2 : 4),
               R.Right - 4, R.Bottom + (withDescription ? 0 : 2)};
    ACanvas.TextRect(text, Item.GetCaption(), TextFlags);
    const String shortCut = GetIncludeShortCut() ? ShortCutToText(Item.GetShortCut()) : String();
    if (!shortCut.empty()) ACanvas.TextRect(text, shortCut, TextFlags | DT_RIGHT);
    if (!withDescription) return;
    UseFont(ACanvas, FDescriptionFont, Item.GetDefault());
    ACanvas.GetFont().SetColor(color);
    text.Top = R.Top + CaptionHeight + 4;
    text.Bottom = R.Bottom;
    ACanvas.TextRect(text, Description, TextFlags);
}

void TQV7SkinMenuItemPainter::DrawCheckMark(TMenuItem& Item, TCanvas& ACanvas, const TRect& ARect, bool) {
    if (!Item.GetChecked()) return;
    TRect glyph =
        TRectHelper::CenterRectInRect(MarkRoom(ARect), {0, 0, 12, 12}, {crtHorizontal, crtVertical});
    TPen& pen = ACanvas.GetPen();
    pen.SetStyle(psSolid);
    pen.SetColor(clBlack);
    if (Item.GetRadioItem()) {
        pen.SetWidth(1);
        ACanvas.GetBrush().SetStyle(bsSolid);
        ACanvas.GetBrush().SetColor(clBlack);
        glyph.Inflate(-2, -2);
        ACanvas.Ellipse(glyph);
        return;
    }
    static constexpr TPoint strokes[][2] = {{{0, 2}, {4, 6}}, {{0, 3}, {3, 6}}, {{0, 4}, {3, 7}},
                                            {{6, 0}, {2, 4}}, {{6, 1}, {2, 5}}, {{6, 2}, {3, 5}}};
    pen.SetWidth(2);
    for (const auto& [from, to] : strokes) {
        ACanvas.MoveTo(glyph.Left + from.X, glyph.Top + from.Y);
        ACanvas.LineTo(glyph.Left + to.X, glyph.Top + to.Y);
    }
    pen.SetWidth(1);
}

void TQV7SkinMenuItemPainter::DrawMainMenuRootItem(const String& iCaption, TCanvas& ACanvas,
                                                   const TRect& ARect, bool iSelected, bool iEnabled) {
    if (iSelected && iEnabled) DrawHighlight(ACanvas, ARect, false, 0);
    ACanvas.GetBrush().SetStyle(bsClear);
    ACanvas.SetFont(FTitleFont);
    ACanvas.GetFont().SetStyle({});
    ACanvas.GetFont().SetColor(iEnabled ? clBlack : DisabledTextColor);
    TRect text{ARect.Left + 4, ARect.Top + 4, ARect.Right - 4, ARect.Bottom};
    ACanvas.TextRect(text, iCaption, DT_CENTER | DT_VCENTER | TextFlags);
}

// --- the variant

TQV7SkinMenuItemPainterNice::TQV7SkinMenuItemPainterNice(const TFont* AFont) {
    if (!AFont) {
        GetDescriptionFont().SetSize(7);
        return;
    }
    GetTitleFont().Assign(AFont);
    GetTitleFont().SetStyle(AFont->GetStyle() + TFontStyles{fsBold});
    GetDescriptionFont().SetName(GetTitleFont().GetName());
    GetDescriptionFont().SetSize(GetTitleFont().GetSize() - 1);
}

void TQV7SkinMenuItemPainterNice::SetIncludeDescription(bool Value) {
    TQV7SkinMenuItemPainter::SetIncludeDescription(Value);
    TFontStyles style = GetTitleFont().GetStyle();
    style.Put(fsBold, Value);
    GetTitleFont().SetStyle(style);
}

}  // namespace qv7skin

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TQV7SkinMenuItemPainterPart>::Names() {
    static constexpr const wchar_t* names[] = {L"mipSeparatorText", L"mipDescription", L"mipShortCut",
                                               L"mipGutter"};
    return names;
}
