#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class FormKeysTest : public FormTest {};

TEST_F(FormKeysTest, TabGoesRoundTheTabStopsAndIntoPanels) {
    auto* a = Make<TEdit>({10, 10, 90, 31});
    auto* panel = Make<TPanel>({10, 40, 200, 100});
    auto* b = Make<TEdit>({10, 10, 90, 31}, panel);
    auto* skipped = Make<TEdit>({100, 10, 180, 31}, panel);
    skipped->SetTabStop(false);
    auto* c = Make<TEdit>({10, 110, 90, 131});
    a->SetFocus();
    for (TEdit* next : {b, c, a}) {
        Input.KeyPress(VK_TAB);
        EXPECT_TRUE(next->Focused());
    }
    for (TEdit* next : {c, b, a}) {
        Input.Chord({VK_SHIFT}, VK_TAB);
        EXPECT_TRUE(next->Focused());
    }
}

TEST_F(FormKeysTest, TabFollowsTheTabOrderAndSkipsWhatCannotBeFocused) {
    auto* a = Make<TEdit>({10, 10, 90, 31});
    auto* b = Make<TEdit>({10, 40, 90, 61});
    auto* c = Make<TEdit>({10, 70, 90, 91});
    c->SetTabOrder(1);
    a->SetFocus();
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(c->Focused());
    b->SetEnabled(false);
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(a->Focused());
}

TEST_F(FormKeysTest, ArrowsWalkAmongTheButtonsOfOneParent) {
    auto* panel = Make<TPanel>({10, 40, 300, 100});
    auto* a = Make<TButton>({10, 10, 60, 35}, panel);
    auto* b = Make<TButton>({70, 10, 120, 35}, panel);
    Make<TButton>({10, 110, 60, 135});
    a->SetFocus();
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(b->Focused());
    Input.KeyPress(VK_DOWN);
    EXPECT_TRUE(a->Focused());
    Input.KeyPress(VK_LEFT);
    EXPECT_TRUE(b->Focused());
    Input.KeyPress(VK_UP);
    EXPECT_TRUE(a->Focused());
}

TEST_F(FormKeysTest, ArrowsStayInAnEditor) {
    auto* a = Make<TEdit>({10, 10, 90, 31});
    Make<TEdit>({10, 40, 90, 61});
    a->SetText(L"ab");
    a->SetFocus();
    a->SetSelStart(0);
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(a->Focused());
    EXPECT_EQ(a->GetSelStart(), 1);
}

TEST_F(FormKeysTest, AccessKeysFindTheirControlAnywhereOnTheForm) {
    auto* edit = Make<TEdit>({10, 10, 90, 31});
    auto* panel = Make<TPanel>({10, 40, 300, 100});
    auto* box = Make<TCheckBox>({10, 10, 100, 30}, panel);
    box->SetCaption(L"&Draw");
    edit->SetFocus();
    Input.KeyPress('D');
    EXPECT_FALSE(box->GetChecked());
    EXPECT_EQ(edit->GetText(), L"d");
    Input.Chord({VK_MENU}, 'D');
    EXPECT_TRUE(box->GetChecked());
}

TEST_F(FormKeysTest, APlainLetterWorksAsAccessKeyWhereNobodyTypes) {
    auto* button = Make<TButton>({10, 10, 90, 31});
    auto* box = Make<TCheckBox>({10, 40, 100, 60});
    box->SetCaption(L"&Draw");
    button->SetFocus();
    Input.KeyPress('D');
    EXPECT_TRUE(box->GetChecked());
}

TEST_F(FormKeysTest, KeyPreviewSeesKeysFirstAndMaySwallowThem) {
    auto* edit = Make<TEdit>({10, 10, 90, 31});
    std::vector<std::string> log;
    Form().OnKeyDown = [&](TObject*, WORD& key, TShiftState shift) {
        log.emplace_back("form down");
        if (shift.Contains(ssCtrl)) key = 0;
    };
    Form().OnKeyPress = [&](TObject*, wchar_t& key) {
        if (key == L'x') key = L'y';
        if (key == L'q') key = 0;
    };
    edit->OnKeyDown = [&](TObject*, WORD&, TShiftState) { log.emplace_back("edit down"); };
    edit->SetFocus();
    Input.KeyPress('X');
    EXPECT_EQ(log, std::vector<std::string>{"edit down"});
    EXPECT_EQ(edit->GetText(), L"x");
    log.clear();
    Form().SetKeyPreview(true);
    Input.KeyPress('X');
    EXPECT_EQ(log, (std::vector<std::string>{"form down", "edit down"}));
    Input.KeyPress('Q');
    EXPECT_EQ(edit->GetText(), L"xy");
    log.clear();
    Input.KeyDown(VK_CONTROL);
    log.clear();
    Input.KeyPress('A');
    Input.KeyUp(VK_CONTROL);
    EXPECT_EQ(log, std::vector<std::string>{"form down"});
}

TEST_F(FormKeysTest, AFormWithoutControlsGetsItsKeysItself) {
    std::vector<WORD> keys;
    Form().OnKeyDown = [&](TObject*, WORD& key, TShiftState) { keys.push_back(key); };
    Input.KeyPress('A');
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(keys, (std::vector<WORD>{'A', VK_RETURN}));
}

TEST_F(FormKeysTest, ShortCutsComeBeforeTheControl) {
    auto* edit = Make<TEdit>({10, 10, 90, 31});
    int formKeys = 0;
    int programKeys = 0;
    bool edited = false;
    edit->OnKeyDown = [&](TObject*, WORD& key, TShiftState) { edited = edited || key == VK_F5; };
    Form().OnShortCut = [&](TMessage& message, bool& handled) {
        if (message.CharCode() == VK_F5) handled = ++formKeys == 1;
    };
    Application().OnShortCut = [&](TMessage& message, bool& handled) {
        if (message.CharCode() == VK_F5) handled = ++programKeys == 1;
    };
    edit->SetFocus();
    Input.KeyPress(VK_F5);
    EXPECT_EQ(programKeys, 0);
    Input.KeyPress(VK_F5);
    EXPECT_EQ(programKeys, 1);
    EXPECT_FALSE(edited);
    Input.KeyPress(VK_F5);
    EXPECT_TRUE(edited);
    Application().OnShortCut.Clear();
}

TEST_F(FormKeysTest, ActionsOfShownControlsAreUpdatedWhenIdle) {
    TBasicAction action(nullptr);
    int updates = 0;
    action.OnUpdate = [&](TObject*) { ++updates; };
    auto* button = Make<TButton>({10, 10, 90, 31});
    button->SetAction(&action);
    Application().DoIdle();
    EXPECT_EQ(updates, 1);
    button->SetVisible(false);
    Application().DoIdle();
    EXPECT_EQ(updates, 1);
    button->SetAction(nullptr);
}

TEST_F(FormKeysTest, AFormThatItsShortCutClosesTakesTheKeyNoFurther) {
    auto* a = Make<TEdit>({10, 10, 90, 31});
    Make<TEdit>({10, 40, 90, 61});
    a->SetFocus();
    Form().OnShortCut = [this](const TMessage&, bool&) { Form().Close(); };
    Input.KeyPress(VK_TAB);
    EXPECT_FALSE(Form().GetVisible());
    // Errors would have come to the application.
}

}  // namespace
}  // namespace test
