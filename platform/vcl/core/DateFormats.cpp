#include "platform/vcl/core/DateFormats.h"

#include <algorithm>

#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

String LocaleText(LCID locale, LCTYPE type) {
    const int length = ::GetLocaleInfoW(locale, type, nullptr, 0);
    if (length <= 1) return {};
    String text(static_cast<std::size_t>(length), L'\0');
    ::GetLocaleInfoW(locale, type, text.data(), length);
    text.resize(static_cast<std::size_t>(length) - 1);
    return text;
}

/// The system writes months with a capital M and eras with g; ours are small letters without eras.
String OurFormat(StringView format) {
    String result;
    bool quoted = false;
    for (const wchar_t c : format) {
        if (c == L'\'') quoted = !quoted;
        if (!quoted && (c == L'g' || c == L'G')) continue;
        result += quoted || c != L'M' ? c : L'm';
    }
    return Trim(result);
}

wchar_t Lower(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

String Padded(int number, int digits) {
    String text = IntToStr(number);
    while (static_cast<int>(text.size()) < digits)
        text.insert(text.begin(), L'0');
    return text;
}

/// Writes one date by a format.
class TDateWriter {
public:
    TDateWriter(TDateTime value, const TFormatSettings& settings)
        : FSettings(settings), FParts(DecodeDate(value)), FWeekDay(DayOfWeek(value)) {}

    void Write(StringView format) {
        for (std::size_t at = 0; at < format.size();) {
            const wchar_t c = format[at];
            if (c == L'\'' || c == L'"') {
                const std::size_t end = std::min(format.find(c, at + 1), format.size());
                FResult += format.substr(at + 1, end - at - 1);
                at = end + 1;
                continue;
            }
            const wchar_t letter = Lower(c);
            std::size_t count = 1;
            while (at + count < format.size() && Lower(format[at + count]) == letter)
                ++count;
            if (!WritePart(letter, static_cast<int>(count))) {
                FResult += c == L'/' ? FSettings.DateSeparator : c;
                count = 1;
            }
            at += count;
        }
    }
    [[nodiscard]] String Take() { return std::move(FResult); }

private:
    bool WritePart(wchar_t letter, int count) {
        switch (letter) {
            case L'd':
                WriteDay(count);
                return true;
            case L'm':
                WriteMonth(count);
                return true;
            case L'y':
            case L'e':
                FResult += count <= 2 ? Padded(FParts.Year % 100, 2) : Padded(FParts.Year, 4);
                return true;
            default:
                return false;
        }
    }
    void WriteDay(int count) {
        const auto weekDay = static_cast<std::size_t>(FWeekDay - 1);
        if (count <= 2)
            FResult += Padded(FParts.Day, count);
        else if (count == 3)
            FResult += FSettings.ShortDayNames[weekDay];
        else if (count == 4)
            FResult += FSettings.LongDayNames[weekDay];
        else if (FDepth == 0)
            WriteNested(count == 5 ? FSettings.ShortDateFormat : FSettings.LongDateFormat);
    }
    void WriteMonth(int count) {
        const auto month = static_cast<std::size_t>(FParts.Month - 1);
        if (count <= 2)
            FResult += Padded(FParts.Month, count);
        else
            FResult += count == 3 ? FSettings.ShortMonthNames[month] : FSettings.LongMonthNames[month];
    }
    void WriteNested(const String& format) {
        ++FDepth;
        Write(format);
        --FDepth;
    }

    const TFormatSettings& FSettings;
    TDateParts FParts;
    int FWeekDay;
    int FDepth = 0;
    String FResult;
};

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

/// Reads numbers with separators between them.
class TDateScanner {
public:
    TDateScanner(StringView text, wchar_t separator) : FText(text), FSeparator(separator) {}

    void SkipBlanks() {
        while (FAt < FText.size() && FText[FAt] == L' ')
            ++FAt;
    }
    /// A number of at most four digits.
    [[nodiscard]] bool Number(int& number, int& digits) {
        SkipBlanks();
        number = digits = 0;
        while (FAt < FText.size() && IsDigit(FText[FAt])) {
            if (++digits > 4) return false;
            number = number * 10 + (FText[FAt++] - L'0');
        }
        return digits > 0;
    }
    [[nodiscard]] bool Separator() {
        SkipBlanks();
        if (FAt >= FText.size() || FText[FAt] != FSeparator) return false;
        ++FAt;
        return true;
    }
    [[nodiscard]] bool AtEnd() {
        SkipBlanks();
        return FAt >= FText.size();
    }

private:
    StringView FText;
    wchar_t FSeparator;
    std::size_t FAt = 0;
};

int FullYear(int year, int digits) {
    if (digits > 2) return year;
    constexpr int Window = 50;
    const int begin = DecodeDate(Today()).Year - Window;
    const int full = begin / 100 * 100 + year;
    return full < begin ? full + 100 : full;
}

}  // namespace

TFormatSettings TFormatSettings::OfLocale(LCID locale) {
    TFormatSettings settings;
    const String separator = LocaleText(locale, LOCALE_SDATE);
    if (!separator.empty()) settings.DateSeparator = separator.front();
    settings.ShortDateFormat = OurFormat(LocaleText(locale, LOCALE_SSHORTDATE));
    settings.LongDateFormat = OurFormat(LocaleText(locale, LOCALE_SLONGDATE));
    for (unsigned i = 0; i < 7; ++i) {
        // The system's week begins with Monday.
        const unsigned day = (i + 6) % 7;
        settings.ShortDayNames[i] = LocaleText(locale, LOCALE_SABBREVDAYNAME1 + day);
        settings.LongDayNames[i] = LocaleText(locale, LOCALE_SDAYNAME1 + day);
    }
    for (unsigned i = 0; i < 12; ++i) {
        settings.ShortMonthNames[i] = LocaleText(locale, LOCALE_SABBREVMONTHNAME1 + i);
        settings.LongMonthNames[i] = LocaleText(locale, LOCALE_SMONTHNAME1 + i);
    }
    return settings;
}

TFormatSettings& FormatSettings() {
    static TFormatSettings settings = TFormatSettings::OfLocale(LOCALE_USER_DEFAULT);
    return settings;
}

TDateOrder DateOrderOf(StringView format) {
    for (const wchar_t c : format) {
        switch (Lower(c)) {
            case L'd':
                return TDateOrder::DayMonthYear;
            case L'm':
                return TDateOrder::MonthDayYear;
            case L'y':
            case L'e':
                return TDateOrder::YearMonthDay;
            default:
                break;
        }
    }
    return TDateOrder::MonthDayYear;
}

String FormatDateTime(StringView format, TDateTime value, const TFormatSettings& settings) {
    TDateWriter writer(value, settings);
    writer.Write(format);
    return writer.Take();
}

String DateToStr(TDateTime value, const TFormatSettings& settings) {
    return FormatDateTime(settings.ShortDateFormat, value, settings);
}

std::optional<TDate> TryStrToDate(StringView text, const TFormatSettings& settings) {
    TDateScanner scanner(text, settings.DateSeparator);
    std::array<int, 3> numbers{};
    std::array<int, 3> digits{};
    if (!scanner.Number(numbers[0], digits[0]) || !scanner.Separator() ||
        !scanner.Number(numbers[1], digits[1]))
        return std::nullopt;
    const bool hasThree = scanner.Separator() && !scanner.AtEnd();
    if (hasThree && !scanner.Number(numbers[2], digits[2])) return std::nullopt;
    // Some locales end their dates with a separator, too.
    if (hasThree) (void)scanner.Separator();
    if (!scanner.AtEnd()) return std::nullopt;

    const TDateOrder order = DateOrderOf(settings.ShortDateFormat);
    if (!hasThree) {
        const bool dayFirst = order == TDateOrder::DayMonthYear;
        return TryEncodeDate(
            {DecodeDate(Today()).Year, numbers[dayFirst ? 1 : 0], numbers[dayFirst ? 0 : 1]});
    }
    switch (order) {
        case TDateOrder::DayMonthYear:
            return TryEncodeDate({FullYear(numbers[2], digits[2]), numbers[1], numbers[0]});
        case TDateOrder::YearMonthDay:
            return TryEncodeDate({FullYear(numbers[0], digits[0]), numbers[1], numbers[2]});
        default:
            return TryEncodeDate({FullYear(numbers[2], digits[2]), numbers[0], numbers[1]});
    }
}

TDate StrToDate(StringView text, const TFormatSettings& settings) {
    const std::optional<TDate> date = TryStrToDate(text, settings);
    if (!date) throw EConvertError(L"'" + String(text) + L"' is not a valid date");
    return *date;
}

}  // namespace vcl
