#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class ControlMouse : public ControlsTest {
protected:
    void Note(TControl* control, const std::string& name) {
        control->OnClick = [this, name](TObject*) { Seen.push_back(name + " click"); };
        control->OnDblClick = [this, name](TObject*) { Seen.push_back(name + " dblclick"); };
        control->OnMouseDown = [this, name](TObject*, TMouseButton button, TShiftState shift, int x, int y) {
            Last = {x, y};
            Shift = shift;
            Seen.push_back(name + (button == mbRight ? " right" : "") + " down");
        };
        control->OnMouseUp = [this, name](TObject*, TMouseButton button, TShiftState shift, int x, int y) {
            Last = {x, y};
            Shift = shift;
            Seen.push_back(name + (button == mbRight ? " right" : "") + " up");
        };
        control->OnMouseEnter = [this, name](TObject*) { Seen.push_back(name + " enter"); };
        control->OnMouseLeave = [this, name](TObject*) { Seen.push_back(name + " leave"); };
    }
    [[nodiscard]] Log Taken() { return std::exchange(Seen, {}); }

    Log Seen;
    TPoint Last;
    TShiftState Shift;
};

TEST_F(ControlMouse, AClickIsPressClickRelease) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    Input.MoveTo(window->WindowHandle(), 5, 6);
    Note(window, "w");
    Input.Click();
    EXPECT_EQ(Taken(), (Log{"w down", "w click", "w up"}));
    EXPECT_EQ(Last, TPoint(5, 6));
    EXPECT_FALSE(window->GetMouseCapture());
}

TEST_F(ControlMouse, AGraphicControlGetsItsOwnCoordinates) {
    auto* graphic = Make<TProbeGraphic>({20, 30, 60, 60});
    Input.MoveTo(Form->WindowHandle(), 25, 37);
    Note(graphic, "g");
    Input.Press();
    EXPECT_EQ(Last, TPoint(5, 7));
    EXPECT_EQ(Shift, TShiftState{ssLeft});
    EXPECT_EQ(GetCaptureControl(), graphic);
    Input.MoveTo(Form->WindowHandle(), 200, 200);
    Input.Release();
    EXPECT_EQ(Last, TPoint(180, 170));
    EXPECT_EQ(GetCaptureControl(), nullptr);
    EXPECT_EQ(Taken(), (Log{"g down", "g leave", "g up"})) << "released outside: no click";
}

TEST_F(ControlMouse, TheSecondPressIsADoubleClick) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    Input.MoveTo(window->WindowHandle(), 5, 6);
    Note(window, "w");
    Input.DoubleClickAt(window->WindowHandle(), 5, 6);
    EXPECT_EQ(Taken(), (Log{"w down", "w click", "w up", "w dblclick", "w down", "w up"}));
}

TEST_F(ControlMouse, WithoutDoubleClicksThereAreTwoClicks) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    window->ControlStyle.Exclude(csDoubleClicks);
    Input.MoveTo(window->WindowHandle(), 5, 6);
    Note(window, "w");
    Input.DoubleClickAt(window->WindowHandle(), 5, 6);
    EXPECT_EQ(Taken(), (Log{"w down", "w click", "w up", "w down", "w click", "w up"}));
}

TEST_F(ControlMouse, ShiftStateHasKeysAndButtons) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    Note(window, "w");
    Input.KeyDown(VK_SHIFT);
    Input.KeyDown(VK_CONTROL);
    Input.MoveTo(window->WindowHandle(), 5, 6);
    Input.Press(MouseButton::Right);
    EXPECT_EQ(Shift, (TShiftState{ssShift, ssCtrl, ssRight}));
    Input.Release(MouseButton::Right);
    EXPECT_EQ(Shift, (TShiftState{ssShift, ssCtrl}));
    Input.KeyUp(VK_CONTROL);
    Input.KeyUp(VK_SHIFT);
}

TEST_F(ControlMouse, EnterAndLeaveFollowThePointerThroughAllKinds) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* inner = Make<TProbeGraphic>({10, 10, 30, 30}, window);
    auto* graphic = Make<TProbeGraphic>({100, 10, 150, 60});
    Input.MoveTo(Form->WindowHandle(), 300, 200);
    Note(window, "w");
    Note(inner, "i");
    Note(graphic, "g");
    Input.MoveTo(window->WindowHandle(), 5, 5);
    EXPECT_EQ(Taken(), Log{"w enter"});
    EXPECT_TRUE(window->GetMouseInClient());
    Input.MoveTo(window->WindowHandle(), 15, 15);
    EXPECT_EQ(Taken(), (Log{"w leave", "i enter"}));
    Input.MoveTo(Form->WindowHandle(), 110, 20);
    EXPECT_EQ(Taken(), (Log{"i leave", "g enter"}));
    Input.MoveAway();
    EXPECT_TRUE(PumpUntil([&] { return !Seen.empty(); }));
    EXPECT_EQ(Taken(), Log{"g leave"});
    EXPECT_EQ(GetMouseControl(), nullptr);
}

TEST_F(ControlMouse, ParentsHearOfEnterAndLeaveBelowThem) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* inner = Make<TProbeGraphic>({10, 10, 30, 30}, window);
    std::vector<std::pair<UINT, LPARAM>> heard;
    Form->MessageHook = [&](TMessage& m) {
        if (m.Msg == CM_MOUSEENTER || m.Msg == CM_MOUSELEAVE) heard.emplace_back(m.Msg, m.LParam);
    };
    Input.MoveTo(window->WindowHandle(), 15, 15);
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back(), std::make_pair(CM_MOUSEENTER, reinterpret_cast<LPARAM>(inner)));
}

TEST_F(ControlMouse, TheHolderOfTheMouseLeavesAndEntersWhileItIsHeld) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* other = Make<TProbeWindow>({100, 10, 160, 60});
    Input.MoveTo(window->WindowHandle(), 5, 5);
    Note(window, "w");
    Note(other, "o");
    Input.Press();
    Input.MoveTo(other->WindowHandle(), 5, 5);
    Input.MoveTo(window->WindowHandle(), 6, 6);
    EXPECT_EQ(Taken(), (Log{"w down", "w leave", "w enter"}));
    Input.Release();
    EXPECT_EQ(Taken(), (Log{"w click", "w up"}));
}

TEST_F(ControlMouse, HidingOrDisablingTheControlUnderThePointerIsALeave) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* inner = Make<TProbeGraphic>({10, 10, 30, 30}, window);
    Note(inner, "i");
    Input.MoveTo(window->WindowHandle(), 15, 15);
    inner->SetEnabled(false);
    EXPECT_EQ(Taken(), (Log{"i enter", "i leave"}));
    inner->SetEnabled(true);
    Input.MoveTo(window->WindowHandle(), 16, 15);
    window->Hide();
    EXPECT_EQ(Taken(), (Log{"i enter", "i leave"}));
}

TEST_F(ControlMouse, DisabledGraphicControlsLetTheMouseThrough) {
    auto* graphic = Make<TProbeGraphic>({20, 30, 60, 60});
    graphic->SetEnabled(false);
    Note(graphic, "g");
    Note(Form, "f");
    Input.ClickAt(Form->WindowHandle(), 25, 37);
    EXPECT_EQ(Taken(), (Log{"f enter", "f down", "f click", "f up"}));
}

TEST_F(ControlMouse, ALostCaptureEndsThePress) {
    auto* graphic = Make<TProbeGraphic>({20, 30, 60, 60});
    Input.MoveTo(Form->WindowHandle(), 25, 37);
    Note(graphic, "g");
    Input.Press();
    Form->Perform(WM_CANCELMODE);
    EXPECT_EQ(GetCaptureControl(), nullptr);
    Input.Release();
    EXPECT_EQ(Taken(), (Log{"g down", "g up"}));
}

TEST_F(ControlMouse, TheTopmostControlIsHit) {
    auto* low = Make<TProbeGraphic>({20, 20, 60, 60});
    auto* high = Make<TProbeGraphic>({20, 20, 60, 60});
    auto* window = Make<TProbeWindow>({20, 20, 60, 60});
    EXPECT_EQ(Form->ControlAtPos({30, 30}, false), high);
    EXPECT_EQ(Form->ControlAtPos({30, 30}, false, true), window);
    high->SendToBack();
    EXPECT_EQ(Form->ControlAtPos({30, 30}, false), low);
    low->SetEnabled(false);
    EXPECT_EQ(Form->ControlAtPos({30, 30}, false), high);
    EXPECT_EQ(Form->ControlAtPos({30, 30}, true), low);
    EXPECT_EQ(Form->ControlAtPos({60, 60}, true, true), nullptr);
    auto* inner = Make<TProbeGraphic>({0, 0, 5, 5}, window);
    EXPECT_EQ(Form->ControlAtPos({21, 21}, false, true, true), inner);
}

TEST_F(ControlMouse, TheWheelGoesUpUntilSomebodyUsesIt) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* graphic = Make<TProbeGraphic>({0, 0, 30, 30}, window);
    Log seen;
    bool used = false;
    TPoint at;
    graphic->OnMouseWheelDown = [&](TObject*, TShiftState, TPoint, bool& handled) {
        seen.push_back("g down");
        handled = used;
    };
    window->OnMouseWheel = [&](TObject*, TShiftState, int delta, TPoint p, bool&) {
        seen.push_back("w " + std::to_string(delta));
        at = p;
    };
    Form->OnMouseWheelDown = [&](TObject*, TShiftState, TPoint, bool& handled) {
        seen.push_back("f down");
        handled = true;
    };
    Input.MoveTo(window->WindowHandle(), 15, 15);
    Input.Wheel(-1);
    EXPECT_EQ(seen, (Log{"g down", "w -120", "f down"}));
    EXPECT_EQ(at, TPoint(125, 125));
    used = true;
    seen.clear();
    Input.Wheel(-1);
    EXPECT_EQ(seen, Log{"g down"});
}

TEST_F(ControlMouse, FineWheelsAddUpToNotches) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    int ups = 0;
    window->OnMouseWheelUp = [&](TObject*, TShiftState, TPoint, bool&) { ++ups; };
    for (int i = 0; i < 6; ++i)
        window->Perform(CM_MOUSEWHEEL, MAKEWPARAM(0, 50), LPARAM{0});
    EXPECT_EQ(ups, 2);
}

TEST_F(ControlMouse, CursorsComeFromTheControlUnderThePointer) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* inner = Make<TProbeGraphic>({10, 10, 30, 30}, window);
    window->SetCursor(crHandPoint);
    inner->SetCursor(crIBeam);
    Input.MoveTo(window->WindowHandle(), 5, 5);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_HAND));
    Input.MoveTo(window->WindowHandle(), 15, 15);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_IBEAM));
    inner->SetCursor(crCross);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS)) << "shows without a move";
    Services.Cursor = crHourGlass;
    Input.MoveTo(window->WindowHandle(), 16, 15);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    Services.Cursor = crDefault;
    Input.MoveTo(Form->WindowHandle(), 200, 200);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

class TProbeMenu : public TContextMenu {
public:
    using TContextMenu::TContextMenu;
    void Popup(int x, int y) override { At = {x, y}; }
    TPoint At;
};

TEST_F(ControlMouse, ARightClickOpensThePopupMenuOfTheControlUnderIt) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* inner = Make<TProbeGraphic>({10, 10, 30, 30}, window);
    TProbeMenu menu(nullptr);
    TProbeMenu innerMenu(nullptr);
    window->SetPopupMenu(&menu);
    inner->SetPopupMenu(&innerMenu);
    Input.ClickAt(window->WindowHandle(), 5, 6, MouseButton::Right);
    EXPECT_EQ(menu.At, TPoint(115, 116));
    EXPECT_EQ(menu.GetPopupComponent(), window);
    Input.ClickAt(window->WindowHandle(), 15, 16, MouseButton::Right);
    EXPECT_EQ(innerMenu.At, TPoint(125, 126));
    window->Perform(WM_CONTEXTMENU, 0, LPARAM{-1});
    EXPECT_EQ(menu.At, TPoint(110, 110)) << "from the keyboard: at the control's corner";
    TPoint asked{9, 9};
    inner->OnContextPopup = [&](TObject*, TPoint p, bool& handled) {
        asked = p;
        handled = true;
    };
    innerMenu.At = {};
    Input.ClickAt(window->WindowHandle(), 15, 16, MouseButton::Right);
    EXPECT_EQ(asked, TPoint(5, 6));
    EXPECT_EQ(innerMenu.At, TPoint());
}

class TDraggable : public TProbeWindow {
public:
    using TProbeWindow::TProbeWindow;
    bool Drags = true;

protected:
    bool BeginAutoDrag() override { return Drags; }
};

TEST_F(ControlMouse, AnAutomaticDragReplacesThePress) {
    auto* window = Make<TDraggable>({10, 10, 60, 60});
    Input.MoveTo(window->WindowHandle(), 5, 5);
    Note(window, "w");
    window->SetDragMode(dmAutomatic);
    Input.Press();
    EXPECT_EQ(Taken(), Log{});
    Input.Release();
    (void)Taken();
    window->Drags = false;
    Input.Click();
    EXPECT_EQ(Taken(), (Log{"w down", "w click", "w up"}));
    window->Drags = true;
    window->SetDragMode(dmManual);
    Input.Click();
    EXPECT_EQ(Taken(), (Log{"w down", "w click", "w up"}));
}

TEST_F(ControlMouse, AClickAsksWhetherToActivate) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    Log seen;
    window->OnMouseActivate = [&](TObject*, TMouseButton button, TShiftState, int x, int y, UINT hitTest,
                                  TMouseActivate& answer) {
        seen.push_back(std::to_string(button == mbRight) + " " + std::to_string(x) + " " + std::to_string(y) +
                       " " + std::to_string(hitTest == HTCLIENT));
        answer = maNoActivateAndEat;
    };
    Note(window, "w");
    Input.MoveTo(window->WindowHandle(), 5, 6);
    (void)Taken();
    // Only an inactive window is asked.
    const TestWindow other({600, 100, 700, 200});
    Input.Click(MouseButton::Right);
    EXPECT_EQ(seen, Log{"1 5 6 1"});
    EXPECT_EQ(Taken(), Log{"w right up"}) << "the press was eaten";
}

TEST_F(ControlMouse, FindsControlsFromScreenPoints) {
    auto* window = Make<TProbeWindow>({10, 10, 60, 60});
    auto* inner = Make<TProbeGraphic>({10, 10, 30, 30}, window);
    EXPECT_EQ(FindVCLWindow({115, 115}), window);
    EXPECT_EQ(FindDragTarget({125, 125}, false), inner);
    EXPECT_EQ(FindDragTarget({115, 115}, false), window);
    EXPECT_EQ(FindDragTarget({5, 5}, false), nullptr);
}

}  // namespace
}  // namespace test
