#include "platform/vcl/streaming/FormFloat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace vcl {
namespace {

TFormFloat Extended(std::uint64_t mantissa, std::uint16_t signAndExponent) {
    return {TFormFloatKind::Extended, {mantissa, signAndExponent}};
}

String TextOf(double value) {
    return FormFloatToText(TFormFloat(value));
}

TEST(FormFloatTest, ShowsTheShortestTextAndAlwaysAPointOrAnExponent) {
    EXPECT_EQ(TextOf(0.1), L"0.1");
    EXPECT_EQ(TextOf(1), L"1.0");
    EXPECT_EQ(TextOf(0), L"0.0");
    EXPECT_EQ(TextOf(-0.0), L"-0.0");
    EXPECT_EQ(TextOf(-2.5), L"-2.5");
    EXPECT_EQ(TextOf(0.00001), L"0.00001");
    EXPECT_EQ(TextOf(0.000001), L"1.0E-6");
    EXPECT_EQ(TextOf(1234567.875), L"1234567.875");
    EXPECT_EQ(TextOf(1e15), L"1000000000000000.0");
    EXPECT_EQ(TextOf(1e16), L"1.0E16");
    EXPECT_EQ(TextOf(1.7976931348623157e308), L"1.7976931348623157E308");
    EXPECT_EQ(TextOf(5e-324), L"5.0E-324");
}

TEST(FormFloatTest, MarksTheNarrowerKindsByALetter) {
    const auto one = TExtended::FromDouble(1.5);
    EXPECT_EQ(FormFloatToText({TFormFloatKind::Single, one}), L"1.5s");
    EXPECT_EQ(FormFloatToText({TFormFloatKind::Double, one}), L"1.5f");
    EXPECT_EQ(FormFloatToText({TFormFloatKind::Date, one}), L"1.5d");
    EXPECT_EQ(FormFloatToText({TFormFloatKind::Single, TExtended::FromDouble(0.1f)}), L"0.1s");
}

TEST(FormFloatTest, CountsCurrenciesInTenThousandths) {
    const auto text = [](std::int64_t count) {
        return FormFloatToText({TFormFloatKind::Currency, TExtended::FromInteger(count)});
    };
    EXPECT_EQ(text(0), L"0.0c");
    EXPECT_EQ(text(1), L"0.0001c");
    EXPECT_EQ(text(-12345), L"-1.2345c");
    EXPECT_EQ(text(99900), L"9.99c");
    EXPECT_EQ(text(std::numeric_limits<std::int64_t>::max()), L"922337203685477.5807c");
    EXPECT_EQ(text(std::numeric_limits<std::int64_t>::min()), L"-922337203685477.5808c");
    for (const std::int64_t count :
         {std::int64_t{0}, std::int64_t{-12345}, std::numeric_limits<std::int64_t>::max(),
          std::numeric_limits<std::int64_t>::min()}) {
        String shown = text(count);
        shown.pop_back();
        const auto read = TextToFormFloat(shown, L'c');
        ASSERT_TRUE(read) << count;
        EXPECT_EQ(read->Value.ExactInteger(), count);
    }
    EXPECT_EQ(TextToFormFloat(L"12.5", L'C')->ToDouble(), 12.5);
}

TEST(FormFloatTest, RefusesCurrenciesThatTenThousandthsCannotHold) {
    EXPECT_FALSE(TextToFormFloat(L"1.23456", L'c'));
    EXPECT_FALSE(TextToFormFloat(L"1E3", L'c'));
    EXPECT_FALSE(TextToFormFloat(L"922337203685477.5808", L'c'));
}

TEST(FormFloatTest, KnowsTheEncodingOfTheProcessor) {
    EXPECT_EQ(TExtended::FromDouble(1), (TExtended{0x8000000000000000, 0x3FFF}));
    EXPECT_EQ(TExtended::FromDouble(-2.5), (TExtended{0xA000000000000000, 0xC000}));
    EXPECT_EQ(TExtended::FromDouble(0), (TExtended{0, 0}));
    EXPECT_EQ(TExtended::FromInteger(3), TExtended::FromDouble(3));
    EXPECT_TRUE((TExtended{1, 0}).IsFinite());
    EXPECT_FALSE((TExtended{0x8000000000000000, 0x7FFF}).IsFinite()) << "infinite";
    EXPECT_FALSE((TExtended{0xC000000000000000, 0xFFFF}).IsFinite()) << "no number";
    EXPECT_FALSE((TExtended{0x4000000000000000, 0x3FFF}).IsFinite()) << "not normalised";
    EXPECT_FALSE(TExtended::FromDouble(std::numeric_limits<double>::infinity()).IsFinite());
    EXPECT_FALSE(TExtended::FromDouble(std::nan("")).IsFinite());
}

TEST(FormFloatTest, KeepsAllBitsOfNumbersThatAreNo64BitOnes) {
    // One unit in the last place above 1, the nearest to a tenth, the greatest, the smallest normal and the
    // smallest of all.
    const TFormFloat numbers[] = {Extended(0x8000000000000001, 0x3FFF),
                                  Extended(0xCCCCCCCCCCCCCCCD, 0x3FFB),
                                  Extended(0xFFFFFFFFFFFFFFFF, 0x7FFE),
                                  Extended(0x8000000000000000, 0x0001),
                                  Extended(1, 0x0000),
                                  Extended(0x7FFFFFFFFFFFFFFF, 0x8000)};
    for (const TFormFloat& number : numbers) {
        const String text = FormFloatToText(number);
        const auto read = TextToFormFloat(text, 0);
        ASSERT_TRUE(read) << ToUtf8(text);
        EXPECT_EQ(*read, number) << ToUtf8(text);
    }
    EXPECT_EQ(FormFloatToText(numbers[0]), L"1.00000000000000000011");
    EXPECT_EQ(FormFloatToText(numbers[1]), L"0.100000000000000000001");
    EXPECT_EQ(FormFloatToText(numbers[2]), L"1.18973149535723176502E4932");
    EXPECT_EQ(FormFloatToText(numbers[4]), L"3.64519953188247460253E-4951");
}

TEST(FormFloatTest, ReadsFewDigitsAs64BitNumbersAndManyAs80BitOnes) {
    EXPECT_EQ(TextToFormFloat(L"0.1", 0)->Value, TExtended::FromDouble(0.1));
    EXPECT_EQ(TextToFormFloat(L"0.10000000000000000", 0)->Value, TExtended::FromDouble(0.1));
    EXPECT_EQ(TextToFormFloat(L"0.100000000000000000", 0)->Value, (TExtended{0xCCCCCCCCCCCCCCCD, 0x3FFB}));
    EXPECT_EQ(TextToFormFloat(L"1E400", 0)->Value.ExactDouble(), std::nullopt) << "beyond 64 bits";
}

TEST(FormFloatTest, RoundsToTheNearestAndTiesToEven) {
    // 1 + 2^-64 lies in the middle of 1 and its neighbour; 1 + 3 * 2^-64 in the middle of the next two.
    const auto read = [](const wchar_t* text) { return TextToFormFloat(text, 0)->Value; };
    EXPECT_EQ(read(L"1.0000000000000000000542101086242752217003726400434970855712890625"),
              (TExtended{0x8000000000000000, 0x3FFF}));
    EXPECT_EQ(read(L"1.00000000000000000005421010862427522170037264004349708557128906251"),
              (TExtended{0x8000000000000001, 0x3FFF}));
    EXPECT_EQ(read(L"1.0000000000000000001626303258728256651011179201304912567138671875"),
              (TExtended{0x8000000000000002, 0x3FFF}));
}

TEST(FormFloatTest, RefusesWhatIsTooBigAndTakesWhatIsTooSmallAsZero) {
    EXPECT_FALSE(TextToFormFloat(L"1E4933", 0));
    EXPECT_FALSE(TextToFormFloat(L"1.2E4932", 0));
    EXPECT_FALSE(TextToFormFloat(L"1E99999999999999999999", 0));
    EXPECT_FALSE(TextToFormFloat(L"1E400", L'f'));
    EXPECT_FALSE(TextToFormFloat(L"1E39", L's'));
    EXPECT_EQ(TextToFormFloat(L"1E-5000", 0)->Value, TExtended());
    EXPECT_EQ(TextToFormFloat(L"-1E-99999999999999999999", 0)->Value, (TExtended{0, 0x8000}));
}

TEST(FormFloatTest, EveryNumberComesBackFromItsText) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 2000; ++i) {
        const auto exponent = static_cast<std::uint16_t>(random() % 0x7FFF);
        const std::uint64_t leading = exponent == 0 ? 0 : std::uint64_t{1} << 63;
        const TFormFloat number = Extended((random() & ~(std::uint64_t{1} << 63)) | leading,
                                           static_cast<std::uint16_t>(exponent | (random() & 0x8000)));
        const String text = FormFloatToText(number);
        const auto read = TextToFormFloat(text, 0);
        ASSERT_TRUE(read) << ToUtf8(text);
        ASSERT_EQ(*read, number) << ToUtf8(text);
    }
    for (int i = 0; i < 2000; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) continue;
        const auto read = TextToFormFloat(TextOf(value), 0);
        ASSERT_TRUE(read);
        ASSERT_EQ(read->Value, TExtended::FromDouble(value)) << value;
        ASSERT_EQ(read->ToDouble(), value);
    }
}

}  // namespace
}  // namespace vcl
