#include "platform/vcl/stdctrls/ScrollBar.h"

#include <algorithm>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

/// The system's codes (SB_...) come in the same order but for position and tracking.
TScrollCode ToScrollCode(WORD code) {
    switch (code) {
        case SB_LINEUP:
            return scLineUp;
        case SB_LINEDOWN:
            return scLineDown;
        case SB_PAGEUP:
            return scPageUp;
        case SB_PAGEDOWN:
            return scPageDown;
        case SB_THUMBPOSITION:
            return scPosition;
        case SB_THUMBTRACK:
            return scTrack;
        case SB_TOP:
            return scTop;
        case SB_BOTTOM:
            return scBottom;
        default:
            return scEndScroll;
    }
}

}  // namespace

const TMetaClass& TScrollBar::StaticClass() {
    using C = TScrollBar;
    static const TMetaClass meta = DefineClass<C>(L"TScrollBar", TWinControl::StaticClass())
                                       .With(PlacementRows)
                                       .With(StateRows)
                                       .With(TabRows)
                                       .Property(L"Kind", &C::GetKind, &C::SetKind, sbHorizontal)
                                       .Property(L"LargeChange", &C::GetLargeChange, &C::SetLargeChange, 1)
                                       .Property(L"Max", &C::GetMax, &C::SetMax, 100)
                                       .Property(L"Min", &C::GetMin, &C::SetMin, 0)
                                       .Property(L"PageSize", &C::GetPageSize, &C::SetPageSize, 0)
                                       .Property(L"Position", &C::GetPosition, &C::SetPosition, 0)
                                       .Property(L"SmallChange", &C::GetSmallChange, &C::SetSmallChange, 1)
                                       .With(KeyRows)
                                       .Event(L"OnChange", &C::OnChange)
                                       .Event(L"OnScroll", &C::OnScroll);
    return meta;
}

TScrollBar::TScrollBar(TComponent* AOwner) : TWinControl(AOwner) {
    ControlStyle = {csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, ::GetSystemMetrics(SM_CYHSCROLL));
    SetTabStop(true);
}

void TScrollBar::SetKind(TScrollBarKind value) {
    if (value == FKind) return;
    FKind = value;
    if (!IsInState(csLoading)) SetBounds(GetLeft(), GetTop(), GetHeight(), GetWidth());
    RecreateWnd();
}

void TScrollBar::SetPageSize(int value) {
    value = std::max(value, 0);
    if (value == FPageSize) return;
    FPageSize = value;
    UpdateScrollInfo();
}

int TScrollBar::Limit() const {
    return FPageSize > 0 ? std::max(FMin, FMax - FPageSize + 1) : FMax;
}

void TScrollBar::SetParams(int position, int min, int max) {
    if (max < min) throw EInvalidOperation(L"Scroll bar property out of range");
    const bool limitsChanged = min != FMin || max != FMax;
    FMin = min;
    FMax = max;
    position = std::clamp(position, FMin, Limit());
    const bool moved = position != FPosition;
    FPosition = position;
    if (!limitsChanged && !moved) return;
    UpdateScrollInfo();
    if (moved) Change();
}

void TScrollBar::UpdateScrollInfo() {
    if (!HandleAllocated()) return;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMin = FMin;
    info.nMax = FMax;
    info.nPage = static_cast<UINT>(FPageSize);
    info.nPos = FPosition;
    ::SetScrollInfo(WindowHandle(), SB_CTL, &info, TRUE);
}

void TScrollBar::CreateParams(TCreateParams& params) {
    TWinControl::CreateParams(params);
    CreateSubClass(params, L"SCROLLBAR");
    params.Style |= FKind == sbVertical ? SBS_VERT : SBS_HORZ;
}

void TScrollBar::CreateWnd() {
    TWinControl::CreateWnd();
    UpdateScrollInfo();
}

void TScrollBar::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_HSCROLL:
        case CN_VSCROLL:
            DoScroll(message);
            break;
        default:
            TWinControl::Dispatch(message);
    }
}

/// The position that follows from what the user did; it may lie outside of the limits.
std::int64_t TScrollBar::PositionAfter(TScrollCode code) const {
    const std::int64_t position = FPosition;
    switch (code) {
        case scLineUp:
            return position - FSmallChange;
        case scLineDown:
            return position + FSmallChange;
        case scPageUp:
            return position - FLargeChange;
        case scPageDown:
            return position + FLargeChange;
        case scPosition:
        case scTrack: {
            // The message carries 16 bits only.
            SCROLLINFO info{};
            info.cbSize = sizeof info;
            info.fMask = SIF_TRACKPOS;
            ::GetScrollInfo(WindowHandle(), SB_CTL, &info);
            return info.nTrackPos;
        }
        case scTop:
            return FMin;
        case scBottom:
            return FMax;
        default:
            return position;
    }
}

void TScrollBar::DoScroll(const TMessage& message) {
    const TScrollCode code = ToScrollCode(message.WParamLo());
    int wanted = static_cast<int>(std::clamp(PositionAfter(code), std::int64_t{FMin}, std::int64_t{Limit()}));
    const TLifeGuard guard(*this);
    Scroll(code, wanted);
    if (guard.IsAlive()) SetPosition(wanted);
}

void TScrollBar::Scroll(TScrollCode code, int& position) {
    OnScroll(this, code, position);
}

void TScrollBar::Change() {
    OnChange(this);
}

}  // namespace vcl
