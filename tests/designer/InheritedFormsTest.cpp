#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

constexpr char Base[] =
    "object BaseForm: TBaseForm\r\n  Left = 40\r\n  Top = 30\r\n  BorderStyle = bsNone\r\n"
    "  Caption = 'Basis'\r\n  ClientHeight = 200\r\n  ClientWidth = 300\r\n"
    "  object OkButton: TButton\r\n    Left = 16\r\n    Top = 16\r\n    Caption = 'Fertig'\r\n"
    "    OnClick = OkClick\r\n  end\r\n"
    "  object Box: TPanel\r\n    Left = 16\r\n    Top = 60\r\n    Width = 200\r\n    Height = 100\r\n"
    "    object NameEdit: TEdit\r\n      Left = 8\r\n      Top = 8\r\n    end\r\n  end\r\nend\r\n";

constexpr char Derived[] =
    "inherited LoginForm: TLoginForm\r\n  Left = 44\r\n  Caption = 'Anmelden'\r\n"
    "  inherited OkButton: TButton\r\n    Width = 90\r\n  end\r\n"
    "  inherited Box: TPanel\r\n"
    "    object More: TButton\r\n      Left = 8\r\n      Top = 40\r\n      Width = 75\r\n      Height = "
    "25\r\n"
    "      TabOrder = 1\r\n      Caption = 'Mehr'\r\n    end\r\n  end\r\nend\r\n";

class InheritedFormsTest : public DesignerWindowTest {
protected:
    void SetUp() override {
        DesignerWindowTest::SetUp();
        Dir.Write(L"Base.dfm", Base);
    }
    void OpenDerived(const char* text = Derived) {
        Window->OpenFile(Dir.Write(L"Login.dfm", text));
        ASSERT_TRUE(Answers.Errors.empty()) << ToUtf8(Answers.Errors[0]);
    }
    template <class T>
    T& Find(const wchar_t* name) {
        return dynamic_cast<T&>(*Document().Root().FindComponent(name));
    }
    void Choose(const wchar_t* name) { Document().Selection().SetOnly(&Find<TComponent>(name)); }
};

TEST_F(InheritedFormsTest, ShowsWhatIsInheritedAndSavesOnlyWhatDiffers) {
    OpenDerived();
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
    EXPECT_EQ(Find<TButton>(L"OkButton").GetWidth(), 90);
    EXPECT_EQ(Find<TButton>(L"More").GetParent(), &Find<TWinControl>(L"Box"));
    EXPECT_EQ(Document().Form().Place(), TPoint(44, 30));
    EXPECT_EQ(Document().Text(), Derived);
    Window->Save();
    EXPECT_EQ(Dir.Read(L"Login.dfm"), Derived);
    EXPECT_TRUE(Document().Form().IsInherited(Find<TButton>(L"OkButton")));
    EXPECT_FALSE(Document().Form().IsInherited(Find<TButton>(L"More")));
}

TEST_F(InheritedFormsTest, AChangedValueIsWrittenAndAnEqualOneLeftOut) {
    OpenDerived();
    const TRect edit = Find<TControl>(L"NameEdit").GetBoundsRect();
    Input.ClickAt(FormWindow(), 16 + edit.Left + 20, 60 + edit.Top + 8);
    ASSERT_EQ(Document().Selection().Names(), std::vector<String>{L"NameEdit"});
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(TextHas("    inherited NameEdit: TEdit\r\n      Left = 16\r\n    end\r\n"))
        << Document().Text();
    Input.KeyPress(VK_LEFT);
    EXPECT_EQ(Document().Text(), Derived) << "again as the ancestor has it";
    Choose(L"OkButton");
    ChooseLine(L"Caption");
    Input.Chord({VK_CONTROL}, 'A');
    Input.Type(L"Los");
    Input.KeyPress(VK_RETURN);
    EXPECT_TRUE(
        TextHas("  inherited OkButton: TButton\r\n    Width = 90\r\n    Caption = 'Los'\r\n  end\r\n"))
        << Document().Text();
    while (Document().History().CanUndo())
        Document().Undo();
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
}

TEST_F(InheritedFormsTest, AnInheritedComponentCannotBeDeletedOrRenamed) {
    OpenDerived();
    Choose(L"OkButton");
    Window->Delete();
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_EQ(Answers.Errors[0],
              L"OkButton gehört zu dem Formular, von dem dieses erbt. Hier kann es weder gelöscht noch "
              L"umbenannt noch woanders hineingestellt werden.");
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetWidth(), 90);

    Answers.Name = L"Other";
    Choose(L"OkButton");
    Window->RenameChosen();
    EXPECT_EQ(Answers.Errors.size(), 2u);
    Choose(L"Box");
    Window->Cut();
    EXPECT_EQ(Answers.Errors.size(), 3u);
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_FALSE(Document().IsModified());

    Choose(L"NameEdit");
    Window->Delete();
    EXPECT_EQ(Answers.Errors.size(), 4u);
    EXPECT_TRUE(Document().Root().FindComponent(L"NameEdit")) << "though the file does not mention it";

    Choose(L"More");
    Window->Delete();
    EXPECT_EQ(Answers.Errors.size(), 4u) << "what the form has added itself can go";
    EXPECT_FALSE(TextHas("More"));
}

TEST_F(InheritedFormsTest, TheDeleteKeyTellsItToo) {
    OpenDerived();
    Input.ClickAt(FormWindow(), 30, 25);
    Input.KeyPress(VK_DELETE);
    EXPECT_EQ(Answers.Errors.size(), 1u);
    EXPECT_EQ(Document().Text(), Derived);
    EXPECT_TRUE(Errors.empty());
}

TEST_F(InheritedFormsTest, CopiesOfInheritedComponentsAreWhole) {
    OpenDerived();
    Choose(L"OkButton");
    Window->Surface().SetFocus();
    Input.Chord({VK_CONTROL}, 'C');
    Choose(L"Box");
    Input.Chord({VK_CONTROL}, 'V');
    EXPECT_TRUE(Answers.Errors.empty());
    ASSERT_TRUE(TextHas("    object Button1: TButton\r\n")) << Document().Text();
    EXPECT_EQ(Find<TButton>(L"Button1").GetCaption(), L"Fertig");
    EXPECT_EQ(Find<TButton>(L"Button1").GetParent(), &Find<TWinControl>(L"Box"));
}

TEST_F(InheritedFormsTest, APlacedComponentStandsInTheInheritedOne) {
    OpenDerived("inherited LoginForm: TLoginForm\r\n  inherited OkButton: TButton\r\n  end\r\nend\r\n");
    PressTool(L"Standard", L"TButton");
    Input.ClickAt(FormWindow(), 16 + 100, 60 + 60);
    EXPECT_TRUE(TextHas("  inherited Box: TPanel\r\n    object Button1: TButton\r\n")) << Document().Text();
    Document().Undo();
    EXPECT_FALSE(TextHas("Button1"));
}

TEST_F(InheritedFormsTest, AMissingAncestorIsToldWithWhatIsMissing) {
    Dir.Write(L"Base.dfm", SampleFile);
    const std::string before = Document().Text();
    Window->OpenFile(Dir.Write(L"Login.dfm", Derived));
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_NE(Answers.Errors[0].find(L"Das Formular, von dem dieses erbt, fehlt: keine Formulardatei daneben "
                                     L"enthält Box: TPanel"),
              String::npos)
        << ToUtf8(Answers.Errors[0]);
    EXPECT_NE(Answers.Errors[0].find(L"Login.dfm("), String::npos);
    EXPECT_EQ(Document().Text(), before);

    Window->OpenFile(Dir.File(L"Base.dfm"));
    EXPECT_EQ(Answers.Errors.size(), 1u) << "others open as before";
}

TEST_F(InheritedFormsTest, FormsThatInheritInATurnAreFollowed) {
    Dir.Write(L"Middle.dfm",
              "inherited MiddleForm: TMiddleForm\r\n  Caption = 'Mitte'\r\n"
              "  inherited OkButton: TButton\r\n    Caption = 'Weiter'\r\n  end\r\n"
              "  object Extra: TButton\r\n    Left = 200\r\n    Top = 16\r\n  end\r\nend\r\n");
    OpenDerived(
        "inherited LoginForm: TLoginForm\r\n"
        "  inherited OkButton: TButton\r\n    Width = 90\r\n  end\r\n"
        "  inherited Extra: TButton\r\n    Left = 210\r\n  end\r\nend\r\n");
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Weiter");
    EXPECT_EQ(Document().Root().GetCaption(), L"Mitte");
    EXPECT_EQ(Find<TButton>(L"Extra").GetTop(), 16);
}

TEST_F(InheritedFormsTest, OfSeveralFilesTheUserChooses) {
    std::string other = Base;
    other.replace(other.find("BaseForm: TBaseForm"), 19, "OldForm: TOldForm");
    other.replace(other.find("Fertig"), 6, "Alt");
    Dir.Write(L"Old.dfm", other);
    Answers.File = Dir.File(L"Old.dfm");
    OpenDerived();
    EXPECT_EQ(Answers.Files, (std::vector<String>{Dir.File(L"Base.dfm"), Dir.File(L"Old.dfm")}));
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Alt");

    Answers.File = std::nullopt;
    Window->NewForm();
    const std::string empty = Document().Text();
    Window->OpenFile(Dir.File(L"Login.dfm"));
    EXPECT_TRUE(Answers.Errors.empty()) << "giving up is no error";
    EXPECT_EQ(Document().Text(), empty);
}

TEST_F(InheritedFormsTest, ANewFormInheritsTheFormOfAFile) {
    Answers.File = Dir.File(L"Base.dfm");
    Input.Chord({VK_SHIFT, VK_CONTROL}, 'N');
    EXPECT_EQ(Document().Text(), "inherited Form1: TForm1\r\nend\r\n");
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
    Answers.File = Dir.File(L"New.dfm");
    Input.Chord({VK_CONTROL}, 'S');
    Window->OpenFile(Dir.File(L"New.dfm"));
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
}

TEST_F(InheritedFormsTest, ThePreviewHasTheInheritedComponents) {
    OpenDerived();
    bool seen = false;
    test::Later([&] {
        TCustomForm* preview = Screen().GetActiveForm();
        auto* button = dynamic_cast<TButton*>(preview->FindComponent(L"OkButton"));
        seen = button && button->GetCaption() == L"Fertig" && button->GetWidth() == 90;
        preview->Close();
    });
    Input.KeyPress(VK_F9);
    EXPECT_TRUE(seen);
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(InheritedFormsTest, TheTextCanBeEditedAndTheStructureTellsWhatIsInherited) {
    OpenDerived();
    Input.KeyPress(VK_F12);
    String text = Window->TextMemo().GetText();
    text.replace(text.find(L"90"), 2, L"95");
    Window->TextMemo().SetText(text);
    Input.KeyPress(VK_F12);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetWidth(), 95);
    TQV7SkinExplorerGroup& form = *Window->Structure().GetGroups()[0];
    auto& ok = dynamic_cast<TQV7SkinExplorerItemLink&>(*form.GetItems().GetItems(0));
    EXPECT_EQ(ok.GetCaption(), L"OkButton: TButton");
    EXPECT_EQ(ok.GetFontStyle(), TFontStyles{fsItalic});
    TQV7SkinExplorerGroup& box = *Window->Structure().GetGroups()[1];
    ASSERT_EQ(box.GetItems().GetCount(), 2);
    EXPECT_EQ(dynamic_cast<TQV7SkinExplorerItemLink&>(*box.GetItems().GetItems(1)).GetFontStyle(),
              TFontStyles{});
}

TEST_F(InheritedFormsTest, LeftWorkOfAnInheritedFormIsTakenUp) {
    std::string text = Derived;
    text.replace(text.find("Anmelden"), 8, "Verloren");
    Dir.Write(L"kept\\1-2.arbeit", ToUtf8(Dir.File(L"Login.dfm")) + "\n" + text);
    Answers.Yes = true;
    Window->OfferLeftWork();
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_EQ(Document().Text(), text);
    EXPECT_EQ(Find<TButton>(L"OkButton").GetCaption(), L"Fertig");
}

}  // namespace
}  // namespace designer
