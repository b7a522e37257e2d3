#pragma once

#include <optional>

namespace vcl {

/// A moment: days since 30 December 1899, the time of day as the fraction. Dates reach from the year 1 to
/// 9999.
using TDateTime = double;
/// A day: a `TDateTime` without a fraction.
using TDate = TDateTime;

/// A day in the calendar.
struct TDateParts {
    int Year = 0;
    int Month = 0;  ///< 1 to 12.
    int Day = 0;    ///< 1 to 31.
    friend constexpr bool operator==(const TDateParts&, const TDateParts&) = default;
};

[[nodiscard]] bool IsLeapYear(int year);
/// 28 to 31; 0 for a month that there is none.
[[nodiscard]] int DaysInMonth(int year, int month);
/// The day, or nothing for one that is not in the calendar.
[[nodiscard]] std::optional<TDate> TryEncodeDate(const TDateParts& parts);
/// The same for callers that know it is; raises EConvertError "Invalid argument to date encode".
[[nodiscard]] TDate EncodeDate(int year, int month, int day);
/// The day of a moment. What lies outside of the calendar counts as its first or last day.
[[nodiscard]] TDateParts DecodeDate(TDateTime value);
/// 1 (Sunday) to 7 (Saturday).
[[nodiscard]] int DayOfWeek(TDateTime value);
/// Today, by the system's clock.
[[nodiscard]] TDate Today();

}  // namespace vcl
