#include <algorithm>

#include "platform/vcl/controls/Layout.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

void TWinControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight) {
    const TLifeGuard guard(*this);
    if (!NegotiateSize(AWidth, AHeight) || !guard.IsAlive()) return;
    const TRect next = TRect::OfSize(ALeft, ATop, AWidth, AHeight);
    if (next == GetBoundsRect()) return;
    if (FHandle)
        MoveWindowTo(next);
    else
        MoveWithoutWindow(next);
    if (guard.IsAlive()) RequestAlign();
}

void TWinControl::MoveWindowTo(const TRect& next) {
    if (::IsIconic(FHandle)) {
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        ::GetWindowPlacement(FHandle, &placement);
        placement.rcNormalPosition = next;
        ::SetWindowPlacement(FHandle, &placement);
        StoreBounds(next);
        return;
    }
    if (WindowPlace(next) != next || WindowPlace(GetBoundsRect()) != GetBoundsRect()) return MovePartly(next);
    // The window's own messages bring the new bounds back here.
    ::SetWindowPos(FHandle, nullptr, next.Left, next.Top, next.Width(), next.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

TRect TWinControl::WindowPlace(const TRect& bounds) const {
    const int Last = 32767;
    const auto place = [Last](int value) { return std::clamp(value, -Last - 1, Last); };
    return TRect::OfSize(place(bounds.Left), place(bounds.Top), std::min(bounds.Width(), Last),
                         std::min(bounds.Height(), Last));
}

/// The window can't tell the bounds, since it stands or will stand elsewhere.
void TWinControl::MovePartly(const TRect& next) {
    const TLifeGuard guard(*this);
    const TRect former = GetBoundsRect();
    const TRect window = WindowBounds();
    const TRect place = WindowPlace(next);
    const bool windowResized = place.Width() != window.Width() || place.Height() != window.Height();
    StoreBounds(next);
    PlaceWindow();
    const bool resized = next.Width() != former.Width() || next.Height() != former.Height();
    // Otherwise WM_SIZE did it.
    if (!guard.IsAlive() || !resized || windowResized) return;
    Realign();
    if (guard.IsAlive() && !IsInState(csLoading)) Resize();
}

void TWinControl::PlaceWindow() {
    if (!FHandle) return;
    const TRect place = WindowPlace(GetBoundsRect());
    if (place == WindowBounds()) return;
    ::SetWindowPos(FHandle, nullptr, place.Left, place.Top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void TWinControl::MoveWithoutWindow(const TRect& next) {
    const TLifeGuard guard(*this);
    const bool resized = next.Width() != GetWidth() || next.Height() != GetHeight();
    StoreBounds(next);
    if (!resized) return;
    Realign();
    if (guard.IsAlive() && !IsInState(csLoading)) Resize();
}

void TWinControl::WmWindowPosChanged(TMessage& message) {
    const WINDOWPOS& position = *message.As<WINDOWPOS>();
    const bool moved = !(position.flags & SWP_NOMOVE);
    const bool resized = !(position.flags & SWP_NOSIZE);
    if ((moved || resized) && !::IsIconic(FHandle)) {
        const TRect place = WindowPlace(GetBoundsRect());
        const TRect next =
            TRect::OfSize(moved ? position.x : place.Left, moved ? position.y : place.Top,
                          resized ? position.cx : place.Width(), resized ? position.cy : place.Height());
        if (next != place) StoreBounds(next);
    }
    // WM_SIZE and WM_MOVE come from here.
    DefaultHandler(message);
}

void TWinControl::WmSize(TMessage& message) {
    const TLifeGuard guard(*this);
    DefaultHandler(message);
    if (!guard.IsAlive() || message.WParam == SIZE_MINIMIZED || IsControlState(csCreating)) return;
    Realign();
    if (guard.IsAlive() && !IsInState(csLoading)) Resize();
}

/// Where the window stands, in the coordinates of bounds.
TRect TWinControl::WindowBounds() const {
    RECT bounds{};
    ::GetWindowRect(FHandle, &bounds);
    if (::GetWindowLongW(FHandle, GWL_STYLE) & WS_CHILD)
        ::MapWindowPoints(nullptr, ::GetParent(FHandle), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
}

void TWinControl::TakeWindowBounds() {
    if (::IsIconic(FHandle)) return;
    const TRect bounds = WindowBounds();
    if (bounds != WindowPlace(GetBoundsRect())) StoreBounds(bounds);
}

TRect TWinControl::GetClientRect() const {
    if (FHandle) {
        RECT client{};
        ::GetClientRect(FHandle, &client);
        return client;
    }
    const TSize frame = FrameSize();
    return {0, 0, std::max(GetWidth() - frame.Width, 0), std::max(GetHeight() - frame.Height, 0)};
}

TPoint TWinControl::GetClientOrigin() const {
    if (FHandle) {
        POINT origin{};
        ::ClientToScreen(FHandle, &origin);
        return origin;
    }
    return TControl::GetClientOrigin();
}

void TWinControl::SetClientSize(TSize value) {
    const TRect client = GetClientRect();
    SetBounds(GetLeft(), GetTop(), GetWidth() + value.Width - client.Width(),
              GetHeight() + value.Height - client.Height());
}

void TWinControl::AdjustClientRect(TRect& rect) {
    rect.Inflate(-FBorderWidth, -FBorderWidth);
}

void TWinControl::AlignControls(TControl* control, TRect& rect) {
    const TLifeGuard guard(*this);
    AdjustClientRect(rect);
    if (guard.IsAlive()) TControlLayout(*this, control, rect).Run();
}

void TWinControl::AlignControl(TControl* control) {
    if (IsInState(csDestroying)) return;
    if (FAlignLevel > 0 || IsInState(csLoading) || IsControlState(csCreating)) {
        SetControlState(csAlignmentNeeded, true);
        return;
    }
    const TLifeGuard guard(*this);
    ++FAlignLevel;
    try {
        TRect area = GetClientRect();
        AlignControls(control, area);
    } catch (...) {
        if (guard.IsAlive()) --FAlignLevel;
        throw;
    }
    if (!guard.IsAlive()) return;
    --FAlignLevel;
    // Children that asked meanwhile were part of this round.
    SetControlState(csAlignmentNeeded, false);
    if (GetAutoSize()) AdjustSize();
}

void TWinControl::EnableAlign() {
    if (--FAlignLevel == 0 && IsControlState(csAlignmentNeeded)) Realign();
}

bool TWinControl::CanAutoSize(int& newWidth, int& newHeight) {
    // The place that children take which do not themselves follow the right or bottom edge.
    int right = 0;
    int bottom = 0;
    bool anyAcross = false;
    bool anyDown = false;
    for (int i = 0; i < GetControlCount(); ++i) {
        const TControl& child = *GetControl(i);
        if (!child.IsShown()) continue;
        const TAlign align = child.GetAlign();
        const bool free = align == alNone || align == alCustom;
        if (align == alLeft || (free && !child.GetAnchors().Contains(akRight))) {
            right = std::max(right, child.GetLeft() + child.GetWidth());
            anyAcross = true;
        }
        if (align == alTop || (free && !child.GetAnchors().Contains(akBottom))) {
            bottom = std::max(bottom, child.GetTop() + child.GetHeight());
            anyDown = true;
        }
    }
    const TSize frame = FrameSize();
    if (anyAcross) newWidth = right + frame.Width + FBorderWidth;
    if (anyDown) newHeight = bottom + frame.Height + FBorderWidth;
    return true;
}

/// True when the windows of all children stand where their controls are, and will after the move.
bool TWinControl::HasWindowEverywhere(int dx, int dy) const {
    return std::ranges::all_of(FWinControls, [&](const TWinControl* child) {
        TRect bounds = child->GetBoundsRect();
        if (child->WindowPlace(bounds) != bounds) return false;
        bounds.Offset(dx, dy);
        return child->WindowPlace(bounds) == bounds;
    });
}

void TWinControl::ScrollBy(int dx, int dy) {
    if (dx == 0 && dy == 0) return;
    const auto shift = [&](TControl& child) {
        child.FLeft += dx;
        child.FTop += dy;
        child.FAnchorBase.Bounds.Offset(dx, dy);
    };
    for (TControl* child : FGraphicControls)
        shift(*child);
    if (!FHandle) {
        for (TWinControl* child : FWinControls)
            shift(*child);
        return;
    }
    const bool together = HasWindowEverywhere(dx, dy);
    // Windows of children move along and tell their controls.
    ::ScrollWindowEx(FHandle, dx, dy, nullptr, nullptr, nullptr, nullptr,
                     SW_INVALIDATE | SW_ERASE | (together ? SW_SCROLLCHILDREN : 0));
    // Otherwise one by one; nothing is laid out before all have moved.
    const TLifeGuard guard(*this);
    DisableAlign();
    for (std::size_t i = 0; guard.IsAlive() && i < FWinControls.size(); ++i) {
        TWinControl* child = FWinControls[i];
        if (!child->FHandle)
            shift(*child);
        else if (together)
            child->TakeWindowBounds();
        else
            child->SetBounds(child->GetLeft() + dx, child->GetTop() + dy, child->GetWidth(),
                             child->GetHeight());
    }
    if (guard.IsAlive()) EnableAlign();
}

}  // namespace vcl
