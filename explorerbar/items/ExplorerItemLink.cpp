#include "explorerbar/items/ExplorerItemLink.h"

#include <algorithm>

#include "explorerbar/items/ItemText.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/ImageList.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {
namespace {

constexpr TColor LinkColor = 0x00D78112;

/// Half of what one thing is higher than another, to the nearest whole number.
int HalfDifference(int higher, int lower) {
    return RoundHalfEven((higher - lower) / 2.0L);
}

}  // namespace

TQV7SkinExplorerItemLink::TQV7SkinExplorerItemLink() = default;

TQV7SkinExplorerItemLink::TQV7SkinExplorerItemLink(const String& Caption, const String& Hint)
    : TQV7SkinExplorerItemLink(Caption, Hint, nullptr) {}

TQV7SkinExplorerItemLink::TQV7SkinExplorerItemLink(const String& Caption, const String& Hint, int IconIndex)
    : TQV7SkinExplorerItemLink(Caption, Hint, nullptr) {
    FIconIndex = IconIndex;
}

TQV7SkinExplorerItemLink::TQV7SkinExplorerItemLink(const String& Caption, const String& Hint,
                                                   const TBitmap* Icon)
    : TQV7SkinExplorerItemLink(Caption, Hint, Icon, clNone) {}

TQV7SkinExplorerItemLink::TQV7SkinExplorerItemLink(const String& Caption, const String& Hint,
                                                   const TBitmap* Icon, TColor TransparentColor)
    : FCaption(Caption), FTransparentColor(TransparentColor) {
    FHint = Hint;
    if (!Icon) return;
    FIcon = std::make_unique<TBitmap>();
    FIcon->Assign(Icon);
    PrepareIcon();
}

TQV7SkinExplorerItemLink::~TQV7SkinExplorerItemLink() = default;

void TQV7SkinExplorerItemLink::SetCaption(const String& Value) {
    FCaptionWidthClass = 0;
    Change(FCaption, Value, true);
}

void TQV7SkinExplorerItemLink::SetIcon(const TBitmap* Value) {
    if (Value) {
        if (!FIcon) FIcon = std::make_unique<TBitmap>();
        FIcon->Assign(Value);
        PrepareIcon();
    } else {
        FIcon.reset();
    }
    Refresh(false);
}

void TQV7SkinExplorerItemLink::SetTransparentColor(TColor Value) {
    if (FTransparentColor == Value) return;
    FTransparentColor = Value;
    PrepareIcon();
    Refresh(true);
}

void TQV7SkinExplorerItemLink::PrepareIcon() {
    if (!FIcon) return;
    const bool transparent = FTransparentColor != clNone;
    FIcon->SetTransparent(transparent);
    if (transparent) FIcon->SetTransparentColor(FTransparentColor);
}

void TQV7SkinExplorerItemLink::SetOwner(TQV7SkinExplorerGroup* Group) {
    TQV7SkinExplorerItemCustom::SetOwner(Group);
    Refresh(true);
}

void TQV7SkinExplorerItemLink::DoEnter(TCursor& Cursor) {
    Cursor = crHandPoint;
    TQV7SkinExplorerItemCustom::DoEnter(Cursor);
}

// --- laying out and painting

TSize TQV7SkinExplorerItemLink::IconSize() const {
    if (FIcon) return {FIcon->GetWidth(), FIcon->GetHeight()};
    const TCustomImageList* icons = FIconIndex == -1 ? nullptr : ItemIcons();
    return icons ? TSize{icons->GetWidth(), icons->GetHeight()} : TSize{-5, 0};
}

void TQV7SkinExplorerItemLink::DrawIcon(TCanvas& Canvas, int x, int y) const {
    if (FIcon)
        Canvas.Draw(x, y, FIcon.get());
    else if (const TCustomImageList* icons = FIconIndex == -1 ? nullptr : ItemIcons())
        icons->Draw(Canvas, x, y, FIconIndex, true);
}

/// Under the mouse and elsewhere a caption is as wide, and it is painted far more often than it changes.
int TQV7SkinExplorerItemLink::CaptionWidth(TCanvas& Canvas) {
    const int widthClass = WidthClass(Canvas);
    if (FCaptionWidthClass != widthClass) {
        FCaptionWidth = Canvas.TextWidth(FCaption);
        FCaptionWidthClass = widthClass;
    }
    return FCaptionWidth;
}

/// Whether the caption is painted whole in a row of that width.
bool TQV7SkinExplorerItemLink::IsOneRow(TCanvas& Canvas, int Limit) {
    if (!FWordWrap) return CaptionWidth(Canvas) <= Limit;
    return FCaption.find(L'\r') == String::npos && CaptionWidth(Canvas) < Limit;
}

void TQV7SkinExplorerItemLink::Run(TBitmap& Bitmap, int Left, int& Top, int Width, TPass Pass) {
    const bool painting = Pass == TPass::Paint;
    TCanvas& canvas = Bitmap.GetCanvas();
    TFontStyles style = FFontStyle;
    if (painting && IsHotArea()) style.Include(fsUnderline);
    canvas.GetFont().SetStyle(style);
    const int lineHeight = LineHeight(canvas);
    const int groupWidth = GroupWidth(Width);

    const TSize icon = IconSize();
    const int indent = icon.Width + 10;
    const int start = Top;
    int iconTop = Top;
    if (FIcon && icon.Height < lineHeight && Pass != TPass::Measure)
        iconTop += HalfDifference(lineHeight, icon.Height);
    if (painting) {
        DrawIcon(canvas, Left + 5, iconTop);
        canvas.GetFont().SetColor(LinkColor);
        canvas.GetBrush().SetStyle(bsClear);
    }
    if (lineHeight < icon.Height) Top += HalfDifference(icon.Height, lineHeight);

    int widest = 0;
    const auto use = [&](const TTextRow& row) {
        if (painting) row.Draw(canvas, Left + indent, Top);
        widest = std::max(widest, row.Width);
        Top += lineHeight + 1;
    };
    const int limit = groupWidth - 10 - indent + (FWordWrap ? Left : 0);
    if (Pass == TPass::Measure)
        Top += (FWordWrap ? CountRows(canvas, FCaption, limit) : 1) * (lineHeight + 1);
    else if (IsOneRow(canvas, limit))
        use({FCaption, false, CaptionWidth(canvas)});
    else if (FWordWrap)
        ForEachRow(canvas, FCaption, limit, use);
    else
        use(CutRow(canvas, FCaption, limit));
    if (icon.Height > 0) Top = std::max(Top, iconTop + icon.Height + 2);

    const int textRight = Left + indent + widest;
    if (Pass != TPass::Measure) FClipRect = {Left + 5, start, FWordWrap ? textRight : groupWidth - 5, Top};
    if (painting && IsFocused()) DrawFocusRect(canvas, {Left + indent, start, textRight, Top});
}

TColumns TQV7SkinExplorerItemLink::HotColumns(int Width) const {
    if (FClipRect.IsEmpty()) return {0, Width};
    // Slanted letters may reach beyond the text.
    const int margin = FClipRect.Height() / 3;
    return {std::max(FClipRect.Left - margin, 0), std::min(FClipRect.Right + margin, Width)};
}

void TQV7SkinExplorerItemLink::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Run(Bitmap, Left, Top, Width, TPass::Paint);
}

void TQV7SkinExplorerItemLink::Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    Run(Bitmap, Left, Top, Width, TPass::Measure);
}

void TQV7SkinExplorerItemLink::Place(TBitmap& Bitmap, int Left, int Top, int Width) {
    Run(Bitmap, Left, Top, Width, TPass::Place);
}

}  // namespace qv7skin
