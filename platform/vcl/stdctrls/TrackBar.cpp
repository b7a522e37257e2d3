#include "platform/vcl/stdctrls/TrackBar.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

constexpr std::array OrientationNames{L"trHorizontal", L"trVertical"};

/// More ticks than any screen has pixels; the system keeps a number for each, and does without memory for
/// them badly.
constexpr int MostTicks = 16'384;

void RegisterSystemClass() {
    INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&wanted);
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TTrackBarOrientation>::Names() {
    return OrientationNames;
}

const TMetaClass& TTrackBar::StaticClass() {
    using C = TTrackBar;
    static const TMetaClass meta =
        DefineClass<C>(L"TTrackBar", TWinControl::StaticClass())
            .With(PlacementRows)
            .With(ParentColorRows)
            .With(StateRows)
            .With(TabRows)
            .Property(L"Frequency", &C::GetFrequency, &C::SetFrequency, 1)
            .Property(L"LineSize", &C::GetLineSize, &C::SetLineSize, 1)
            .Property(L"Max", &C::GetMax, &C::SetMax, 10)
            .Property(L"Min", &C::GetMin, &C::SetMin, 0)
            .Property(L"Orientation", &C::GetOrientation, &C::SetOrientation, trHorizontal)
            .Property(L"PageSize", &C::GetPageSize, &C::SetPageSize, 2)
            .Property(L"Position", &C::GetPosition, &C::SetPosition, 0)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange);
    return meta;
}

TTrackBar::TTrackBar(TComponent* AOwner) : TWinControl(AOwner) {
    ControlStyle = {csDoubleClicks};
    SetBounds(0, 0, 150, 45);
    SetTabStop(true);
}

void TTrackBar::SetOrientation(TTrackBarOrientation value) {
    if (value == FOrientation) return;
    FOrientation = value;
    if (!IsInState(csLoading)) SetBounds(GetLeft(), GetTop(), GetHeight(), GetWidth());
    RecreateWnd();
}

void TTrackBar::SetParams(int position, int min, int max) {
    if (max < min) throw EInvalidOperation(L"Track bar property out of range");
    position = std::clamp(position, min, max);
    const bool moved = position != FPosition;
    const bool scaled = min != FMin || max != FMax;
    if (!moved && !scaled) return;
    FMin = min;
    FMax = max;
    FPosition = position;
    if (scaled && HandleAllocated()) SendScale();
    if (HandleAllocated()) ::SendMessageW(WindowHandle(), TBM_SETPOS, TRUE, FPosition);
    if (moved) Changed();
}

void TTrackBar::SetLineSize(int value) {
    if (value == FLineSize) return;
    FLineSize = value;
    if (HandleAllocated()) ::SendMessageW(WindowHandle(), TBM_SETLINESIZE, 0, value);
}

void TTrackBar::SetPageSize(int value) {
    if (value == FPageSize) return;
    FPageSize = value;
    if (HandleAllocated()) ::SendMessageW(WindowHandle(), TBM_SETPAGESIZE, 0, value);
}

void TTrackBar::SetFrequency(int value) {
    if (value == FFrequency) return;
    FFrequency = value;
    if (HandleAllocated()) SendScale();
}

// Each change of the range makes the ticks anew, so there are none until the range is whole.
void TTrackBar::SendScale() {
    const HWND window = WindowHandle();
    const auto range = std::int64_t{FMax} - FMin;
    const auto frequency = FFrequency <= 0 ? 0 : std::max<std::int64_t>(FFrequency, range / MostTicks);
    ::SendMessageW(window, TBM_SETTICFREQ, 0, 0);
    ::SendMessageW(window, TBM_SETRANGEMIN, FALSE, FMin);
    ::SendMessageW(window, TBM_SETRANGEMAX, FALSE, FMax);
    ::SendMessageW(window, TBM_SETTICFREQ, static_cast<WPARAM>(frequency), 0);
}

void TTrackBar::CreateParams(TCreateParams& params) {
    RegisterSystemClass();
    TWinControl::CreateParams(params);
    CreateSubClass(params, TRACKBAR_CLASSW);
    params.Style |= TBS_AUTOTICKS | (FOrientation == trVertical ? TBS_VERT : TBS_HORZ);
}

void TTrackBar::CreateWnd() {
    TWinControl::CreateWnd();
    const HWND window = WindowHandle();
    ::SendMessageW(window, TBM_SETLINESIZE, 0, FLineSize);
    ::SendMessageW(window, TBM_SETPAGESIZE, 0, FPageSize);
    SendScale();
    ::SendMessageW(window, TBM_SETPOS, TRUE, FPosition);
}

void TTrackBar::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_HSCROLL:
        case CN_VSCROLL: {
            const int position = static_cast<int>(::SendMessageW(WindowHandle(), TBM_GETPOS, 0, 0));
            if (position == FPosition) break;
            FPosition = position;
            Changed();
            break;
        }
        default:
            TWinControl::Dispatch(message);
    }
}

void TTrackBar::Changed() {
    OnChange(this);
}

}  // namespace vcl
