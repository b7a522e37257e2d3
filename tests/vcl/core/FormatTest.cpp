#include <clocale>
#include <string>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Strings.h"
#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

enum class TLevel : short { Low = 3 };

TEST(FormatTest, CopiesTextWithoutPlaces) {
    EXPECT_EQ(Format(L""), L"");
    EXPECT_EQ(Format(L"100%% sure"), L"100% sure");
}

TEST(FormatTest, FillsPlacesInOrder) {
    EXPECT_EQ(Format(L"%s has %d of %d", L"list", 2, 3), L"list has 2 of 3");
}

TEST(FormatTest, TakesEveryKindOfText) {
    const String text = L"owned";
    const wchar_t* none = nullptr;
    EXPECT_EQ(Format(L"%s-%s-%s-%s", text, text.c_str(), StringView(text).substr(0, 2), none),
              L"owned-owned-ow-");
}

TEST(FormatTest, TakesIntegersOfEveryWidth) {
    EXPECT_EQ(Format(L"%d %d %d", std::int8_t{-5}, std::int64_t{-1} << 40, ~std::uint32_t{0}),
              L"-5 -1099511627776 4294967295");
    EXPECT_EQ(Format(L"%x %X %u", -1, std::uint8_t{0xAB}, std::int16_t{-1}), L"ffffffff AB 65535");
    EXPECT_EQ(Format(L"%d %d", TLevel::Low, true), L"3 1");
    EXPECT_EQ(Format(L"%ld %lld %I64d", 1L, 2LL, std::int64_t{3}), L"1 2 3");
}

TEST(FormatTest, ObeysFlagsWidthAndPrecision) {
    EXPECT_EQ(Format(L"[%5d|%-5d|%05d|%+d]", 42, 42, 42, 42), L"[   42|42   |00042|+42]");
    EXPECT_EQ(Format(L"[%5s|%-5s|%.2s]", L"abc", L"abc", L"abc"), L"[  abc|abc  |ab]");
    EXPECT_EQ(Format(L"%.8x", 0x1234), L"00001234");
    EXPECT_EQ(Format(L"%.2f %g", 1.005e2, 0.5), L"100.50 0.5");
    EXPECT_EQ(Format(L"%c", L'\x00E4'), L"\x00E4");
}

TEST(FormatTest, WritesAPointWhateverTheLocaleOfTheHost) {
    const std::string former = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "German_Germany.1252"), nullptr);
    const String text = Format(L"%.2f, %e|%d", 1.5, 0.25, 3);
    std::setlocale(LC_ALL, former.c_str());
    EXPECT_EQ(text.substr(0, 6), L"1.50, ");
    EXPECT_EQ(text.substr(6, 8), L"2.500000");
    EXPECT_EQ(text.substr(text.size() - 2), L"|3");
}

TEST(FormatTest, TakesTextsOfAnyLength) {
    const String longText(100000, L'x');
    EXPECT_EQ(Format(L"<%s>", longText), L'<' + longText + L'>');
}

TEST(FormatTest, RaisesWhenPlaceAndArgumentDoNotFit) {
    EXPECT_THROW((void)Format(L"%d", L"text"), EConvertError);
    EXPECT_THROW((void)Format(L"%s", 1), EConvertError);
    EXPECT_THROW((void)Format(L"%f", 1), EConvertError);
    EXPECT_THROW((void)Format(L"%d", 1.5), EConvertError);
    EXPECT_THROW((void)Format(L"%d"), EConvertError);
    EXPECT_THROW((void)Format(L"%y", 1), EConvertError);
    EXPECT_THROW((void)Format(L"50%"), EConvertError);
    EXPECT_THROW((void)Format(L"%5"), EConvertError);
}

TEST(FormatTest, NamesThePlaceInTheError) {
    try {
        (void)Format(L"a %5d b", L"text");
        FAIL() << "nothing was raised";
    } catch (const EConvertError& error) {
        EXPECT_EQ(error.Message(), L"Format '%5d' invalid or incompatible with argument");
    }
}

}  // namespace
}  // namespace vcl
