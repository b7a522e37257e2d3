#include "platform/vcl/core/DateFormats.h"

#include <gtest/gtest.h>

#include "platform/vcl/core/Exceptions.h"

namespace {

using namespace vcl;

constexpr LCID German = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
constexpr LCID English = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
constexpr LCID Hungarian = MAKELCID(MAKELANGID(LANG_HUNGARIAN, SUBLANG_DEFAULT), SORT_DEFAULT);
constexpr LCID Japanese = MAKELCID(MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT), SORT_DEFAULT);

TEST(DateTime, CountsDaysFromTheEndOf1899) {
    EXPECT_EQ(EncodeDate(1899, 12, 30), 0);
    EXPECT_EQ(EncodeDate(1900, 1, 1), 2);
    EXPECT_EQ(EncodeDate(1, 1, 1), -693593);
    EXPECT_EQ(EncodeDate(9999, 12, 31), 2958465);
    EXPECT_EQ(EncodeDate(2014, 2, 3), 41673);
}

TEST(DateTime, EveryDayOfFourHundredYearsDecodesToItself) {
    TDate expected = EncodeDate(1800, 1, 1);
    for (int year = 1800; year < 2200; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= DaysInMonth(year, month); ++day) {
                const TDate date = EncodeDate(year, month, day);
                ASSERT_EQ(date, expected++);
                ASSERT_EQ(DecodeDate(date), (TDateParts{year, month, day}));
            }
        }
    }
}

TEST(DateTime, LeavesOutDaysThatThereAreNot) {
    EXPECT_FALSE(TryEncodeDate({2023, 2, 29}));
    EXPECT_TRUE(TryEncodeDate({2024, 2, 29}));
    EXPECT_FALSE(TryEncodeDate({1900, 2, 29}));
    EXPECT_TRUE(TryEncodeDate({2000, 2, 29}));
    EXPECT_FALSE(TryEncodeDate({2000, 13, 1}));
    EXPECT_FALSE(TryEncodeDate({2000, 0, 1}));
    EXPECT_FALSE(TryEncodeDate({2000, 4, 31}));
    EXPECT_FALSE(TryEncodeDate({0, 1, 1}));
    EXPECT_FALSE(TryEncodeDate({10000, 1, 1}));
    EXPECT_THROW((void)EncodeDate(2000, 1, 0), EConvertError);
}

TEST(DateTime, KnowsTheDayOfTheWeek) {
    EXPECT_EQ(DayOfWeek(EncodeDate(2014, 2, 3)), 2);    // a Monday
    EXPECT_EQ(DayOfWeek(EncodeDate(1899, 12, 30)), 7);  // a Saturday
    EXPECT_EQ(DayOfWeek(EncodeDate(1899, 12, 29)), 6);
    EXPECT_EQ(DayOfWeek(EncodeDate(1899, 12, 24)), 1);
    EXPECT_EQ(DayOfWeek(EncodeDate(2014, 2, 3) + 0.75), 2);
}

TEST(DateFormats, ReadsTheSettingsOfALocale) {
    const TFormatSettings german = TFormatSettings::OfLocale(German);
    EXPECT_EQ(german.DateSeparator, L'.');
    // Some systems end the short names with a dot.
    EXPECT_EQ(german.ShortDayNames[0].substr(0, 2), L"So");
    EXPECT_EQ(german.ShortDayNames[1].substr(0, 2), L"Mo");
    EXPECT_EQ(german.LongDayNames[6], L"Samstag");
    EXPECT_EQ(german.LongMonthNames[2], L"M\x00E4rz");
    EXPECT_EQ(DateOrderOf(german.ShortDateFormat), TDateOrder::DayMonthYear);
    const TFormatSettings english = TFormatSettings::OfLocale(English);
    EXPECT_EQ(english.DateSeparator, L'/');
    EXPECT_EQ(english.ShortDayNames[6], L"Sat");
    EXPECT_EQ(DateOrderOf(english.ShortDateFormat), TDateOrder::MonthDayYear);
    EXPECT_EQ(DateOrderOf(TFormatSettings::OfLocale(Hungarian).ShortDateFormat), TDateOrder::YearMonthDay);
    EXPECT_EQ(DateOrderOf(TFormatSettings::OfLocale(Japanese).ShortDateFormat), TDateOrder::YearMonthDay);
}

TEST(DateFormats, TheOrderIsThatOfTheFirstLetter) {
    EXPECT_EQ(DateOrderOf(L"--Dmy"), TDateOrder::DayMonthYear);
    EXPECT_EQ(DateOrderOf(L"Mdy"), TDateOrder::MonthDayYear);
    EXPECT_EQ(DateOrderOf(L"ymd"), TDateOrder::YearMonthDay);
    EXPECT_EQ(DateOrderOf(L"E.md"), TDateOrder::YearMonthDay);
    EXPECT_EQ(DateOrderOf(L"123"), TDateOrder::MonthDayYear);
    EXPECT_EQ(DateOrderOf(L""), TDateOrder::MonthDayYear);
}

TEST(DateFormats, WritesTheParts) {
    TFormatSettings german = TFormatSettings::OfLocale(German);
    german.ShortDayNames[1] = L"Mo";
    const TDate date = EncodeDate(2014, 2, 3);
    EXPECT_EQ(FormatDateTime(L"ddd, dd.mm.yyyy", date, german), L"Mo, 03.02.2014");
    EXPECT_EQ(FormatDateTime(L"dddd d.m.yy", date, german), L"Montag 3.2.14");
    EXPECT_EQ(FormatDateTime(L"D/M/Y", date, german), L"3.2.14");
    EXPECT_EQ(FormatDateTime(L"'den' d. mmmm \"yyyy\"", date, german), L"den 3. Februar yyyy");
    EXPECT_EQ(FormatDateTime(L"mmm", date, german), german.ShortMonthNames[1]);
    EXPECT_EQ(FormatDateTime(L"'open", date, german), L"open");
    EXPECT_EQ(FormatDateTime(L"", date, german), L"");
}

TEST(DateFormats, NestedFormatsEnd) {
    TFormatSettings settings = TFormatSettings::OfLocale(German);
    settings.ShortDateFormat = L"ddddd dd";
    EXPECT_EQ(FormatDateTime(L"ddddd", EncodeDate(2014, 2, 3), settings), L" 03");
}

TEST(DateFormats, ReadsWhatItWrites) {
    for (const LCID locale : {German, English, Hungarian, Japanese}) {
        const TFormatSettings settings = TFormatSettings::OfLocale(locale);
        for (TDate date = EncodeDate(2023, 12, 1); date < EncodeDate(2025, 1, 15); ++date)
            ASSERT_EQ(TryStrToDate(DateToStr(date, settings), settings), date)
                << ToUtf8(DateToStr(date, settings));
    }
}

TEST(DateFormats, ReadsShortYearsWithinAHundredYears) {
    const TFormatSettings german = TFormatSettings::OfLocale(German);
    const int year = DecodeDate(Today()).Year;
    const auto yearOf = [&](int two) {
        const auto date = TryStrToDate(L"1.1." + IntToStr(two), german);
        return date ? DecodeDate(*date).Year : 0;
    };
    for (int two = 0; two < 100; ++two) {
        EXPECT_GE(yearOf(two), year - 50);
        EXPECT_LT(yearOf(two), year + 50);
        EXPECT_EQ(yearOf(two) % 100, two);
    }
    EXPECT_EQ(TryStrToDate(L"1.1.099", german), EncodeDate(99, 1, 1));
    EXPECT_EQ(TryStrToDate(L"24.12.", german), EncodeDate(year, 12, 24));
    EXPECT_EQ(TryStrToDate(L" 24 . 12 . 2020 ", german), EncodeDate(2020, 12, 24));
}

TEST(DateFormats, RefusesWhatIsNoDate) {
    const TFormatSettings german = TFormatSettings::OfLocale(German);
    const String hostile[] = {L"",
                              L"99.99.9999",
                              L"31.2.2020",
                              L"1",
                              L"1.",
                              L"1.2.3.4",
                              L"1/2/2020",
                              L"01.02.12345",
                              L"1.2.2020x",
                              L"x1.2.2020",
                              L"-1.2.2020",
                              L"0.1.2020",
                              L"1.1.0000",
                              String(1 << 20, L'1'),
                              String(1 << 20, L'.'),
                              L"\xD83D\xDE00.1.2020",
                              L"1.\xD83D.2020"};
    for (const String& text : hostile)
        EXPECT_FALSE(TryStrToDate(text, german)) << ToUtf8(text.substr(0, 20));
    EXPECT_THROW((void)StrToDate(L"morgen", german), EConvertError);
}

}  // namespace
