#include "designer/window/DesignerDialogs.h"

#include "designer/dialogs/RowList.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/FormTest.h"

namespace designer {
namespace {

class DesignerDialogsTest : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Form().SetFocus();
    }
    TDesignerDialogs Dialogs;
};

TEST_F(DesignerDialogsTest, ANameIsTypedAndAcceptedByEnter) {
    InDialog(L"Umbenennen", [](DialogDriver& dialog) {
        dialog.Picture(L"rename");
        dialog.Input.Chord({VK_CONTROL}, 'A');
        dialog.Input.Type(L"OkButton");
        dialog.Input.KeyPress(VK_RETURN);
    });
    EXPECT_EQ(Dialogs.AskName(L"Button1"), L"OkButton");
    InDialog(L"Umbenennen", [](DialogDriver& dialog) { dialog.Input.KeyPress(VK_ESCAPE); });
    EXPECT_EQ(Dialogs.AskName(L"Button1"), std::nullopt);
}

TEST_F(DesignerDialogsTest, AnAncestorIsChosenInTheList) {
    const std::vector<String> files{L"C:\\Formulare\\Basis.dfm", L"C:\\Formulare\\Alt.dfm"};
    InDialog(L"Abgeleitetes Formular", [](DialogDriver& dialog) {
        dialog.Picture(L"ancestor");
        dialog.ClickRow(1);
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Dialogs.AskAncestor(files), files[1]);
    InDialog(L"Abgeleitetes Formular", [](DialogDriver& dialog) { dialog.Press(L"Abbrechen"); });
    EXPECT_EQ(Dialogs.AskAncestor(files), std::nullopt);
}

TEST_F(DesignerDialogsTest, QuestionsAreAnsweredByKeys) {
    const auto answer = [](WORD key, const wchar_t* picture) {
        InDialog(L"QV7 Designer", [key, picture](DialogDriver& dialog) {
            dialog.Picture(picture);
            dialog.Input.KeyPress(key);
        });
    };
    answer(VK_RETURN, L"save");
    EXPECT_EQ(Dialogs.AskToSave(L"form.dfm"), TDesignerDialogs::TAnswer::Save);
    answer(VK_ESCAPE, L"save");
    EXPECT_EQ(Dialogs.AskToSave(L"form.dfm"), TDesignerDialogs::TAnswer::Cancel);
    answer(VK_RETURN, L"reload");
    EXPECT_FALSE(Dialogs.AskToReload(L"form.dfm")) << "what is in the designer stays by default";
    answer(VK_RETURN, L"reload-ancestor");
    EXPECT_TRUE(Dialogs.AskToReloadAncestor(L"Basis.dfm"));
    answer(VK_ESCAPE, L"reload-ancestor");
    EXPECT_FALSE(Dialogs.AskToReloadAncestor(L"Basis.dfm"));
    answer(VK_RETURN, L"recover");
    EXPECT_TRUE(Dialogs.AskToRecover(L"form.dfm"));
    answer(VK_ESCAPE, L"recover");
    EXPECT_FALSE(Dialogs.AskToRecover(L"form.dfm"));
    answer(VK_RETURN, L"error");
    Dialogs.ShowError(L"'breit' ist keine ganze Zahl");
}

}  // namespace
}  // namespace designer
