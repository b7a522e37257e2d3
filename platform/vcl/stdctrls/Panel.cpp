#include "platform/vcl/stdctrls/Panel.h"

#include <algorithm>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Frame3D.h"
#include "platform/vcl/stdctrls/WindowBorder.h"

namespace vcl {
namespace {

void DrawBevel(TCanvas& canvas, TRect& rect, TBevelCut cut, int width) {
    switch (cut) {
        case bvLowered:
            Frame3D(canvas, rect, clBtnShadow, clBtnHighlight, width);
            break;
        case bvRaised:
            Frame3D(canvas, rect, clBtnHighlight, clBtnShadow, width);
            break;
        case bvSpace:
            rect.Inflate(-width, -width);
            break;
        default:
            break;
    }
}

constexpr auto PanelColorRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return ColorRows(std::move(table), clBtnFace, false);
};

}  // namespace

const TMetaClass& TCustomPanel::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomPanel>(L"TCustomPanel", TCustomControl::StaticClass());
    return meta;
}

TCustomPanel::TCustomPanel(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption,
                    csOpaque,          csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 41);
    SetColor(clBtnFace);
    SetParentColor(false);
}

void TCustomPanel::SetAlignment(TAlignment value) {
    if (value == FAlignment) return;
    FAlignment = value;
    Invalidate();
}

void TCustomPanel::SetVerticalAlignment(TTextLayout value) {
    if (value == FVerticalAlignment) return;
    FVerticalAlignment = value;
    Invalidate();
}

void TCustomPanel::SetBevelInner(TBevelCut value) {
    if (value == FBevelInner) return;
    FBevelInner = value;
    BorderChanged();
}

void TCustomPanel::SetBevelOuter(TBevelCut value) {
    if (value == FBevelOuter) return;
    FBevelOuter = value;
    BorderChanged();
}

void TCustomPanel::SetBevelWidth(TBevelWidth value) {
    value = std::max(value, 1);
    if (value == FBevelWidth) return;
    FBevelWidth = value;
    BorderChanged();
}

void TCustomPanel::SetBorderWidth(TBorderWidth value) {
    value = std::max(value, 0);
    if (value == FBorderWidth) return;
    FBorderWidth = value;
    BorderChanged();
}

void TCustomPanel::SetBorderStyle(TBorderStyle value) {
    if (value == FBorderStyle) return;
    FBorderStyle = value;
    RecreateWnd();
}

void TCustomPanel::SetShowCaption(bool value) {
    if (value == FShowCaption) return;
    FShowCaption = value;
    Invalidate();
}

void TCustomPanel::SetParentBackground(bool value) {
    // Only a panel that fills itself is opaque.
    ControlStyle.Put(csOpaque, !value);
    TCustomControl::SetParentBackground(value);
}

void TCustomPanel::BorderChanged() {
    Realign();
    Invalidate();
}

void TCustomPanel::CreateParams(TCreateParams& params) {
    TCustomControl::CreateParams(params);
    if (FBorderStyle == bsSingle) AddWindowBorder(params, GetCtl3D());
}

TRect TCustomPanel::GetFrameInsets() const {
    const TRect insets = TCustomControl::GetFrameInsets();
    return FBorderStyle == bsSingle ? WithWindowBorder(insets, GetCtl3D()) : insets;
}

int TCustomPanel::BevelExtent() const {
    const int bevels = (FBevelInner != bvNone ? 1 : 0) + (FBevelOuter != bvNone ? 1 : 0);
    return bevels * FBevelWidth + FBorderWidth;
}

void TCustomPanel::AdjustClientRect(TRect& rect) {
    TCustomControl::AdjustClientRect(rect);
    rect.Inflate(-BevelExtent(), -BevelExtent());
}

bool TCustomPanel::CanAutoSize(int& newWidth, int& newHeight) {
    // Without children there is nothing that a size could follow.
    return GetControlCount() > 0 && TCustomControl::CanAutoSize(newWidth, newHeight);
}

void TCustomPanel::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    switch (message.Msg) {
        case CM_BORDERCHANGED:
        case CM_ENABLEDCHANGED:
        case CM_TEXTCHANGED:
            TCustomControl::Dispatch(message);
            if (guard.IsAlive()) Invalidate();
            break;
        case CM_CTL3DCHANGED:
            if (FBorderStyle == bsSingle) RecreateWnd();
            if (guard.IsAlive()) TCustomControl::Dispatch(message);
            break;
        case CM_ISTOOLCONTROL:
            message.Result = 1;
            break;
        case WM_SIZE:
            TCustomControl::Dispatch(message);
            if (guard.IsAlive()) SizeChanged();
            break;
        default:
            TCustomControl::Dispatch(message);
    }
}

/// The system repaints what became visible; bevels and a caption that is not at the left have moved, too.
void TCustomPanel::SizeChanged() {
    const TSize now{GetClientWidth(), GetClientHeight()};
    const TSize old = std::exchange(FPaintedSize, now);
    if (now == old) return;
    if (FFullRepaint || !GetCaption().empty()) {
        Invalidate();
    } else if (HandleAllocated()) {
        const int edge = BevelExtent();
        const int right = std::min(now.Width, old.Width) - edge;
        const int bottom = std::min(now.Height, old.Height) - edge;
        for (const TRect& stale :
             {TRect{right, 0, now.Width, now.Height}, TRect{0, bottom, now.Width, now.Height}})
            ::InvalidateRect(WindowHandle(), stale.AsRect(), FALSE);
    }
}

void TCustomPanel::Paint() {
    TCanvas& canvas = GetCanvas();
    TRect rect = GetClientRect();
    canvas.GetBrush().SetStyle(bsSolid);
    DrawBevel(canvas, rect, FBevelOuter, FBevelWidth);
    if (GetParentBackground()) {
        rect.Inflate(-FBorderWidth, -FBorderWidth);
    } else {
        Frame3D(canvas, rect, GetColor(), GetColor(), FBorderWidth);
    }
    DrawBevel(canvas, rect, FBevelInner, FBevelWidth);
    if (!GetParentBackground()) {
        canvas.GetBrush().SetColor(GetColor());
        canvas.FillRect(rect);
    }
    if (FShowCaption && !GetCaption().empty()) DrawCaption(rect);
}

void TCustomPanel::DrawCaption(TRect rect) {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    if (!GetEnabled()) canvas.GetFont().SetColor(clGrayText);
    canvas.GetBrush().SetStyle(bsClear);
    static constexpr unsigned Vertical[] = {DT_TOP, DT_VCENTER, DT_BOTTOM};
    canvas.TextRect(rect, GetCaption(),
                    DT_EXPANDTABS | DT_SINGLELINE | AlignmentToDrawText(FAlignment) |
                        Vertical[static_cast<int>(FVerticalAlignment)]);
}

const TMetaClass& TPanel::StaticClass() {
    using C = TPanel;
    static const TMetaClass meta =
        DefineClass<C>(L"TPanel", TCustomPanel::StaticClass())
            .With(PlacementRows)
            .With(PanelColorRows)
            .With(FontRows)
            .With(StateRows)
            .With(WindowRows)
            .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taCenter)
            .Property(L"AutoSize", &C::GetAutoSize, &C::SetAutoSize, false)
            .Property(L"BevelInner", &C::GetBevelInner, &C::SetBevelInner, bvNone)
            .Property(L"BevelOuter", &C::GetBevelOuter, &C::SetBevelOuter, bvRaised)
            .Property(L"BevelWidth", &C::GetBevelWidth, &C::SetBevelWidth, 1)
            .Property(L"BorderStyle", &C::GetBorderStyle, &C::SetBorderStyle, bsNone)
            .Property(L"BorderWidth", &C::GetBorderWidth, &C::SetBorderWidth, 0)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .Stored(&C::IsCaptionStored)
            .Property(L"FullRepaint", &C::GetFullRepaint, &C::SetFullRepaint, true)
            .Property(L"ParentBackground", &C::GetParentBackground, &C::SetParentBackground, false)
            .Property(L"ShowCaption", &C::GetShowCaption, &C::SetShowCaption, true)
            .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
            .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
            .Property(L"VerticalAlignment", &C::GetVerticalAlignment, &C::SetVerticalAlignment, tlCenter)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows)
            .With(ResizeRows)
            .Event(L"OnEnter", &C::OnEnter)
            .Event(L"OnExit", &C::OnExit);
    return meta;
}

}  // namespace vcl
