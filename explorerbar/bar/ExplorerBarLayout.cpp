#include <limits>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace qv7skin {
namespace {

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

void TQV7SkinExplorerBar::Measure() {
    if (FMeasuring) return;
    FMeasuring = true;
    const TLifeGuard guard(*this);
    FPaintBox->ReAssignBufferFont();
    TBitmap& buffer = FPaintBox->GetBuffer();
    // When it is clear that the scroll bar has to come, all is measured for the width that it leaves.
    const bool mayCome = !FUpdating && HandleAllocated() && !GetVertScrollBar().GetVisible();
    const int limit = mayCome ? GetClientHeight() : std::numeric_limits<int>::max();
    int position = 1;
    for (int i = 0; i < FGroups->GetCount() && position <= limit; ++i)
        if ((*FGroups)[i]->GetVisible()) (*FGroups)[i]->Measure(buffer, position);
    // The scroll range does not shrink under a closing group.
    const int room = GetClientHeight() - 1;
    FContentHeight = position;
    FPaintBox->SetHeight(IsAnyClosing() && position < room ? room : position);
    if (!guard.IsAlive()) return;
    const bool switched = !FUpdating && SwitchScrollBar();
    if (!guard.IsAlive()) return;
    FMeasuring = false;
    if (switched) LayOutGroups();
}

void TQV7SkinExplorerBar::GroupSlid() {
    if (!FUpdating && !NeedsMeasure) {
        const TLifeGuard guard(*this);
        FKeepsHeights = true;
        Measure();
        if (!guard.IsAlive()) return;
        FKeepsHeights = false;
    } else {
        NeedsMeasure = true;
    }
    Repaint();
}

/// Shows the scroll bar when the content does not fit, and takes it away when it does; true when it did.
bool TQV7SkinExplorerBar::SwitchScrollBar() {
    TControlScrollBar& bar = GetVertScrollBar();
    const bool fits = FContentHeight <= GetClientHeight();
    if (bar.GetVisible() != fits) return false;
    if (fits && IsAnyClosing()) return false;
    bar.SetVisible(!fits);
    return true;
}

/// The width for the groups changed.
void TQV7SkinExplorerBar::LayOutGroups() {
    for (int i = 0; i < FGroups->GetCount(); ++i) {
        TQV7SkinExplorerGroup& group = *(*FGroups)[i];
        if (group.GetVisible()) group.SetWidth(GetClientWidth());
    }
    Measure();
}

bool TQV7SkinExplorerBar::HoldsScrollBar(TScrollBarKind kind) const {
    return kind == sbVertical && FGroups && IsAnyClosing();
}

void TQV7SkinExplorerBar::Resize() {
    const TLifeGuard guard(*this);
    TScrollingWinControl::Resize();
    if (!guard.IsAlive() || !FGroups || FUpdating) return;
    bool changed = !FMeasuring && SwitchScrollBar();
    // A scroll bar that was switched on before there was a window takes its room only now.
    changed = changed || (!FMeasuring && !HaveWidth(*FGroups, GetClientWidth()));
    if (GetWidth() != FLastWidth) {
        FLastWidth = GetWidth();
        FPaintBox->SetWidth(FLastWidth);
        changed = true;
    }
    if (!guard.IsAlive()) return;
    FPaintBox->FollowParent();
    if (!guard.IsAlive() || !changed) return;
    NeedsMeasure = false;
    LayOutGroups();
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
    const TLifeGuard guard(*this);
    FGround = FadeColor;
    try {
        DrawGroups(*Buffer);
    } catch (...) {
        if (guard.IsAlive()) FGround = clNone;
        throw;
    }
    if (guard.IsAlive()) FGround = clNone;
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
    FAnimTimer->SetEnabled(true);
    Timer(FAnimTimer.get());
}

void TQV7SkinExplorerBar::Timer(TObject*) {
    constexpr int Frames = 10;
    ++FAnimFrame;
    if (FAnimFrame < Frames) {
        const long double t = static_cast<long double>(FAnimFrame) / Frames;
        FPaintBox->ApplyDeform(1, t, t * t);
        return;
    }
    FAnimTimer->SetEnabled(false);
    FPaintBox->NoDeform();
}

}  // namespace qv7skin
