#include "platform/vcl/forms/Application.h"

#include <memory>
#include <thread>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/forms/ApplicationEvents.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;
using Log = std::vector<std::string>;

class TMainForm : public TForm {
public:
    explicit TMainForm(TComponent* AOwner) : TForm(AOwner) {
        SetBounds(150, 150, 200, 150);
        OnCreate = {this, &TMainForm::Created};
    }
    static TMainForm* Reference;
    static bool ReferenceWasSet;

private:
    void Created(TObject*) { ReferenceWasSet = Reference == this; }
};
TMainForm* TMainForm::Reference = nullptr;
bool TMainForm::ReferenceWasSet = false;

class ApplicationTest : public FormTest {
protected:
    void TearDown() override {
        Application().OnIdle.Clear();
        Application().OnMessage.Clear();
        FormTest::TearDown();
    }
    /// Answers the message box that opens next and returns its text through the pointer.
    static void AnswerMessageBox(std::wstring* text, WORD button = IDOK) {
        When([] { return FindWindowW(L"#32770", nullptr) != nullptr; },
             [=] {
                 const HWND box = FindWindowW(L"#32770", nullptr);
                 wchar_t buffer[200] = L"";
                 for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
                     wchar_t name[20];
                     GetClassNameW(child, name, 20);
                     if (std::wstring(name) == L"Static") GetWindowTextW(child, buffer, 200);
                     if (text && buffer[0]) *text = buffer;
                 }
                 PostMessageW(box, WM_COMMAND, button, 0);
             });
    }
};

TEST_F(ApplicationTest, RunShowsTheMainFormUntilItIsClosed) {
    Application().CreateForm(TMainForm::Reference);
    EXPECT_TRUE(TMainForm::ReferenceWasSet);
    EXPECT_EQ(Application().GetMainForm(), TMainForm::Reference);
    TForm* second = Application().CreateForm<TForm>();
    EXPECT_EQ(Application().GetMainForm(), TMainForm::Reference);
    bool wasVisible = false;
    bool secondDestroyed = false;
    second->OnDestroy = [&](TObject*) { secondDestroyed = true; };
    When([] { return TMainForm::Reference->GetActive(); },
         [&] {
             wasVisible = TMainForm::Reference->GetVisible();
             TMainForm::Reference->Close();
         });
    Application().Run();
    EXPECT_TRUE(wasVisible);
    EXPECT_TRUE(secondDestroyed);
    EXPECT_EQ(Application().GetMainForm(), nullptr);
    EXPECT_EQ(Application().GetComponentCount(), 0);
}

TEST_F(ApplicationTest, RunWithoutMainFormReturnsAtOnce) {
    Application().Run();
    EXPECT_EQ(Application().GetMainForm(), nullptr);
}

TEST_F(ApplicationTest, TheMainFormCanStayHidden) {
    Application().CreateForm<TMainForm>();
    Application().SetShowMainForm(false);
    bool visible = true;
    Later([&] {
        visible = Application().GetMainForm()->GetVisible();
        Application().Terminate();
    });
    Application().Run();
    EXPECT_FALSE(visible);
    Application().SetShowMainForm(true);
}

TEST_F(ApplicationTest, TheMainFormOwnsTheOtherWindows) {
    TForm* main = Application().CreateForm<TMainForm>();
    main->Show();
    TForm other(nullptr);
    other.Show();
    EXPECT_EQ(GetWindow(main->WindowHandle(), GW_OWNER), nullptr);
    EXPECT_EQ(GetWindow(other.WindowHandle(), GW_OWNER), main->WindowHandle());
    main->Free();
    EXPECT_EQ(GetWindow(other.WindowHandle(), GW_OWNER), Application().GetHandle());
}

TEST_F(ApplicationTest, AReleasedMainFormEndsTheProgram) {
    TForm* main = Application().CreateForm<TMainForm>();
    Later([&] { main->Release(); });
    Application().Run();
    EXPECT_EQ(Application().GetMainForm(), nullptr);
}

TEST_F(ApplicationTest, TerminateEndsModalLoopsToo) {
    Application().CreateForm<TMainForm>();
    TForm dialog(nullptr);
    int result = mrNone;
    bool terminated = false;
    Later([&] {
        When([&] { return dialog.GetActive(); }, [] { Application().Terminate(); });
        result = dialog.ShowModal();
        terminated = Application().GetTerminated();
    });
    Application().Run();
    EXPECT_EQ(result, mrCancel);
    EXPECT_TRUE(terminated);
    EXPECT_FALSE(Application().GetTerminated());
}

TEST_F(ApplicationTest, ErrorsOfHandlersReachTheExceptionEvent) {
    Form().OnClick = [](TObject*) { throw EListError(L"own"); };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    Form().OnClick = [](TObject*) { throw std::runtime_error("foreign"); };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    Form().OnClick = [](TObject*) { throw 42; };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(Errors, (Log{"EListError: own", "std::exception: foreign", "Exception: Unknown error"}));
    Errors.clear();
}

TEST_F(ApplicationTest, AbortIsSilent) {
    Form().OnClick = [](TObject*) { Abort(); };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(Errors, Log());
}

TEST_F(ApplicationTest, AnErrorEndsTheMouseCapture) {
    Form().OnMouseDown = [](TObject*, TMouseButton, TShiftState, int, int) { throw EListError(L"down"); };
    Input.MoveTo(Form().WindowHandle(), 50, 50);
    Input.Press();
    EXPECT_EQ(GetCapture(), nullptr);
    Input.Release();
    Errors.clear();
}

TEST_F(ApplicationTest, WithoutAHandlerErrorsAreShown) {
    Application().OnException.Clear();
    std::wstring text;
    AnswerMessageBox(&text);
    Form().OnClick = [](TObject*) { throw EListError(L"Something is wrong"); };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    ASSERT_TRUE(PumpUntil([&] { return !text.empty(); }));
    EXPECT_EQ(text, L"Something is wrong.");
    EXPECT_TRUE(IsWindowEnabled(Form().WindowHandle()));
}

TEST_F(ApplicationTest, AMessageBoxAnswersAndDisablesTheOthers) {
    Form();
    TForm second(nullptr);
    second.Show();
    bool enabled = true;
    When([] { return FindWindowW(L"#32770", nullptr) != nullptr; },
         [&] {
             enabled = IsWindowEnabled(Form().WindowHandle());
             PostMessageW(FindWindowW(L"#32770", nullptr), WM_COMMAND, IDNO, 0);
         });
    EXPECT_EQ(Application().MessageBox(L"Sure?", L"Question", MB_YESNO), IDNO);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(IsWindowEnabled(Form().WindowHandle()));
    EXPECT_TRUE(second.GetActive());
}

TEST_F(ApplicationTest, OnMessageSeesMessagesBeforeTheirWindow) {
    int seen = 0;
    int clicks = 0;
    Form().OnClick = [&](TObject*) { ++clicks; };
    Application().OnMessage = [&](MSG& message, bool& handled) {
        if (message.message == WM_LBUTTONDOWN) {
            ++seen;
            handled = seen == 1;
        }
    };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(clicks, 0);
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ApplicationTest, AnErrorInOnMessageDoesNotLoseTheMessage) {
    int clicks = 0;
    Form().OnClick = [&](TObject*) { ++clicks; };
    Application().OnMessage = [&](MSG& message, bool&) {
        if (message.message == WM_LBUTTONDOWN) throw EListError(L"message");
    };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Errors, Log{"EListError: message"});
    Errors.clear();
}

TEST_F(ApplicationTest, IdleComesWhenTheQueueIsEmptyAndAgainUntilDone) {
    Application().CreateForm<TMainForm>();
    int idle = 0;
    Application().OnIdle = [&](TObject*, bool& done) {
        done = ++idle == 5;
        if (done) Application().Terminate();
    };
    Application().Run();
    EXPECT_EQ(idle, 5);
}

TEST_F(ApplicationTest, AnErrorInOnIdleGoesToTheExceptionEvent) {
    Application().OnIdle = [&](TObject*, bool&) { throw EListError(L"idle"); };
    EXPECT_TRUE(Application().DoIdle());
    EXPECT_EQ(Errors, Log{"EListError: idle"});
    Errors.clear();
}

TEST_F(ApplicationTest, ProcessMessagesHandlesWhatStandsInTheQueue) {
    int clicks = 0;
    Form().OnClick = [&](TObject*) { ++clicks; };
    EXPECT_FALSE(Application().ProcessMessages());
    PostMessageW(Form().WindowHandle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    PostMessageW(Form().WindowHandle(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(Application().ProcessMessages());
    EXPECT_EQ(clicks, 1);
}

TEST_F(ApplicationTest, EventObjectsHearEverythingTheYoungestFirst) {
    Form();
    Log log;
    TApplicationEvents first(nullptr);
    auto second = std::make_unique<TApplicationEvents>(nullptr);
    first.OnActivate = [&](TObject*) { log.emplace_back("first"); };
    second->OnActivate = [&](TObject*) { log.emplace_back("second"); };
    Application().OnActivate = [&](TObject*) { log.emplace_back("own"); };
    Form().Perform(WM_ACTIVATEAPP, 0);
    Form().Perform(WM_ACTIVATEAPP, 1);
    EXPECT_EQ(log, (Log{"second", "first", "own"}));
    log.clear();
    second->OnActivate = [&](TObject*) { second.reset(); };
    Form().Perform(WM_ACTIVATEAPP, 0);
    Form().Perform(WM_ACTIVATEAPP, 1);
    EXPECT_EQ(log, (Log{"first", "own"}));
    Application().OnActivate.Clear();
}

TEST_F(ApplicationTest, AnEventObjectMayHandleAMessage) {
    TApplicationEvents events(nullptr);
    int own = 0;
    events.OnMessage = [](MSG& message, bool& handled) { handled = message.message == WM_APP + 7; };
    Application().OnMessage = [&](MSG& message, bool&) { own += message.message >= WM_APP; };
    PostMessageW(Form().WindowHandle(), WM_APP + 7, 0, 0);
    PostMessageW(Form().WindowHandle(), WM_APP + 8, 0, 0);
    PumpAll();
    EXPECT_EQ(own, 1);
}

TEST_F(ApplicationTest, MinimizeAndRestoreWorkOnTheMainForm) {
    TForm* main = Application().CreateForm<TMainForm>();
    main->Show();
    Log log;
    Application().OnMinimize = [&](TObject*) { log.emplace_back("minimize"); };
    Application().OnRestore = [&](TObject*) { log.emplace_back("restore"); };
    Application().Minimize();
    EXPECT_EQ(main->GetWindowState(), wsMinimized);
    Application().Restore();
    EXPECT_EQ(main->GetWindowState(), wsNormal);
    EXPECT_EQ(log, (Log{"minimize", "restore"}));
    Application().OnMinimize.Clear();
    Application().OnRestore.Clear();
    main->Free();
}

TEST_F(ApplicationTest, TheTitleIsTheProgramsNameAtFirst) {
    EXPECT_EQ(Application().GetTitle(), L"vcl_tests");
    EXPECT_NE(Application().GetExeName().find(L"vcl_tests.exe"), String::npos);
}

/// What a process has before it ever asked for its application, and after it gave it back.
TEST(ApplicationLifeTest, NothingIsLeftAfterwards) {
    DoneApplication();
    const auto before = TLedger::Snapshot();
    {
        TForm* main = Application().CreateForm<TForm>();
        auto* button = new TButton(main);
        button->SetParent(main);
        main->SetHint(L"x");
        main->SetShowHint(true);
        main->Show();
        (void)Screen().GetFonts();
        Screen().SetCursorHandle(4711, CopyIcon(LoadCursorW(nullptr, IDC_CROSS)));
        Later([] { Application().Terminate(); });
        Application().Run();
    }
    DoneApplication();
    EXPECT_EQ(TLedger::Difference(before, TLedger::Snapshot()), TLedger::Counts());
}

}  // namespace
}  // namespace test
