#include "platform/vcl/core/Strings.h"

#include <limits>

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

struct TUtfCase {
    const char* Name;
    std::string Utf8;
    String Utf16;
};

class Utf8Test : public testing::TestWithParam<TUtfCase> {};

TEST_P(Utf8Test, ConvertsBothWays) {
    EXPECT_EQ(FromUtf8(GetParam().Utf8), GetParam().Utf16);
    EXPECT_EQ(ToUtf8(GetParam().Utf16), GetParam().Utf8);
}

INSTANTIATE_TEST_SUITE_P(Strings, Utf8Test,
                         testing::Values(TUtfCase{"Empty", "", L""}, TUtfCase{"Ascii", "plain", L"plain"},
                                         TUtfCase{"Null", std::string("a\0b", 3), String(L"a\0b", 3)},
                                         TUtfCase{"GreatestOfOneByte", "\x7F", L"\x7F"},
                                         TUtfCase{"LeastOfTwoBytes", "\xC2\x80", L"\x80"},
                                         TUtfCase{"Umlauts", "Wei\xC3\x9F", L"Wei\xDF"},
                                         TUtfCase{"GreatestOfTwoBytes", "\xDF\xBF", L"\x7FF"},
                                         TUtfCase{"LeastOfThreeBytes", "\xE0\xA0\x80", L"\x800"},
                                         TUtfCase{"BelowSurrogates", "\xED\x9F\xBF", L"\xD7FF"},
                                         TUtfCase{"AboveSurrogates", "\xEE\x80\x80", L"\xE000"},
                                         TUtfCase{"GreatestOfThreeBytes", "\xEF\xBF\xBF", L"\xFFFF"},
                                         TUtfCase{"LeastPair", "\xF0\x90\x80\x80", L"\xD800\xDC00"},
                                         TUtfCase{"Emoji", "x\xF0\x9F\x98\x80y", L"x\xD83D\xDE00y"},
                                         TUtfCase{"GreatestPair", "\xF4\x8F\xBF\xBF", L"\xDBFF\xDFFF"}),
                         [](const auto& info) { return info.param.Name; });

class MalformedUtf8Test : public testing::TestWithParam<TUtfCase> {};

TEST_P(MalformedUtf8Test, BecomesReplacementCharacters) {
    EXPECT_EQ(FromUtf8(GetParam().Utf8), GetParam().Utf16);
}

INSTANTIATE_TEST_SUITE_P(Strings, MalformedUtf8Test,
                         testing::Values(TUtfCase{"LoneContinuation", "a\x80z", L"a\xFFFDz"},
                                         TUtfCase{"TruncatedAtTheEnd", "a\xE2\x82", L"a\xFFFD"},
                                         TUtfCase{"TruncatedBeforeText", "\xE2\x82z", L"\xFFFDz"},
                                         TUtfCase{"LeadAlone", "\xC3", L"\xFFFD"},
                                         TUtfCase{"LeadBeforeLead", "\xC3\xC3\xA4", L"\xFFFD\xE4"},
                                         TUtfCase{"OverlongOfTwo", "\xC0\xAF", L"\xFFFD\xFFFD"},
                                         TUtfCase{"OverlongOfThree", "\xE0\x80\xAF", L"\xFFFD\xFFFD\xFFFD"},
                                         TUtfCase{"EncodedSurrogate", "\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},
                                         TUtfCase{"AboveUnicode", "\xF4\x90\x80\x80",
                                                  L"\xFFFD\xFFFD\xFFFD\xFFFD"},
                                         TUtfCase{"ImpossibleByte", "\xFF", L"\xFFFD"}),
                         [](const auto& info) { return info.param.Name; });

TEST(StringsTest, UnpairedSurrogatesBecomeReplacementCharacters) {
    EXPECT_EQ(ToUtf8(L"a\xD800"), "a\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(L"\xD800z"), "\xEF\xBF\xBDz");
    EXPECT_EQ(ToUtf8(L"\xDC00\xD800"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(L"\xD800\xD800\xDC00"), "\xEF\xBF\xBD\xF0\x90\x80\x80");
}

TEST(StringsTest, SameTextIgnoresCaseInEveryLanguage) {
    EXPECT_TRUE(SameText(L"", L""));
    EXPECT_TRUE(SameText(L"Caption", L"CAPTION"));
    EXPECT_TRUE(SameText(L"L\xD6schen", L"l\xF6SCHEN"));
    EXPECT_TRUE(SameText(L"\x0434\x0430", L"\x0414\x0410"));
    EXPECT_FALSE(SameText(L"Caption", L"Captions"));
    EXPECT_FALSE(SameText(L"a", L"\xE4"));
    EXPECT_FALSE(SameText(L"@", L"`")) << "these differ by the case bit but are no letters";
    EXPECT_FALSE(SameText(L"[", L"{"));
}

TEST(StringsTest, SameTextComparesAllOfATextWithNulls) {
    EXPECT_FALSE(SameText(StringView(L"a\0b", 3), StringView(L"a\0c", 3)));
    EXPECT_TRUE(SameText(StringView(L"a\0b", 3), StringView(L"A\0B", 3)));
}

TEST(StringsTest, CompareTextOrdersWithoutCase) {
    EXPECT_EQ(CompareText(L"abc", L"ABC"), 0);
    EXPECT_LT(CompareText(L"abc", L"ABD"), 0);
    EXPECT_GT(CompareText(L"b", L"A"), 0);
    EXPECT_LT(CompareText(L"", L"a"), 0);
    EXPECT_GT(CompareText(L"a", L""), 0);
    EXPECT_EQ(CompareText(L"", L""), 0);
    EXPECT_LT(CompareText(L"\xE4", L"b"), 0) << "umlauts stand beside their base letter";
}

TEST(StringsTest, ChangesCaseBeyondAscii) {
    EXPECT_EQ(UpperCase(L"\xE4gypten 1"), L"\xC4GYPTEN 1");
    EXPECT_EQ(LowerCase(L"\xC4GYPTEN 1"), L"\xE4gypten 1");
    EXPECT_EQ(UpperCase(L"stra\xDF\x65"), L"STRA\xDF\x45") << "letter by letter, so the length stays";
    EXPECT_EQ(UpperCase(L""), L"");
}

TEST(StringsTest, TrimsBlanksAndControlCharacters) {
    EXPECT_EQ(Trim(L" \t a b\r\n"), L"a b");
    EXPECT_EQ(Trim(L"x"), L"x");
    EXPECT_EQ(Trim(L" \x01 "), L"");
    EXPECT_EQ(Trim(L"\xA0x"), L"\xA0x") << "a no-break space lies above U+0020";
}

TEST(StringsTest, WritesNumbers) {
    EXPECT_EQ(IntToStr(0), L"0");
    EXPECT_EQ(IntToStr(-17), L"-17");
    EXPECT_EQ(IntToStr(std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
}

TEST(StringsTest, ReadsNumbers) {
    EXPECT_EQ(StrToIntDef(L"42", -1), 42);
    EXPECT_EQ(StrToIntDef(L"  -42", -1), -42);
    EXPECT_EQ(StrToIntDef(L"+7", -1), 7);
    EXPECT_EQ(StrToIntDef(L"$fF", -1), 255);
    EXPECT_EQ(StrToIntDef(L"0x1F", -1), 31);
    EXPECT_EQ(StrToIntDef(L"0X1f", -1), 31);
    EXPECT_EQ(StrToIntDef(L"-$10", -1), -16);
    EXPECT_EQ(StrToIntDef(L"9223372036854775807", -1), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(StrToIntDef(L"-9223372036854775808", -1), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(StrToIntDef(L"$FFFFFFFFFFFFFFFF", 0), -1);
}

TEST(StringsTest, GivesTheFallbackForWhatIsNoNumber) {
    for (const wchar_t* text :
         {L"", L" ", L"-", L"$", L"0x", L"1a", L"1 ", L"--1", L"1.5", L"$g", L"9223372036854775808",
          L"-9223372036854775809", L"$10000000000000000", L"99999999999999999999999999"})
        EXPECT_EQ(StrToIntDef(text, -99), -99) << ToUtf8(text);
}

TEST(StringsTest, SplitsAtEveryKindOfLineBreak) {
    using TLines = std::vector<String>;
    EXPECT_EQ(SplitLines(L""), TLines{});
    EXPECT_EQ(SplitLines(L"one"), TLines{L"one"});
    EXPECT_EQ(SplitLines(L"a\r\nb\nc\rd"), (TLines{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(SplitLines(L"a\r\n"), TLines{L"a"});
    EXPECT_EQ(SplitLines(L"\r\n"), TLines{L""});
    EXPECT_EQ(SplitLines(L"a\n\nb"), (TLines{L"a", L"", L"b"}));
    EXPECT_EQ(SplitLines(L"a\n\rb"), (TLines{L"a", L"", L"b"}));
}

}  // namespace
}  // namespace vcl
