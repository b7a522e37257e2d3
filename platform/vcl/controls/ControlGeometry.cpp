#include <algorithm>
#include <utility>

#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

TAnchors AnchorsOf(TAlign align) {
    switch (align) {
        case alTop:
            return {akLeft, akTop, akRight};
        case alBottom:
            return {akLeft, akRight, akBottom};
        case alLeft:
            return {akLeft, akTop, akBottom};
        case alRight:
            return {akRight, akTop, akBottom};
        case alClient:
            return {akLeft, akTop, akRight, akBottom};
        default:
            return {akLeft, akTop};
    }
}

/// True for alignments at edges that cross each other.
bool IsTurn(TAlign from, TAlign to) {
    const auto lies = [](TAlign align) { return align == alTop || align == alBottom; };
    const auto stands = [](TAlign align) { return align == alLeft || align == alRight; };
    return (lies(from) && stands(to)) || (stands(from) && lies(to));
}

int Limited(int value, int minimum, int maximum) {
    if (maximum > 0) value = std::min(value, maximum);
    return minimum > 0 ? std::max(value, minimum) : value;
}

}  // namespace

void TControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight) {
    const TLifeGuard guard(*this);
    if (!NegotiateSize(AWidth, AHeight) || !guard.IsAlive()) return;
    const TRect next = TRect::OfSize(ALeft, ATop, AWidth, AHeight);
    if (next == GetBoundsRect()) return;
    const bool resized = AWidth != FWidth || AHeight != FHeight;
    InvalidateControl(FVisible, false);
    StoreBounds(next);
    Invalidate();
    RequestAlign();
    if (resized && guard.IsAlive() && !IsInState(csLoading)) Resize();
}

bool TControl::NegotiateSize(int& width, int& height) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (IsInState(csLoading)) return true;
    const TLifeGuard guard(*this);
    if (width != FWidth || height != FHeight) {
        if (!CanResize(width, height) || !guard.IsAlive()) return false;
    }
    if (FAutoSize) {
        int fittingWidth = width;
        int fittingHeight = height;
        if (CanAutoSize(fittingWidth, fittingHeight)) {
            if (FAlign == alNone || FAlign == alLeft || FAlign == alRight) width = fittingWidth;
            if (FAlign == alNone || FAlign == alTop || FAlign == alBottom) height = fittingHeight;
        }
    }
    ApplyConstraints(width, height);
    return guard.IsAlive();
}

void TControl::ApplyConstraints(int& width, int& height) {
    int minWidth = FConstraints->GetMinWidth();
    int minHeight = FConstraints->GetMinHeight();
    int maxWidth = FConstraints->GetMaxWidth();
    int maxHeight = FConstraints->GetMaxHeight();
    ConstrainedResize(minWidth, minHeight, maxWidth, maxHeight);
    width = std::max(Limited(width, minWidth, maxWidth), 0);
    height = std::max(Limited(height, minHeight, maxHeight), 0);
}

void TControl::ConstraintsChanged(TObject*) {
    if (!IsInState(csLoading)) SetBounds(FLeft, FTop, FWidth, FHeight);
}

void TControl::StoreBounds(const TRect& bounds) {
    FLeft = bounds.Left;
    FTop = bounds.Top;
    FWidth = bounds.Width();
    FHeight = bounds.Height();
    UpdateAnchorBase();
}

void TControl::UpdateAnchorBase() {
    if (FInLayout) return;
    FAnchorBase.Bounds = GetBoundsRect();
    const TRect client = FParent ? FParent->GetClientRect() : TRect{};
    FAnchorBase.Parent = {client.Width(), client.Height()};
}

bool TControl::CanResize(int& newWidth, int& newHeight) {
    bool accepted = true;
    OnCanResize(this, newWidth, newHeight, accepted);
    return accepted;
}

bool TControl::CanAutoSize(int&, int&) {
    return true;
}

void TControl::ConstrainedResize(int& minWidth, int& minHeight, int& maxWidth, int& maxHeight) {
    OnConstrainedResize(this, minWidth, minHeight, maxWidth, maxHeight);
}

void TControl::Resize() {
    OnResize(this);
}

void TControl::AdjustSize() {
    if (!IsInState(csLoading)) SetBounds(FLeft, FTop, FWidth, FHeight);
}

void TControl::SetAutoSize(bool value) {
    if (value == FAutoSize) return;
    FAutoSize = value;
    if (value) AdjustSize();
}

void TControl::SetAlign(TAlign value) {
    if (value == FAlign) return;
    const TAlign former = std::exchange(FAlign, value);
    if (!FAnchorsRead && FAnchors == AnchorsOf(former)) FAnchors = AnchorsOf(value);
    UpdateAnchorBase();
    const TLifeGuard guard(*this);
    // A bar takes its thickness along.
    if (IsTurn(former, value) && !IsInState(csLoading)) SetBounds(FLeft, FTop, FHeight, FWidth);
    if (guard.IsAlive()) RequestAlign();
}

void TControl::SetAnchors(TAnchors value) {
    if (IsInState(csLoading)) FAnchorsRead = true;
    if (value == FAnchors) return;
    FAnchors = value;
    UpdateAnchorBase();
}

TAnchors TControl::GetAlignAnchors() const {
    return AnchorsOf(FAlign);
}

void TControl::RequestAlign() {
    if (FParent) FParent->AlignControl(this);
}

TRect TControl::GetClientRect() const {
    return {0, 0, FWidth, FHeight};
}

void TControl::SetClientSize(TSize value) {
    SetBounds(FLeft, FTop, value.Width, value.Height);
}

TPoint TControl::GetClientOrigin() const {
    if (!FParent) RaiseNoParentWindow();
    const TPoint origin = FParent->GetClientOrigin();
    return {origin.X + FLeft, origin.Y + FTop};
}

void TControl::RaiseNoParentWindow() const {
    throw EInvalidOperation(Format(L"Control '%s' has no parent window", GetName()));
}

TPoint TControl::ClientToScreen(TPoint point) const {
    const TPoint origin = GetClientOrigin();
    return {point.X + origin.X, point.Y + origin.Y};
}

TPoint TControl::ScreenToClient(TPoint point) const {
    const TPoint origin = GetClientOrigin();
    return {point.X - origin.X, point.Y - origin.Y};
}

TPoint TControl::ClientToParent(TPoint point, const TWinControl* ancestor) const {
    if (!ancestor) ancestor = FParent;
    for (const TControl* c = this; c != ancestor; c = c->FParent) {
        if (!c || !c->FParent) RaiseNoParentWindow();
        point.X += c->FLeft;
        point.Y += c->FTop;
    }
    return point;
}

TPoint TControl::ParentToClient(TPoint point, const TWinControl* ancestor) const {
    const TPoint origin = ClientToParent({0, 0}, ancestor);
    return {point.X - origin.X, point.Y - origin.Y};
}

void TControl::BringToFront() {
    SetZOrder(true);
}

void TControl::SendToBack() {
    SetZOrder(false);
}

void TControl::SetZOrder(bool topmost) {
    if (!FParent) return;
    auto& siblings = FParent->FGraphicControls;
    const auto place = std::ranges::find(siblings, this);
    if (place == siblings.end()) return;
    siblings.erase(place);
    siblings.insert(topmost ? siblings.end() : siblings.begin(), this);
    InvalidateControl(FVisible, true);
}

}  // namespace vcl
