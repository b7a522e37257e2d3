#include "platform/vcl/streaming/FormErrors.h"

#include <gtest/gtest.h>

#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/FormText.h"

using namespace std::string_literals;

namespace vcl {
namespace {

using Kind = TFormProblemKind;

/// What reading the bytes raises, kind in front: "Syntax X.dfm(1,2): ..."
std::string Raised(const std::string& file) {
    try {
        (void)ParseForm(std::as_bytes(std::span(file)), L"X.dfm");
    } catch (const EFormError& error) {
        return std::to_string(static_cast<int>(error.Problem().Kind)) + " " + error.what();
    }
    return "nothing raised";
}

struct TErrorCase {
    const char* Name;
    std::string File;
    Kind Problem;
    const char* Message;
};

void PrintTo(const TErrorCase& error, std::ostream* out) {
    *out << error.Name;
}

class FormErrorsTest : public testing::TestWithParam<TErrorCase> {};

TEST_P(FormErrorsTest, NamesFilePlaceComponentAndProperty) {
    const TErrorCase& error = GetParam();
    EXPECT_EQ(Raised(error.File), std::to_string(static_cast<int>(error.Problem)) + " " + error.Message);
}

std::string Nested(const std::string& opening, int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += opening;
    return text;
}

const TErrorCase TextErrors[] = {
    {"Empty", "", Kind::Truncated,
     "X.dfm(1,1): the end of the file found where 'object', 'inherited' or 'inline' is expected"},
    {"Foreign", "hello", Kind::Syntax,
     "X.dfm(1,1): 'hello' found where 'object', 'inherited' or 'inline' is expected"},
    {"NoName", "object 5", Kind::Syntax, "X.dfm(1,8): '5' found where a name is expected"},
    {"DottedName", "object A.B: TA end", Kind::Syntax, "X.dfm(1,8): 'A.B' found where a name is expected"},
    {"NoClass", "object A: end", Kind::Truncated,
     "X.dfm(1,14): A: the end of the file found where 'end' is expected"},
    {"NoEnd", "object A: TA\r\n  X = 1\r\n", Kind::Truncated,
     "X.dfm(3,1): A: the end of the file found where 'end' is expected"},
    {"PropertyBehindChild", "object A: TA\n object B: TB\n end\n X = 1\nend", Kind::Syntax,
     "X.dfm(4,2): A: 'X' found where 'end' is expected"},
    {"MoreBehindTheEnd", "object A: TA end\nobject B: TB end", Kind::Syntax,
     "X.dfm(2,1): 'object' found where the end of the file is expected"},
    {"NoEqualSign", "object A: TA\n object B: TB\n  Width 5 end end", Kind::Syntax,
     "X.dfm(3,9): A.B.Width: '5' found where '=' is expected"},
    {"NoValue", "object A: TA Width = ; end", Kind::Syntax, "X.dfm(1,22): A.Width: Unexpected character ;"},
    {"NoValueButEnd", "object A: TA Width = )", Kind::Syntax,
     "X.dfm(1,22): A.Width: ')' found where a value is expected"},
    {"ControlCharacter", "object A: TA \1", Kind::Syntax, "X.dfm(1,14): Unexpected character #1"},
    {"NulCharacter", "object A: TA "s + '\0', Kind::Syntax, "X.dfm(1,14): Unexpected character #0"},
    {"UnterminatedString", "object A: TA\n  Caption = 'abc\nend", Kind::Truncated,
     "X.dfm(2,13): A.Caption: Unterminated string"},
    {"UnterminatedStringAtTheEnd", "object A: TA\n  Caption = 'x' + 'abc", Kind::Truncated,
     "X.dfm(2,19): A.Caption: Unterminated string"},
    {"NothingBehindPlus", "object A: TA Caption = 'a' + 5 end", Kind::Syntax,
     "X.dfm(1,30): A.Caption: A string must follow '+'"},
    {"CharacterCodeTooBig", "object A: TA Caption = 'a'#65536 end", Kind::OutOfRange,
     "X.dfm(1,27): A.Caption: Character code too big"},
    {"NoCharacterCode", "object A: TA Caption = #x end", Kind::Syntax,
     "X.dfm(1,24): A.Caption: Invalid character code"},
    {"NumberTooBig", "object A: TA Tag = 9223372036854775808 end", Kind::OutOfRange,
     "X.dfm(1,20): A.Tag: Number too big: 9223372036854775808"},
    {"HexadecimalTooBig", "object A: TA Tag = $10000000000000000 end", Kind::OutOfRange,
     "X.dfm(1,20): A.Tag: Number too big"},
    {"FractionTooBig", "object A: TA Tag = 1E5000 end", Kind::OutOfRange,
     "X.dfm(1,20): A.Tag: Number too big: 1E5000"},
    {"LettersInNumber", "object A: TA Tag = 12x end", Kind::Syntax, "X.dfm(1,20): A.Tag: Invalid number"},
    {"NoHexadecimalDigits", "object A: TA Tag = $ end", Kind::Syntax, "X.dfm(1,20): A.Tag: Invalid number"},
    {"NoExponent", "object A: TA Tag = 1E end", Kind::Syntax, "X.dfm(1,20): A.Tag: Invalid number"},
    {"PlaceTooBig", "object A: TA [4294967296] end", Kind::OutOfRange,
     "X.dfm(1,15): Number too big: 4294967296"},
    {"UnterminatedBytes", "object A: TA Data = {\n00 11", Kind::Truncated,
     "X.dfm(1,21): A.Data: Unterminated bytes"},
    {"OddDigits", "object A: TA Data = {001} end", Kind::Syntax,
     "X.dfm(1,25): A.Data: A hexadecimal digit is missing"},
    {"NoDigit", "object A: TA Data = {\n0G} end", Kind::Syntax,
     "X.dfm(2,2): A.Data: Invalid hexadecimal digit"},
    {"UnterminatedSet", "object A: TA S = [a, b", Kind::Truncated,
     "X.dfm(1,23): A.S: the end of the file found where ',' is expected"},
    {"NumberInSet", "object A: TA S = [5] end", Kind::Syntax,
     "X.dfm(1,19): A.S: '5' found where the name of a set's element is expected"},
    {"NullInList", "object A: TA L = (1 Null) end", Kind::Syntax,
     "X.dfm(1,21): A.L: Null can't stand in a list"},
    {"UnterminatedList", "object A: TA L = ('x'", Kind::Truncated,
     "X.dfm(1,22): A.L: the end of the file found where a value is expected"},
    {"NoItem", "object A: TA C = <\n item end\n itm end>", Kind::Syntax,
     "X.dfm(3,2): A.C: 'itm' found where 'item' or '>' is expected"},
    {"ErrorInItem", "object A: TA C = <item end item Width = 'x end>", Kind::Truncated,
     "X.dfm(1,41): A.C[1].Width: Unterminated string"},
    {"ListsTooDeep", "object A: TA P = " + Nested("(", 101), Kind::TooDeep,
     "X.dfm(1,118): A.P: Nested too deeply"},
};

INSTANTIATE_TEST_SUITE_P(Text, FormErrorsTest, testing::ValuesIn(TextErrors),
                         [](const auto& param) { return param.param.Name; });

/// A form `A: TA` that goes on like this behind its name.
std::string Form(const std::string& rest) {
    return "TPF0\2TA\1A"s + rest;
}

const TErrorCase BinaryErrors[] = {
    {"NothingButTheSignature", "TPF0", Kind::Truncated, "X.dfm(offset 4): Unexpected end of the file"},
    {"NoForm", "\xFF\xA\0X\0\x30\x10\4\0\0\0TPF1"s, Kind::Syntax,
     "X.dfm(offset 11): No binary form: the signature TPF0 is missing"},
    {"HeaderWithoutEnd", "\xFF\xA\0XYZ"s, Kind::Truncated,
     "X.dfm(offset 6): Unexpected end of the file: 1 bytes are needed, 0 are left"},
    {"HeaderWithTooGreatASize", "\xFF\xA\0X\0\x30\x10\5\0\0\0TPF0"s, Kind::Truncated,
     "X.dfm(offset 11): Unexpected end of the file: 5 bytes are needed, 4 are left"},
    {"SizeOfHeaderEndsTheForm", "\xFF\xA\0X\0\x30\x10\4\0\0\0"s + Form("\0\0"s), Kind::Truncated,
     "X.dfm(offset 15): Unexpected end of the file"},
    {"UnknownFlags", "TPF0\xF8\2TA\1A\0\0"s, Kind::Syntax, "X.dfm(offset 4): Invalid flags of an object (8)"},
    {"InheritedAndInline", "TPF0\xF5\2TA\1A\0\0"s, Kind::Syntax,
     "X.dfm(offset 4): Invalid flags of an object (5)"},
    {"PlaceIsNoNumber", "TPF0\xF2\x9\2TA"s, Kind::Syntax,
     "X.dfm(offset 5): The place of an object must be a whole number"},
    {"NameOfClass", "TPF0\2T!\1A\0\0"s, Kind::Syntax, "X.dfm(offset 4): Invalid name of a class"},
    {"NameOfComponent", "TPF0\2TA\3A.B\0\0"s, Kind::Syntax, "X.dfm(offset 7): Invalid name of a component"},
    {"NameOfProperty", Form("\2P.\2\5\0\0"s), Kind::Syntax, "X.dfm(offset 9): A: Invalid name of a property"},
    {"NameCutOff", Form("\5Wid"s), Kind::Truncated,
     "X.dfm(offset 9): A: Unexpected end of the file: 5 bytes are needed, 3 are left"},
    {"NoValue", Form("\1P"s), Kind::Truncated,
     "X.dfm(offset 11): A.P: Unexpected end of the file: 1 bytes are needed, 0 are left"},
    {"UnknownKind", Form("\1P\x16"s), Kind::Syntax, "X.dfm(offset 11): A.P: Unknown kind of value (22)"},
    {"NumberCutOff", Form("\1P\4\1\2"s), Kind::Truncated,
     "X.dfm(offset 12): A.P: Unexpected end of the file: 4 bytes are needed, 2 are left"},
    {"BlobCutOff",
     Form("\1P\xA\xFF\xFF\xFF\x7F"
          "123"s),
     Kind::Truncated,
     "X.dfm(offset 11): A.P: Unexpected end of the file: 2147483647 bytes are needed, 3 are left"},
    {"StringCutOff",
     Form("\1P\6\5"
          "123"s),
     Kind::Truncated, "X.dfm(offset 11): A.P: Unexpected end of the file: 5 bytes are needed, 3 are left"},
    {"WideStringCutOff",
     Form("\1P\x12\xFF\xFF\xFF\xFF"
          "123"s),
     Kind::Truncated,
     "X.dfm(offset 11): A.P: Unexpected end of the file: 8589934590 bytes are needed, 3 are left"},
    {"MalformedUtf8", Form("\1P\x14\2\0\0\0\xC3\x28\0\0"s), Kind::Syntax,
     "X.dfm(offset 11): A.P: Malformed UTF-8"},
    {"NoNumber", Form("\1P\x15\0\0\0\0\0\0\xF8\x7F\0\0"s), Kind::OutOfRange,
     "X.dfm(offset 11): A.P: Not a finite number"},
    {"NameOfValue", Form("\1P\7\1+\0\0"s), Kind::Syntax, "X.dfm(offset 12): A.P: Invalid name of a value"},
    {"NameOfElement", Form("\1P\xB\1a\3b.c\0\0\0"s), Kind::Syntax,
     "X.dfm(offset 14): A.P: Invalid name of a set's element"},
    {"IdentNullInList", Form("\1P\1\7\4Null\0\0\0"s), Kind::Syntax,
     "X.dfm(offset 12): A.P: Null can't stand in a list"},
    {"ListWithoutEnd", Form("\1P\1\2\5"s), Kind::Truncated,
     "X.dfm(offset 14): A.P: Unexpected end of the file"},
    {"ItemWithoutList", Form("\1P\xE\2\5\2\6\0"s), Kind::Syntax,
     "X.dfm(offset 14): A.P[0]: An item must begin with a list"},
    {"NoEndOfObject", Form("\0"s), Kind::Truncated, "X.dfm(offset 10): A: Unexpected end of the file"},
    {"MoreBehindTheEnd", Form("\0\0\0"s), Kind::Syntax, "X.dfm(offset 11): Bytes behind the end of the form"},
    {"ListsTooDeep", Form("\1P"s + Nested("\1", 101)), Kind::TooDeep,
     "X.dfm(offset 111): A.P: Nested too deeply"},
};

INSTANTIATE_TEST_SUITE_P(Binary, FormErrorsTest, testing::ValuesIn(BinaryErrors),
                         [](const auto& param) { return param.param.Name; });

TEST(FormNestingTest, TakesWhatIsJustNotTooDeep) {
    const auto objects = [](int depth) { return Nested("object A: TA\n", depth) + Nested("end\n", depth); };
    EXPECT_EQ(Raised(objects(100)), "nothing raised");
    EXPECT_EQ(Raised(objects(101)).find("2 X.dfm(101,1): A.A."), 0u) << Raised(objects(101));
    const auto lists = [](int depth) {
        return "object A: TA P = " + Nested("(", depth) + Nested(")", depth) + " end";
    };
    EXPECT_EQ(Raised(lists(100)), "nothing raised");
    const auto items = [](int depth) {
        return "object A: TA" + Nested(" P = <item", depth) + Nested(" end>", depth) + " end";
    };
    EXPECT_EQ(Raised(items(100)), "nothing raised");
    EXPECT_NE(Raised(items(101)).find("Nested too deeply"), std::string::npos);
    for (const auto& deepest : {objects(100), lists(100), items(100)}) {
        const auto document = ParseForm(std::as_bytes(std::span(deepest)));
        EXPECT_EQ(ParseFormBinary(FormToBinary(document)), document);
    }
}

TEST(FormErrorsTextTest, CarriesTheSameInItsFields) {
    try {
        (void)ParseFormText(L"object Main: TMain\n object Grid: TGrid\n  Columns = <item Width = 5x end>",
                            L"Main.dfm");
        FAIL() << "nothing raised";
    } catch (const EReadError& error) {
        EXPECT_STREQ(error.ClassName(), L"EFormError");
        const TFormProblem& problem = dynamic_cast<const EFormError&>(error).Problem();
        EXPECT_EQ(problem.FileName, L"Main.dfm");
        EXPECT_EQ(problem.Position, (TFormPosition{3, 27}));
        EXPECT_EQ(problem.Path, L"Main.Grid");
        EXPECT_EQ(problem.Property, L"Columns[0].Width");
        EXPECT_EQ(problem.Text, L"Invalid number");
        EXPECT_EQ(error.Message(), L"Main.dfm(3,27): Main.Grid.Columns[0].Width: Invalid number");
    }
}

TEST(FormErrorsTextTest, LeavesOutWhatIsNotKnown) {
    TFormProblem problem;
    problem.Position = {1, 2};
    problem.Text = L"Odd";
    EXPECT_EQ(problem.Message(), L"(1,2): Odd");
    problem.Property = L"Width";
    EXPECT_EQ(problem.Message(), L"(1,2): Width: Odd");
}

}  // namespace
}  // namespace vcl
