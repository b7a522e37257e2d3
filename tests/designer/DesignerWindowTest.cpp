#include <filesystem>
#include <functional>
#include <set>

#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/ShortCuts.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

TEST_F(DesignerWindowTest, ShowsThePagesOfThePalette) {
    const TQV7SkinHeaderItems& tabs = Window->PaletteTabs().GetItems();
    std::vector<String> pages;
    for (int i = 0; i < tabs.GetCount(); ++i)
        pages.push_back(tabs[i]->GetCaption());
    std::vector<String> expected;
    for (const TRegisteredPage& page : RegisteredPages())
        expected.push_back(page.Name);
    EXPECT_EQ(pages, expected);
    EXPECT_NE(std::ranges::find(pages, L"QV7"), pages.end());
    EXPECT_TRUE(tabs[0]->GetSelected());
}

TEST_F(DesignerWindowTest, AComponentIsPlacedNamedAndSavedByMouseAndKeys) {
    PressTool(L"QV7", L"TQV7SkinButton");
    ASSERT_TRUE(Window->Surface().GetTool());
    Input.ClickAt(FormWindow(), 40, 40);
    EXPECT_TRUE(TextHas("object QV7SkinButton1: TQV7SkinButton"));
    EXPECT_EQ(Window->Strip().GetChosen(), nullptr) << "back to the arrow";

    ChooseLine(L"Caption");
    Input.Chord({VK_CONTROL}, 'A');
    Input.Type(L"Größe");
    Input.KeyPress(VK_RETURN);
    EXPECT_TRUE(TextHas("Caption = 'Gr'#246#223'e'")) << Document().Text();

    Answers.File = Dir.File(L"form.dfm");
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text());
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(Window->GetCaption(), L"form.dfm – QV7 Designer");
}

TEST_F(DesignerWindowTest, AnOpenedFileIsSavedUnchanged) {
    const String file = Dir.Write(L"form.dfm", SampleFile);
    Window->OpenFile(file);
    const std::string text = Document().Text();
    Window->Save();
    EXPECT_EQ(Dir.Read(L"form.dfm"), text);
    Window->OpenFile(file);
    Window->Save();
    EXPECT_EQ(Dir.Read(L"form.dfm"), text) << "and stays so";
    EXPECT_TRUE(TextHas("OnClick = OkButtonClick"));
}

TEST_F(DesignerWindowTest, ABinaryFileStaysBinary) {
    const auto bytes = FormToBytes(ParseFormText(FromUtf8(SampleFile)), TFormFormat::Binary);
    const String file =
        Dir.Write(L"form.dfm", std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    Window->OpenFile(file);
    Window->Save();
    EXPECT_EQ(Dir.Read(L"form.dfm").substr(0, 4), "TPF0");
}

TEST_F(DesignerWindowTest, AFileThatCannotBeReadIsToldAndChangesNothing) {
    const std::string before = Document().Text();
    Window->OpenFile(Dir.Write(L"bad.dfm", "object X: T\r\n  Left = \r\n"));
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_NE(Answers.Errors[0].find(L"bad.dfm(3,"), String::npos) << ToUtf8(Answers.Errors[0]);
    EXPECT_EQ(Document().Text(), before);
    Window->OpenFile(Dir.File(L"none.dfm"));
    EXPECT_EQ(Answers.Errors.size(), 2u);
}

TEST_F(DesignerWindowTest, ARefusedValueIsToldAndTheOldOneComesBack) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    Input.ClickAt(FormWindow(), 30, 25);
    ChooseLine(L"Width");
    Input.Chord({VK_CONTROL}, 'A');
    Input.Type(L"breit");
    Input.KeyPress(VK_RETURN);
    ASSERT_EQ(Answers.Errors.size(), 1u);
    EXPECT_EQ(Answers.Errors[0], L"'breit' ist keine ganze Zahl");
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(DesignerWindowTest, UndoAndRedoWorkByKeys) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    const std::string before = Document().Text();
    Input.ClickAt(FormWindow(), 30, 25);
    Input.KeyPress(VK_RIGHT);
    const std::string after = Document().Text();
    EXPECT_NE(after, before);
    Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_EQ(Document().Text(), before);
    Input.Chord({VK_CONTROL}, 'Y');
    EXPECT_EQ(Document().Text(), after);
}

TEST_F(DesignerWindowTest, TheDeleteKeyBelongsToWhatHasTheFocus) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    Input.ClickAt(FormWindow(), 30, 25);
    ChooseLine(L"Caption");
    Input.KeyPress(VK_HOME);
    Input.KeyPress(VK_DELETE);
    Input.KeyPress(VK_RETURN);
    EXPECT_TRUE(TextHas("Caption = 'ertig'")) << Document().Text();
    Window->Surface().SetFocus();
    Input.KeyPress(VK_DELETE);
    EXPECT_FALSE(TextHas("OkButton"));
    Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_TRUE(TextHas("object OkButton"));
}

TEST_F(DesignerWindowTest, EveryEntryOfTheMenuHasAMnemonicOfItsOwn) {
    const std::function<void(const TMenuItem&)> check = [&check](const TMenuItem& parent) {
        std::set<wchar_t> letters;
        for (int i = 0; i < parent.GetCount(); ++i) {
            const TMenuItem& item = *parent[i];
            if (item.IsLine()) continue;
            const wchar_t letter = GetHotkey(item.GetCaption());
            EXPECT_NE(letter, 0) << ToUtf8(item.GetCaption());
            EXPECT_TRUE(letters.insert(letter).second) << ToUtf8(item.GetCaption());
            check(item);
        }
    };
    check(Window->MainMenu().GetItems());
}

TEST_F(DesignerWindowTest, ComponentsGoThroughTheClipboardAsText) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    Input.ClickAt(FormWindow(), 30, 25);
    Input.Chord({VK_CONTROL}, 'C');
    Input.Chord({VK_CONTROL}, 'V');
    EXPECT_TRUE(TextHas("object Button1: TButton")) << Document().Text();
    Input.Chord({VK_CONTROL}, 'X');
    EXPECT_FALSE(TextHas("object Button1: TButton"));
    EXPECT_TRUE(TextHas("object OkButton: TButton"));
}

TEST_F(DesignerWindowTest, TheTextCanBeEditedAndSaysWhereItIsWrong) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    Input.KeyPress(VK_F12);
    ASSERT_TRUE(Window->ShowsText());
    String text = Window->TextMemo().GetText();
    Window->TextMemo().SetText(L"?\r\n" + text);
    EXPECT_NE(Window->Status().find(L"Zeile 1,"), String::npos) << ToUtf8(Window->Status());
    Input.KeyPress(VK_F12);
    EXPECT_TRUE(Window->ShowsText()) << "it stays with a text that can't be parsed";
    ASSERT_EQ(Answers.Reasons.size(), 1u);
    EXPECT_EQ(Answers.Reasons[0].find(L"Zeile 1, Spalte 1: "), 0u) << ToUtf8(Answers.Reasons[0]);

    text.replace(text.find(L"Fertig"), 6, L"Los");
    Window->TextMemo().SetText(text);
    EXPECT_NE(Window->Status().find(L"in Ordnung"), String::npos);
    Input.KeyPress(VK_F12);
    EXPECT_FALSE(Window->ShowsText());
    EXPECT_TRUE(TextHas("Caption = 'Los'"));
    Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_TRUE(TextHas("Caption = 'Fertig'"));
}

TEST_F(DesignerWindowTest, TheCaretGoesWhereTheTextIsWrong) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    Input.KeyPress(VK_F12);
    String text = Window->TextMemo().GetText();
    const std::size_t place = text.find(L"80");
    text.insert(place, L"= ");
    Window->TextMemo().SetText(text);
    Input.KeyPress(VK_F12);
    EXPECT_EQ(Answers.Reasons.size(), 1u);
    EXPECT_EQ(Window->TextMemo().GetSelStart(), static_cast<int>(place));
}

TEST_F(DesignerWindowTest, WhatIsTypedIntoTheTextIsKeptToo) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    Input.KeyPress(VK_F12);
    Input.KeyPress(VK_DOWN);
    Input.Type(L"  Tag = 4");
    Input.KeyPress(VK_RETURN);
    const auto kept = [this] {
        for (const auto& entry : std::filesystem::directory_iterator(Dir.File(L"kept")))
            if (entry.path().extension() == L".arbeit")
                return Dir.Read(L"kept\\" + entry.path().filename().wstring());
        return std::string();
    };
    ASSERT_TRUE(test::PumpUntil([&] { return kept().find("  Tag = 4\r\n") != std::string::npos; })) << kept();
    Input.Type(L"Tag = ");
    EXPECT_NE(Window->Status().find(L"Zeile 3,"), String::npos) << ToUtf8(Window->Status());
}

TEST_F(DesignerWindowTest, ClosingAsksForUnsavedChanges) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    EXPECT_TRUE(Window->CloseQuery());
    EXPECT_EQ(Answers.Questions, 0);
    Input.ClickAt(FormWindow(), 30, 25);
    Input.KeyPress(VK_RIGHT);
    EXPECT_FALSE(Window->CloseQuery()) << "the answer was to go on";
    Answers.Save = TDesignerDialogs::TAnswer::Save;
    EXPECT_TRUE(Window->CloseQuery());
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text());
    EXPECT_EQ(Answers.Questions, 2);
}

TEST_F(DesignerWindowTest, AChangeOnDiskIsNoticed) {
    const String file = Dir.Write(L"form.dfm", SampleFile);
    Window->OpenFile(file);
    std::string changed = SampleFile;
    changed.replace(changed.find("Fertig"), 6, "Neu");
    Dir.Write(L"form.dfm", changed);
    test::AgeFile(file);  // another time than that of its last writing
    Answers.Yes = true;
    Window->OnActivate(Window.get());
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_TRUE(TextHas("Caption = 'Neu'"));
    Window->OnActivate(Window.get());
    EXPECT_EQ(Answers.Questions, 1) << "only once";
}

TEST_F(DesignerWindowTest, WhatIsKeptAgainstAChangeOnDiskIsNotSaved) {
    const String file = Dir.Write(L"form.dfm", SampleFile);
    Window->OpenFile(file);
    ASSERT_FALSE(Document().IsModified());
    test::AgeFile(file);
    Answers.Yes = false;
    Window->OnActivate(Window.get());
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_TRUE(Document().IsModified());
    EXPECT_TRUE(TextHas("Caption = 'Fertig'"));
}

TEST_F(DesignerWindowTest, WorkThatWasLeftBehindIsOffered) {
    Dir.Write(L"form.dfm", SampleFile);
    std::string text = SampleFile;
    text.replace(text.find("Fertig"), 6, "Verloren");
    Dir.Write(L"kept\\1-2.arbeit", ToUtf8(Dir.File(L"form.dfm")) + "\n" + text);
    Answers.Yes = true;
    Window->OfferLeftWork();
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_TRUE(TextHas("Caption = 'Verloren'"));
    EXPECT_TRUE(Document().IsModified());
    EXPECT_EQ(Window->File().Name(), Dir.File(L"form.dfm"));
    Document().Undo();
    EXPECT_TRUE(TextHas("Caption = 'Fertig'")) << "the state of the file lies before it";
}

TEST_F(DesignerWindowTest, ThePreviewRunsTheFormAndLeavesTheDocumentAlone) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    const std::string before = Document().Text();
    bool seen = false;
    test::Later([&] {
        TCustomForm* preview = Screen().GetActiveForm();
        seen = preview && preview != Window.get() && preview->FindComponent(L"OkButton") &&
               !preview->IsInState(csDesigning);
        preview->Close();
    });
    Input.KeyPress(VK_F9);
    EXPECT_TRUE(seen);
    EXPECT_EQ(Document().Text(), before);
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(DesignerWindowTest, TheStructureShowsComponentsAndChoosesThem) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    TQV7SkinExplorerBar& bar = Window->Structure();
    ASSERT_EQ(bar.GetGroups().GetCount(), 1);
    TQV7SkinExplorerGroup& group = *bar.GetGroups()[0];
    EXPECT_EQ(group.GetTitle(), L"MainForm: TMainForm");
    ASSERT_EQ(group.GetItems().GetCount(), 1);
    auto& link = dynamic_cast<TQV7SkinExplorerItemLink&>(*group.GetItems().GetItems(0));
    EXPECT_EQ(link.GetCaption(), L"OkButton: TButton");
    EXPECT_EQ(link.GetFontStyle(), TFontStyles{});
    bar.Update();
    Input.MoveTo(bar.WindowHandle(), link.ClipRect().Left + 8, link.ClipRect().Top + 4);
    Input.Click();
    EXPECT_EQ(Document().Selection().Names(), std::vector<String>{L"OkButton"});
    EXPECT_EQ(link.GetFontStyle(), TFontStyles{fsBold});

    PressTool(L"Standard", L"TPanel");
    Input.ClickAt(FormWindow(), 120, 60);
    PressTool(L"Standard", L"TEdit");
    Input.ClickAt(FormWindow(), 130, 70);
    ASSERT_EQ(bar.GetGroups().GetCount(), 2) << Document().Text();
    EXPECT_EQ(bar.GetGroups()[1]->GetTitle(), L"Panel1");
}

}  // namespace
}  // namespace designer
