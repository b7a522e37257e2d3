#include <optional>

#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/PaintBuffer.h"
#include "platform/vcl/controls/StateScope.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace vcl {
namespace {

/// Moves the origin of a device context and clips it to a size, until the end of the scope.
class TShiftedDC {
public:
    TShiftedDC(HDC dc, int dx, int dy, int width, int height) : FSaved(dc) {
        POINT origin{};
        ::GetWindowOrgEx(dc, &origin);
        ::SetWindowOrgEx(dc, origin.x - dx, origin.y - dy, nullptr);
        ::IntersectClipRect(dc, 0, 0, width, height);
    }

private:
    TSaveDC FSaved;
};

}  // namespace

bool TWinControl::GetShowing() const {
    for (const TWinControl* c = this; c; c = c->GetParent()) {
        if (!c->FShowing) return false;
    }
    return true;
}

void TWinControl::Invalidate() {
    Perform(CM_INVALIDATE);
}

void TWinControl::CmInvalidate(const TMessage& message) {
    if (!FHandle) return;
    if (GetParent()) GetParent()->Perform(CM_INVALIDATE, 1);
    if (message.WParam == 0) ::InvalidateRect(FHandle, nullptr, !ControlStyle.Contains(csOpaque));
}

void TWinControl::Update() {
    if (FHandle) ::UpdateWindow(FHandle);
}

bool TWinControl::CanPaintAtOnce() const {
    if (!IsControlState(csCustomPaint)) return false;
    // Without this style a device context of the window reaches the children's area, too.
    return FWinControls.empty() || (::GetWindowLongW(FHandle, GWL_STYLE) & WS_CLIPCHILDREN) != 0;
}

void TWinControl::Repaint() {
    if (!FHandle || !GetShowing()) return;
    if (!CanPaintAtOnce()) {
        Invalidate();
        return Update();
    }
    const TWindowDC dc(FHandle);
    const TRect client = GetClientRect();
    if (FDoubleBuffered) return PaintBuffered(dc.Get(), client);
    const TLifeGuard guard(*this);
    if (!ControlStyle.Contains(csOpaque)) Perform(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.Get()));
    if (guard.IsAlive()) Perform(WM_PAINT, reinterpret_cast<WPARAM>(dc.Get()));
}

void TWinControl::PaintBuffered(HDC target, const TRect& area) {
    const TRect client = GetClientRect();
    const TRect clip = area.Intersect(client);
    if (clip.IsEmpty()) return;
    const TLifeGuard guard(*this);
    const TPaintBuffer buffer(target, {client.Width(), client.Height()}, clip);
    const auto dc = reinterpret_cast<WPARAM>(buffer.DC());
    // Both parameters the same: the sign that the background is erased in the buffer.
    Perform(WM_ERASEBKGND, dc, static_cast<LPARAM>(dc));
    if (guard.IsAlive()) Perform(WM_PAINT, dc);
    if (guard.IsAlive()) buffer.Show();
}

void TWinControl::WmPaint(TMessage& message) {
    const bool ownPaint = IsControlState(csCustomPaint) || !FGraphicControls.empty();
    if (!message.WParam && FDoubleBuffered && IsControlState(csCustomPaint)) {
        const TPaintDC paint(FHandle);
        PaintBuffered(paint.Get(), paint.Rect());
    } else if (ownPaint) {
        PaintHandler(message);
    } else {
        DefaultHandler(message);
    }
}

void TWinControl::WmPrintClient(TMessage& message) {
    if (!IsControlState(csCustomPaint)) return DefaultHandler(message);
    const TLifeGuard guard(*this);
    Perform(WM_ERASEBKGND, message.WParam, static_cast<LPARAM>(message.WParam));
    if (guard.IsAlive()) Perform(WM_PAINT, message.WParam);
}

void TWinControl::PaintHandler(TMessage& message) {
    auto dc = reinterpret_cast<HDC>(message.WParam);
    std::optional<TPaintDC> paint;
    if (!dc) {
        paint.emplace(FHandle);
        dc = paint->Get();
    }
    const TLifeGuard guard(*this);
    if (FGraphicControls.empty()) return PaintWindow(dc);
    {
        const TSaveDC saved(dc);
        int visibleRegion = SIMPLEREGION;
        for (const TControl* control : FGraphicControls) {
            if (!control->IsShown() || !control->ControlStyle.Contains(csOpaque)) continue;
            const TRect r = control->GetBoundsRect();
            visibleRegion = ::ExcludeClipRect(dc, r.Left, r.Top, r.Right, r.Bottom);
            if (visibleRegion == NULLREGION) break;
        }
        if (visibleRegion != NULLREGION) PaintWindow(dc);
    }
    if (guard.IsAlive()) PaintControls(dc, nullptr);
}

void TWinControl::PaintWindow(HDC dc) {
    if (!IsSystemClass()) return;
    TMessage message{WM_PAINT, reinterpret_cast<WPARAM>(dc), 0, 0};
    DefaultHandler(message);
}

void TWinControl::PaintControls(HDC dc, TControl* first) {
    const TLifeGuard guard(*this);
    bool reached = first == nullptr;
    for (std::size_t i = 0; guard.IsAlive() && i < FGraphicControls.size(); ++i) {
        TControl* control = FGraphicControls[i];
        reached = reached || control == first;
        const RECT bounds = control->GetBoundsRect();
        if (!reached || !control->IsShown() || !::RectVisible(dc, &bounds)) continue;
        const TShiftedDC shifted(dc, control->GetLeft(), control->GetTop(), control->GetWidth(),
                                 control->GetHeight());
        control->Perform(WM_PAINT, reinterpret_cast<WPARAM>(dc));
    }
}

void TWinControl::PaintTo(HDC dc, int x, int y) {
    HandleNeeded();
    const TLifeGuard guard(*this);
    const TStateScope copying(*this, csPaintCopy);
    const TShiftedDC whole(dc, x, y, GetWidth(), GetHeight());
    const TPoint inside = PaintFrameTo(dc);
    {
        const TRect client = GetClientRect();
        const TShiftedDC shifted(dc, inside.X, inside.Y, client.Width(), client.Height());
        Perform(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(dc));
        if (guard.IsAlive()) Perform(WM_PAINT, reinterpret_cast<WPARAM>(dc));
        for (std::size_t i = 0; guard.IsAlive() && i < FWinControls.size(); ++i) {
            TWinControl* child = FWinControls[i];
            if (child->IsShown()) child->PaintTo(dc, child->GetLeft(), child->GetTop());
        }
    }
}

void TWinControl::WmEraseBkgnd(TMessage& message) {
    const auto dc = reinterpret_cast<HDC>(message.WParam);
    const bool intoBuffer = message.WParam == static_cast<WPARAM>(message.LParam);
    message.Result = 1;
    // What is painted through a buffer is erased there.
    if (FDoubleBuffered && IsControlState(csCustomPaint) && !intoBuffer) return;
    if (GetParentBackground() && GetParent()) return PaintParentBackground(dc);
    const RECT client = GetClientRect();
    ::FillRect(dc, &client, FBrush->GetHandle());
}

void TWinControl::PaintParentBackground(HDC dc) {
    TWinControl& parent = *GetParent();
    const TRect area = parent.GetClientRect();
    const TRect client = GetClientRect();
    const TPoint inside = GetClientOrigin();
    const TPoint outside = parent.GetClientOrigin();
    const TSaveDC saved(dc);
    ::IntersectClipRect(dc, client.Left, client.Top, client.Right, client.Bottom);
    const TShiftedDC shifted(dc, outside.X - inside.X, outside.Y - inside.Y, area.Width(), area.Height());
    const TLifeGuard guard(parent);
    parent.Perform(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(dc));
    if (guard.IsAlive() && parent.IsControlState(csCustomPaint)) parent.PaintWindow(dc);
}

void TWinControl::SetParentBackground(bool value) {
    if (value == GetParentBackground()) return;
    ControlStyle.Put(csParentBackground, value);
    Invalidate();
}

HDC TWinControl::GetDeviceContext(HWND& window) {
    window = GetHandle();
    const HDC dc = ::GetDC(window);
    if (!dc) throw EOutOfResources(L"Error creating window device context");
    return dc;
}

}  // namespace vcl
