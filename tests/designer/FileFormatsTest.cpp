// What kinds of form files the designer reads, and how it writes them again.

#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/designer/DesignerWindowFixture.h"

namespace designer {
namespace {

std::string_view AsText(const std::vector<std::byte>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

class FileFormatsTest : public DesignerWindowTest {
protected:
    void Open(std::string_view bytes) {
        Window->OpenFile(Dir.Write(L"form.dfm", bytes));
        ASSERT_TRUE(Answers.Errors.empty()) << ToUtf8(Answers.Errors[0]);
    }
};

constexpr wchar_t Umlauts[] =
    L"object Form1: TForm1\r\n  Caption = 'Grüße'\r\n  object Größe1: TKnöpfe\r\n  end\r\nend\r\n";

TEST_F(FileFormatsTest, LettersBeyondAsciiAreReadInEveryEncoding) {
    const std::string utf8 = ToUtf8(Umlauts);
    std::string ansi;
    std::string utf16{"\xFF\xFE"};
    for (const wchar_t c : String(Umlauts)) {
        const char low = static_cast<char>(c & 0xFF);
        const char high = static_cast<char>(c >> 8);
        ansi += low;
        utf16 += {low, high};
    }
    for (const std::string& bytes : {utf8, "\xEF\xBB\xBF" + utf8, ansi, utf16}) {
        Open(bytes);
        EXPECT_EQ(Document().Root().GetCaption(), L"Grüße");
        EXPECT_TRUE(Document().Root().FindComponent(L"Größe1")) << Document().Text();
    }
}

TEST_F(FileFormatsTest, NamesBeyondAsciiAreWrittenWithTheMarkOfUtf8) {
    Open(ToUtf8(Umlauts));
    Window->Save();
    EXPECT_EQ(Dir.Read(L"form.dfm"), "\xEF\xBB\xBF" + Document().Text());
    Window->OpenFile(Dir.File(L"form.dfm"));
    EXPECT_TRUE(Document().Root().FindComponent(L"Größe1"));
    Open(SampleFile);
    Window->Save();
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text()) << "others stay plain";
}

TEST_F(FileFormatsTest, ABinaryFormKeepsTheHeaderOfAResource) {
    Open(SampleFile);
    const TFormDocument document = ParseFormText(FromUtf8(Document().Text()));
    const auto bytes = WrapInResource(FormToBinary(document), L"TMAINFORM");
    Open(AsText(bytes));
    Window->Save();
    EXPECT_EQ(Dir.Read(L"form.dfm"), AsText(bytes));
}

TEST_F(FileFormatsTest, UnderAnotherNameABinaryFormBecomesText) {
    Open(AsText(FormToBinary(ParseFormText(FromUtf8(SampleFile)))));
    Answers.File = Dir.File(L"other.dfm");
    EXPECT_TRUE(Window->SaveAs());
    EXPECT_EQ(Dir.Read(L"other.dfm"), Document().Text());
}

TEST_F(FileFormatsTest, EmptyAndDamagedFilesAreTold) {
    Open(SampleFile);
    const std::string before = Document().Text();
    const auto binary = FormToBinary(ParseFormText(FromUtf8(SampleFile)));
    const auto resource = WrapInResource(binary, L"TMAINFORM");
    std::size_t told = 0;
    for (const std::string_view bytes :
         {std::string_view(), std::string_view("\xEF\xBB\xBF"), std::string_view("\xFF\xFE"),
          AsText(binary).substr(0, binary.size() / 2), AsText(resource).substr(0, 8),
          std::string_view("TPF0"), std::string_view("\0\0\0\0", 4)}) {
        Window->OpenFile(Dir.Write(L"bad.dfm", bytes));
        EXPECT_EQ(Answers.Errors.size(), ++told) << testing::PrintToString(bytes);
        EXPECT_EQ(Document().Text(), before);
    }
}

}  // namespace
}  // namespace designer
