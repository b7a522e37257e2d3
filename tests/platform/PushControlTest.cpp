#include "platform/vcl/stdctrls/PushControl.h"

#include "platform/vcl/stdctrls/Edit.h"
#include "tests/platform/PushControlFixture.h"
#include "tests/support/WindowProbe.h"

namespace {

using namespace vcl;
using test::PumpAll;
using States = std::vector<TPushState>;

class PushControlMouse : public test::PushControlTest {};
class PushControlKeys : public test::PushControlTest {};
class PushControlPainting : public test::PushControlTest {};
class PushControlLife : public test::PushControlTest {};

// --- mouse

TEST_F(PushControlMouse, IsHotWhileTheMouseIsOnIt) {
    Input.MoveTo(Window(), 20, 10);
    EXPECT_EQ(Control->GetPushState(), pshHot);
    EXPECT_EQ(Shown(), ColorOf(pshHot));
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_EQ(Control->GetPushState(), pshNormal);
    EXPECT_EQ(Shown(), ColorOf(pshNormal));
}

TEST_F(PushControlMouse, TellsEnterAndLeave) {
    std::string told;
    Control->OnMouseEnter = [&](TObject*) { told += "in "; };
    Control->OnMouseLeave = [&](TObject*) { told += "out "; };
    Input.MoveTo(Window(), 20, 10);
    Input.MoveTo(Window(), 30, 10);
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_EQ(told, "in out ");
}

TEST_F(PushControlMouse, APressAndAReleaseOnItMakeAClick) {
    Input.MoveTo(Window(), 20, 10);
    Input.Press();
    EXPECT_EQ(Shown(), ColorOf(pshPressed));
    EXPECT_EQ(Clicks, 0);
    Input.Release();
    EXPECT_EQ(Shown(), ColorOf(pshHot));
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(Control->States, (States{pshHot, pshPressed, pshHot}));
}

TEST_F(PushControlMouse, LooksReleasedOffItAndPressedBackOnIt) {
    Input.MoveTo(Window(), 20, 10);
    Input.Press();
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_EQ(Shown(), ColorOf(pshNormal));
    Input.MoveTo(Window(), 30, 10);
    EXPECT_EQ(Shown(), ColorOf(pshPressed));
    Input.Release();
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlMouse, AReleaseOffItMakesNoClick) {
    Input.MoveTo(Window(), 20, 10);
    Input.Press();
    Input.MoveTo(Form().GetHandle(), 5, 5);
    Input.Release();
    EXPECT_EQ(Clicks, 0);
    EXPECT_EQ(Control->GetPushState(), pshNormal);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(PushControlMouse, OtherButtonsDoNotPress) {
    Input.ClickAt(Window(), 20, 10, test::MouseButton::Right);
    EXPECT_EQ(Control->States, (States{pshHot}));
    EXPECT_EQ(Clicks, 0);
}

TEST_F(PushControlMouse, LosingTheCaptureEndsThePress) {
    Input.MoveTo(Window(), 20, 10);
    Input.Press();
    ReleaseCapture();
    PumpAll();
    EXPECT_EQ(Control->GetPushState(), pshHot);
    Input.Release();
    EXPECT_EQ(Clicks, 0);
}

TEST_F(PushControlMouse, AReleaseThatWentElsewhereIsNoticedAtTheNextMove) {
    Input.MoveTo(Window(), 20, 10);
    SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 10));
    ASSERT_EQ(Control->GetPushState(), pshPressed);
    SendMessageW(Window(), WM_MOUSEMOVE, 0, MAKELPARAM(21, 10));
    EXPECT_EQ(Control->GetPushState(), pshHot);
    SendMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(21, 10));
    EXPECT_EQ(Clicks, 0);
}

TEST_F(PushControlMouse, APressGivesTheFocus) {
    auto* edit = Make<TEdit>({200, 10, 300, 32});
    edit->SetFocus();
    Input.ClickAt(Window(), 20, 10);
    EXPECT_TRUE(Control->Focused());
}

TEST_F(PushControlMouse, TwoQuickClicksAreTwoClicks) {
    int doubles = 0;
    Control->OnDblClick = [&](TObject*) { ++doubles; };
    Input.DoubleClickAt(Window(), 20, 10);
    EXPECT_EQ(Clicks, 2);
    EXPECT_EQ(doubles, 0);
}

TEST_F(PushControlMouse, ADoubleClickCountsWhereItIsWanted) {
    int doubles = 0;
    Control->HasDoubleClicks = true;
    Control->OnDblClick = [&](TObject*) { ++doubles; };
    Input.DoubleClickAt(Window(), 20, 10);
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(doubles, 1);
    EXPECT_EQ(Control->GetPushState(), pshHot);
}

TEST_F(PushControlMouse, DisablingEndsHoverAndPress) {
    Input.MoveTo(Window(), 20, 10);
    Input.Press();
    Control->SetEnabled(false);
    EXPECT_EQ(Shown(), ColorOf(pshDisabled));
    EXPECT_EQ(GetCapture(), nullptr);
    Input.Release();
    EXPECT_EQ(Clicks, 0);
    Control->SetEnabled(true);
    Input.MoveTo(Window(), 22, 10);
    EXPECT_EQ(Shown(), ColorOf(pshHot));
}

TEST_F(PushControlMouse, ADesignerClicksWithoutPressing) {
    Control->SetDesigning(true);
    Input.ClickAt(Window(), 20, 10);
    EXPECT_EQ(Control->GetPushState(), pshNormal);
}

// --- switching over

TEST_F(PushControlMouse, ClicksSwitchATogglingControlOver) {
    Control->IsToggle = true;
    Input.ClickAt(Window(), 20, 10);
    EXPECT_TRUE(Control->GetDown());
    EXPECT_EQ(Shown(), ColorOf(pshDownHot));
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_EQ(Shown(), ColorOf(pshDown));
    Input.ClickAt(Window(), 20, 10);
    EXPECT_FALSE(Control->GetDown());
    EXPECT_EQ(Clicks, 2);
}

TEST_F(PushControlMouse, ItIsSwitchedOverBeforeTheEvent) {
    Control->IsToggle = true;
    bool downInEvent = false;
    Control->OnClick = [&](TObject*) { downInEvent = Control->GetDown(); };
    Control->Click();
    EXPECT_TRUE(downInEvent);
}

TEST_F(PushControlMouse, ClicksLeaveAPushButtonAsItIs) {
    Input.ClickAt(Window(), 20, 10);
    EXPECT_FALSE(Control->GetDown());
    Control->SetDown(true);
    EXPECT_EQ(Shown(), ColorOf(pshDownHot));
    Input.Click();
    EXPECT_TRUE(Control->GetDown());
}

// --- keyboard

TEST_F(PushControlKeys, TheSpaceBarPressesAndItsReleaseClicks) {
    Control->SetFocus();
    Input.KeyDown(VK_SPACE);
    EXPECT_EQ(Shown(), ColorOf(pshPressed));
    EXPECT_EQ(Clicks, 0);
    Input.KeyUp(VK_SPACE);
    EXPECT_EQ(Shown(), ColorOf(pshNormal));
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlKeys, TheSpaceBarDoesNothingWhereItIsNotWanted) {
    Control->HasSpace = false;
    Control->SetFocus();
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(Clicks, 0);
    EXPECT_TRUE(Control->States.empty());
}

TEST_F(PushControlKeys, LosingTheFocusEndsAPressOfTheSpaceBar) {
    auto* edit = Make<TEdit>({200, 10, 300, 32});
    Control->SetFocus();
    Input.KeyDown(VK_SPACE);
    edit->SetFocus();
    EXPECT_EQ(Control->GetPushState(), pshNormal);
    Input.KeyUp(VK_SPACE);
    EXPECT_EQ(Clicks, 0);
}

TEST_F(PushControlKeys, AHandlerCanSwallowTheKey) {
    Control->OnKeyDown = [](TObject*, WORD& key, TShiftState) { key = 0; };
    Control->SetFocus();
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(Clicks, 0);
}

TEST_F(PushControlKeys, EnterClicksTheFocusedOne) {
    Control->SetFocus();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Clicks, 1);
    Input.Chord({VK_CONTROL}, VK_RETURN);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlKeys, EnterClicksTheDefaultOneFromAnEditor) {
    auto* edit = Make<TEdit>({200, 10, 300, 32});
    edit->SetFocus();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Clicks, 0);
    Control->SetDefault(true);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Clicks, 1);
    Control->SetEnabled(false);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlKeys, AFocusedOneTakesEnterFromTheDefaultOne) {
    int others = 0;
    auto* other = Make<test::ProbeControl>({200, 10, 280, 34});
    other->OnClick = [&](TObject*) { ++others; };
    Control->SetDefault(true);
    other->SetFocus();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(others, 1);
    EXPECT_EQ(Clicks, 0);
}

TEST_F(PushControlKeys, EscapeClicksTheCancelOneFromEverywhere) {
    auto* edit = Make<TEdit>({200, 10, 300, 32});
    edit->SetFocus();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Clicks, 0);
    Control->SetCancel(true);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlKeys, TheMarkedLetterClicks) {
    auto* edit = Make<TEdit>({200, 10, 300, 32});
    edit->SetFocus();
    Control->SetCaption(L"&Search");
    Input.Chord({VK_MENU}, 'S');
    EXPECT_EQ(Clicks, 1);
    Input.Chord({VK_MENU}, 'E');
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlKeys, TheFormGetsTheModalResultBeforeTheEvent) {
    int inEvent = -1;
    Control->SetModalResult(mrRetry);
    Control->OnClick = [&](TObject*) { inEvent = Form().GetModalResult(); };
    Control->Click();
    EXPECT_EQ(inEvent, mrRetry);
}

TEST_F(PushControlKeys, AClickClosesAModalForm) {
    TForm dialog(nullptr);
    dialog.SetBounds(200, 200, 200, 100);
    auto* ok = new test::ProbeControl(&dialog);
    ok->SetParent(&dialog);
    ok->SetBounds(10, 10, 80, 24);
    ok->SetModalResult(mrOk);
    test::When([&] { return ok->GetShowing(); }, [&] { Input.ClickAt(ok->WindowHandle(), 10, 10); });
    EXPECT_EQ(dialog.ShowModal(), mrOk);
}

// --- painting

TEST_F(PushControlPainting, AStateIsPaintedOnceUntilTheControlChanges) {
    Input.MoveTo(Window(), 20, 10);
    Input.MoveTo(Form().GetHandle(), 5, 5);
    const int paints = Control->Paints;
    for (int i = 0; i < 5; ++i) {
        Input.MoveTo(Window(), 20, 10);
        EXPECT_EQ(Shown(), ColorOf(pshHot));
        Input.MoveTo(Form().GetHandle(), 5, 5);
        EXPECT_EQ(Shown(), ColorOf(pshNormal));
    }
    EXPECT_EQ(Control->Paints, paints);
    Control->Invalidate();
    PumpAll();
    EXPECT_EQ(Control->Paints, paints + 1);
}

TEST_F(PushControlPainting, AChangeOfStateNeedsNoPaintMessage) {
    Input.MoveTo(Window(), 20, 10);
    test::WindowProbe probe(Window());
    Input.Press();
    EXPECT_EQ(Shown(), ColorOf(pshPressed));
    Input.Release();
    EXPECT_EQ(probe.Count(WM_PAINT), 0);
    EXPECT_EQ(probe.Count(WM_ERASEBKGND), 0);
}

TEST_F(PushControlPainting, TheFocusShowsAtOnce) {
    EXPECT_NE(Shown(0, 0), test::ProbeControl::FocusColor);
    Control->SetFocus();
    EXPECT_EQ(Shown(0, 0), test::ProbeControl::FocusColor);
    Form().SetActiveControl(nullptr);
    PumpAll();
    EXPECT_NE(Shown(0, 0), test::ProbeControl::FocusColor);
}

TEST_F(PushControlPainting, AFocusThatDoesNotShowPaintsNothing) {
    Control->FocusShows = false;
    const int paints = Control->Paints;
    Control->SetFocus();
    EXPECT_EQ(Control->Paints, paints);
    EXPECT_EQ(Shown(0, 0), ColorOf(pshNormal));
}

TEST_F(PushControlPainting, TheFocusCanStandForTheMouse) {
    Control->IsHotByFocus = true;
    Control->SetFocus();
    EXPECT_EQ(Shown(), ColorOf(pshHot));
}

TEST_F(PushControlPainting, ChangesOfSizeAndTextPaintAnew) {
    const int paints = Control->Paints;
    Control->SetWidth(120);
    PumpAll();
    EXPECT_EQ(Shown(110, 20), ColorOf(pshNormal));
    Control->SetCaption(L"other");
    PumpAll();
    Control->GetFont().SetSize(14);
    PumpAll();
    EXPECT_EQ(Control->Paints, paints + 3);
}

TEST_F(PushControlPainting, ALargeOneForgetsItsOldestPictures) {
    Control->SetBounds(0, 0, 380, 260);
    Form().SetBounds(0, 0, 1000, 700);
    Control->SetBounds(0, 0, 900, 600);
    PumpAll();
    Input.MoveTo(Window(), 20, 10);
    EXPECT_EQ(Shown(899, 599), ColorOf(pshHot));
    Input.MoveTo(Form().GetHandle(), 950, 5);
    EXPECT_EQ(Shown(899, 599), ColorOf(pshNormal));
}

TEST_F(PushControlPainting, AnEmptyOnePaintsNothing) {
    Control->SetBounds(0, 0, 0, 0);
    PumpAll();
    const int paints = Control->Paints;
    Control->SetDown(true);
    Control->Repaint();
    PumpAll();
    EXPECT_EQ(Control->Paints, paints);
}

// --- life

TEST_F(PushControlLife, SurvivesBeingFreedInItsOwnClick) {
    Control->OnClick = [&](TObject*) { delete std::exchange(Control, nullptr); };
    Input.ClickAt(Window(), 20, 10);
    EXPECT_EQ(Control, nullptr);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(PushControlLife, SurvivesBeingFreedInItsOwnPress) {
    Control->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) {
        delete std::exchange(Control, nullptr);
    };
    Input.ClickAt(Window(), 20, 10);
    EXPECT_EQ(Control, nullptr);
}

TEST_F(PushControlLife, SurvivesBeingFreedWhenItsStateChanges) {
    // Each of the ways into a new state.
    const std::vector<std::function<void()>> ways = {
        [&] { Input.MoveTo(Window(), 20, 10); },
        [&] { Input.ClickAt(Window(), 20, 10); },
        [&] { Control->SetEnabled(false); },
        [&] { Control->SetDown(true); },
        [&] {
            Control->SetFocus();
            Input.KeyPress(VK_SPACE);
        },
    };
    for (const auto& way : ways) {
        Control->OnStateChange = [&](TObject*) { delete std::exchange(Control, nullptr); };
        way();
        EXPECT_EQ(Control, nullptr);
        Input.MoveAway();
        Control = Make<test::ProbeControl>({50, 40, 130, 64});
        PumpAll();
    }
}

TEST_F(PushControlLife, AHundredNewWindowsLeaveNothingBehind) {
    Control->SetFocus();
    for (int i = 0; i < 100; ++i)
        Control->RecreateWnd();
    PumpAll();
    EXPECT_EQ(Shown(), ColorOf(pshNormal));
    EXPECT_TRUE(Control->Focused());
    Input.ClickAt(Window(), 20, 10);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(PushControlLife, AThousandPressesLeaveNothingBehind) {
    const auto send = [&](UINT message, WPARAM keys, int x) {
        SendMessageW(Window(), message, keys, MAKELPARAM(x, 10));
    };
    Input.MoveTo(Window(), 20, 10);
    const test::ResourceSnapshot before = test::ResourceSnapshot::Take();
    for (int i = 0; i < 1000; ++i) {
        send(WM_LBUTTONDOWN, MK_LBUTTON, 20);
        send(WM_MOUSEMOVE, MK_LBUTTON, 300);
        send(WM_MOUSEMOVE, MK_LBUTTON, 20);
        send(WM_LBUTTONUP, 0, 20);
    }
    EXPECT_EQ(Clicks, 1000);
    EXPECT_EQ(before.ChangeSince(), "");
}

}  // namespace
