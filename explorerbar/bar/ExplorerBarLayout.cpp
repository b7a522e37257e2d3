#include <algorithm>
#include <limits>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/bar/WhileScope.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace qv7skin {
namespace {

constexpr int Unlimited = std::numeric_limits<int>::max();

/// Whether all groups that show have the width.
bool HaveWidth(const TQV7SkinExplorerGroups& groups, int width) {
    for (int i = 0; i < groups.GetCount(); ++i)
        if (groups[i]->GetVisible() && groups[i]->GetWidth() != width) return false;
    return true;
}

}  // namespace

// --- layout

bool TQV7SkinExplorerBar::IsAnyClosing() const {
    for (int i = 0; i < FGroups->GetCount(); ++i)
        if ((*FGroups)[i]->GetVisible() && (*FGroups)[i]->GetState() == egsClosing) return true;
    return false;
}

/// Measures the groups for a width, as long as they are not higher than the limit; returns how high they are.
int TQV7SkinExplorerBar::MeasureGroups(int Width, int Limit) {
    TBitmap& buffer = FPaintBox->GetBuffer();
    int position = 1;
    for (int i = 0; i < FGroups->GetCount() && position <= Limit; ++i) {
        TQV7SkinExplorerGroup& group = *(*FGroups)[i];
        if (!group.GetVisible()) continue;
        group.SetWidth(Width);
        group.Measure(buffer, position);
    }
    return position;
}

/// Finds the height of the content, and whether it needs the scroll bar, for the width that is left then: so
/// the system hears of the scroll bar once, with its final range.
bool TQV7SkinExplorerBar::MeasureContent() {
    const int room = GetClientHeight();
    const TControlScrollBar& bar = GetVertScrollBar();
    // Without a window the scroll bar takes no room.
    const int barWidth = HandleAllocated() ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int wide = GetClientWidth() + (bar.IsScrollBarVisible() ? barWidth : 0);
    const int narrow = wide - barWidth;
    if (bar.GetVisible()) {
        FContentHeight = MeasureGroups(narrow, Unlimited);
        if (FContentHeight > room || IsAnyClosing()) return true;
    }
    const int withoutBar = MeasureGroups(wide, barWidth > 0 ? room : Unlimited);
    if (withoutBar <= room || barWidth == 0) {
        FContentHeight = withoutBar;
        return withoutBar > room;
    }
    // Pictures that are scaled to the width may fit beside the scroll bar only. It stays then.
    FContentHeight = std::max(MeasureGroups(narrow, Unlimited), room + 1);
    return true;
}

void TQV7SkinExplorerBar::Measure() {
    if (FMeasuring || FUpdating) return;
    const TLifeGuard guard(*this);
    {
        const TWhileScope measuring(*this, FMeasuring, true);
        FPaintBox->ReAssignBufferFont();
        const bool needsBar = MeasureContent();
        // The scroll range does not shrink under a closing group.
        const int room = GetClientHeight() - 1;
        FPaintBox->SetHeight(IsAnyClosing() && FContentHeight < room ? room : FContentHeight);
        if (guard.IsAlive()) GetVertScrollBar().SetVisible(needsBar);
    }
    // The system may have taken another width for it than it told.
    if (guard.IsAlive() && !HaveWidth(*FGroups, GetClientWidth())) Measure();
}

void TQV7SkinExplorerBar::GroupSlid() {
    if (FUpdating || NeedsMeasure) {
        NeedsMeasure = true;
        return Repaint();
    }
    const TLifeGuard guard(*this);
    {
        const TWhileScope keeping(*this, FKeepsHeights, true);
        Measure();
    }
    if (guard.IsAlive()) Repaint();
}

/// Whether the scroll bar shows when the content does not fit, and only then. While a group closes it stays.
bool TQV7SkinExplorerBar::HasRightScrollBar() const {
    const bool fits = FContentHeight <= GetClientHeight();
    return GetVertScrollBar().GetVisible() != fits || (fits && IsAnyClosing());
}

bool TQV7SkinExplorerBar::HoldsScrollBar(TScrollBarKind kind) const {
    return kind == sbVertical && FGroups && IsAnyClosing();
}

void TQV7SkinExplorerBar::Resize() {
    const TLifeGuard guard(*this);
    TScrollingWinControl::Resize();
    if (!guard.IsAlive() || !FGroups || FUpdating) return;
    // A scroll bar that was switched on before there was a window takes its room only now.
    bool changed = !FMeasuring && !(HasRightScrollBar() && HaveWidth(*FGroups, GetClientWidth()));
    if (GetWidth() != FLastWidth) {
        FLastWidth = GetWidth();
        FPaintBox->SetWidth(FLastWidth);
        changed = true;
    }
    if (!guard.IsAlive()) return;
    FPaintBox->FollowParent();
    if (!guard.IsAlive() || !changed) return;
    NeedsMeasure = false;
    Measure();
    if (guard.IsAlive()) Repaint();
}

void TQV7SkinExplorerBar::ScrollContent(int dx, int dy) {
    if (GetControlCount() > 1) return TScrollingWinControl::ScrollContent(dx, dy);
    FPaintBox->SetBounds(FPaintBox->GetLeft() + dx, FPaintBox->GetTop() + dy, FPaintBox->GetWidth(),
                         FPaintBox->GetHeight());
}

// --- painting

/// True when nothing of the bar's own ground is to be seen.
bool TQV7SkinExplorerBar::IsCovered() const {
    const TRect box = FPaintBox->GetBoundsRect();
    return box.Top <= 0 && box.Bottom >= GetClientHeight() && box.Right >= GetClientWidth();
}

void TQV7SkinExplorerBar::Repaint() {
    if (FUpdating) return;
    const TLifeGuard guard(*this);
    if (NeedsMeasure) {
        NeedsMeasure = false;
        Measure();
    }
    if (guard.IsAlive() && !IsCovered()) TScrollingWinControl::Repaint();
    if (guard.IsAlive()) FPaintBox->Repaint();
}

void TQV7SkinExplorerBar::PaintBuffer(TObject*, TBitmap* Buffer) {
    if (FUpdating) return;
    TCanvas& canvas = Buffer->GetCanvas();
    // The paint box has filled it with its own colour.
    if (FadeColor != FPaintBox->GetColor()) {
        canvas.GetBrush().SetStyle(bsSolid);
        canvas.GetBrush().SetColor(FadeColor);
        canvas.FillRect(canvas.GetClipRect());
    }
    const TWhileScope ground(*this, FGround, FadeColor);
    DrawGroups(*Buffer);
}

void TQV7SkinExplorerBar::DrawGroups(TBitmap& Buffer) {
    int left = 0;
    int top = 0;
    if (FPaintedAlone) {
        left = FPaintedAlone->HeaderRect().Left;
        top = FPaintedAlone->HeaderRect().Top;
        return FPaintedAlone->Draw(Buffer, left, top);
    }
    for (int i = 0; i < FGroups->GetCount(); ++i)
        if ((*FGroups)[i]->GetVisible()) (*FGroups)[i]->Draw(Buffer, left, top);
}

// --- the entrance animation

void TQV7SkinExplorerBar::ShowAnimate() {
    if (FUpdating || !FAnimate) return;
    FAnimFrame = 0;
    if (NeedsMeasure) {
        NeedsMeasure = false;
        Measure();
    }
    FAnimTimer.Start({this, &TQV7SkinExplorerBar::Timer});
    Timer(this);
}

void TQV7SkinExplorerBar::Timer(TObject*) {
    constexpr int Frames = 10;
    ++FAnimFrame;
    if (FAnimFrame < Frames) {
        const long double t = static_cast<long double>(FAnimFrame) / Frames;
        FPaintBox->ApplyDeform(1, t, t * t);
        return;
    }
    FAnimTimer.Stop();
    FPaintBox->NoDeform();
}

}  // namespace qv7skin
