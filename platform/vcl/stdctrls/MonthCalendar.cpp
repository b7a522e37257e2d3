#include "platform/vcl/stdctrls/MonthCalendar.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>

#include "platform/vcl/controls/ControlParts.h"
#include "platform/vcl/controls/PublishedRows.h"

namespace vcl {
namespace {

/// The first day that the system's calendar can show.
constexpr TDateParts FirstDay{1752, 9, 14};

SYSTEMTIME ToSystemTime(TDate date) {
    TDateParts parts = DecodeDate(date);
    if (const TDate first = *TryEncodeDate(FirstDay); date < first) parts = FirstDay;
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(parts.Year);
    time.wMonth = static_cast<WORD>(parts.Month);
    time.wDay = static_cast<WORD>(parts.Day);
    return time;
}

TDate FromSystemTime(const SYSTEMTIME& time) {
    return TryEncodeDate({time.wYear, time.wMonth, time.wDay}).value_or(0);
}

/// The same day in a month that lies so many months away, or the last one there.
TDate AddMonths(TDate date, int months) {
    TDateParts parts = DecodeDate(date);
    const int month = parts.Year * 12 + parts.Month - 1 + months;
    parts.Year = month / 12;
    parts.Month = month % 12 + 1;
    parts.Day = std::min(parts.Day, DaysInMonth(parts.Year, parts.Month));
    return TryEncodeDate(parts).value_or(date);
}

}  // namespace

// --- colours

const TMetaClass& TMonthCalColors::StaticClass() {
    using C = TMonthCalColors;
    static const TMetaClass meta =
        DefineClass<C>(L"TMonthCalColors", TPersistent::StaticClass())
            .Property(L"BackColor", &C::GetBackColor, &C::SetBackColor, clWindow)
            .Identifiers(ColorIdentifiers())
            .Property(L"TextColor", &C::GetTextColor, &C::SetTextColor, clWindowText)
            .Identifiers(ColorIdentifiers())
            .Property(L"TitleBackColor", &C::GetTitleBackColor, &C::SetTitleBackColor, clActiveCaption)
            .Identifiers(ColorIdentifiers())
            .Property(L"TitleTextColor", &C::GetTitleTextColor, &C::SetTitleTextColor, clWhite)
            .Identifiers(ColorIdentifiers())
            .Property(L"MonthBackColor", &C::GetMonthBackColor, &C::SetMonthBackColor, clWhite)
            .Identifiers(ColorIdentifiers())
            .Property(L"TrailingTextColor", &C::GetTrailingTextColor, &C::SetTrailingTextColor,
                      clInactiveCaptionText)
            .Identifiers(ColorIdentifiers());
    return meta;
}

void TMonthCalColors::Assign(const TPersistent* source) {
    const auto* other = dynamic_cast<const TMonthCalColors*>(source);
    if (!other) return TPersistent::Assign(source);
    FBackColor = other->FBackColor;
    FTextColor = other->FTextColor;
    FTitleBackColor = other->FTitleBackColor;
    FTitleTextColor = other->FTitleTextColor;
    FMonthBackColor = other->FMonthBackColor;
    FTrailingTextColor = other->FTrailingTextColor;
    Apply();
}

void TMonthCalColors::Set(TColor& color, TColor value) {
    if (color == value) return;
    color = value;
    Apply();
}

void TMonthCalColors::Apply() const {
    if (!FOwner.HandleAllocated()) return;
    const auto give = [this](WPARAM part, TColor color) {
        ::SendMessageW(FOwner.WindowHandle(), MCM_SETCOLOR, part, static_cast<LPARAM>(ColorToRGB(color)));
    };
    give(MCSC_BACKGROUND, FBackColor);
    give(MCSC_TEXT, FTextColor);
    give(MCSC_TITLEBK, FTitleBackColor);
    give(MCSC_TITLETEXT, FTitleTextColor);
    give(MCSC_MONTHBK, FMonthBackColor);
    give(MCSC_TRAILINGTEXT, FTrailingTextColor);
}

// --- the calendar

const TMetaClass& TMonthCalendar::StaticClass() {
    using C = TMonthCalendar;
    static const TMetaClass meta =
        DefineClass<C>(L"TMonthCalendar", TWinControl::StaticClass())
            .With(PlacementRows)
            .With(FontRows)
            .With(StateRows)
            .With(TabRows)
            .Property(L"CalColors", &C::GetCalColors, &C::SetCalColors)
            .Property(L"Date", &C::GetDate, &C::SetDate)
            .Property(L"ShowToday", &C::GetShowToday, &C::SetShowToday, true)
            .Property(L"WeekNumbers", &C::GetWeekNumbers, &C::SetWeekNumbers, false)
            .With(MouseRows)
            .With(KeyRows);
    return meta;
}

TMonthCalendar::TMonthCalendar(TComponent* AOwner)
    : TWinControl(AOwner), FCalColors(std::make_unique<TMonthCalColors>(*this)), FDate(Today()) {
    ControlStyle = {csOpaque, csDoubleClicks, csReflector};
    SetBounds(0, 0, 191, 154);
    SetTabStop(true);
}

TMonthCalendar::~TMonthCalendar() = default;

void TMonthCalendar::SetDate(TDate value) {
    value = std::trunc(value);
    if (value == FDate) return;
    FDate = value;
    ShowDate();
}

void TMonthCalendar::SetShowToday(bool value) {
    if (value == FShowToday) return;
    FShowToday = value;
    RecreateWnd();
}

void TMonthCalendar::SetWeekNumbers(bool value) {
    if (value == FWeekNumbers) return;
    FWeekNumbers = value;
    RecreateWnd();
}

TSize TMonthCalendar::GetNeededSize() {
    RECT month{};
    ::SendMessageW(GetHandle(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&month));
    return {static_cast<int>(month.right - month.left), static_cast<int>(month.bottom - month.top)};
}

void TMonthCalendar::ShowDate() {
    if (!HandleAllocated()) return;
    SYSTEMTIME time = ToSystemTime(FDate);
    ::SendMessageW(WindowHandle(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
}

void TMonthCalendar::CreateParams(TCreateParams& params) {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&classes);
    TWinControl::CreateParams(params);
    CreateSubClass(params, MONTHCAL_CLASSW);
    params.WindowClass.style |= CS_DBLCLKS;
    if (!FShowToday) params.Style |= MCS_NOTODAY;
    if (FWeekNumbers) params.Style |= MCS_WEEKNUMBERS;
}

void TMonthCalendar::CreateWnd() {
    TWinControl::CreateWnd();
    FCalColors->Apply();
    ShowDate();
}

void TMonthCalendar::ChooseByUser(TDate value) {
    if (value == FDate) return;
    FDate = value;
    Click();
}

void TMonthCalendar::DefaultHandler(TMessage& message) {
    // The system's calendar would show a menu of its own.
    if (message.Msg == WM_RBUTTONUP && MenuHolderOf(*this))
        message.Result = ::DefWindowProcW(WindowHandle(), message.Msg, message.WParam, message.LParam);
    else
        TWinControl::DefaultHandler(message);
}

void TMonthCalendar::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_NOTIFY:
            if (const auto* change = message.As<NMSELCHANGE>();
                change->nmhdr.code == static_cast<UINT>(MCN_SELCHANGE))
                return ChooseByUser(FromSystemTime(change->stSelStart));
            return TWinControl::Dispatch(message);
        case WM_KEYDOWN:
            return WmKeyDown(message);
        case WM_LBUTTONDBLCLK:
            return WmDoubleClick(message);
        case WM_GETDLGCODE:
            TWinControl::Dispatch(message);
            message.Result |= DLGC_WANTARROWS;
            return;
        default:
            return TWinControl::Dispatch(message);
    }
}

/// Two quick presses on an arrow of the title are two presses.
void TMonthCalendar::WmDoubleClick(TMessage& message) {
    MCHITTESTINFO hit{};
    hit.cbSize = MCHITTESTINFO_V1_SIZE;
    hit.pt = message.Pos();
    ::SendMessageW(WindowHandle(), MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    const bool onArrow = hit.uHit == MCHT_TITLEBTNNEXT || hit.uHit == MCHT_TITLEBTNPREV;
    if (onArrow) message.Msg = WM_LBUTTONDOWN;
    const TLifeGuard guard(*this);
    TWinControl::Dispatch(message);
    if (guard.IsAlive() && !onArrow) DblClick();
}

/// Not every system moves the choice by keys.
void TMonthCalendar::WmKeyDown(TMessage& message) {
    const TLifeGuard guard(*this);
    const TDate before = FDate;
    TWinControl::Dispatch(message);
    if (!guard.IsAlive() || FDate != before) return;
    const TDate after = AfterKey(message.CharCode());
    if (after == before) return;
    SYSTEMTIME time = ToSystemTime(after);
    ::SendMessageW(WindowHandle(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
    ChooseByUser(after);
}

TDate TMonthCalendar::AfterKey(WORD key) const {
    const TDateParts parts = DecodeDate(FDate);
    switch (key) {
        case VK_LEFT:
            return FDate - 1;
        case VK_RIGHT:
            return FDate + 1;
        case VK_UP:
            return FDate - 7;
        case VK_DOWN:
            return FDate + 7;
        case VK_PRIOR:
            return AddMonths(FDate, -1);
        case VK_NEXT:
            return AddMonths(FDate, 1);
        case VK_HOME:
            return FDate - (parts.Day - 1);
        case VK_END:
            return FDate + (DaysInMonth(parts.Year, parts.Month) - parts.Day);
        default:
            return FDate;
    }
}

}  // namespace vcl
