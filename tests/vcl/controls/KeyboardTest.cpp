#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

/// Answers what dialogs ask of a control, and notes the keys that reach it.
class TKeyProbe : public TProbeWindow {
public:
    explicit TKeyProbe(TComponent* owner) : TProbeWindow(owner) {
        OnKeyDown = [this](TObject*, WORD& key, TShiftState shift) {
            Seen.push_back("down " + std::to_string(key));
            Shift = shift;
            if (key == Swallow) key = 0;
        };
        OnKeyPress = [this](TObject*, wchar_t& key) {
            Seen.push_back(std::string("press ") + static_cast<char>(key));
        };
        OnKeyUp = [this](TObject*, WORD& key, TShiftState) { Seen.push_back("up " + std::to_string(key)); };
        MessageHook = [this](TMessage& m) {
            if (m.Msg == CM_WANTSPECIALKEY && m.WParam == Wanted) Seen.push_back("wanted");
            if (m.Msg == CM_DIALOGCHAR) Seen.push_back(std::string("char ") + static_cast<char>(m.WParam));
            if (m.Msg == CM_DIALOGKEY) Seen.push_back("dialog " + std::to_string(m.WParam));
        };
    }
    Log Seen;
    TShiftState Shift;
    WORD Swallow = 0;
    WORD Wanted = 0;
    LRESULT DialogCode = 0;

protected:
    void Dispatch(TMessage& message) override {
        TProbeWindow::Dispatch(message);
        if (message.Msg == CM_WANTSPECIALKEY) message.Result = message.WParam == Wanted;
        if (message.Msg == WM_GETDLGCODE) message.Result |= DialogCode;
    }
};

class Keyboard : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        Keys = Make<TKeyProbe>({0, 0, 50, 50});
        Keys->SetFocus();
        Form->MessageHook = [this](TMessage& m) {
            if (m.Msg == CM_DIALOGKEY) DialogKeys.push_back(static_cast<WORD>(m.WParam));
            if (m.Msg == CM_DIALOGCHAR) DialogChars += static_cast<wchar_t>(m.WParam);
        };
    }
    [[nodiscard]] Log Taken() { return std::exchange(Keys->Seen, {}); }

    TKeyProbe* Keys = nullptr;
    std::vector<WORD> DialogKeys;
    String DialogChars;
};

TEST_F(Keyboard, APlainKeyIsDownPressUp) {
    Keys->DialogCode = DLGC_WANTCHARS;
    Input.KeyPress('A');
    EXPECT_EQ(Taken(), (Log{"down 65", "press a", "up 65"}));
    EXPECT_TRUE(DialogKeys.empty());
    EXPECT_EQ(DialogChars, L"");
}

TEST_F(Keyboard, TheShiftStateComesAlong) {
    Keys->DialogCode = DLGC_WANTCHARS;
    Input.Chord({VK_CONTROL, VK_SHIFT}, VK_F5);
    EXPECT_EQ(Keys->Shift, (TShiftState{ssCtrl, ssShift}));
}

TEST_F(Keyboard, ASwallowedKeyReachesNoDefaultHandling) {
    int defaults = 0;
    Keys->Swallow = VK_F6;
    Keys->MessageHook = [&](TMessage& m) { defaults += m.Msg == WM_KEYDOWN && m.WParam == 0; };
    TMessage message{WM_KEYDOWN, VK_F6, 0, 0};
    Keys->SendTo(message);
    EXPECT_EQ(message.WParam, 0u);
    EXPECT_EQ(Taken(), Log{"down 117"});
}

TEST_F(Keyboard, DialogKeysGoToTheFormFirst) {
    for (const WORD key : {VK_TAB, VK_LEFT, VK_DOWN, VK_RETURN, VK_ESCAPE})
        Input.KeyDown(key), Input.KeyUp(key);
    EXPECT_EQ(DialogKeys, (std::vector<WORD>{VK_TAB, VK_LEFT, VK_DOWN, VK_RETURN, VK_ESCAPE}));
    EXPECT_EQ(Keys->Seen.front(), "dialog 9") << "the form asks its children";
}

TEST_F(Keyboard, AUsedDialogKeyDoesNotReachTheControl) {
    Form->MessageHook = [&](TMessage& m) {
        if (m.Msg == CM_DIALOGKEY) m.Msg = WM_NULL, m.Result = 1;
    };
    Input.KeyDown(VK_RETURN);
    EXPECT_EQ(Taken(), Log{});
    Input.KeyUp(VK_RETURN);
}

TEST_F(Keyboard, AControlKeepsKeysByDialogCode) {
    Keys->DialogCode = DLGC_WANTARROWS;
    Input.KeyDown(VK_LEFT);
    EXPECT_TRUE(DialogKeys.empty());
    EXPECT_EQ(Taken(), Log{"down 37"});
    Input.KeyDown(VK_TAB);
    EXPECT_EQ(DialogKeys, std::vector<WORD>{VK_TAB});
    Keys->DialogCode = DLGC_WANTTAB;
    Input.KeyDown(VK_TAB);
    EXPECT_EQ(DialogKeys, std::vector<WORD>{VK_TAB});
    Keys->DialogCode = DLGC_WANTALLKEYS;
    Input.KeyDown(VK_ESCAPE);
    EXPECT_EQ(DialogKeys, std::vector<WORD>{VK_TAB});
    Input.KeyDown(VK_TAB);
    EXPECT_EQ(DialogKeys.size(), 2u) << "Tab is kept by its own name only";
}

TEST_F(Keyboard, AControlKeepsKeysByWantSpecialKey) {
    Keys->Wanted = VK_RETURN;
    Input.KeyDown(VK_RETURN);
    EXPECT_TRUE(DialogKeys.empty());
    EXPECT_EQ(Keys->Seen.front(), "wanted");
}

TEST_F(Keyboard, ParentsMayTakeAKeyOfTheirChild) {
    auto* group = Make<TProbeWindow>({60, 0, 200, 100});
    auto* inner = Make<TKeyProbe>({0, 0, 20, 20}, group);
    inner->SetFocus();
    LPARAM child = 0;
    group->MessageHook = [&](TMessage& m) {
        if (m.Msg != CM_CHILDKEY || m.WParam != VK_F3) return;
        child = m.LParam;
        m.Msg = WM_NULL;
        m.Result = 1;
    };
    Input.KeyDown(VK_F3);
    EXPECT_EQ(child, reinterpret_cast<LPARAM>(inner));
    EXPECT_EQ(inner->Seen, Log{});
    Input.KeyUp(VK_F3);
}

TEST_F(Keyboard, CharactersAreAcceleratorsUnlessTheControlWantsThem) {
    Input.KeyPress('X');
    EXPECT_EQ(DialogChars, L"x");
    Keys->DialogCode = DLGC_WANTCHARS;
    Input.KeyPress('Y');
    EXPECT_EQ(DialogChars, L"x");
    Input.Chord({VK_MENU}, 'Z');
    EXPECT_EQ(DialogChars, L"xz") << "with Alt always";
}

TEST_F(Keyboard, ShortCutsOfTheFormComeBeforeEverything) {
    Form->ShortCut = VK_F9;
    Input.KeyDown(VK_F9);
    EXPECT_EQ(Taken(), Log{});
    Input.KeyDown(VK_F8);
    EXPECT_EQ(Taken(), Log{"down 119"});
}

TEST_F(Keyboard, AFormWithKeyPreviewSeesKeysFirst) {
    Keys->DialogCode = DLGC_WANTCHARS;
    Log order;
    Form->OnKeyDown = [&](TObject*, WORD& key, TShiftState) {
        order.push_back("form " + std::to_string(key));
        if (key == 'B') key = 0;
    };
    Form->OnKeyPress = [&](TObject*, wchar_t& key) { order.push_back(std::string("form ") + char(key)); };
    Input.KeyPress('A');
    EXPECT_TRUE(order.empty());
    (void)Taken();
    Form->KeyPreview = true;
    Input.KeyPress('A');
    EXPECT_EQ(order, (Log{"form 65", "form a"}));
    EXPECT_EQ(Taken(), (Log{"down 65", "press a", "up 65"}));
    Input.KeyDown('B');
    EXPECT_EQ(Taken(), Log{"press b"});
    Input.KeyUp('B');
}

TEST_F(Keyboard, AcceleratorsAreFoundInCaptions) {
    EXPECT_TRUE(IsAccel(L'o', L"&OK"));
    EXPECT_TRUE(IsAccel(L'S', L"Now && &save"));
    EXPECT_FALSE(IsAccel(L's', L"Now &&save"));
    EXPECT_FALSE(IsAccel(L'k', L"&OK"));
    EXPECT_FALSE(IsAccel(L'&', L"a & b&"));
    EXPECT_FALSE(IsAccel(0, L"&"));
}

}  // namespace
}  // namespace test
