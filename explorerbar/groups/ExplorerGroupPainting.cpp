#include <algorithm>
#include <optional>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"
#include "explorerbar/groups/ExplorerGroup.h"
#include "explorerbar/groups/ExplorerSkin.h"
#include "explorerbar/groups/GroupMetrics.h"
#include "explorerbar/items/ExplorerItemList.h"
#include "explorerbar/items/ExplorerItemPairs.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/ImageList.h"
#include "skin/surfaces/Fade.h"

namespace qv7skin {

void TQV7SkinExplorerGroup::DrawFocusRect(TCanvas& Canvas, const TRect& Rect) const {
    if (FExBar) FExBar->GetFocus().DrawFocusRect(Canvas, Rect, clWhite);
}

// --- the header

void TQV7SkinExplorerGroup::DrawHead(TBitmap& Bitmap, int Left, int Top, int Width, bool, bool Closed,
                                     TColor HeaderColor) {
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(clWhite);  // of both kinds of groups
    canvas.FillRect(TRect::OfSize(Left, Top, Width, HeaderHeight));
    const TBitmap& top = FSkin->HeaderTop();
    const TBitmap& bottom = FSkin->HeaderBottom();
    canvas.StretchDraw(TRect::OfSize(Left, Top, Width, top.GetHeight()), &top);
    canvas.StretchDraw(
        TRect::OfSize(Left, Top + HeaderHeight - bottom.GetHeight(), Width, bottom.GetHeight()), &bottom);
    canvas.GetBrush().SetColor(HeaderColor);
    DrawButton(canvas, Top, Width, Closed);
}

void TQV7SkinExplorerGroup::DrawButton(TCanvas& Canvas, int Top, int Width, bool Closed) {
    const TSize size = FSkin->ButtonSize();
    const TRect rect = TRect::OfSize(Width - size.Width - 4, Top + 2, size.Width, size.Height);
    const TCopyMode mode = Canvas.GetCopyMode();
    if (MeasuredItems() == 0) {
        FSkin->Button(true, ssDisabled).Draw(Canvas, rect.Left, rect.Top);
    } else {
        const bool over = FExBar && FExBar->IsCursorIn(rect);
        FSkin->Button(Closed, over ? ssHovered : ssDefault).Draw(Canvas, rect.Left, rect.Top);
    }
    Canvas.SetCopyMode(mode);
}

void TQV7SkinExplorerGroup::DrawTitle(TCanvas& Canvas, int Left, int Top) {
    const TCustomImageList* icons = FExBar ? FExBar->GetGroupIcons() : nullptr;
    TRect rect(Left + 5, Top, FWidth - FSkin->ButtonSize().Width - 4 - 5, Top + HeaderHeight);
    if (icons) {
        rect.Left += icons->GetWidth();
        if (FGroupIconIndex != -1) icons->Draw(Canvas, Left, Top, FGroupIconIndex, true);
    }
    Canvas.TextRect(rect, FTitle, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (!IsFocused()) return;
    const TSize text = Canvas.TextExtent(FTitle);
    DrawFocusRect(Canvas,
                  TRect::OfSize(rect.Left, Top + (HeaderHeight - text.Height) / 2, text.Width, text.Height));
}

void TQV7SkinExplorerGroup::DrawHeader(TBitmap& Bitmap, int Left, int Top) {
    TCanvas& canvas = Bitmap.GetCanvas();
    const TClipScope clip(canvas, TRect::OfSize(Left, Top, FWidth, HeaderHeight));
    TColor color = clWhite;
    if (FExBar && FSpecialGroup)
        color = IsHotArea() ? FExBar->SpecialHeaderHotColor : FExBar->SpecialHeaderColor;
    else if (FExBar)
        color = IsHotArea() ? FExBar->HeaderHotColor : FExBar->HeaderColor;
    DrawHead(Bitmap, Left, Top, FWidth, FSpecialGroup, IsClosed(), color);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.GetFont().SetStyle({});
    canvas.GetFont().SetColor(color);
    DrawTitle(canvas, Left, Top);
}

// --- the body

void TQV7SkinExplorerGroup::DrawGround(TCanvas& Canvas, const TRect& Body, const TRect& Area) {
    const TColor color = FExBar ? FExBar->BodyColor : clWhite;
    if (!FExBar || FExBar->GetGround() != color) {
        Canvas.GetBrush().SetStyle(bsSolid);
        Canvas.GetBrush().SetColor(color);
        Canvas.FillRect(Area);
    }
    if (FBgImage)
        Canvas.Draw(Body.Right - FBgImage->GetWidth(), Body.Bottom - FBgImage->GetHeight(), FBgImage.get());
    if (Area.Bottom < Body.Bottom || !FExBar || IsLastVisibleGroup()) return;
    Canvas.GetPen().SetStyle(psSolid);
    Canvas.GetPen().SetColor(FExBar->LineColor);
    Canvas.MoveTo(Body.Left, Body.Bottom - 1);
    Canvas.LineTo(Body.Right, Body.Bottom - 1);
}

void TQV7SkinExplorerGroup::DrawItem(TBitmap& Bitmap, int Index, int& Left, int& Top) {
    TQV7SkinExplorerItemCustom* item = (*FItems)[Index];
    if (auto* pair = dynamic_cast<TQV7SkinExplorerItemCaptionBlockPair*>(item)) {
        if (FBlockOffset < 0) FBlockOffset = CalcBlockOffset(Bitmap, FWidth, Top);
        pair->DrawWithOffset(Bitmap, FBlockOffset, Left, Top, FWidth);
    } else {
        item->Draw(Bitmap, Left, Top, FWidth);
    }
}

/// Draws the items that the rows of the area meet.
void TQV7SkinExplorerGroup::DrawItems(TBitmap& Bitmap, int Left, const TRect& Area) {
    const auto first = std::ranges::upper_bound(FBottoms, Area.Top - FItemsTop);
    const int count = FItems->GetCount();
    for (auto i = static_cast<int>(first - FBottoms.begin()); i < count && ItemTop(i) < Area.Bottom; ++i) {
        if (!(*FItems)[i]->GetShown()) continue;
        int left = Left;
        int top = ItemTop(i);
        const bool hot = (*FItems)[i]->IsHotArea();
        DrawItem(Bitmap, i, left, top);
        if (hot) FSkin->KeepHotFont(Bitmap.GetCanvas().GetFont().GetShared());
        // Whatever an item takes when it is painted counts.
        const int change = top - FItemsTop - FBottoms[static_cast<std::size_t>(i)];
        if (change == 0) continue;
        for (auto j = static_cast<std::size_t>(i); j < FBottoms.size(); ++j)
            FBottoms[j] += change;
    }
}

void TQV7SkinExplorerGroup::DrawBody(TBitmap& Bitmap, int Left, int& Top, const TRect& Reach) {
    const TRect body = TRect::OfSize(Left, Top, FWidth, FBodyHeight);
    if (IsSliding()) Top += FBodyHeight - FFullHeight;
    FItemsTop = Top + BodyMargin;
    EnsurePlaces(Bitmap);
    TCanvas& canvas = Bitmap.GetCanvas();
    const TRect area = body.Intersect(Reach);
    if (!area.IsEmpty()) {
        std::optional<TClipScope> clip;
        if (area != Reach) clip.emplace(canvas, area);
        DrawGround(canvas, body, area);
        DrawItems(Bitmap, Left, area);
    }
    Top = FItemsTop + (FBottoms.empty() ? 0 : FBottoms.back()) + BodyMargin;
    if (IsSliding() && !area.IsEmpty() && FFullHeight > 0)
        Fade(Bitmap, FExBar ? FExBar->FadeColor : clWhite, area.Left, area.Top,
             static_cast<long double>(FBodyHeight) / FFullHeight, Bitmap, area);
}

void TQV7SkinExplorerGroup::Draw(TBitmap& Bitmap, int& Left, int& Top) {
    if (IsUpdating()) return;
    TCanvas& canvas = Bitmap.GetCanvas();
    FHeaderRect = TRect::OfSize(Left, Top, FWidth, HeaderHeight);
    const TRect reach = canvas.GetClipRect();
    if (!FHeaderRect.Intersect(reach).IsEmpty()) DrawHeader(Bitmap, Left, Top);
    Top += HeaderHeight;
    FBodyRect = TRect::OfSize(Left, Top, FWidth, 0);
    const bool open = FState != egsClosed && MeasuredItems() > 0;
    if (open) {
        DrawBody(Bitmap, Left, Top, reach);
    } else if (FExBar && Top >= reach.Top && Top < reach.Bottom) {
        canvas.GetPen().SetStyle(psSolid);
        canvas.GetPen().SetColor(FExBar->LineColor);
        canvas.MoveTo(Left, Top);
        canvas.LineTo(Left + FWidth, Top);
    }
    FBodyRect.Bottom = Top;
    if (!open) Top += 1;
}

}  // namespace qv7skin
