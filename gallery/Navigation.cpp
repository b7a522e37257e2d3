#include "gallery/Navigation.h"

#include <algorithm>
#include <string_view>

#include "gallery/Drawing.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {
constexpr int BandHeight = 25;
constexpr int PageHeight = 26;
constexpr int SectionGap = 8;
}  // namespace

TNavigation::TNavigation(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle.Include(csOpaque);
    SetColor(clWhite);
    SetWidth(200);
    SetTabStop(true);
    SetDoubleBuffered(true);
    LayOut();
}

void TNavigation::LayOut() {
    int top = 0;
    std::wstring_view section;
    int index = 0;
    for (const TPageInfo& page : GalleryPages()) {
        if (section != page.Section) {
            if (top > 0) top += SectionGap;
            section = page.Section;
            FRows.push_back({page.Section, -1, {0, top, GetWidth(), top + BandHeight}});
            top += BandHeight + 4;
        }
        FRows.push_back({page.Title, index++, {0, top, GetWidth(), top + PageHeight}});
        top += PageHeight;
    }
}

void TNavigation::SelectPage(int index) {
    if (index == FPageIndex || index < 0 || index >= static_cast<int>(GalleryPages().size())) return;
    FPageIndex = index;
    Invalidate();
    OnChange(this);
}

void TNavigation::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_ERASEBKGND:
            message.Result = 1;
            return;
        case WM_GETDLGCODE:
            message.Result = DLGC_WANTARROWS;
            return;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            TCustomControl::Dispatch(message);
            Invalidate();
            return;
        default:
            TCustomControl::Dispatch(message);
    }
}

void TNavigation::Paint() {
    TCanvas& canvas = GetCanvas();
    const TRect client = GetClientRect();
    Fill(canvas, client, GetColor());
    for (const TRow& row : FRows)
        DrawRow(canvas, row);
    Fill(canvas, {client.Right - 1, 0, client.Right, client.Bottom}, GetQV7SkinColorBorder());
}

void TNavigation::DrawRow(TCanvas& canvas, const TRow& row) {
    TRect text = row.Rect;
    text.Left += 14;
    if (row.PageIndex < 0) {
        FBandPainter.Draw(canvas, row.Rect, false);
        UseFont(canvas, 9, true, GetQV7SkinColorColumnHeaderCaption());
    } else {
        const bool selected = row.PageIndex == FPageIndex;
        const bool hot = row.PageIndex == FHotPage;
        if (selected) {
            Fill(canvas, row.Rect, GetQV7SkinColorBackground());
            Fill(canvas, {0, row.Rect.Top, 4, row.Rect.Bottom}, GetQV7SkinColorLinkText());
        }
        UseFont(canvas, 9, selected,
                hot && !selected ? GetQV7SkinColorLinkText() : GetQV7SkinColorWindowText());
    }
    canvas.GetBrush().SetStyle(bsClear);
    TRect place = text;
    canvas.TextRect(place, row.Text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (row.PageIndex >= 0 && row.PageIndex == FPageIndex && Focused()) {
        canvas.GetPen().SetStyle(psDot);
        canvas.GetPen().SetColor(GetQV7SkinColorLinkText());
        canvas.Rectangle(row.Rect.Left + 8, row.Rect.Top + 3, row.Rect.Right - 8, row.Rect.Bottom - 3);
        canvas.GetPen().SetStyle(psSolid);
    }
}

int TNavigation::PageAt(TPoint point) const {
    const auto row = std::ranges::find_if(FRows, [&](const TRow& r) { return r.Rect.Contains(point); });
    return row == FRows.end() ? -1 : row->PageIndex;
}

void TNavigation::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseDown(button, shift, x, y);
    if (!guard.IsAlive() || button != mbLeft) return;
    if (CanFocus()) SetFocus();
    SelectPage(PageAt({x, y}));
}

void TNavigation::MouseMove(TShiftState shift, int x, int y) {
    TCustomControl::MouseMove(shift, x, y);
    SetHotPage(PageAt({x, y}));
}

void TNavigation::MouseLeave() {
    TCustomControl::MouseLeave();
    SetHotPage(-1);
}

void TNavigation::SetHotPage(int index) {
    if (index == FHotPage) return;
    FHotPage = index;
    SetCursor(index < 0 ? crDefault : crHandPoint);
    Invalidate();
}

void TNavigation::KeyDown(WORD& key, TShiftState shift) {
    const int last = static_cast<int>(GalleryPages().size()) - 1;
    switch (key) {
        case VK_UP:
            return SelectPage(std::max(FPageIndex - 1, 0));
        case VK_DOWN:
            return SelectPage(std::min(FPageIndex + 1, last));
        case VK_HOME:
            return SelectPage(0);
        case VK_END:
            return SelectPage(last);
        default:
            TCustomControl::KeyDown(key, shift);
    }
}

}  // namespace gallery
