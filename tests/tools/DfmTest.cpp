#include <gtest/gtest.h>

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "skin/UnitQV7SkinConsts.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/Program.h"
#include "tests/support/TempDir.h"

namespace {

using namespace vcl;
using namespace std::string_literals;

/// Runs the program on files of a folder of its own.
class DfmTest : public test::LedgerTest {
protected:
    /// In the arguments a word that begins with @ is a file of the folder.
    test::ProgramRun Run(const std::wstring& arguments) {
        std::wstring line;
        for (const wchar_t c : arguments)
            line += c == L'@' ? FFolder.Path() + L"\\" : std::wstring(1, c);
        test::ProgramRun run = test::RunProgram(L"dfm.exe", line);
        // Messages begin with the file as it was named.
        const std::string prefix = ToUtf8(FFolder.Path()) + "\\";
        for (std::string* text : {&run.Output, &run.Errors})
            for (auto at = text->find(prefix); at != std::string::npos; at = text->find(prefix))
                text->erase(at, prefix.size());
        return run;
    }
    void Write(std::wstring_view name, std::string_view bytes) { FFolder.Write(name, bytes); }

    test::TempDir FFolder;
};

const char* const Fine =
    "object LoginForm: TLoginForm\r\n"
    "  Caption = 'Wei'#223\r\n"
    "  Visible = True\r\n"
    "  OnCreate = FormCreate\r\n"
    "  object Ok: TQV7SkinButton\r\n"
    "    Left = 8\r\n"
    "    OnClick = OkClick\r\n"
    "  end\r\n"
    "  object Timer: TTimer\r\n"
    "    Enabled = False\r\n"
    "  end\r\n"
    "end\r\n";

const char* const Faulty =
    "object LoginForm: TLoginForm\r\n"
    "  ActiveControl = Nobody\r\n"
    "  object Ok: TQV7SkinButton\r\n"
    "    Widht = 8\r\n"
    "    Enabled = 1\r\n"
    "  end\r\n"
    "  object Other: TForeignButton\r\n"
    "    Anything = 5\r\n"
    "  end\r\n"
    "end\r\n";

TEST_F(DfmTest, ChecksFormsWithoutTheirClassesAndMethods) {
    Write(L"Login.dfm", Fine);
    const auto run = Run(L"check @Login.dfm");
    EXPECT_EQ(run.Code, 0u);
    EXPECT_EQ(run.Output, "Login.dfm: 3 components\r\n");
    EXPECT_EQ(run.Errors, "");
}

TEST_F(DfmTest, NamesAllThatIsWrong) {
    Write(L"Login.dfm", Faulty);
    const auto run = Run(L"check @Login.dfm");
    EXPECT_EQ(run.Code, 1u);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(
        run.Errors,
        "Login.dfm(4,5): LoginForm.Ok.Widht: TQV7SkinButton has no property Widht\r\n"
        "Login.dfm(5,15): LoginForm.Ok.Enabled: a whole number found where True or False is expected\r\n"
        "Login.dfm(7,3): LoginForm.Other: Class TForeignButton not found\r\n"
        "Login.dfm(2,19): LoginForm.ActiveControl: No component named Nobody\r\n");
}

TEST_F(DfmTest, LetsForeignClassesPassWhenAsked) {
    Write(L"Login.dfm", "object F: TF\r\n  ActiveControl = A\r\n  object A: TForeign\r\n  end\r\nend\r\n");
    EXPECT_EQ(Run(L"check @Login.dfm").Code, 1u);
    const auto run = Run(L"check --foreign @Login.dfm");
    EXPECT_EQ(run.Code, 0u) << run.Errors;
}

TEST_F(DfmTest, ChecksInheritedFormsAfterTheirAncestors) {
    Write(L"Base.dfm", Fine);
    Write(L"Derived.dfm",
          "inherited Derived: TDerived\r\n  inherited Ok: TQV7SkinButton\r\n    Left = 9\r\n"
          "  end\r\nend\r\n");
    const auto run = Run(L"check @Derived.dfm --inherits @Base.dfm");
    EXPECT_EQ(run.Code, 0u) << run.Errors;
    const auto alone = Run(L"check @Derived.dfm");
    EXPECT_EQ(alone.Code, 1u);
    EXPECT_EQ(alone.Errors, "Derived.dfm(2,3): Derived.Ok: No ancestor has a component named Ok\r\n");
}

TEST_F(DfmTest, RefusesWhatIsNoForm) {
    Write(L"No.dfm", "hello");
    Write(L"Cut.dfm", "TPF0\2TA\1A");
    Write(L"Fine.dfm", Fine);
    const auto run = Run(L"check @No.dfm @Cut.dfm @Fine.dfm");
    EXPECT_EQ(run.Code, 1u);
    EXPECT_EQ(run.Errors,
              "No.dfm(1,1): 'hello' found where 'object', 'inherited' or 'inline' is expected\r\n"
              "Cut.dfm(offset 9): A: Unexpected end of the file\r\n");
    EXPECT_EQ(run.Output, "Fine.dfm: 3 components\r\n");
}

TEST_F(DfmTest, ConvertsThereAndBackWithoutLoss) {
    Write(L"Login.dfm", Fine);
    ASSERT_EQ(Run(L"binary @Login.dfm -o @Login.bin").Code, 0u);
    EXPECT_EQ(FFolder.Read(L"Login.bin").substr(0, 4), "TPF0");
    const auto run = Run(L"text @Login.bin");
    EXPECT_EQ(run.Code, 0u);
    EXPECT_EQ(run.Output, Fine);
    ASSERT_EQ(Run(L"text @Login.bin -o @Again.dfm").Code, 0u);
    EXPECT_EQ(FFolder.Read(L"Again.dfm"), Fine);
    EXPECT_EQ(Run(L"binary @Again.dfm").Output, FFolder.Read(L"Login.bin"));
}

TEST_F(DfmTest, WrapsABinaryFormInAResource) {
    Write(L"Login.dfm", Fine);
    ASSERT_EQ(Run(L"binary --resource TLOGINFORM -o @Login.res @Login.dfm").Code, 0u);
    EXPECT_EQ(FFolder.Read(L"Login.res").substr(0, 13), "\xFF\x0A\0TLOGINFORM"s);
    EXPECT_EQ(Run(L"text @Login.res").Output, Fine);
}

TEST_F(DfmTest, ConvertsSeveralFilesIntoAFolder) {
    Write(L"A.dfm", Fine);
    Write(L"B.dfm", Faulty);
    const test::TempDir target;
    ASSERT_EQ(Run(L"text @A.dfm @B.dfm -o \"" + target.Path() + L"\"").Code, 0u);
    EXPECT_EQ(target.Read(L"A.dfm"), Fine);
    EXPECT_EQ(target.Read(L"B.dfm"), Faulty);
    EXPECT_EQ(Run(L"text @A.dfm @B.dfm -o @C.dfm").Code, 2u);
}

TEST_F(DfmTest, LeavesTheTargetAloneWhenTheFormIsWrong) {
    Write(L"A.dfm", "object");
    Write(L"B.dfm", Fine);
    EXPECT_EQ(Run(L"text @A.dfm -o @B.dfm").Code, 1u);
    EXPECT_EQ(FFolder.Read(L"B.dfm"), Fine);
}

TEST_F(DfmTest, PrintsTheTree) {
    Write(L"Form.dfm",
          "inherited Form: TForm\r\n  object Panel: TPanel\r\n    inline Frame: TFrame\r\n"
          "      inherited TLabel\r\n      end\r\n    end\r\n  end\r\n  object Timer: TTimer\r\n  "
          "end\r\nend\r\n");
    const auto run = Run(L"tree @Form.dfm");
    EXPECT_EQ(run.Code, 0u);
    EXPECT_EQ(run.Output,
              "inherited Form: TForm\r\n"
              "  Panel: TPanel\r\n"
              "    inline Frame: TFrame\r\n"
              "      inherited TLabel\r\n"
              "  Timer: TTimer\r\n");
}

TEST_F(DfmTest, ExplainsItself) {
    const auto run = Run(L"help");
    EXPECT_EQ(run.Code, 0u);
    for (const char* word : {"dfm check", "dfm text", "dfm binary", "dfm tree", "Exit code"})
        EXPECT_NE(run.Output.find(word), std::string::npos) << word;
}

TEST_F(DfmTest, RefusesWrongArguments) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"", "A command is missing"},
        {L"frobnicate x", "Unknown command frobnicate"},
        {L"check", "A file is missing"},
        {L"check -o x y", "Unknown option -o"},
        {L"text --foreign x", "Unknown option --foreign"},
        {L"binary x -o", "-o needs a value"},
    };
    for (const auto& [arguments, message] : cases) {
        const auto run = Run(arguments);
        EXPECT_EQ(run.Code, 2u) << message;
        EXPECT_EQ(run.Errors.substr(0, run.Errors.find("\r\n")), message);
        EXPECT_EQ(run.Output, "");
    }
}

TEST_F(DfmTest, TellsFilesThatCannotBeOpened) {
    const auto run = Run(L"tree @None.dfm");
    EXPECT_EQ(run.Code, 2u);
    EXPECT_EQ(run.Errors.find("Cannot open file"), 0u) << run.Errors;
    const auto package = Run(L"check --package @None.dll @None.dfm");
    EXPECT_EQ(package.Code, 2u);
    EXPECT_NE(package.Errors, "");
}

TEST_F(DfmTest, RegistersTheClassesOfOtherPackages) {
    Write(L"Login.dfm", Fine);
    EXPECT_EQ(Run(L"check --package kernel32.dll @Login.dfm").Code, 2u) << "the system is no package";
    // A static build has no package that could be loaded.
    const bool isLibrary = qv7skin::QV7SkinModule() != GetModuleHandleW(nullptr);
    EXPECT_EQ(Run(L"check --package QV7Skin.dll @Login.dfm").Code, isLibrary ? 0u : 2u);
}

}  // namespace
