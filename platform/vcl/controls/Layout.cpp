#include "platform/vcl/controls/Layout.h"

#include <algorithm>

#include "platform/vcl/controls/WinControl.h"

namespace vcl {
namespace {

/// The new place of one dimension: both edges anchored stretch, the far one alone moves along, none keeps the
/// middle at the same share of the parent.
struct TSpan {
    int Start;
    int Length;
};

TSpan KeepDistance(TSpan old, int oldParent, int newParent, bool nearEdge, bool farEdge) {
    const int change = newParent - oldParent;
    if (nearEdge && farEdge) return {old.Start, std::max(old.Length + change, 0)};
    if (farEdge) return {old.Start + change, old.Length};
    if (nearEdge || oldParent <= 0) return old;
    const int middle = ::MulDiv(2 * old.Start + old.Length, newParent, oldParent);
    return {(middle - old.Length) / 2, old.Length};
}

}  // namespace

void TControlLayout::Run() {
    if (!IsNeeded()) return;
    for (const TAlign align : {alTop, alBottom, alLeft, alRight, alClient, alCustom, alNone}) {
        Place(align);
        if (FStopped) return;
    }
}

bool TControlLayout::TakesPart(const TControl& control) const {
    return control.IsShown();
}

bool TControlLayout::IsNeeded() const {
    for (int i = 0; i < FParent.GetControlCount(); ++i) {
        const TControl& control = *FParent.GetControl(i);
        if (control.GetAlign() != alNone || control.GetAnchors() != TAnchors{akLeft, akTop}) return true;
    }
    return false;
}

/// By the edges that they keep to. A control without extent keeps its place before a neighbour at the same
/// edge, or a splitter could never open it again.
bool TControlLayout::ComesBefore(const TControl& a, const TControl& b, TAlign align) {
    switch (align) {
        case alTop:
            return a.GetTop() < b.GetTop() ||
                   (a.GetTop() == b.GetTop() && a.GetHeight() == 0 && b.GetHeight() > 0);
        case alBottom: {
            const int below = a.GetTop() + a.GetHeight() - b.GetTop() - b.GetHeight();
            return below > 0 || (below == 0 && (a.GetHeight() == 0 || b.GetHeight() > 0));
        }
        case alLeft:
            return a.GetLeft() < b.GetLeft() ||
                   (a.GetLeft() == b.GetLeft() && a.GetWidth() == 0 && b.GetWidth() > 0);
        case alRight: {
            const int further = a.GetLeft() + a.GetWidth() - b.GetLeft() - b.GetWidth();
            return further > 0 || (further == 0 && (a.GetWidth() == 0 || b.GetWidth() > 0));
        }
        default:
            return false;
    }
}

std::vector<TControl*> TControlLayout::InOrder(TAlign align) const {
    std::vector<TControl*> order;
    if (FChanged && FChanged->GetAlign() == align && TakesPart(*FChanged)) order.push_back(FChanged);
    for (int i = 0; i < FParent.GetControlCount(); ++i) {
        TControl* control = FParent.GetControl(i);
        if (control == FChanged || control->GetAlign() != align) continue;
        // Anchors hold for hidden controls too, so that they are right when they show again.
        if (align != alNone && !TakesPart(*control)) continue;
        const auto place = std::ranges::find_if(order, [&](TControl* other) {
            return align == alCustom ? FParent.CustomAlignInsertBefore(control, other)
                                     : ComesBefore(*control, *other, align);
        });
        order.insert(place, control);
    }
    if (align == alNone && FChanged && FChanged->GetAlign() == alNone && !TakesPart(*FChanged))
        order.push_back(FChanged);
    return order;
}

void TControlLayout::Place(TAlign align) {
    for (TControl* control : InOrder(align)) {
        // An event of a child placed before may have freed this one or moved it elsewhere.
        if (!FParent.HasChild(control)) continue;
        if (align == alNone)
            KeepAnchors(*control);
        else if (align == alCustom)
            PlaceCustom(*control);
        else
            PlaceAligned(*control, align);
        if (FStopped) return;
    }
}

/// Where the control goes: along its edge of the rectangle, or all of it.
TRect TControlLayout::AlignedBounds(const TControl& control, TAlign align) const {
    const int width = std::max(FRect.Width(), 0);
    const int height = std::max(FRect.Height(), 0);
    switch (align) {
        case alTop:
            return TRect::OfSize(FRect.Left, FRect.Top, width, control.GetHeight());
        case alBottom:
            return TRect::OfSize(FRect.Left, FRect.Bottom - control.GetHeight(), width, control.GetHeight());
        case alLeft:
            return TRect::OfSize(FRect.Left, FRect.Top, control.GetWidth(), height);
        case alRight:
            return TRect::OfSize(FRect.Right - control.GetWidth(), FRect.Top, control.GetWidth(), height);
        default:
            return TRect::OfSize(FRect.Left, FRect.Top, width, height);
    }
}

void TControlLayout::PlaceAligned(TControl& control, TAlign align) {
    SetBounds(control, AlignedBounds(control, align));
    if (!FStopped && FParent.HasChild(&control)) TakeAway(control, align);
}

/// Narrows the rectangle by the control. Constraints may have made that another size; the edge that it keeps
/// to counts.
void TControlLayout::TakeAway(TControl& control, TAlign align) {
    switch (align) {
        case alTop:
            FRect.Top += control.GetHeight();
            break;
        case alBottom:
            FRect.Bottom -= control.GetHeight();
            if (control.GetTop() != FRect.Bottom)
                SetBounds(control, TRect::OfSize(control.GetLeft(), FRect.Bottom, control.GetWidth(),
                                                 control.GetHeight()));
            break;
        case alLeft:
            FRect.Left += control.GetWidth();
            break;
        case alRight:
            FRect.Right -= control.GetWidth();
            if (control.GetLeft() != FRect.Right)
                SetBounds(control, TRect::OfSize(FRect.Right, control.GetTop(), control.GetWidth(),
                                                 control.GetHeight()));
            break;
        default:
            break;
    }
}

void TControlLayout::PlaceCustom(TControl& control) {
    int left = control.GetLeft();
    int top = control.GetTop();
    int width = control.GetWidth();
    int height = control.GetHeight();
    FParent.CustomAlignPosition(&control, left, top, width, height, FRect);
    SetBounds(control, TRect::OfSize(left, top, width, height));
}

void TControlLayout::KeepAnchors(TControl& control) {
    const TAnchors anchors = control.GetAnchors();
    if (anchors == TAnchors{akLeft, akTop}) return;
    const TControl::TAnchorBase& base = control.FAnchorBase;
    const TRect client = FParent.GetClientRect();
    const TSpan x = KeepDistance({base.Bounds.Left, base.Bounds.Width()}, base.Parent.Width, client.Width(),
                                 anchors.Contains(akLeft), anchors.Contains(akRight));
    const TSpan y = KeepDistance({base.Bounds.Top, base.Bounds.Height()}, base.Parent.Height, client.Height(),
                                 anchors.Contains(akTop), anchors.Contains(akBottom));
    SetBounds(control, TRect::OfSize(x.Start, y.Start, x.Length, y.Length));
}

void TControlLayout::SetBounds(TControl& control, const TRect& bounds) {
    if (bounds == control.GetBoundsRect()) return;
    const TLifeGuard parentGuard(FParent);
    const TLifeGuard guard(control);
    control.FInLayout = true;
    control.SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
    if (guard.IsAlive()) control.FInLayout = false;
    FStopped = !parentGuard.IsAlive();
}

}  // namespace vcl
