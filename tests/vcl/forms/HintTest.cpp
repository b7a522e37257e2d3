#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class HintTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        FPauses = {Application().GetHintPause(), Application().GetHintShortPause(),
                   Application().GetHintHidePause()};
        Application().SetHintPause(20);
        Application().SetHintShortPause(10);
        Button = Make<TButton>({20, 20, 120, 50});
        Button->SetHint(L"Short|Long text");
        Button->SetShowHint(true);
    }
    void TearDown() override {
        Application().SetHintPause(FPauses[0]);
        Application().SetHintShortPause(FPauses[1]);
        Application().SetHintHidePause(FPauses[2]);
        Application().OnShowHint.Clear();
        Application().OnHint.Clear();
        FormTest::TearDown();
    }
    /// The hint window on the screen, or null.
    static HWND Shown() {
        HWND found = nullptr;
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                if (dynamic_cast<THintWindow*>(FindControl(window)) && IsWindowVisible(window))
                    *reinterpret_cast<HWND*>(result) = window;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }
    static String ShownText() {
        const HWND window = Shown();
        return window ? FindControl(window)->GetText() : String();
    }
    bool WaitForHint() {
        return PumpUntil([] { return Shown() != nullptr; });
    }
    bool WaitForNone() {
        return PumpUntil([] { return Shown() == nullptr; });
    }
    TButton* Button = nullptr;

private:
    std::vector<int> FPauses;
};

TEST_F(HintTest, RestingOnAControlShowsItsShortText) {
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    EXPECT_EQ(Shown(), nullptr);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownText(), L"Short");
    RECT rect;
    GetWindowRect(Shown(), &rect);
    EXPECT_GT(rect.top, Input.Position().y);
    EXPECT_EQ(rect.left, Input.Position().x);
    EXPECT_TRUE(Form().GetActive());
}

TEST_F(HintTest, LeavingTakesItAway) {
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    Input.MoveTo(Form().WindowHandle(), 300, 200);
    EXPECT_TRUE(WaitForNone());
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    Input.MoveAway();
    EXPECT_TRUE(WaitForNone());
}

TEST_F(HintTest, KeysAndClicksTakeItAway) {
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    Input.KeyPress('A');
    EXPECT_EQ(Shown(), nullptr);
    Input.MoveAway();
    Input.MoveTo(Button->WindowHandle(), 12, 10);
    ASSERT_TRUE(WaitForHint());
    Input.Press();
    EXPECT_EQ(Shown(), nullptr);
    Input.Release();
}

TEST_F(HintTest, ItStaysItsTimeAndDoesNotComeBackOnTheSameControl) {
    Application().SetHintHidePause(30);
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    ASSERT_TRUE(WaitForNone());
    int shown = 0;
    Application().OnShowHint = [&](String&, bool&, THintInfo&) { ++shown; };
    Input.MoveTo(Button->WindowHandle(), 14, 10);
    auto* other = Make<TButton>({20, 80, 120, 110});
    other->SetHint(L"Other");
    other->SetShowHint(true);
    Input.MoveTo(other->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(shown, 1);
}

TEST_F(HintTest, GraphicControlsAndParentsHaveHintsToo) {
    auto* panel = Make<TPanel>({150, 20, 350, 120});
    panel->SetHint(L"Panel");
    panel->SetShowHint(true);
    auto* label = Make<TLabel>({10, 10, 60, 30}, panel);
    label->SetCaption(L"text");
    Input.MoveTo(panel->WindowHandle(), 15, 15);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownText(), L"Panel");
    label->SetHint(L"Label");
    Input.MoveAway();
    ASSERT_TRUE(WaitForNone());
    Input.MoveTo(panel->WindowHandle(), 16, 15);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownText(), L"Label");
}

TEST_F(HintTest, TheHostMayChangeOrRefuseIt) {
    Application().OnShowHint = [&](String& text, bool& canShow, THintInfo& info) {
        EXPECT_EQ(info.HintControl, Button);
        text = L"Changed";
        info.HintColor = clLime;
        canShow = Button->GetTag() == 0;
    };
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownText(), L"Changed");
    EXPECT_EQ(FindControl(Shown())->GetColor(), clLime);
    Button->SetTag(1);
    Application().CancelHint();
    Application().ActivateHint(Input.Position());
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(HintTest, ThePlaceInsideTheControlMayHaveItsOwnHint) {
    Application().OnShowHint = [&](String& text, bool&, THintInfo& info) {
        const bool left = info.CursorPos.X < 50;
        text = left ? L"left" : L"right";
        info.CursorRect = left ? TRect{0, 0, 50, 30} : TRect{50, 0, 100, 30};
    };
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownText(), L"left");
    Input.MoveTo(Button->WindowHandle(), 20, 12);
    EXPECT_EQ(ShownText(), L"left");
    Input.MoveTo(Button->WindowHandle(), 70, 10);
    EXPECT_TRUE(PumpUntil([] { return ShownText() == L"right"; }));
}

TEST_F(HintTest, TheApplicationTellsTheLongTextOfWhatIsPointedAt) {
    std::vector<String> texts;
    Application().OnHint = [&](TObject*) { texts.push_back(Application().GetHint()); };
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    Input.MoveAway();
    EXPECT_TRUE(PumpUntil([&] { return Application().GetHint().empty(); }));
    EXPECT_EQ(texts, (std::vector<String>{L"Long text", L""}));
}

TEST_F(HintTest, AFreedControlTakesItsHintAlong) {
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    delete Button;
    PumpAll();
    Input.MoveTo(Form().WindowHandle(), 30, 32);
    EXPECT_TRUE(WaitForNone());
}

TEST_F(HintTest, HintsCanBeSwitchedOff) {
    Application().SetShowHint(false);
    Input.MoveTo(Button->WindowHandle(), 10, 10);
    Application().ActivateHint(Input.Position());
    EXPECT_EQ(Shown(), nullptr);
    Application().SetShowHint(true);
    Button->SetShowHint(false);
    Application().ActivateHint(Input.Position());
    EXPECT_EQ(Shown(), nullptr);
}

}  // namespace
}  // namespace test
