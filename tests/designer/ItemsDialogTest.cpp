#include "designer/dialogs/ItemsDialog.h"

#include "designer/dialogs/RowList.h"
#include "designer/inspector/InspectorGrid.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/menus/MainMenu.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

using TRows = std::vector<String>;

class ItemsDialogTest : public DesignerWindowTest {
protected:
    void Open(const char* contents) {
        Window->OpenFile(Dir.Write(
            L"form.dfm", std::string("object MainForm: TMainForm\r\n  ClientHeight = 200\r\n  ClientWidth = "
                                     "300\r\n") +
                             contents + "end\r\n"));
        ASSERT_TRUE(Answers.Errors.empty());
    }
    void Choose(const wchar_t* name) {
        Document().Selection().SetOnly(Document().Root().FindComponent(name));
    }
    /// Opens the editor of the component by keys and does this in it.
    void Edit(const wchar_t* name, const wchar_t* caption, const std::function<void(DialogDriver&)>& steps) {
        Choose(name);
        bool ran = false;
        InDialog(caption, [&](DialogDriver& dialog) {
            ran = true;
            steps(dialog);
        });
        Window->Surface().SetFocus();
        Input.Chord({VK_CONTROL}, 'E');
        EXPECT_TRUE(ran);
    }
    /// Undoes everything and compares with the file; then does it all again.
    void ExpectUndoneAndRedone() {
        const std::string after = Document().Text();
        const auto steps = Document().History().Position();
        EXPECT_GT(steps, 0u);
        for (auto i = steps; i > 0; --i)
            Document().Undo();
        EXPECT_FALSE(Document().IsModified());
        EXPECT_EQ(Document().Text(), FBefore);
        for (auto i = steps; i > 0; --i)
            Document().Redo();
        EXPECT_EQ(Document().Text(), after);
    }
    void KeepText() { FBefore = Document().Text(); }

private:
    std::string FBefore;
};

constexpr char MenuFile[] =
    "  object Menu: TQV7SkinMainMenu\r\n    Left = 200\r\n    Top = 100\r\n"
    "    object FileItem: TMenuItem\r\n      Caption = '&Datei'\r\n"
    "      object OpenItem: TMenuItem\r\n        Caption = 'Oeffnen'\r\n        ShortCut = 16463\r\n      "
    "end\r\n"
    "    end\r\n"
    "    object HelpItem: TMenuItem\r\n      Caption = '&Hilfe'\r\n    end\r\n  end\r\n";

TEST_F(ItemsDialogTest, AMenuIsBuiltByKeysAlone) {
    PressTool(L"QV7", L"TQV7SkinPopupMenu");
    Input.ClickAt(FormWindow(), 60, 50);
    ASSERT_TRUE(TextHas("object QV7SkinPopupMenu1: TQV7SkinPopupMenu"));
    KeepText();
    bool ran = false;
    InDialog(L"Menü QV7SkinPopupMenu1", [&](DialogDriver& dialog) {
        ran = true;
        dialog.Input.KeyPress(VK_INSERT);
        dialog.Input.Type(L"&Neu");
        dialog.Input.KeyPress(VK_RETURN);
        dialog.Input.KeyPress(VK_INSERT);
        dialog.Input.Type(L"Ö&ffnen");
        dialog.Input.KeyPress(VK_RETURN);
        dialog.Input.Chord({VK_CONTROL}, VK_INSERT);
        dialog.Input.Type(L"Zuletzt");
        dialog.Input.KeyPress(VK_RETURN);
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Neu", L"Ö&ffnen", L"  Zuletzt"}));
        dialog.Input.KeyPress(VK_ESCAPE);
    });
    Input.DoubleClickAt(FormWindow(), 66, 56);
    EXPECT_TRUE(ran);
    EXPECT_TRUE(TextHas("    object MenuItem1: TMenuItem\r\n      Caption = '&Neu'\r\n    end\r\n"))
        << Document().Text();
    EXPECT_TRUE(TextHas("      object MenuItem3: TMenuItem\r\n        Caption = 'Zuletzt'\r\n      end\r\n"));
    const std::string after = Document().Text();
    while (Document().History().Position() > 1)
        Document().Undo();
    while (Document().History().CanRedo())
        Document().Redo();
    EXPECT_EQ(Document().Text(), after);
}

TEST_F(ItemsDialogTest, EntriesAreMovedByToolsKeysAndDragging) {
    Open(MenuFile);
    KeepText();
    Edit(L"Menu", L"Menü Menu", [&](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  Oeffnen", L"&Hilfe"}));
        EXPECT_EQ(dialog.List().Rows()[1].Note, L"Ctrl+O");
        dialog.Picture(L"menu");
        dialog.ClickRow(2);
        dialog.PressTool(L"Hinauf");
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Hilfe", L"&Datei", L"  Oeffnen"}));
        EXPECT_EQ(dialog.List().GetChosen(), 0);
        dialog.Input.Chord({VK_CONTROL}, VK_DOWN);
        dialog.PressTool(L"Hinein");
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  Oeffnen", L"  &Hilfe"}));
        dialog.Input.Chord({VK_CONTROL}, VK_LEFT);
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  Oeffnen", L"&Hilfe"}));
        dialog.DragRow(2, 1);
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  &Hilfe", L"  Oeffnen"}));
        dialog.DragRow(0, 2);
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  &Hilfe", L"  Oeffnen"})) << "not into itself";
        dialog.ClickRow(1);
        dialog.PressTool(L"Trennlinie");
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  &Hilfe", L"  -", L"  Oeffnen"}));
        EXPECT_TRUE(dialog.List().Rows()[2].IsLine);
        dialog.Picture(L"menu-moved");
        dialog.Press(L"Schließen");
    });
    ExpectUndoneAndRedone();
}

TEST_F(ItemsDialogTest, TheChosenEntryIsEditedInTheInspector) {
    Open(MenuFile);
    KeepText();
    Edit(L"Menu", L"Menü Menu", [&](DialogDriver& dialog) {
        dialog.ClickRow(1);
        dialog.SetLine(L"Caption", L"Ö&ffnen");
        EXPECT_EQ(dialog.Rows()[1], L"  Ö&ffnen");
        dialog.SetLine(L"ShortCut", L"Ctrl+Shift+O");
        dialog.SetLine(L"Name", L"OpenAny");
        dialog.ClickRow(0);
        dialog.SetLine(L"Enabled", L"False");
    });
    EXPECT_TRUE(
        TextHas("object OpenAny: TMenuItem\r\n        Caption = #214'&ffnen'\r\n        ShortCut = 24655"))
        << Document().Text();
    EXPECT_TRUE(TextHas("Caption = '&Datei'\r\n      Enabled = False"));
    ExpectUndoneAndRedone();
}

TEST_F(ItemsDialogTest, AValueThatCannotBeIsToldAndChangesNothing) {
    Open(MenuFile);
    Edit(L"Menu", L"Menü Menu", [&](DialogDriver& dialog) {
        bool told = false;
        InDialog(L"QV7 Designer", [&told](DialogDriver&) { told = true; });
        dialog.SetLine(L"ImageIndex", L"viele");
        EXPECT_TRUE(told);
        EXPECT_EQ(dialog.Grid().GetChosenPath(), L"ImageIndex");
    });
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(ItemsDialogTest, EntriesAreDeletedAndTheDeletionUndoneInTheDialog) {
    Open(MenuFile);
    Edit(L"Menu", L"Menü Menu", [&](DialogDriver& dialog) {
        dialog.Input.KeyPress(VK_DELETE);
        EXPECT_EQ(dialog.Rows(), TRows{L"&Hilfe"}) << "with all that lies below it";
        dialog.Input.Chord({VK_CONTROL}, 'Z');
        EXPECT_EQ(dialog.Rows(), (TRows{L"&Datei", L"  Oeffnen", L"&Hilfe"}));
        dialog.Input.Chord({VK_CONTROL}, 'Z');
        EXPECT_EQ(Document().History().Position(), 0u) << "no further than the dialog goes back";
        dialog.Input.Chord({VK_CONTROL}, 'Y');
        EXPECT_EQ(dialog.Rows(), TRows{L"&Hilfe"});
        dialog.Press(L"Schließen");
    });
    EXPECT_FALSE(TextHas("object FileItem"));
    EXPECT_FALSE(TextHas("object OpenItem"));
}

TEST_F(ItemsDialogTest, EscGivesUpATextAndNotTheDialog) {
    Open(MenuFile);
    Edit(L"Menu", L"Menü Menu", [&](DialogDriver& dialog) {
        dialog.Input.KeyPress(VK_F2);
        dialog.Input.Type(L"Anders");
        dialog.Input.KeyPress(VK_ESCAPE);
        EXPECT_EQ(dialog.Rows()[0], L"&Datei");
        EXPECT_EQ(dialog.Form().GetModalResult(), mrNone);
        dialog.Input.KeyPress(VK_RETURN);
        dialog.Input.Type(L"Anders");
        dialog.Input.KeyPress(VK_DOWN);
        EXPECT_EQ(dialog.Rows()[0], L"Anders");
        EXPECT_EQ(dialog.List().GetChosen(), 1);
    });
    EXPECT_TRUE(TextHas("Caption = 'Anders'"));
}

TEST_F(ItemsDialogTest, ActionsAreEditedInTheirList) {
    Open(
        "  object Actions: TActionList\r\n    Left = 100\r\n    Top = 100\r\n"
        "    object SaveAction: TAction\r\n      Caption = 'Sichern'\r\n    end\r\n  end\r\n");
    KeepText();
    Edit(L"Actions", L"Aktionen von Actions", [&](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Rows(), TRows{L"Sichern"});
        dialog.PressTool(L"Neu");
        dialog.Input.Type(L"Drucken");
        dialog.Input.KeyPress(VK_RETURN);
        dialog.SetLine(L"ShortCut", L"Ctrl+P");
        dialog.List().SetFocus();
        dialog.Input.Chord({VK_CONTROL}, VK_UP);
        EXPECT_EQ(dialog.Rows(), (TRows{L"Drucken", L"Sichern"}));
        dialog.Picture(L"actions");
    });
    EXPECT_TRUE(TextHas("    object Action1: TAction\r\n      Caption = 'Drucken'\r\n      ShortCut = 16464"))
        << Document().Text();
    ExpectUndoneAndRedone();
}

TEST_F(ItemsDialogTest, ACollectionIsEditedWithTheCollectionsInIt) {
    Open(
        "  object Manager: TActionManager\r\n    Left = 100\r\n    Top = 100\r\n  end\r\n"
        "  object Bar: TActionMainMenuBar\r\n    ActionManager = Manager\r\n  end\r\n");
    KeepText();
    Choose(L"Manager");
    bool ran = false;
    InDialog(L"Manager.ActionBars", [&](DialogDriver& dialog) {
        ran = true;
        dialog.Input.KeyPress(VK_INSERT);
        dialog.Input.KeyPress(VK_ESCAPE);
        dialog.SetLine(L"ActionBar", L"Bar");
        dialog.List().SetFocus();
        for (const wchar_t* caption : {L"Datei", L"Hilfe"}) {
            dialog.ClickRow(0);
            dialog.PressTool(L"Darunter");
            dialog.Input.Type(caption);
            dialog.Input.KeyPress(VK_RETURN);
        }
        ASSERT_EQ(dialog.List().Count(), 3);
        dialog.Input.Chord({VK_CONTROL}, VK_UP);
        EXPECT_EQ(dialog.Rows()[1], L"  Hilfe");
        EXPECT_EQ(dialog.Rows()[2], L"  Datei");
        dialog.Picture(L"collection");
    });
    TInspectorGrid& grid = Window->Grid();
    const TRect line = grid.LineRect(0);  // in the order of names the first
    Input.ClickAt(grid.WindowHandle(), line.Left + 40, line.Top + 10);
    ASSERT_EQ(grid.GetChosenPath(), L"ActionBars");
    Input.ClickAt(grid.WindowHandle(), line.Right - 8, line.Top + 10);
    EXPECT_TRUE(ran);
    EXPECT_TRUE(TextHas("ActionBar = Bar")) << Document().Text();
    EXPECT_TRUE(TextHas("Caption = 'Hilfe'"));
    ExpectUndoneAndRedone();
}

}  // namespace
}  // namespace designer
