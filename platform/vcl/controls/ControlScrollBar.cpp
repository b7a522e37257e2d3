#include "platform/vcl/controls/ControlScrollBar.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/vcl/controls/ScrollingWinControl.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {
namespace {

constexpr std::array KindNames{L"sbHorizontal", L"sbVertical"};
constexpr std::array StyleNames{L"ssRegular", L"ssFlat", L"ssHotTrack"};

}  // namespace

std::span<const wchar_t* const> TEnumNames<TScrollBarKind>::Names() {
    return KindNames;
}

std::span<const wchar_t* const> TEnumNames<TScrollBarStyle>::Names() {
    return StyleNames;
}

const TMetaClass& TControlScrollBar::StaticClass() {
    using C = TControlScrollBar;
    static const TMetaClass meta = DefineClass<C>(L"TControlScrollBar", TPersistent::StaticClass())
                                       .Property(L"ButtonSize", &C::GetButtonSize, &C::SetButtonSize, 0)
                                       .Property(L"Color", &C::GetColor, &C::SetColor, clBtnHighlight)
                                       .Stored(&C::IsColorStored)
                                       .Identifiers(ColorIdentifiers())
                                       .Property(L"Increment", &C::GetIncrement, &C::SetIncrement, 8)
                                       .Stored(&C::IsIncrementStored)
                                       .Property(L"Margin", &C::GetMargin, &C::SetMargin, 0)
                                       .Property(L"ParentColor", &C::GetParentColor, &C::SetParentColor, true)
                                       .Property(L"Range", &C::GetRange, &C::SetRange, 0)
                                       .Stored(&C::IsRangeStored)
                                       .Property(L"Position", &C::GetPosition, &C::SetPosition, 0)
                                       .Property(L"Smooth", &C::GetSmooth, &C::SetSmooth, false)
                                       .Property(L"Size", &C::GetSize, &C::SetSize, 0)
                                       .Property(L"Style", &C::GetStyle, &C::SetStyle, ssRegular)
                                       .Property(L"ThumbSize", &C::GetThumbSize, &C::SetThumbSize, 0)
                                       .Property(L"Tracking", &C::GetTracking, &C::SetTracking, false)
                                       .Property(L"Visible", &C::GetVisible, &C::SetVisible, true);
    return meta;
}

void TControlScrollBar::Assign(const TPersistent* source) {
    const auto* other = dynamic_cast<const TControlScrollBar*>(source);
    if (!other) return TPersistent::Assign(source);
    FButtonSize = other->FButtonSize;
    FColor = other->FColor;
    FIncrement = other->FIncrement;
    FParentColor = other->FParentColor;
    FSmooth = other->FSmooth;
    FSize = other->FSize;
    FStyle = other->FStyle;
    FThumbSize = other->FThumbSize;
    FTracking = other->FTracking;
    FMargin = other->FMargin;
    const TLifeGuard guard(FControl);
    SetVisible(other->FVisible);
    if (guard.IsAlive() && other->IsRangeStored()) SetRange(other->FRange);
}

void TControlScrollBar::SetPosition(int value) {
    // A position that a form file brings may come before the range.
    if (FControl.IsInState(csLoading)) {
        FPosition = std::max(value, 0);
        return;
    }
    value = std::clamp(value, 0, FMaxPosition);
    if (value == FPosition) return;
    const int by = FPosition - value;
    FPosition = value;
    if (FControl.HandleAllocated() && FShown && FToldWindow) {
        SCROLLINFO info = FTold;
        info.nPos = FPosition;
        Tell(info);
    }
    if (FKind == sbVertical)
        FControl.ScrollContent(0, by);
    else
        FControl.ScrollContent(by, 0);
}

void TControlScrollBar::SetRange(int value) {
    FControl.FAutoScroll = false;
    value = std::max(value, 0);
    if (value == FRange) return;
    FRange = value;
    FControl.UpdateScrollBars();
}

void TControlScrollBar::SetVisible(bool value) {
    if (value == FVisible) return;
    FVisible = value;
    FControl.UpdateScrollBars();
}

void TControlScrollBar::SetMargin(int value) {
    if (value == FMargin) return;
    FMargin = value;
    FControl.AutoScrollRange();
}

void TControlScrollBar::SetColor(TColor value) {
    FColor = value;
    FParentColor = false;
}

int TControlScrollBar::GetPageIncrement() const {
    return std::max(static_cast<int>(std::int64_t{FPage} * 9 / 10), 1);
}

int TControlScrollBar::GetIncrement() const {
    return FSmooth ? std::max(GetPageIncrement() / 10, 1) : FIncrement;
}

bool TControlScrollBar::IsRangeStored() const {
    return !FControl.GetAutoScroll();
}

/// The system paints a bar at each call, which takes longer than all the rest of scrolling.
void TControlScrollBar::Tell(const SCROLLINFO& info) {
    const HWND window = FControl.WindowHandle();
    const bool known = FToldWindow == window && FTold.nMax == info.nMax && FTold.nPage == info.nPage &&
                       FTold.nPos == info.nPos && FTold.fMask == info.fMask;
    // A new window has no bar yet.
    if (known || (!FShown && FToldWindow != window)) return;
    FToldWindow = window;
    FTold = info;
    ::SetScrollInfo(window, SystemBar(), &info, TRUE);
}

void TControlScrollBar::Show(bool shown, int page) {
    FShown = shown;
    FPage = page;
    FMaxPosition = FVisible ? std::max(FRange - page, 0) : 0;
    const TLifeGuard guard(FControl);
    if (FControl.HandleAllocated()) {
        // A page larger than the range hides the bar, unless it is to stay: then it shows that nothing moves.
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | (shown && FMaxPosition == 0 ? SIF_DISABLENOSCROLL : 0);
        info.nMax = shown ? FRange - 1 : 0;
        info.nPage = static_cast<UINT>(shown ? page : 1);
        info.nPos = FPosition;
        Tell(info);
    }
    if (guard.IsAlive()) SetPosition(FPosition);
}

int TControlScrollBar::TrackedPosition(WORD packed) const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    // The message carries 16 bits; the whole position is known while it is about the thumb being dragged.
    const bool known = ::GetScrollInfo(FControl.WindowHandle(), SystemBar(), &info) != 0;
    return known && static_cast<WORD>(info.nTrackPos) == packed ? info.nTrackPos : packed;
}

void TControlScrollBar::HandleMessage(const TMessage& message) {
    switch (message.WParamLo()) {
        case SB_LINEUP:
            return SetPosition(FPosition - GetIncrement());
        case SB_LINEDOWN:
            return SetPosition(FPosition + GetIncrement());
        case SB_PAGEUP:
            return SetPosition(FPosition - GetPageIncrement());
        case SB_PAGEDOWN:
            return SetPosition(FPosition + GetPageIncrement());
        case SB_THUMBPOSITION:
            return SetPosition(TrackedPosition(message.WParamHi()));
        case SB_THUMBTRACK:
            if (FTracking) SetPosition(TrackedPosition(message.WParamHi()));
            return;
        case SB_TOP:
            return SetPosition(0);
        case SB_BOTTOM:
            return SetPosition(FMaxPosition);
        default:
            return;
    }
}

}  // namespace vcl
