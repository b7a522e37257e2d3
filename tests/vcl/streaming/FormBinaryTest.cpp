#include "platform/vcl/streaming/FormBinary.h"

#include <gtest/gtest.h>

#include "platform/vcl/streaming/FormErrors.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/FormText.h"

using namespace std::string_literals;

namespace vcl {
namespace {

std::vector<std::byte> Bytes(const std::string& text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

std::string AsString(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// A form `A: TA` whose property P has this value.
std::string FormWith(const std::string& value) {
    return "TPF0\2TA\1A\1P"s + value + "\0\0"s;
}

struct TValueCase {
    const char* Name;
    std::string Binary;  ///< As it is read.
    const char* Text;
    std::string Canonical;  ///< As it is written; empty when it is the same.
};

void PrintTo(const TValueCase& value, std::ostream* out) {
    *out << value.Name;
}

class FormBinaryValuesTest : public testing::TestWithParam<TValueCase> {};

TEST_P(FormBinaryValuesTest, IsReadAndWrittenInBothFormats) {
    const TValueCase& value = GetParam();
    const auto document = ParseFormBinary(Bytes(FormWith(value.Binary)));
    const std::string text = FormToText(document);
    EXPECT_EQ(text, "object A: TA\r\n  P = "s + value.Text + "\r\nend\r\n");

    const std::string canonical = FormWith(value.Canonical.empty() ? value.Binary : value.Canonical);
    EXPECT_EQ(AsString(FormToBinary(document)), canonical);
    EXPECT_EQ(AsString(FormToBinary(ParseFormText(FromUtf8(text)))), canonical);
    EXPECT_EQ(FormToText(ParseFormBinary(Bytes(canonical))), text);
}

const TValueCase Values[] = {
    {"Null", "\0"s, "Null", {}},
    {"List", "\1\2\5\6\1x\0"s, "(\r\n    5\r\n    'x')", {}},
    {"EmptyList", "\1\0"s, "()", {}},
    {"NestedList", "\1\1\x9\0\0"s, "(\r\n    (\r\n      True))", {}},
    {"Int8", "\2\x80"s, "-128", {}},
    {"Int16", "\3\0\x80"s, "-32768", {}},
    {"Int16ThatFitsInt8", "\3\1\0"s, "1", "\2\1"s},
    {"Int32", "\4\0\0\0\x80"s, "-2147483648", {}},
    {"Extended", "\5\0\0\0\0\0\0\0\xC0\xFF\x3F"s, "1.5", {}},
    {"ExtendedTenth", "\5\xCD\xCC\xCC\xCC\xCC\xCC\xCC\xCC\xFB\x3F"s, "0.100000000000000000001", {}},
    {"String", "\6\3abc"s, "'abc'", {}},
    {"AnsiString", "\6\4Wei\xDF"s, "'Wei'#223", "\x14\5\0\0\0Wei\xC3\x9F"s},
    {"Ident", "\7\7clBlack"s, "clBlack", {}},
    {"DottedIdent", "\7\6F2.Btn"s, "F2.Btn", {}},
    {"IdentTrue", "\7\4True"s, "True", "\x9"s},
    {"False", "\x8"s, "False", {}},
    {"True", "\x9"s, "True", {}},
    {"Binary", "\xA\2\0\0\0\x12\xEF"s, "{\r\n    12EF}", {}},
    {"EmptyBinary", "\xA\0\0\0\0"s, "{}", {}},
    {"Set", "\xB\6akLeft\5akTop\0"s, "[akLeft, akTop]", {}},
    {"EmptySet", "\xB\0"s, "[]", {}},
    {"ShortLString", "\xC\3\0\0\0abc"s, "'abc'", "\6\3abc"s},
    {"Nil", "\xD"s, "nil", {}},
    {"Collection",
     "\xE\1\1W\2\5\0\1\0\2\7\1\0\0"s,
     "<\r\n    item\r\n      W = 5\r\n    end\r\n    item\r\n    end\r\n    item [7]\r\n    end>",
     {}},
    {"EmptyCollection", "\xE\0"s, "<>", {}},
    {"Single", "\xF\0\0\xC0\x3F"s, "1.5s", {}},
    {"Currency", "\x10\x39\x30\0\0\0\0\0\0"s, "1.2345c", {}},
    {"Date", "\x11\0\0\0\0\0\0\xF8\x3F"s, "1.5d", {}},
    {"WString", "\x12\2\0\0\0\x2D\x4E\x87\x65"s, "#20013#25991", "\x14\6\0\0\0\xE4\xB8\xAD\xE6\x96\x87"s},
    {"WStringHalfPair", "\x12\1\0\0\0\x3D\xD8"s, "#55357", {}},
    {"Int64", "\x13\0\0\0\x80\0\0\0\0"s, "2147483648", {}},
    {"UTF8String", "\x14\2\0\0\0\xC3\x84"s, "#196", {}},
    {"Double", "\x15\0\0\0\0\0\0\xF8\x3F"s, "1.5f", {}},
};

INSTANTIATE_TEST_SUITE_P(AllKinds, FormBinaryValuesTest, testing::ValuesIn(Values),
                         [](const auto& param) { return param.param.Name; });

TEST(FormBinaryTest, StoresStringsByTheirLength) {
    const auto stored = [](std::size_t length) {
        const auto document = ParseFormText(L"object A: TA P = '" + String(length, L'x') + L"' end");
        return AsString(FormToBinary(document));
    };
    EXPECT_EQ(stored(255), FormWith("\6\xFF"s + std::string(255, 'x')));
    EXPECT_EQ(stored(256), FormWith("\xC\0\1\0\0"s + std::string(256, 'x')));
}

TEST(FormBinaryTest, StoresKindAndPlaceOfAnObjectInItsPrefix) {
    const std::string bytes = "TPF0"s + "\xF1\2TA\1A\0"s + "\xF2\2\3\2TB\1B\0\0"s + "\xF4\2TC\1C\0\0"s +
                              "\xF3\3\0\1\2TD\1D\0\0"s + "\0"s;
    const auto document = ParseFormBinary(Bytes(bytes));
    EXPECT_EQ(FormToText(document),
              "inherited A: TA\r\n"
              "  object B: TB [3]\r\n"
              "  end\r\n"
              "  inline C: TC\r\n"
              "  end\r\n"
              "  inherited D: TD [256]\r\n"
              "  end\r\n"
              "end\r\n");
    EXPECT_EQ(AsString(FormToBinary(document)), bytes);
}

TEST(FormBinaryTest, TellsTheOffsetOfEverything) {
    const auto document = ParseFormBinary(Bytes(FormWith("\2\5"s)));
    EXPECT_EQ(document.Root.Position, TFormPosition::AtOffset(4));
    EXPECT_EQ(document.Root.Properties[0].Position, TFormPosition::AtOffset(9));
    EXPECT_EQ(document.Root.Properties[0].Value.Position, TFormPosition::AtOffset(11));
}

TEST(FormBinaryTest, TakesTheHeaderOfAResourceFile) {
    const auto form = Bytes(FormWith("\2\5"s));
    const auto wrapped = WrapInResource(form, L"TMAIN");
    EXPECT_EQ(AsString(wrapped).substr(0, 15), "\xFF\xA\0TMAIN\0\x30\x10\xF\0\0\0"s);
    EXPECT_TRUE(IsFormBinary(wrapped));
    EXPECT_EQ(ParseForm(wrapped), ParseForm(form));
    EXPECT_EQ(ParseForm(wrapped).Root.Position, TFormPosition::AtOffset(19));
}

TEST(FormBinaryTest, ReadsTheFirstOfSeveralForms) {
    auto bytes = Bytes(FormWith("\2\5"s));
    const std::size_t size = bytes.size();
    bytes.push_back(std::byte{7});
    std::size_t length = 0;
    (void)ParseFormBinary(bytes, {}, length);
    EXPECT_EQ(length, size);
}

TEST(FormBinaryTest, ReadsNamesInUtf8AndInCodePage1252) {
    const auto named = [](const std::string& name) {
        return ParseFormBinary(Bytes("TPF0\2TA"s + static_cast<char>(name.size()) + name + "\0\0"s))
            .Root.Name;
    };
    EXPECT_EQ(named("\xC3\x84nder"), L"\xC4nder");
    EXPECT_EQ(named("\xC4nder"), L"\xC4nder");
}

TEST(FormBinaryTest, RefusesNamesThatAreTooLongToBeStored) {
    const auto document = ParseFormText(L"object A: TA\n " + String(256, L'p') + L" = 1 end", L"x.dfm");
    try {
        (void)FormToBinary(document);
        FAIL() << "nothing raised";
    } catch (const EFormError& error) {
        EXPECT_EQ(error.Problem().Kind, TFormProblemKind::OutOfRange);
        EXPECT_EQ(error.Problem().Position, (TFormPosition{2, 2}));
    }
    const auto longest = ParseFormText(L"object " + String(255, L'n') + L": T" + String(238, L'c') + L" end");
    EXPECT_EQ(ParseFormBinary(FormToBinary(longest)), longest);
    EXPECT_THROW((void)FormToBinary(ParseFormText(L"object N: T" + String(239, L'c') + L" end")), EFormError);
}

}  // namespace
}  // namespace vcl
