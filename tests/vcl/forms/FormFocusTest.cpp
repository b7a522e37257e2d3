#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;
using Log = std::vector<std::string>;

class FormFocusTest : public FormTest {
protected:
    std::unique_ptr<TForm> NewForm(const char* name) {
        auto form = std::make_unique<TForm>(nullptr);
        form->SetBounds(300, 250, 200, 150);
        form->OnActivate = [this, name](TObject*) { Events.emplace_back(std::string(name) + " on"); };
        form->OnDeactivate = [this, name](TObject*) { Events.emplace_back(std::string(name) + " off"); };
        return form;
    }
    TEdit* MakeEdit(TWinControl* parent, int top, const char* name) {
        auto* edit = Make<TEdit>(TRect::OfSize(10, top, 80, 21), parent);
        edit->OnEnter = [this, name](TObject*) { Events.emplace_back(std::string("+") + name); };
        edit->OnExit = [this, name](TObject*) { Events.emplace_back(std::string("-") + name); };
        return edit;
    }
    Log Take() { return std::exchange(Events, {}); }
    Log Events;
};

TEST_F(FormFocusTest, AnActiveFormFocusesItsFirstTabStop) {
    const auto form = NewForm("a");
    TEdit* edit = MakeEdit(form.get(), 10, "edit");
    form->Show();
    PumpAll();
    EXPECT_TRUE(edit->Focused());
    EXPECT_EQ(form->GetActiveControl(), edit);
    EXPECT_EQ(Take(), (Log{"a on", "+edit"}));
    EXPECT_EQ(Screen().GetActiveForm(), form.get());
    EXPECT_EQ(Screen().GetActiveControl(), edit);
}

TEST_F(FormFocusTest, EachFormKeepsItsActiveControl) {
    const auto a = NewForm("a");
    const auto b = NewForm("b");
    MakeEdit(a.get(), 10, "a1");
    TEdit* a2 = MakeEdit(a.get(), 40, "a2");
    TEdit* b1 = MakeEdit(b.get(), 10, "b1");
    a->SetActiveControl(a2);
    a->Show();
    b->Show();
    PumpAll();
    EXPECT_TRUE(b1->Focused());
    EXPECT_EQ(Take(), (Log{"a on", "+a2", "a off", "b on", "+b1"}));
    a->SetFocus();
    EXPECT_TRUE(a2->Focused());
    // The focus stayed within each form: no control was entered or left.
    EXPECT_EQ(Take(), (Log{"b off", "a on"}));
    EXPECT_EQ(Screen().GetForm(0), a.get());
    EXPECT_EQ(Screen().GetForm(1), b.get());
}

TEST_F(FormFocusTest, AClickOnAnotherFormActivatesIt) {
    const auto form = NewForm("a");
    form->SetLeft(600);
    Form();
    form->Show();
    PumpAll();
    Input.ClickAt(Form().WindowHandle(), 5, 5);
    EXPECT_TRUE(Form().GetActive());
    EXPECT_FALSE(form->GetActive());
    Input.ClickAt(form->WindowHandle(), 5, 5);
    EXPECT_TRUE(form->GetActive());
}

TEST_F(FormFocusTest, EnterAndExitGoAlongTheTree) {
    auto* left = Make<TPanel>({10, 10, 150, 100});
    auto* right = Make<TPanel>({160, 10, 300, 100});
    left->OnEnter = [this](TObject*) { Events.emplace_back("+left"); };
    left->OnExit = [this](TObject*) { Events.emplace_back("-left"); };
    right->OnEnter = [this](TObject*) { Events.emplace_back("+right"); };
    TEdit* a = MakeEdit(left, 10, "a");
    TEdit* b = MakeEdit(left, 40, "b");
    TEdit* c = MakeEdit(right, 10, "c");
    a->SetFocus();
    EXPECT_EQ(Take(), (Log{"+left", "+a"}));
    b->SetFocus();
    EXPECT_EQ(Take(), (Log{"-a", "+b"}));
    c->SetFocus();
    EXPECT_EQ(Take(), (Log{"-b", "-left", "+right", "+c"}));
}

TEST_F(FormFocusTest, AHandlerMayMoveTheFocusBack) {
    TEdit* a = MakeEdit(&Form(), 10, "a");
    TEdit* b = MakeEdit(&Form(), 40, "b");
    a->SetFocus();
    a->OnExit = [&](TObject*) {
        a->OnExit.Clear();
        a->SetFocus();
    };
    Take();
    b->SetFocus();
    EXPECT_TRUE(a->Focused());
    EXPECT_EQ(Form().GetActiveControl(), a);
    Input.Type(L"x");
    EXPECT_EQ(a->GetText(), L"x");
}

TEST_F(FormFocusTest, AControlFreedInItsExitDoesNoHarm) {
    TEdit* a = MakeEdit(&Form(), 10, "a");
    TEdit* b = MakeEdit(&Form(), 40, "b");
    a->SetFocus();
    a->OnExit = [&](TObject*) { delete a; };
    b->SetFocus();
    EXPECT_TRUE(b->Focused());
    EXPECT_EQ(Form().GetControlCount(), 1);
}

TEST_F(FormFocusTest, ADisabledOrHiddenControlLosesTheFocus) {
    TEdit* a = MakeEdit(&Form(), 10, "a");
    MakeEdit(&Form(), 40, "b");
    a->SetFocus();
    a->SetEnabled(false);
    EXPECT_FALSE(a->Focused());
    EXPECT_NE(Form().GetActiveControl(), a);
    EXPECT_THROW(a->SetFocus(), EInvalidOperation);
    a->SetEnabled(true);
    a->SetFocus();
    a->SetVisible(false);
    EXPECT_FALSE(a->Focused());
    EXPECT_THROW(Form().SetActiveControl(a), EInvalidOperation);
}

TEST_F(FormFocusTest, AFreedControlIsForgotten) {
    TEdit* a = MakeEdit(&Form(), 10, "a");
    a->SetFocus();
    EXPECT_EQ(Screen().GetActiveControl(), a);
    delete a;
    EXPECT_EQ(Form().GetActiveControl(), nullptr);
    EXPECT_NE(Screen().GetActiveControl(), a);
    TEdit* b = MakeEdit(&Form(), 40, "b");
    b->SetFocus();
    EXPECT_TRUE(b->Focused());
}

TEST_F(FormFocusTest, AForeignControlCannotBecomeActive) {
    const auto other = NewForm("other");
    TEdit* edit = MakeEdit(other.get(), 10, "edit");
    EXPECT_THROW(Form().SetActiveControl(edit), EInvalidOperation);
    EXPECT_THROW(Form().SetActiveControl(&Form()), EInvalidOperation);
}

TEST_F(FormFocusTest, HidingGoesBackToTheFormUsedBefore) {
    const auto a = NewForm("a");
    const auto b = NewForm("b");
    a->Show();
    Form();
    b->Show();
    PumpAll();
    Form().SetFocus();
    b->SetFocus();
    b->Hide();
    EXPECT_TRUE(Form().GetActive());
    Form().Hide();
    EXPECT_TRUE(a->GetActive());
}

TEST_F(FormFocusTest, ScreenEventsTellEveryChangeOnce) {
    int forms = 0;
    int controls = 0;
    Form();
    TEdit* a = MakeEdit(&Form(), 10, "a");
    TEdit* b = MakeEdit(&Form(), 40, "b");
    a->SetFocus();
    Screen().OnActiveFormChange = [&](TObject*) { ++forms; };
    Screen().OnActiveControlChange = [&](TObject*) { ++controls; };
    b->SetFocus();
    b->SetFocus();
    EXPECT_EQ(controls, 1);
    EXPECT_EQ(forms, 0);
    const auto form = NewForm("form");
    form->Show();
    PumpAll();
    EXPECT_EQ(forms, 1);
    Screen().OnActiveFormChange.Clear();
    Screen().OnActiveControlChange.Clear();
}

TEST_F(FormFocusTest, AnotherProgramsActivationIsNoDeactivationOfTheForm) {
    const auto form = NewForm("a");
    form->Show();
    PumpAll();
    Take();
    int deactivated = 0;
    Application().OnDeactivate = [&](TObject*) { ++deactivated; };
    SendMessageW(form->WindowHandle(), WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_EQ(deactivated, 1);
    EXPECT_FALSE(Application().GetActive());
    SendMessageW(form->WindowHandle(), WM_ACTIVATEAPP, TRUE, 0);
    EXPECT_TRUE(Application().GetActive());
    EXPECT_EQ(Take(), Log());
    Application().OnDeactivate.Clear();
}

}  // namespace
}  // namespace test
