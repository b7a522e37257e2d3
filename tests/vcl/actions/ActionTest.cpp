#include "platform/vcl/actions/Action.h"

#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/actions/ShortCutList.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class ActionTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        List = new TActionList(&Form());
        Save = Add();
        Save->SetOnExecute([this](TObject*) { ++Runs; });
    }
    TAction* Add() {
        auto* action = new TAction(&Form());
        action->SetActionList(List);
        return action;
    }
    TActionList* List = nullptr;
    TAction* Save = nullptr;
    int Runs = 0;
};

TEST_F(ActionTest, AControlShowsWhatItsActionSays) {
    Save->SetCaption(L"Save");
    Save->SetHint(L"Saves");
    Save->SetEnabled(false);
    auto* button = Make<TButton>({10, 10, 100, 40});
    button->SetAction(Save);
    EXPECT_EQ(button->GetCaption(), L"Save");
    EXPECT_EQ(button->GetHint(), L"Saves");
    EXPECT_FALSE(button->GetEnabled());
    Save->SetEnabled(true);
    Save->SetCaption(L"Store");
    EXPECT_TRUE(button->GetEnabled());
    EXPECT_EQ(button->GetCaption(), L"Store");
}

TEST_F(ActionTest, WhatAClientChangedForItselfStays) {
    Save->SetCaption(L"Save");
    auto* button = Make<TButton>({10, 10, 100, 40});
    button->SetAction(Save);
    button->SetCaption(L"Mine");
    TPopupMenu menu(nullptr);
    auto* item = new TMenuItem(nullptr);
    menu.GetItems().Add(item);
    item->SetAction(Save);
    item->SetCaption(L"Mine, too");
    Save->SetEnabled(false);
    Save->SetCaption(L"Keep");
    EXPECT_EQ(button->GetCaption(), L"Mine");
    EXPECT_EQ(item->GetCaption(), L"Mine, too");
    EXPECT_FALSE(button->GetEnabled());
    EXPECT_FALSE(item->GetEnabled());
    button->SetCaption(L"Keep");
    Save->SetCaption(L"Store");
    EXPECT_EQ(button->GetCaption(), L"Store") << "it is the action's again";
}

TEST_F(ActionTest, ACheckBoxFollowsItsAction) {
    auto* box = Make<TCheckBox>({10, 10, 100, 40});
    int clicks = 0;
    Save->SetChecked(true);
    box->SetAction(Save);
    EXPECT_TRUE(box->GetChecked());
    Save->SetChecked(false);
    EXPECT_FALSE(box->GetChecked());
    EXPECT_EQ(Runs, 0) << "following is no click";
    Save->SetAutoCheck(true);
    Input.ClickAt(box->WindowHandle(), 5, 20);
    EXPECT_TRUE(box->GetChecked());
    EXPECT_TRUE(Save->GetChecked());
    EXPECT_EQ(Runs, 1);
    box->OnClick = [&](TObject*) { ++clicks; };
    Input.ClickAt(box->WindowHandle(), 5, 20);
    EXPECT_EQ(clicks, 1);
    Save->SetChecked(false);
    Save->SetChecked(true);
    EXPECT_TRUE(box->GetChecked()) << "once they agree it follows again";
}

TEST_F(ActionTest, FormFilesLeaveOutWhatTheActionDecides) {
    RegisterStandardClasses();
    List->SetName(L"List");
    Save->SetName(L"Save");
    Save->SetEnabled(false);
    Save->SetVisible(false);
    Save->SetChecked(true);
    auto* box = new TCheckBox(&Form());
    box->SetName(L"Box");
    box->SetParent(&Form());
    box->SetAction(Save);
    const TFormDocument document = TWriter().WriteRootComponent(Form());
    const TFormObject* written = document.Root.FindObject(L"Box");
    ASSERT_NE(written, nullptr);
    for (const wchar_t* name : {L"Enabled", L"Visible", L"State", L"Caption"})
        EXPECT_EQ(written->FindProperty(name), nullptr) << ToUtf8(name);
    Save->SetEnabled(true);
    box->SetEnabled(false);
    const TFormDocument own = TWriter().WriteRootComponent(Form());
    EXPECT_NE(own.Root.FindObject(L"Box")->FindProperty(L"Enabled"), nullptr);
}

TEST_F(ActionTest, AMenuItemShowsWhatItsActionSays) {
    TPopupMenu menu(nullptr);
    auto* item = new TMenuItem(nullptr);
    menu.GetItems().Add(item);
    Save->SetCaption(L"&Save");
    Save->SetShortCut(VK_F5);
    Save->SetImageIndex(3);
    Save->SetChecked(true);
    item->SetAction(Save);
    EXPECT_EQ(item->GetCaption(), L"&Save");
    EXPECT_EQ(item->GetShortCut(), VK_F5);
    EXPECT_EQ(item->GetImageIndex(), 3);
    EXPECT_TRUE(item->GetChecked());
    Save->SetChecked(false);
    Save->SetVisible(false);
    Save->SetShortCut(VK_F6);
    EXPECT_FALSE(item->GetChecked());
    EXPECT_FALSE(item->GetVisible());
    EXPECT_EQ(item->GetShortCut(), VK_F6);
    item->Click();
    EXPECT_EQ(Runs, 1);
    delete Save;
    EXPECT_EQ(item->GetAction(), nullptr);
}

TEST_F(ActionTest, AnItemOfAnAutoCheckActionIsCheckedOnce) {
    TPopupMenu menu(nullptr);
    auto* item = new TMenuItem(nullptr);
    menu.GetItems().Add(item);
    Save->SetAutoCheck(true);
    item->SetAction(Save);
    item->Click();
    EXPECT_TRUE(Save->GetChecked());
    EXPECT_TRUE(item->GetChecked());
    item->Click();
    EXPECT_FALSE(item->GetChecked());
}

TEST_F(ActionTest, OneActionOfAGroupIsChecked) {
    TAction* other = Add();
    Save->SetGroupIndex(1);
    other->SetGroupIndex(1);
    Save->SetChecked(true);
    other->SetChecked(true);
    EXPECT_FALSE(Save->GetChecked());
    Save->SetAutoCheck(true);
    Save->Execute();
    Save->Execute();
    EXPECT_TRUE(Save->GetChecked());
    EXPECT_FALSE(other->GetChecked());
}

TEST_F(ActionTest, TheListAndTheApplicationGoFirst) {
    std::vector<std::wstring> asked;
    List->OnExecute = [&](TBasicAction* action, bool&) {
        EXPECT_EQ(action, Save);
        asked.push_back(L"list");
    };
    Application().OnActionExecute = [&](TBasicAction*, bool& handled) {
        asked.push_back(L"application");
        handled = asked.size() > 2;
    };
    EXPECT_TRUE(Save->Execute());
    EXPECT_EQ(Runs, 1);
    EXPECT_TRUE(Save->Execute());
    EXPECT_EQ(Runs, 1);
    EXPECT_EQ(asked.size(), 4U);
    Application().OnActionExecute.Clear();
}

TEST_F(ActionTest, ADisabledActionDoesNotRun) {
    Save->SetEnabled(false);
    EXPECT_FALSE(Save->Execute());
    Save->OnUpdate = [&](TObject*) { Save->SetEnabled(true); };
    EXPECT_TRUE(Save->Execute());
    EXPECT_EQ(Runs, 1);
}

TEST_F(ActionTest, ASuspendedListRunsNothing) {
    List->SetState(asSuspended);
    EXPECT_FALSE(Save->Execute());
    Save->SetEnabled(false);
    List->SetState(asSuspendedEnabled);
    EXPECT_TRUE(Save->GetEnabled());
    EXPECT_FALSE(Save->Execute());
    List->SetState(asNormal);
    EXPECT_TRUE(Save->Execute());
}

TEST_F(ActionTest, AnActionThatNobodyHandlesIsDisabledWhenIdle) {
    TAction* empty = Add();
    auto* button = Make<TButton>({10, 10, 100, 40});
    button->SetAction(empty);
    EXPECT_TRUE(PumpUntil([&] { return !button->GetEnabled(); }));
    auto* kept = Add();
    kept->SetDisableIfNoHandler(false);
    kept->Update();
    EXPECT_TRUE(kept->GetEnabled());
}

TEST_F(ActionTest, UpdatesComeWhenTheProgramIsIdle) {
    auto* button = Make<TButton>({10, 10, 100, 40});
    Save->OnUpdate = [&](TObject*) { Save->SetCaption(L"Updated"); };
    button->SetAction(Save);
    EXPECT_TRUE(PumpUntil([&] { return button->GetCaption() == L"Updated"; }));
}

TEST_F(ActionTest, ShortCutsOfTheFormsListsRunTheirActions) {
    auto* edit = Make<TEdit>({10, 10, 100, 40});
    edit->SetFocus();
    Save->SetShortCut(ShortCut('S', {ssCtrl}));
    Save->GetSecondaryShortCuts().Add(L"Shift+F7");
    Save->GetSecondaryShortCuts().Add(L"Alt+F9");
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_EQ(Runs, 1);
    Input.Chord({VK_SHIFT}, VK_F7);
    EXPECT_EQ(Runs, 2);
    Input.KeyPress(VK_F7);
    EXPECT_EQ(Runs, 2);
    Save->SetEnabled(false);
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_EQ(Runs, 2);
}

TEST_F(ActionTest, AClickRunsTheActionWithItsControl) {
    auto* button = Make<TButton>({10, 10, 100, 40});
    TComponent* client = nullptr;
    Save->SetOnExecute([&](TObject*) { client = Save->GetActionComponent(); });
    button->SetAction(Save);
    Input.ClickAt(button->GetHandle(), 5, 5);
    EXPECT_EQ(client, button);
    EXPECT_EQ(Save->GetActionComponent(), nullptr);
}

/// Acts on what has the focus.
class TTargetAction : public TCustomAction {
public:
    using TCustomAction::TCustomAction;
    bool HandlesTarget(TObject* target) override { return dynamic_cast<TCustomEdit*>(target) != nullptr; }
    void ExecuteTarget(TObject* target) override { dynamic_cast<TCustomEdit*>(target)->SetText(L"done"); }
};

TEST_F(ActionTest, AnActionWithoutHandlerActsOnTheFocus) {
    auto* other = Make<TEdit>({10, 60, 100, 90});
    auto* edit = Make<TEdit>({10, 10, 100, 40});
    edit->SetFocus();
    TTargetAction action(nullptr);
    EXPECT_TRUE(action.Execute());
    EXPECT_EQ(edit->GetText(), L"done");
    EXPECT_EQ(other->GetText(), L"");
    Make<TButton>({10, 100, 100, 130})->SetFocus();
    EXPECT_FALSE(action.Execute());
}

TEST_F(ActionTest, AnActionMayFreeItself) {
    Save->SetOnExecute([](TObject* sender) { delete sender; });
    auto* button = Make<TButton>({10, 10, 100, 40});
    button->SetAction(Save);
    Input.ClickAt(button->GetHandle(), 5, 5);
    EXPECT_EQ(button->GetAction(), nullptr);
    EXPECT_EQ(List->GetActionCount(), 0);
}

TEST_F(ActionTest, ListsKeepTheirActionsInOrder) {
    TAction* second = Add();
    EXPECT_EQ(second->GetIndex(), 1);
    second->SetIndex(0);
    EXPECT_EQ(List->GetAction(0), second);
    TActionList other(nullptr);
    second->SetActionList(&other);
    EXPECT_EQ(List->GetActionCount(), 1);
    EXPECT_EQ(second->GetIndex(), 0);
    EXPECT_THROW((void)List->GetAction(1), EListError);
}

TEST_F(ActionTest, ShortCutListsAreTexts) {
    TShortCutList list;
    list.Add(L"Ctrl+A");
    list.Add(L"nonsense");
    EXPECT_EQ(list.GetShortCut(0), ShortCut('A', {ssCtrl}));
    EXPECT_EQ(list.GetShortCut(1), scNone);
    EXPECT_EQ(list.IndexOfShortCut(ShortCut('A', {ssCtrl})), 0);
    EXPECT_EQ(list.IndexOfShortCut(scNone), -1);
}

class TActionForm : public TForm {
public:
    using TForm::TForm;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TActionForm>(L"TActionForm", TForm::StaticClass()).Method<&TActionForm::Run>(L"Run");
        return meta;
    }
    void Run(TObject*) { ++Runs; }
    int Runs = 0;
};

TEST_F(ActionTest, FormFilesHoldActionsInTheirList) {
    const std::initializer_list<const TMetaClass*> classes{&TActionList::StaticClass(),
                                                           &TAction::StaticClass(), &TButton::StaticClass()};
    RegisterClasses(classes);
    const std::string list =
        "  object List: TActionList\r\n"
        "    object SaveAction: TAction\r\n"
        "      Category = 'File'\r\n"
        "      Caption = '&Save'\r\n"
        "      ShortCut = 16467\r\n"
        "      SecondaryShortCuts.Strings = (\r\n"
        "        'F2')\r\n"
        "      OnExecute = Run\r\n"
        "    end\r\n"
        "  end\r\n";
    const std::string text =
        "object Form: TActionForm\r\n  object Button: TButton\r\n    Left = 8\r\n    Action = SaveAction\r\n"
        "  end\r\n" +
        list + "end\r\n";
    {
        TActionForm form(nullptr);
        TReader(ParseFormText(FromUtf8(text))).ReadRootComponent(&form);
        auto* action = dynamic_cast<TAction*>(form.FindComponent(L"SaveAction"));
        auto* button = dynamic_cast<TButton*>(form.FindComponent(L"Button"));
        ASSERT_NE(action, nullptr);
        EXPECT_EQ(action->GetActionList(), form.FindComponent(L"List"));
        EXPECT_EQ(button->GetCaption(), L"&Save");
        button->Click();
        EXPECT_EQ(form.Runs, 1);
        const std::string written = FormToText(TWriter().WriteRootComponent(form));
        EXPECT_NE(written.find(list), std::string::npos) << written;
        EXPECT_EQ(written.find("OnClick"), std::string::npos) << written;
    }
    for (const TMetaClass* meta : classes)
        UnRegisterClass(*meta);
}

}  // namespace
}  // namespace test
