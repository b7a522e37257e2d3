#include <array>

#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

/// A handler may free the control that raised the event, or the parent that handed it the message.
class FreedInHandler : public ControlsTest, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        Outer = Make<TProbeWindow>({10, 10, 110, 110});
        Window = Make<TProbeWindow>({0, 0, 50, 50}, Outer);
        Graphic = Make<TProbeGraphic>({60, 60, 90, 90}, Outer);
        Window->SetTabStop(true);
        Input.MoveTo(Form->WindowHandle(), 200, 200);
    }
    void TearDown() override {
        ReuseDeviceContexts();
        ControlsTest::TearDown();
    }
    /// Device contexts that were in use when their window died have lost their regions until the system lends
    /// them to a new window.
    static void ReuseDeviceContexts() {
        const TestWindow other;
        std::array<HDC, 4> several;
        for (HDC& dc : several)
            dc = GetDC(other);
        for (const HDC dc : several)
            ReleaseDC(other, dc);
    }
    /// Frees the control, or with it its parent.
    void Kill(TControl* control) {
        ASSERT_TRUE(Outer);
        ++Kills;
        const bool parentToo = GetParam();
        if (parentToo)
            std::exchange(Outer, nullptr)->Free();
        else
            control->Free();
        if (parentToo || control == Window) Window = nullptr;
        if (parentToo || control == Graphic) Graphic = nullptr;
    }
    auto Killer(TControl* control) {
        return [this, control](TObject*) { Kill(control); };
    }
    void PointAt(TControl* control) {
        const POINT p = control->ClientToScreen({5, 5});
        Input.MoveTo(p);
    }

    TProbeWindow* Outer = nullptr;
    TProbeWindow* Window = nullptr;
    TProbeGraphic* Graphic = nullptr;
    int Kills = 0;
};

TEST_P(FreedInHandler, Click) {
    for (TControl* control : {static_cast<TControl*>(Window), static_cast<TControl*>(Graphic)}) {
        if (!Outer) break;
        control->OnClick = Killer(control);
        PointAt(control);
        Input.Click();
    }
    EXPECT_EQ(Kills, GetParam() ? 1 : 2);
}

TEST_P(FreedInHandler, MouseDown) {
    for (TControl* control : {static_cast<TControl*>(Window), static_cast<TControl*>(Graphic)}) {
        if (!Outer) break;
        control->OnMouseDown = [this, control](TObject*, TMouseButton, TShiftState, int, int) {
            Kill(control);
        };
        PointAt(control);
        Input.Click();
        EXPECT_EQ(GetCapture(), nullptr);
    }
    EXPECT_EQ(Kills, GetParam() ? 1 : 2);
}

TEST_P(FreedInHandler, MouseUp) {
    for (TControl* control : {static_cast<TControl*>(Window), static_cast<TControl*>(Graphic)}) {
        if (!Outer) break;
        control->OnMouseUp = [this, control](TObject*, TMouseButton, TShiftState, int, int) {
            Kill(control);
        };
        PointAt(control);
        Input.Click(MouseButton::Right);
    }
    EXPECT_EQ(Kills, GetParam() ? 1 : 2);
}

TEST_P(FreedInHandler, DoubleClick) {
    Window->OnDblClick = Killer(Window);
    Input.DoubleClickAt(Window->WindowHandle(), 5, 5);
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, MouseMove) {
    for (TControl* control : {static_cast<TControl*>(Window), static_cast<TControl*>(Graphic)}) {
        if (!Outer) break;
        control->OnMouseMove = [this, control](TObject*, TShiftState, int, int) { Kill(control); };
        PointAt(control);
    }
    EXPECT_EQ(Kills, GetParam() ? 1 : 2);
}

TEST_P(FreedInHandler, MouseEnter) {
    for (TControl* control : {static_cast<TControl*>(Window), static_cast<TControl*>(Graphic)}) {
        if (!Outer) break;
        control->OnMouseEnter = Killer(control);
        PointAt(control);
    }
    EXPECT_EQ(Kills, GetParam() ? 1 : 2);
}

TEST_P(FreedInHandler, MouseLeave) {
    Graphic->OnMouseLeave = Killer(Graphic);
    PointAt(Graphic);
    PointAt(Form);
    EXPECT_EQ(Kills, 1);
    if (!Outer) return;
    Window->OnMouseLeave = Killer(Window);
    PointAt(Window);
    Input.MoveAway();
    EXPECT_TRUE(PumpUntil([&] { return Kills == 2; }));
}

TEST_P(FreedInHandler, MouseWheel) {
    Graphic->OnMouseWheel = [this](TObject*, TShiftState, int, TPoint, bool&) { Kill(Graphic); };
    PointAt(Graphic);
    Input.Wheel(1);
    EXPECT_EQ(Kills, 1);
    if (!Outer) return;
    Window->OnMouseWheelUp = [this](TObject*, TShiftState, TPoint, bool&) { Kill(Window); };
    PointAt(Window);
    Input.Wheel(1);
    EXPECT_EQ(Kills, 2);
}

TEST_P(FreedInHandler, ContextPopup) {
    Graphic->OnContextPopup = [this](TObject*, TPoint, bool&) { Kill(Graphic); };
    PointAt(Graphic);
    Input.Click(MouseButton::Right);
    EXPECT_EQ(Kills, 1);
    if (!Outer) return;
    Window->OnContextPopup = [this](TObject*, TPoint, bool&) { Kill(Window); };
    PointAt(Window);
    Input.Click(MouseButton::Right);
    EXPECT_EQ(Kills, 2);
}

TEST_P(FreedInHandler, KeyDown) {
    Window->OnKeyDown = [this](TObject*, WORD&, TShiftState) { Kill(Window); };
    Window->SetFocus();
    Input.KeyPress('A');
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, KeyPress) {
    Window->OnKeyPress = [this](TObject*, wchar_t&) { Kill(Window); };
    Window->SetFocus();
    Input.KeyPress('A');
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, KeyUp) {
    Window->OnKeyUp = [this](TObject*, WORD&, TShiftState) { Kill(Window); };
    Window->SetFocus();
    Input.KeyPress('A');
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, ChildKey) {
    Outer->MessageHook = [this](TMessage& m) {
        if (m.Msg == CM_CHILDKEY) Kill(Window);
    };
    Window->SetFocus();
    Input.KeyPress(VK_TAB);
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, Enter) {
    Window->OnEnter = Killer(Window);
    Window->SetFocus();
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, Exit) {
    auto* other = Make<TProbeWindow>({200, 0, 250, 50});
    Window->OnExit = Killer(Window);
    Window->SetFocus();
    other->SetFocus();
    EXPECT_EQ(Kills, 1);
    EXPECT_EQ(Form->GetActiveControl(), other);
}

TEST_P(FreedInHandler, Resize) {
    Window->OnResize = Killer(Window);
    Window->SetWidth(60);
    EXPECT_EQ(Kills, 1);
    if (!Outer) return;
    Graphic->OnResize = Killer(Graphic);
    Graphic->SetWidth(60);
    EXPECT_EQ(Kills, 2);
}

TEST_P(FreedInHandler, CanResize) {
    Window->OnCanResize = [this](TObject*, int&, int&, bool&) { Kill(Window); };
    Window->SetWidth(60);
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, ResizeOfTheParent) {
    Window->SetAlign(alTop);
    Graphic->SetAlign(alClient);
    Window->OnResize = Killer(Window);
    Outer->SetWidth(150);
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, Paint) {
    Graphic->PaintHook = [this] { Kill(Graphic); };
    Graphic->Invalidate();
    PumpAll();
    EXPECT_EQ(Kills, 1);
    if (!Outer) return;
    Window->PaintHook = [this] { Kill(Window); };
    Window->SetDoubleBuffered(true);
    Window->Invalidate();
    PumpAll();
    EXPECT_EQ(Kills, 2);
}

TEST_P(FreedInHandler, Repaint) {
    Window->PaintHook = [this] { Kill(Window); };
    Window->Repaint();
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, ShowingChanged) {
    Window->MessageHook = [this](TMessage& m) {
        if (m.Msg == CM_SHOWINGCHANGED) Kill(Window);
    };
    Window->Hide();
    EXPECT_EQ(Kills, 1);
}

TEST_P(FreedInHandler, TextFontAndColourChanged) {
    for (const UINT msg : {CM_TEXTCHANGED, CM_FONTCHANGED, CM_COLORCHANGED, CM_ENABLEDCHANGED}) {
        auto* outer = Make<TProbeWindow>({10, 10, 110, 110});
        auto* inner = Make<TProbeWindow>({10, 10, 20, 20}, outer);
        bool killed = false;
        inner->MessageHook = [&, msg](TMessage& m) {
            if (m.Msg != msg || killed) return;
            killed = true;
            (GetParam() ? outer : inner)->Free();
        };
        switch (msg) {
            case CM_TEXTCHANGED:
                inner->SetText(L"x");
                break;
            case CM_FONTCHANGED:
                Form->Perform(CM_PARENTFONTCHANGED);
                inner->Perform(CM_FONTCHANGED);
                break;
            case CM_COLORCHANGED:
                outer->SetColor(clRed);
                break;
            default:
                inner->SetEnabled(false);
                break;
        }
        EXPECT_TRUE(killed);
        if (!GetParam()) outer->Free();
    }
}

TEST_P(FreedInHandler, RecreateWnd) {
    Window->MessageHook = [this](TMessage& m) {
        if (m.Msg == WM_DESTROY && Kills == 0) Kill(Window);
    };
    Window->RecreateWnd();
    EXPECT_EQ(Kills, 1);
}

INSTANTIATE_TEST_SUITE_P(Whom, FreedInHandler, testing::Bool(),
                         [](const auto& info) { return info.param ? "ItsParent" : "Itself"; });

}  // namespace
}  // namespace test
