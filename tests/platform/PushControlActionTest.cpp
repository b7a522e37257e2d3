#include "platform/vcl/controls/BasicAction.h"
#include "tests/platform/PushControlFixture.h"

namespace {

using namespace vcl;

/// An action that can be checked.
class CheckAction : public TBasicAction {
public:
    using TBasicAction::TBasicAction;
    [[nodiscard]] const TActionValues* Values() const override { return &FValues; }
    void SetChecked(bool value) {
        for (TBasicActionLink* link : Links())
            link->SetChecked(value);
        FValues.Checked = value;
        Change();
    }

private:
    TActionValues FValues;
};

class PushControlAction : public test::PushControlTest {
protected:
    void SetUp() override {
        PushControlTest::SetUp();
        Control->OnClick.Clear();
        Action = new CheckAction(&Form());
    }
    CheckAction* Action = nullptr;
};

TEST_F(PushControlAction, AClickRunsTheAction) {
    int runs = 0;
    Action->SetOnExecute([&](TObject*) { ++runs; });
    Control->SetAction(Action);
    Input.ClickAt(Window(), 20, 10);
    EXPECT_EQ(runs, 1);
}

TEST_F(PushControlAction, ATogglingControlFollowsChecked) {
    Control->IsToggle = true;
    Control->SetAction(Action);
    Action->SetChecked(true);
    EXPECT_TRUE(Control->GetDown());
    EXPECT_EQ(Shown(), ColorOf(pshDown));
    Action->SetChecked(false);
    EXPECT_FALSE(Control->GetDown());
}

TEST_F(PushControlAction, APushButtonDoesNot) {
    Control->SetAction(Action);
    Action->SetChecked(true);
    EXPECT_FALSE(Control->GetDown());
}

TEST_F(PushControlAction, AnActionThatChecksItselfAgreesWithTheClick) {
    Control->IsToggle = true;
    Action->SetOnExecute([&](TObject*) { Action->SetChecked(!Action->Values()->Checked); });
    Control->SetAction(Action);
    for (const bool expected : {true, false, true}) {
        Input.ClickAt(Window(), 20, 10);
        EXPECT_EQ(Control->GetDown(), expected);
        EXPECT_EQ(Action->Values()->Checked, expected);
    }
}

TEST_F(PushControlAction, SurvivesAnActionThatFreesIt) {
    Action->SetOnExecute([&](TObject*) { delete std::exchange(Control, nullptr); });
    Control->SetAction(Action);
    Input.ClickAt(Window(), 20, 10);
    EXPECT_EQ(Control, nullptr);
}

}  // namespace
