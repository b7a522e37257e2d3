#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class FormModalTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Form();
        Dialog = std::make_unique<TForm>(nullptr);
        Dialog->SetBounds(150, 150, 200, 150);
    }
    void TearDown() override {
        Dialog.reset();
        FormTest::TearDown();
    }
    TButton* MakeButton(TModalResult result) {
        auto* button = Make<TButton>({10, 10, 80, 35}, Dialog.get());
        button->SetModalResult(result);
        return button;
    }
    /// Runs the step once the dialog is shown and active.
    void Inside(std::function<void()> step) {
        When([this] { return Dialog && Dialog->GetActive(); }, std::move(step));
    }
    bool IsMainEnabled() { return IsWindowEnabled(Form().WindowHandle()) != FALSE; }
    std::unique_ptr<TForm> Dialog;
};

TEST_F(FormModalTest, ReturnsTheResultOfItsButton) {
    TButton* button = MakeButton(mrYes);
    Inside([&] { Input.ClickAt(button->WindowHandle(), 5, 5); });
    EXPECT_EQ(Dialog->ShowModal(), mrYes);
    EXPECT_FALSE(Dialog->GetVisible());
    EXPECT_TRUE(Form().GetActive());
}

TEST_F(FormModalTest, KeysReachDefaultAndCancelButtons) {
    auto* edit = Make<TEdit>({10, 50, 100, 71}, Dialog.get());
    MakeButton(mrOk)->SetDefault(true);
    auto* cancel = Make<TButton>({100, 10, 170, 35}, Dialog.get());
    cancel->SetModalResult(mrCancel);
    cancel->SetCancel(true);
    Dialog->SetActiveControl(edit);
    Inside([&] {
        EXPECT_TRUE(edit->Focused());
        Input.KeyPress(VK_RETURN);
    });
    EXPECT_EQ(Dialog->ShowModal(), mrOk);
    Inside([&] { Input.KeyPress(VK_ESCAPE); });
    EXPECT_EQ(Dialog->ShowModal(), mrCancel);
}

TEST_F(FormModalTest, TheOtherWindowsOfTheThreadAreDisabledMeanwhile) {
    TForm second(nullptr);
    second.SetBounds(300, 300, 100, 100);
    second.Show();
    TForm disabled(nullptr);
    disabled.SetEnabled(false);
    disabled.Show();
    bool mainEnabled = true;
    bool secondEnabled = true;
    Inside([&] {
        mainEnabled = IsMainEnabled();
        secondEnabled = IsWindowEnabled(second.WindowHandle());
        Dialog->SetModalResult(mrOk);
    });
    Dialog->ShowModal();
    EXPECT_FALSE(mainEnabled);
    EXPECT_FALSE(secondEnabled);
    EXPECT_TRUE(IsMainEnabled());
    EXPECT_TRUE(IsWindowEnabled(second.WindowHandle()));
    EXPECT_FALSE(IsWindowEnabled(disabled.WindowHandle()));
}

TEST_F(FormModalTest, CloseEndsItWithCancel) {
    Inside([&] { PostMessageW(Dialog->WindowHandle(), WM_CLOSE, 0, 0); });
    EXPECT_EQ(Dialog->ShowModal(), mrCancel);
}

TEST_F(FormModalTest, ARefusedCloseKeepsItOpen) {
    int asked = 0;
    Dialog->OnCloseQuery = [&](TObject*, bool& canClose) { canClose = ++asked > 1; };
    Inside([&] {
        Dialog->SetModalResult(mrOk);
        When([&] { return asked == 1 && Dialog->GetModalResult() == mrNone; },
             [&] { Dialog->SetModalResult(mrRetry); });
    });
    EXPECT_EQ(Dialog->ShowModal(), mrRetry);
    EXPECT_EQ(asked, 2);
}

TEST_F(FormModalTest, OnCloseMayRefuseToo) {
    int closes = 0;
    Dialog->OnClose = [&](TObject*, TCloseAction& action) {
        if (++closes == 1) action = caNone;
    };
    Inside([&] {
        Dialog->SetModalResult(mrOk);
        When([&] { return closes == 1; }, [&] { Dialog->SetModalResult(mrNo); });
    });
    EXPECT_EQ(Dialog->ShowModal(), mrNo);
}

TEST_F(FormModalTest, ErrorsInsideTheLoopGoToTheApplication) {
    Dialog->OnClick = [](TObject*) { throw EInvalidOperation(L"clicked"); };
    Inside([&] {
        Input.ClickAt(Dialog->WindowHandle(), 100, 80);
        Dialog->SetModalResult(mrOk);
    });
    EXPECT_EQ(Dialog->ShowModal(), mrOk);
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: clicked"});
    Errors.clear();
}

TEST_F(FormModalTest, AnErrorInCloseQueryKeepsItOpen) {
    int asked = 0;
    Dialog->OnCloseQuery = [&](TObject*, bool&) {
        if (++asked == 1) throw EInvalidOperation(L"query");
    };
    Inside([&] {
        Dialog->SetModalResult(mrOk);
        When([&] { return !Errors.empty(); }, [&] { Dialog->SetModalResult(mrOk); });
    });
    EXPECT_EQ(Dialog->ShowModal(), mrOk);
    EXPECT_EQ(asked, 2);
    Errors.clear();
}

TEST_F(FormModalTest, OpensAboveItself) {
    TForm inner(nullptr);
    bool dialogEnabled = true;
    Inside([&] {
        When([&] { return inner.GetActive(); },
             [&] {
                 dialogEnabled = IsWindowEnabled(Dialog->WindowHandle());
                 EXPECT_EQ(GetWindow(inner.WindowHandle(), GW_OWNER), Dialog->WindowHandle());
                 inner.SetModalResult(mrNo);
             });
        EXPECT_EQ(inner.ShowModal(), mrNo);
        EXPECT_TRUE(Dialog->GetActive());
        EXPECT_FALSE(IsMainEnabled());
        Dialog->SetModalResult(mrYes);
    });
    EXPECT_EQ(Dialog->ShowModal(), mrYes);
    EXPECT_FALSE(dialogEnabled);
}

TEST_F(FormModalTest, AVisibleOrDisabledFormCannotBecomeModal) {
    EXPECT_THROW(Form().ShowModal(), EInvalidOperation);
    Dialog->SetEnabled(false);
    EXPECT_THROW(Dialog->ShowModal(), EInvalidOperation);
    EXPECT_TRUE(IsMainEnabled());
}

TEST_F(FormModalTest, AFormFreedInItsLoopEndsTheLoop) {
    Inside([&] { Dialog.reset(); });
    EXPECT_EQ(Dialog.get()->ShowModal(), mrCancel);
    EXPECT_TRUE(IsMainEnabled());
    EXPECT_TRUE(Form().GetActive());
}

TEST_F(FormModalTest, AFormReleasedInItsButtonsClickEndsTheLoop) {
    auto* form = new TForm(nullptr);
    auto* button = Make<TButton>({10, 10, 80, 35}, form);
    button->OnClick = [&](TObject*) { form->Release(); };
    When([&] { return form->GetActive(); }, [&] { Input.ClickAt(button->WindowHandle(), 5, 5); });
    EXPECT_EQ(form->ShowModal(), mrCancel);
    EXPECT_TRUE(IsMainEnabled());
}

TEST_F(FormModalTest, CloseActionFreeFreesAfterTheLoop) {
    auto* form = new TForm(nullptr);
    bool destroyed = false;
    form->OnClose = [](TObject*, TCloseAction& action) { action = caFree; };
    form->OnDestroy = [&](TObject*) { destroyed = true; };
    When([&] { return form->GetActive(); }, [&] { form->SetModalResult(mrOk); });
    EXPECT_EQ(form->ShowModal(), mrOk);
    EXPECT_TRUE(PumpUntil([&] { return destroyed; }));
}

TEST_F(FormModalTest, AnErrorWhileShowingIsToldAndTheFormStaysUsable) {
    Dialog->OnShow = [](TObject*) { throw EInvalidOperation(L"show"); };
    Inside([&] { Dialog->SetModalResult(mrOk); });
    EXPECT_EQ(Dialog->ShowModal(), mrOk);
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: show"});
    Errors.clear();
}

TEST_F(FormModalTest, ModalEventsAndActivationComeInPairs) {
    std::vector<std::string> log;
    Application().OnModalBegin = [&](TObject*) { log.emplace_back("begin"); };
    Application().OnModalEnd = [&](TObject*) { log.emplace_back("end"); };
    Form().OnDeactivate = [&](TObject*) { log.emplace_back("main off"); };
    Form().OnActivate = [&](TObject*) { log.emplace_back("main on"); };
    Dialog->OnActivate = [&](TObject*) { log.emplace_back("dialog on"); };
    Dialog->OnDeactivate = [&](TObject*) { log.emplace_back("dialog off"); };
    Inside([&] { Dialog->SetModalResult(mrOk); });
    Dialog->ShowModal();
    EXPECT_EQ(log,
              (std::vector<std::string>{"begin", "main off", "dialog on", "dialog off", "main on", "end"}));
    Application().OnModalBegin.Clear();
    Application().OnModalEnd.Clear();
}

TEST_F(FormModalTest, TheWaitingCursorIsPutBackAfterwards) {
    Screen().SetCursor(crHourGlass);
    TCursor inside = crNone;
    Inside([&] {
        inside = Screen().GetCursor();
        Dialog->SetModalResult(mrOk);
    });
    Dialog->ShowModal();
    EXPECT_EQ(inside, crDefault);
    EXPECT_EQ(Screen().GetCursor(), crHourGlass);
    Screen().SetCursor(crDefault);
}

TEST_F(FormModalTest, AHundredRoundsLeaveNothingBehind) {
    const auto before = ResourceSnapshot::Take();
    for (int i = 0; i < 100; ++i) {
        auto form = std::make_unique<TForm>(nullptr);
        Make<TButton>({10, 10, 80, 35}, form.get());
        form->OnShow = [&](TObject*) { Later([&] { form->SetModalResult(mrOk); }); };
        ASSERT_EQ(form->ShowModal(), mrOk);
    }
    EXPECT_EQ(before.ChangeSince(), "");
}

}  // namespace
}  // namespace test
