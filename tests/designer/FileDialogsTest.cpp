// The system's own dialogs for files, worked with keys and mouse.

#include "tests/designer/DesignerWindowFixture.h"
#include "tests/support/SystemDialogs.h"

namespace designer {
namespace {

using test::SystemDialogs;
using test::SystemDialogUser;

constexpr wchar_t OpenTitle[] = L"Formular öffnen";
constexpr wchar_t SaveTitle[] = L"Formular speichern";

class FileDialogsTest : public RealDialogsTest {
protected:
    void SetUp() override {
        RealDialogsTest::SetUp();
        File = Dir.Write(L"form.dfm", SampleFile);
    }
    void Press(WORD key, const std::function<void(SystemDialogUser&)>& steps) {
        const SystemDialogs user(steps);
        Input.Chord({VK_CONTROL}, key);
    }
    static void Answer(SystemDialogUser& dialog, const wchar_t* title, const String& name) {
        dialog.WaitForDialog(title);
        dialog.TypeInstead(name);
        dialog.KeyPress(VK_RETURN);
        dialog.WaitUntilLeft();
    }
    /// A form with a name of its own that was never saved.
    void BeginAnotherForm() {
        Input.Chord({VK_CONTROL}, 'N');
        ASSERT_TRUE(Window->File().Name().empty());
    }
    String File;
};

TEST_F(FileDialogsTest, AFileIsOpenedByItsName) {
    Press('O', [this](SystemDialogUser& dialog) { Answer(dialog, OpenTitle, File); });
    EXPECT_EQ(Window->File().Name(), File);
    EXPECT_TRUE(TextHas("object OkButton: TButton"));
    EXPECT_EQ(::GetFocus(), Window->Surface().WindowHandle()) << "back where it was";
}

TEST_F(FileDialogsTest, OpeningIsGivenUpByEscape) {
    const std::string before = Document().Text();
    Press('O', [](SystemDialogUser& dialog) {
        dialog.WaitForDialog(OpenTitle);
        dialog.KeyPress(VK_ESCAPE);
        dialog.WaitUntilLeft();
    });
    EXPECT_EQ(Document().Text(), before);
    EXPECT_TRUE(Window->File().Name().empty());
}

TEST_F(FileDialogsTest, AFileThatIsNotThereIsToldAndAskedForAgain) {
    for (const wchar_t* name : {L"nirgends.dfm", L"kein\\ordner.dfm"}) {
        Press('O', [&](SystemDialogUser& dialog) {
            Answer(dialog, OpenTitle, Dir.File(name));
            dialog.WaitForDialog();  // what the system says about it
            dialog.KeyPress(VK_RETURN);
            Answer(dialog, OpenTitle, File);
        });
        EXPECT_EQ(Window->File().Name(), File);
        BeginAnotherForm();
    }
}

TEST_F(FileDialogsTest, AFormIsSavedUnderTheTypedName) {
    // The extension comes by itself.
    Press('S', [this](SystemDialogUser& dialog) { Answer(dialog, SaveTitle, Dir.File(L"Größe")); });
    EXPECT_EQ(Window->File().Name(), Dir.File(L"Größe.dfm"));
    EXPECT_EQ(Dir.Read(L"Größe.dfm"), Document().Text());
    EXPECT_EQ(Window->GetCaption(), L"Größe.dfm – QV7 Designer");
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(FileDialogsTest, SavingIsGivenUpByEscape) {
    Press('S', [](SystemDialogUser& dialog) {
        dialog.WaitForDialog(SaveTitle);
        dialog.KeyPress(VK_ESCAPE);
        dialog.WaitUntilLeft();
    });
    EXPECT_TRUE(Window->File().Name().empty());
}

TEST_F(FileDialogsTest, AnotherFileIsReplacedOnlyWhenTheUserSaysSo) {
    Press('S', [this](SystemDialogUser& dialog) {
        Answer(dialog, SaveTitle, File);
        dialog.WaitForDialog();
        dialog.ClickButton(IDNO);
        dialog.WaitUntilLeft();
        dialog.WaitForDialog(SaveTitle);
        dialog.KeyPress(VK_ESCAPE);
        dialog.WaitUntilLeft();
    });
    EXPECT_EQ(Dir.Read(L"form.dfm"), SampleFile);
    EXPECT_TRUE(Window->File().Name().empty());

    Press('S', [this](SystemDialogUser& dialog) {
        Answer(dialog, SaveTitle, File);
        dialog.WaitForDialog();
        dialog.ClickButton(IDYES);
        dialog.WaitUntilLeft();
    });
    EXPECT_EQ(Window->File().Name(), File);
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text());
}

TEST_F(FileDialogsTest, AFolderThatIsNotThereIsToldAndNothingIsSaved) {
    Press('S', [this](SystemDialogUser& dialog) {
        Answer(dialog, SaveTitle, Dir.File(L"kein\\ordner.dfm"));
        dialog.WaitForDialog();
        dialog.KeyPress(VK_RETURN);
        dialog.WaitUntilLeft();
        dialog.WaitForDialog(SaveTitle);
        dialog.KeyPress(VK_ESCAPE);
        dialog.WaitUntilLeft();
    });
    EXPECT_TRUE(Window->File().Name().empty());
}

}  // namespace
}  // namespace designer
