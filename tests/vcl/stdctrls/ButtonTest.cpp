#include "platform/vcl/stdctrls/Button.h"

#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class ButtonTest : public FormTest {
protected:
    TButton* MakeButton(int top, const wchar_t* caption = L"Button") {
        auto* button = Make<TButton>(TRect::OfSize(10, top, 75, 25));
        button->SetCaption(caption);
        button->OnClick = [this](TObject*) { ++Clicks; };
        return button;
    }
    static bool HasDefaultFrame(const TButton& button) {
        return (GetWindowLongW(button.WindowHandle(), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    }
    int Clicks = 0;
};

TEST_F(ButtonTest, MouseSpaceAndAccessKeyClick) {
    TButton* button = MakeButton(10, L"&Go");
    Input.ClickAt(button->WindowHandle(), 5, 5);
    EXPECT_EQ(Clicks, 1);
    EXPECT_TRUE(button->Focused());
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(Clicks, 2);
    Input.Chord({VK_MENU}, 'G');
    EXPECT_EQ(Clicks, 3);
}

TEST_F(ButtonTest, LeavingWithTheButtonHeldMakesNoClick) {
    TButton* button = MakeButton(10);
    Input.MoveTo(button->WindowHandle(), 5, 5);
    Input.Press();
    Input.MoveTo(Form().WindowHandle(), 200, 200);
    Input.Release();
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ButtonTest, ADisabledButtonDoesNotClick) {
    TButton* button = MakeButton(10, L"&Go");
    button->SetEnabled(false);
    Input.ClickAt(Form().WindowHandle(), 20, 20);
    Input.Chord({VK_MENU}, 'G');
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ButtonTest, EnterClicksTheDefaultButtonFromAnywhere) {
    auto* edit = Make<TEdit>({10, 60, 100, 80});
    TButton* button = MakeButton(10);
    button->SetDefault(true);
    edit->SetFocus();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Clicks, 1);
    Input.Chord({VK_SHIFT}, VK_RETURN);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(ButtonTest, TheFocusedButtonTakesOverEnterAndTheFrame) {
    TButton* standard = MakeButton(10);
    standard->SetDefault(true);
    TButton* other = MakeButton(50);
    int otherClicks = 0;
    other->OnClick = [&](TObject*) { ++otherClicks; };
    auto* edit = Make<TEdit>({10, 90, 100, 110});
    edit->SetFocus();
    EXPECT_TRUE(HasDefaultFrame(*standard));
    other->SetFocus();
    EXPECT_FALSE(HasDefaultFrame(*standard));
    EXPECT_TRUE(HasDefaultFrame(*other));
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(otherClicks, 1);
    EXPECT_EQ(Clicks, 0);
    edit->SetFocus();
    EXPECT_TRUE(HasDefaultFrame(*standard));
    EXPECT_FALSE(HasDefaultFrame(*other));
}

TEST_F(ButtonTest, EscapeClicksTheCancelButton) {
    auto* edit = Make<TEdit>({10, 60, 100, 80});
    MakeButton(10)->SetCancel(true);
    edit->SetFocus();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(ButtonTest, AClickHandsTheModalResultToTheFormFirst) {
    TButton* button = MakeButton(10);
    button->SetModalResult(mrRetry);
    TModalResult seen = mrNone;
    button->OnClick = [&](TObject*) { seen = Form().GetModalResult(); };
    button->Click();
    EXPECT_EQ(seen, mrRetry);
}

TEST_F(ButtonTest, MayBeFreedInItsOwnClick) {
    TButton* button = MakeButton(10);
    button->OnClick = [this](TObject* sender) {
        ++Clicks;
        delete sender;
    };
    Input.ClickAt(button->WindowHandle(), 5, 5);
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(ButtonTest, ANewWindowKeepsCaptionAndFocus) {
    TButton* button = MakeButton(10, L"Kept");
    button->SetFocus();
    button->SetWordWrap(true);
    wchar_t text[20];
    GetWindowTextW(button->WindowHandle(), text, 20);
    EXPECT_STREQ(text, L"Kept");
    EXPECT_TRUE(button->Focused());
}

}  // namespace
}  // namespace test
