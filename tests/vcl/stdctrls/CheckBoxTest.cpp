#include "platform/vcl/stdctrls/CheckBox.h"

#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class CheckBoxTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Box = Make<TCheckBox>({10, 10, 110, 30});
        Box->SetCaption(L"&Option");
        Box->OnClick = [this](TObject*) { ++Clicks; };
    }
    LRESULT SystemState() const { return SendMessageW(Box->WindowHandle(), BM_GETCHECK, 0, 0); }
    TCheckBox* Box = nullptr;
    int Clicks = 0;
};

TEST_F(CheckBoxTest, ClicksGoThroughTheStates) {
    Input.ClickAt(Box->WindowHandle(), 5, 8);
    EXPECT_EQ(Box->GetState(), cbChecked);
    Input.ClickAt(Box->WindowHandle(), 5, 8);
    EXPECT_EQ(Box->GetState(), cbUnchecked);
    Box->SetAllowGrayed(true);
    Input.ClickAt(Box->WindowHandle(), 5, 8);
    EXPECT_EQ(Box->GetState(), cbGrayed);
    EXPECT_EQ(SystemState(), BST_INDETERMINATE);
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(Box->GetState(), cbChecked);
    EXPECT_EQ(Clicks, 4);
}

TEST_F(CheckBoxTest, AChangeByCodeShowsAndClicks) {
    Box->SetChecked(true);
    EXPECT_EQ(SystemState(), BST_CHECKED);
    Box->SetChecked(true);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(CheckBoxTest, TheAccessKeyFocusesAndToggles) {
    Input.Chord({VK_MENU}, 'O');
    EXPECT_TRUE(Box->GetChecked());
    EXPECT_TRUE(Box->Focused());
}

TEST_F(CheckBoxTest, ANewWindowKeepsTheState) {
    Box->SetState(cbGrayed);
    Box->SetAlignment(taLeftJustify);
    EXPECT_EQ(SystemState(), BST_INDETERMINATE);
    EXPECT_TRUE(GetWindowLongW(Box->WindowHandle(), GWL_STYLE) & BS_LEFTTEXT);
}

}  // namespace
}  // namespace test
