// Files that other programs change, take away or lock while a form is open.

#include "designer/files/SafeFile.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/designer/DesignerWindowFixture.h"

namespace designer {
namespace {

constexpr char Base[] =
    "object BaseForm: TBaseForm\r\n  BorderStyle = bsNone\r\n  Caption = 'Basis'\r\n"
    "  ClientHeight = 200\r\n  ClientWidth = 300\r\n"
    "  object OkButton: TButton\r\n    Left = 16\r\n    Top = 16\r\n    Caption = 'Fertig'\r\n  end\r\n"
    "  object HelpButton: TButton\r\n    Left = 16\r\n    Top = 60\r\n  end\r\nend\r\n";

constexpr char Derived[] =
    "inherited LoginForm: TLoginForm\r\n  Caption = 'Anmelden'\r\n"
    "  inherited OkButton: TButton\r\n    Width = 90\r\n  end\r\nend\r\n";

/// The text with the first `part` replaced.
std::string With(std::string text, const std::string& part, const std::string& replacement) {
    return text.replace(text.find(part), part.size(), replacement);
}

class ChangedFilesTest : public DesignerWindowTest {
protected:
    /// What another program does to a file.
    String WriteLater(const wchar_t* name, const std::string& text) {
        const unsigned long long before = FileTimeOf(Dir.File(name));
        String file = Dir.Write(name, text);
        // Clocks are coarse.
        if (FileTimeOf(file) == before) test::AgeFile(file);
        return file;
    }
    void Activate(TDesignerWindow& window) { window.OnActivate(&window); }
    void Activate() { Activate(*Window); }
    template <class T>
    T& Find(const wchar_t* name) {
        return dynamic_cast<T&>(*Document().Root().FindComponent(name));
    }
    void Open(const char* text) { Window->OpenFile(Dir.Write(L"form.dfm", text)); }
    void OpenDerived() {
        Dir.Write(L"Base.dfm", Base);
        Window->OpenFile(Dir.Write(L"Login.dfm", Derived));
        ASSERT_TRUE(Answers.Errors.empty()) << ToUtf8(Answers.Errors[0]);
    }
    void MoveOkButton() {
        Document().Edit(L"Verschieben", [&] { Find<TButton>(L"OkButton").SetLeft(40); });
    }
};

TEST_F(ChangedFilesTest, AChangedAncestorIsOfferedOnceAndReadAnew) {
    OpenDerived();
    Activate();
    EXPECT_TRUE(Answers.Ancestors.empty());
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Weiter"));
    Answers.Yes = true;
    Activate();
    EXPECT_EQ(Answers.Ancestors, std::vector<String>{L"Base.dfm"});
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter");
    EXPECT_EQ(Find<TButton>(L"OkButton").GetWidth(), 90);
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_FALSE(Document().IsModified()) << "the form itself is as it was";
    Activate();
    EXPECT_EQ(Answers.Ancestors.size(), 1u);
    EXPECT_EQ(Answers.Questions, 0);
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(ChangedFilesTest, TheAncestorCanBeKeptAsItWas) {
    OpenDerived();
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Weiter"));
    Answers.Yes = false;
    Activate();
    Activate();
    EXPECT_EQ(Answers.Ancestors.size(), 1u);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
    EXPECT_FALSE(Document().IsModified());
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Los!"));
    Answers.Yes = true;
    Activate();
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Los!") << "the next change is another question";
}

TEST_F(ChangedFilesTest, UnsavedEditsOutliveTheReloadOfAnAncestor) {
    OpenDerived();
    MoveOkButton();
    const std::string edited = Document().Text();
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Weiter"));
    Answers.Yes = true;
    Activate();
    EXPECT_EQ(Document().Text(), edited);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetLeft(), 40);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter");
    EXPECT_TRUE(Document().IsModified());
    Document().Undo();
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetLeft(), 16);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter");
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(ChangedFilesTest, WhatTheAncestorNowSaysItselfIsLeftOut) {
    OpenDerived();
    WriteLater(L"Base.dfm", With(Base, "Left = 16\r\n    Top = 16\r\n",
                                 "Left = 16\r\n    Top = 16\r\n    Width = 90\r\n"));
    Answers.Yes = true;
    Activate();
    EXPECT_FALSE(TextHas("Width = 90")) << Document().Text();
    EXPECT_TRUE(Document().IsModified());
    Document().Undo();
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(ChangedFilesTest, WhatTheAncestorLostIsKeptInTheFile) {
    OpenDerived();
    WriteLater(L"Base.dfm", With(Base, "object OkButton", "object AcceptButton"));
    Answers.Yes = true;
    Activate();
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_NE(Window->Status().find(L"OkButton"), String::npos) << ToUtf8(Window->Status());
    EXPECT_TRUE(TextHas("  inherited OkButton: TButton\r\n    Width = 90\r\n  end\r\n")) << Document().Text();
    EXPECT_TRUE(Document().Root().FindComponent(L"AcceptButton"));
    WriteLater(L"Base.dfm", Base);
    Activate();
    EXPECT_EQ(Find<TButton>(L"OkButton").GetWidth(), 90);
    EXPECT_EQ(Document().Text(), Derived);
}

TEST_F(ChangedFilesTest, AnAncestorThatCannotBeReadIsToldAndTheFormStays) {
    OpenDerived();
    MoveOkButton();
    const std::string edited = Document().Text();
    WriteLater(L"Base.dfm", "object BaseForm: TBaseForm\r\n  Caption = ");
    Answers.Yes = true;
    Activate();
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_NE(Answers.Errors[0].find(L"Base.dfm("), String::npos) << ToUtf8(Answers.Errors[0]);
    EXPECT_EQ(Document().Text(), edited);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Weiter"));
    Activate();
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter") << "whole again";
}

TEST_F(ChangedFilesTest, AnAncestorOfTheAncestorCountsToo) {
    Dir.Write(L"Base.dfm", Base);
    Dir.Write(L"Middle.dfm",
              "inherited MiddleForm: TMiddleForm\r\n  inherited OkButton: TButton\r\n    Height = 30\r\n  "
              "end\r\n  object Extra: TButton\r\n    Left = 200\r\n  end\r\nend\r\n");
    Window->OpenFile(Dir.Write(L"Login.dfm",
                               "inherited LoginForm: TLoginForm\r\n  inherited Extra: TButton\r\n    Left = "
                               "210\r\n  end\r\nend\r\n"));
    ASSERT_TRUE(Answers.Errors.empty()) << ToUtf8(Answers.Errors[0]);
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Weiter"));
    Answers.Yes = true;
    Activate();
    EXPECT_EQ(Answers.Ancestors, std::vector<String>{L"Base.dfm"});
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter");
    EXPECT_EQ(Find<TButton>(L"OkButton").GetHeight(), 30);
}

TEST_F(ChangedFilesTest, TheTextBeingTypedOutlivesTheReloadOfAnAncestor) {
    OpenDerived();
    Input.KeyPress(VK_F12);
    String text = Window->TextMemo().GetText();
    text.replace(text.find(L"90"), 2, L"95");
    Window->TextMemo().SetText(text);
    WriteLater(L"Base.dfm", With(Base, "Fertig", "Weiter"));
    Answers.Yes = true;
    Activate();
    EXPECT_EQ(Find<TButton>(L"OkButton").GetWidth(), 95);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter");
    EXPECT_NE(Window->TextMemo().GetText().find(L"95"), String::npos);
}

TEST_F(ChangedFilesTest, AFileThatIsGoneMakesTheFormUnsaved) {
    Open(SampleFile);
    ::DeleteFileW(Dir.File(L"form.dfm").c_str());
    Activate();
    EXPECT_EQ(Answers.Questions, 0);
    EXPECT_TRUE(Document().IsModified());
    EXPECT_NE(Window->Status().find(L"form.dfm"), String::npos);
    EXPECT_FALSE(Window->CloseQuery()) << "nobody loses the form by closing";
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_TRUE(Window->Save());
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text());
    Activate();
    EXPECT_EQ(Answers.Questions, 1);
}

TEST_F(ChangedFilesTest, SavingDoesNotReplaceWhatAnotherProgramHasWritten) {
    Open(SampleFile);
    MoveOkButton();
    const std::string other = With(SampleFile, "Fertig", "Anders");
    WriteLater(L"form.dfm", other);
    Answers.Yes = true;
    EXPECT_TRUE(Window->Save());
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_EQ(Dir.Read(L"form.dfm"), other);
    EXPECT_TRUE(TextHas("Caption = 'Anders'"));

    MoveOkButton();
    WriteLater(L"form.dfm", SampleFile);
    Answers.Yes = false;
    EXPECT_TRUE(Window->Save());
    EXPECT_EQ(Answers.Questions, 2);
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text()) << "unless the user says so";
    EXPECT_TRUE(TextHas("Caption = 'Anders'"));
}

TEST_F(ChangedFilesTest, TwoDesignersOnOneFileTellEachOther) {
    Open(SampleFile);
    const auto other = MakeWindow();
    other->OpenFile(Dir.File(L"form.dfm"));
    MoveOkButton();
    EXPECT_TRUE(Window->Save());
    test::AgeFile(Dir.File(L"form.dfm"));  // clocks are coarse
    Answers.Yes = true;
    Activate(*other);
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_EQ(other->Document().Text(), Document().Text());
    EXPECT_FALSE(other->Document().IsModified());
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(ChangedFilesTest, AReloadThatFailsLeavesTheFormUnsaved) {
    Open(SampleFile);
    const std::string before = Document().Text();
    WriteLater(L"form.dfm", "object MainForm: TMainForm\r\n  Caption = ");
    Answers.Yes = true;
    Activate();
    EXPECT_EQ(Answers.Errors.size(), 1u);
    EXPECT_EQ(Document().Text(), before);
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(ChangedFilesTest, AReadOnlyFileIsNotReplaced) {
    Open(SampleFile);
    const String file = Dir.File(L"form.dfm");
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    MoveOkButton();
    EXPECT_FALSE(Window->Save());
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_EQ(Answers.Errors[0], L"Die Datei „" + file + L"“ ist schreibgeschützt.");
    EXPECT_TRUE(Document().IsModified());
    EXPECT_EQ(Dir.Read(L"form.dfm"), SampleFile);
    EXPECT_EQ(FileTimeOf(file + L".neu"), 0u);
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(Window->Save());
}

TEST_F(ChangedFilesTest, AFolderThatCannotBeWrittenToIsTold) {
    Open(SampleFile);
    // The name beside the file is taken by a folder.
    ::CreateDirectoryW((Dir.File(L"form.dfm") + L".neu").c_str(), nullptr);
    MoveOkButton();
    EXPECT_FALSE(Window->Save());
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_NE(Answers.Errors[0].find(L"kann nicht geschrieben werden"), String::npos);
    EXPECT_TRUE(Document().IsModified());
    EXPECT_EQ(Dir.Read(L"form.dfm"), SampleFile);
    ::RemoveDirectoryW((Dir.File(L"form.dfm") + L".neu").c_str());
    EXPECT_TRUE(Window->Save());
}

}  // namespace
}  // namespace designer
