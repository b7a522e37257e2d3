#include "platform/vcl/core/DateTime.h"

#include <algorithm>
#include <cmath>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {
namespace {

constexpr int DaysPerYear = 365;
constexpr int DaysPer4Years = 4 * DaysPerYear + 1;
constexpr int DaysPer100Years = 25 * DaysPer4Years - 1;
constexpr int DaysPer400Years = 4 * DaysPer100Years + 1;
/// Days from 1 January of the year 1, which has the number 1 here, to 30 December 1899.
constexpr int EpochDays = 693594;
constexpr int LastYear = 9999;

int DaysBeforeYear(int year) {
    const int past = year - 1;
    return past * DaysPerYear + past / 4 - past / 100 + past / 400;
}

}  // namespace

bool IsLeapYear(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysInMonth(int year, int month) {
    static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    return days[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
}

std::optional<TDate> TryEncodeDate(const TDateParts& parts) {
    if (parts.Year < 1 || parts.Year > LastYear || parts.Day < 1 ||
        parts.Day > DaysInMonth(parts.Year, parts.Month))
        return std::nullopt;
    int days = DaysBeforeYear(parts.Year) + parts.Day;
    for (int month = 1; month < parts.Month; ++month)
        days += DaysInMonth(parts.Year, month);
    return static_cast<TDate>(days - EpochDays);
}

TDate EncodeDate(int year, int month, int day) {
    const std::optional<TDate> date = TryEncodeDate({year, month, day});
    if (!date) throw EConvertError(L"Invalid argument to date encode");
    return *date;
}

TDateParts DecodeDate(TDateTime value) {
    constexpr double first = 1 - EpochDays;
    const double last = DaysBeforeYear(LastYear + 1) - EpochDays;
    // The fraction counts from midnight also before the epoch: what is cut is the time.
    int days = static_cast<int>(std::trunc(std::clamp(value, first, last))) + EpochDays - 1;
    TDateParts parts;
    parts.Year = 1 + days / DaysPer400Years * 400;
    days %= DaysPer400Years;
    const int centuries = std::min(days / DaysPer100Years, 3);
    days -= centuries * DaysPer100Years;
    const int fours = days / DaysPer4Years;
    days -= fours * DaysPer4Years;
    const int years = std::min(days / DaysPerYear, 3);
    days -= years * DaysPerYear;
    parts.Year += centuries * 100 + fours * 4 + years;
    parts.Month = 1;
    while (days >= DaysInMonth(parts.Year, parts.Month))
        days -= DaysInMonth(parts.Year, parts.Month++);
    parts.Day = days + 1;
    return parts;
}

int DayOfWeek(TDateTime value) {
    // 30 December 1899 was a Saturday.
    const int days = static_cast<int>(std::trunc(value)) % 7;
    return (days + 6 + 7) % 7 + 1;
}

TDate Today() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return EncodeDate(now.wYear, now.wMonth, now.wDay);
}

}  // namespace vcl
