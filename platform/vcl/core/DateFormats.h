#pragma once

#include <array>

#include "platform/vcl/core/DateTime.h"
#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// How dates are written: what a locale says, or what the host sets instead.
struct TFormatSettings {
    wchar_t DateSeparator = L'/';
    String ShortDateFormat = L"m/d/yyyy";
    String LongDateFormat = L"dddd, mmmm d, yyyy";
    /// Names of the days, Sunday first, and of the months.
    std::array<String, 7> ShortDayNames;
    std::array<String, 7> LongDayNames;
    std::array<String, 12> ShortMonthNames;
    std::array<String, 12> LongMonthNames;

    /// What the system says of a locale.
    [[nodiscard]] static TFormatSettings OfLocale(LCID locale);
};

/// The settings of the process: those of the user's locale, read when first asked for. The host may change
/// them at any time.
[[nodiscard]] TFormatSettings& FormatSettings();

/// The order in which a format names day, month and year.
enum class TDateOrder { MonthDayYear, DayMonthYear, YearMonthDay };
/// Decided by the first letter D, M, Y or E of the format, in either case; month first without any.
[[nodiscard]] TDateOrder DateOrderOf(StringView format);

/// The date in a format: `d`, `dd` the day, `ddd`, `dddd` the short and the long name of the day of the week,
/// `m`, `mm`, `mmm`, `mmmm` the month likewise, `yy`, `yyyy` (and `e`) the year, `ddddd` and `dddddd` the
/// short and the long date format, `/` the date separator. Quoted text and all else stands for itself.
[[nodiscard]] String FormatDateTime(StringView format, TDateTime value,
                                    const TFormatSettings& settings = FormatSettings());
/// The date in the short format.
[[nodiscard]] String DateToStr(TDateTime value, const TFormatSettings& settings = FormatSettings());

/// Reads three numbers in the order of the short date format with the date separator between them, or two
/// without the year, which is then the present one. A year of one or two digits lies in the hundred years
/// that began fifty years ago. Nothing for any other text.
[[nodiscard]] std::optional<TDate> TryStrToDate(StringView text,
                                                const TFormatSettings& settings = FormatSettings());
/// The same for callers that know it; raises EConvertError "'<text>' is not a valid date".
[[nodiscard]] TDate StrToDate(StringView text, const TFormatSettings& settings = FormatSettings());

}  // namespace vcl
