#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/graphics/DeviceContexts.h"

// The parts of the window outside of its client area: bevels.

namespace vcl {
namespace {

UINT InnerEdge(TBevelCut cut) {
    if (cut == bvLowered) return BDR_SUNKENINNER;
    return cut == bvRaised ? BDR_RAISEDINNER : 0;
}

UINT OuterEdge(TBevelCut cut) {
    if (cut == bvLowered) return BDR_SUNKENOUTER;
    return cut == bvRaised ? BDR_RAISEDOUTER : 0;
}

UINT KindFlags(TBevelKind kind) {
    if (kind == bkSoft) return BF_SOFT;
    return kind == bkFlat ? BF_FLAT : 0;
}

}  // namespace

int TWinControl::BevelSize() const {
    if (FBevelKind == bkNone) return 0;
    return (FBevelInner != bvNone ? FBevelWidth : 0) + (FBevelOuter != bvNone ? FBevelWidth : 0);
}

TRect TWinControl::GetFrameInsets() const {
    const int size = BevelSize();
    return {FBevelEdges.Contains(beLeft) ? size : 0, FBevelEdges.Contains(beTop) ? size : 0,
            FBevelEdges.Contains(beRight) ? size : 0, FBevelEdges.Contains(beBottom) ? size : 0};
}

TSize TWinControl::FrameSize() const {
    if (FFrameKnown) return FFrame;
    const TRect insets = GetFrameInsets();
    return {insets.Left + insets.Right, insets.Top + insets.Bottom};
}

void TWinControl::WmNcCalcSize(TMessage& message) {
    DefaultHandler(message);
    if (BevelSize() == 0) return;
    const TRect insets = TWinControl::GetFrameInsets();
    RECT& area = *message.As<RECT>();
    area.left += insets.Left;
    area.top += insets.Top;
    area.right -= insets.Right;
    area.bottom -= insets.Bottom;
}

void TWinControl::WmNcPaint(TMessage& message) {
    const TLifeGuard guard(*this);
    DefaultHandler(message);
    if (!guard.IsAlive() || BevelSize() == 0) return;
    const TWindowDC dc = TWindowDC::OfWholeWindow(FHandle);
    DrawBevels(dc.Get());
}

void TWinControl::DrawBevels(HDC dc) const {
    UINT flags = KindFlags(FBevelKind);
    if (FBevelEdges.Contains(beLeft)) flags |= BF_LEFT;
    if (FBevelEdges.Contains(beTop)) flags |= BF_TOP;
    if (FBevelEdges.Contains(beRight)) flags |= BF_RIGHT;
    if (FBevelEdges.Contains(beBottom)) flags |= BF_BOTTOM;
    const UINT edges = InnerEdge(FBevelInner) | OuterEdge(FBevelOuter);
    RECT area{0, 0, GetWidth(), GetHeight()};
    for (int i = 0; i < FBevelWidth; ++i)
        ::DrawEdge(dc, &area, edges, flags | BF_ADJUST);
}

TPoint TWinControl::PaintFrameTo(HDC dc) {
    RECT area{0, 0, GetWidth(), GetHeight()};
    const auto style = static_cast<DWORD>(::GetWindowLongW(FHandle, GWL_STYLE));
    const auto exStyle = static_cast<DWORD>(::GetWindowLongW(FHandle, GWL_EXSTYLE));
    if (exStyle & WS_EX_CLIENTEDGE)
        ::DrawEdge(dc, &area, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    else if (style & WS_BORDER)
        ::DrawEdge(dc, &area, BDR_OUTER, BF_RECT | BF_ADJUST | BF_MONO);
    DrawBevels(dc);
    // Where the client area begins.
    RECT window{};
    ::GetWindowRect(FHandle, &window);
    POINT origin{};
    ::ClientToScreen(FHandle, &origin);
    return {origin.x - window.left, origin.y - window.top};
}

void TWinControl::CmBorderChanged() {
    if (!FHandle) return;
    ::SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    Invalidate();
}

void TWinControl::SetBevelInner(TBevelCut value) {
    if (value == FBevelInner) return;
    FBevelInner = value;
    Perform(CM_BORDERCHANGED);
}

void TWinControl::SetBevelOuter(TBevelCut value) {
    if (value == FBevelOuter) return;
    FBevelOuter = value;
    Perform(CM_BORDERCHANGED);
}

void TWinControl::SetBevelKind(TBevelKind value) {
    if (value == FBevelKind) return;
    FBevelKind = value;
    Perform(CM_BORDERCHANGED);
}

void TWinControl::SetBevelEdges(TBevelEdges value) {
    if (value == FBevelEdges) return;
    FBevelEdges = value;
    Perform(CM_BORDERCHANGED);
}

void TWinControl::SetBevelWidth(TBevelWidth value) {
    if (value == FBevelWidth) return;
    FBevelWidth = value;
    Perform(CM_BORDERCHANGED);
}

void TWinControl::SetBorderWidth(TBorderWidth value) {
    if (value == FBorderWidth) return;
    FBorderWidth = value;
    Realign();
    Invalidate();
}

}  // namespace vcl
