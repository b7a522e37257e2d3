#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/support/PixelProbe.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class WindowLife : public ControlsTest {
protected:
    /// The child windows of a window from top to bottom.
    static std::vector<HWND> ChildrenOf(HWND parent) {
        std::vector<HWND> children;
        for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            children.push_back(child);
        return children;
    }
};

TEST_F(WindowLife, WindowsAreMadeWhenTheyAreToBeShown) {
    TProbeWindow outer(nullptr);
    auto* inner = Make<TProbeWindow>({0, 0, 10, 10}, &outer);
    auto* hidden = Make<TProbeWindow>({0, 0, 10, 10}, &outer);
    hidden->Hide();
    EXPECT_FALSE(outer.HandleAllocated());
    outer.SetParent(Form);
    EXPECT_TRUE(inner->HandleAllocated());
    EXPECT_TRUE(inner->GetShowing());
    EXPECT_FALSE(hidden->HandleAllocated());
    hidden->Show();
    EXPECT_TRUE(IsWindowVisible(hidden->WindowHandle()));
    outer.SetParent(nullptr);
    EXPECT_FALSE(inner->HandleAllocated());
}

TEST_F(WindowLife, AskingForAHandleMakesThoseOfTheParentsFirst) {
    auto* outer = new TProbeWindow(nullptr);
    outer->SetVisible(false);
    outer->SetParent(Form);
    auto* inner = Make<TProbeWindow>({0, 0, 10, 10}, outer);
    const HWND handle = inner->GetHandle();
    EXPECT_EQ(GetParent(handle), outer->WindowHandle());
    EXPECT_FALSE(IsWindowVisible(handle));
    EXPECT_EQ(FindControl(handle), inner);
    EXPECT_FALSE(inner->GetShowing());
}

TEST_F(WindowLife, TheWindowClassIsNamedAfterTheControlsClass) {
    auto* window = Make<TProbeWindow>({0, 0, 10, 10});
    wchar_t name[64] = {};
    GetClassNameW(window->WindowHandle(), name, 64);
    EXPECT_STREQ(name, L"TCustomControl") << "the nearest class with a description";
}

/// Same name, other style bits.
class TSavingWindow : public TProbeWindow {
public:
    using TProbeWindow::TProbeWindow;

protected:
    void CreateParams(TCreateParams& params) override {
        TProbeWindow::CreateParams(params);
        params.WindowClass.style |= CS_SAVEBITS;
    }
};

TEST_F(WindowLife, OtherStyleBitsMakeAnotherWindowClass) {
    const auto className = [](TWinControl* control) {
        wchar_t name[64] = {};
        GetClassNameW(control->WindowHandle(), name, 64);
        return String(name);
    };
    auto* plain = Make<TProbeWindow>({0, 0, 10, 10});
    auto* first = Make<TSavingWindow>({0, 0, 10, 10});
    auto* second = Make<TSavingWindow>({0, 0, 10, 10});
    EXPECT_NE(className(first), className(plain));
    EXPECT_EQ(className(first), className(second));
    EXPECT_NE(GetClassLongPtrW(first->WindowHandle(), GCL_STYLE) & CS_SAVEBITS, 0u);
    EXPECT_EQ(GetClassLongPtrW(plain->WindowHandle(), GCL_STYLE) & CS_SAVEBITS, 0u);
}

TEST_F(WindowLife, ASubstituteProcedureSeesMessagesFirst) {
    auto* window = Make<TProbeWindow>({0, 0, 10, 10});
    int own = 0;
    window->MessageHook = [&](TMessage& m) { own += m.Msg == WM_USER + 7; };
    window->WindowProc = [&](TMessage& m) {
        if (m.Msg == WM_USER + 7 && m.WParam == 1) {
            m.Result = 77;
            return;
        }
        window->DefaultWindowProc(m);
    };
    EXPECT_EQ(SendMessageW(window->WindowHandle(), WM_USER + 7, 1, 0), 77);
    EXPECT_EQ(own, 0);
    EXPECT_EQ(window->Perform(WM_USER + 7, 2), 0);
    EXPECT_EQ(own, 1);
    window->WindowProc.Clear();
    EXPECT_EQ(window->Perform(WM_USER + 7, 1), 0);
    EXPECT_EQ(own, 2);
}

TEST_F(WindowLife, ZOrderIsThatOfTheListHoweverTheWindowsCame) {
    auto* a = Make<TProbeWindow>({0, 0, 10, 10});
    auto* hidden = new TProbeWindow(nullptr);
    hidden->SetVisible(false);
    hidden->SetParent(Form);
    auto* c = Make<TProbeWindow>({0, 0, 10, 10});
    hidden->Show();
    const auto windows = [&] { return ChildrenOf(Form->WindowHandle()); };
    EXPECT_EQ(windows(), (std::vector{c->WindowHandle(), hidden->WindowHandle(), a->WindowHandle()}));
    a->BringToFront();
    EXPECT_EQ(windows(), (std::vector{a->WindowHandle(), c->WindowHandle(), hidden->WindowHandle()}));
    a->SendToBack();
    c->RecreateWnd();
    EXPECT_EQ(windows(), (std::vector{c->WindowHandle(), hidden->WindowHandle(), a->WindowHandle()}));
    Form->RecreateWnd();
    EXPECT_EQ(windows(), (std::vector{c->WindowHandle(), hidden->WindowHandle(), a->WindowHandle()}));
}

TEST_F(WindowLife, AHundredRecreationsKeepEverything) {
    auto* outer = Make<TProbeWindow>({10, 20, 110, 120});
    auto* inner = Make<TProbeWindow>({5, 5, 50, 50}, outer);
    auto* graphic = Make<TProbeGraphic>({60, 60, 70, 70}, outer);
    graphic->SetColor(clRed);
    outer->SetText(L"text");
    inner->SetFocus();
    PumpAll();
    const ResourceSnapshot before = ResourceSnapshot::Take();
    for (int i = 0; i < 100; ++i) {
        const HWND old = outer->WindowHandle();
        outer->RecreateWnd();
        ASSERT_NE(outer->WindowHandle(), nullptr);
        ASSERT_FALSE(IsWindow(old) && FindControl(old) != outer);
        inner->SetFocus();
        inner->RecreateWnd();
        ASSERT_TRUE(inner->Focused());
    }
    PumpAll();
    EXPECT_EQ(before.ChangeSince(), "");
    EXPECT_EQ(outer->GetBoundsRect(), TRect(10, 20, 110, 120));
    EXPECT_EQ(outer->GetText(), L"text");
    EXPECT_TRUE(IsWindowVisible(inner->WindowHandle()));
    EXPECT_EQ(ReadClient(outer->WindowHandle()).At(65, 65), static_cast<COLORREF>(clRed));
}

TEST_F(WindowLife, TextOfASystemControlSurvivesRecreation) {
    class TEditLike : public TWinControl {
    public:
        using TWinControl::TWinControl;

    protected:
        void CreateParams(TCreateParams& params) override {
            TWinControl::CreateParams(params);
            CreateSubClass(params, L"EDIT");
        }
    };
    auto* edit = Make<TEditLike>({0, 0, 100, 20});
    SendMessageW(edit->WindowHandle(), WM_CHAR, 'x', 0);
    ASSERT_EQ(edit->GetText(), L"x");
    edit->RecreateWnd();
    EXPECT_EQ(edit->GetText(), L"x");
    Form->RecreateWnd();
    EXPECT_EQ(edit->GetText(), L"x");
}

TEST_F(WindowLife, AWindowDestroyedByOthersIsForgotten) {
    auto* outer = Make<TProbeWindow>({10, 20, 110, 120});
    auto* inner = Make<TProbeWindow>({5, 5, 50, 50}, outer);
    const HWND window = inner->WindowHandle();
    DestroyWindow(outer->WindowHandle());
    EXPECT_FALSE(outer->HandleAllocated());
    EXPECT_FALSE(inner->HandleAllocated());
    EXPECT_EQ(FindControl(window), nullptr);
    outer->HandleNeeded();
    EXPECT_TRUE(outer->HandleAllocated());
}

TEST_F(WindowLife, ShowingIsAnnouncedWhenTheWindowAppearsAndGoes) {
    auto* outer = new TProbeWindow(nullptr);
    std::vector<bool> seen;
    outer->MessageHook = [&](TMessage& m) {
        if (m.Msg == CM_SHOWINGCHANGED) seen.push_back(outer->GetShowing());
    };
    outer->SetParent(Form);
    outer->Hide();
    outer->Show();
    EXPECT_EQ(seen, (std::vector<bool>{true, false, true}));
}

TEST_F(WindowLife, AParentInSightAppearsAfterItsChildren) {
    auto* outer = new TProbeWindow(nullptr);
    auto* inner = Make<TProbeWindow>({0, 0, 10, 10}, outer);
    bool childWasThere = false;
    outer->MessageHook = [&](TMessage& m) {
        if (m.Msg == WM_WINDOWPOSCHANGED && (m.As<WINDOWPOS>()->flags & SWP_SHOWWINDOW))
            childWasThere = inner->HandleAllocated();
    };
    outer->SetParent(Form);
    EXPECT_TRUE(childWasThere);
    EXPECT_TRUE(IsWindowVisible(inner->WindowHandle()));
}

TEST_F(WindowLife, AParentFreesItsChildrenWhoeverOwnsThem) {
    TComponent owner(nullptr);
    auto* outer = new TProbeWindow(&owner);
    auto* inner = new TProbeWindow(nullptr);
    auto* graphic = new TProbeGraphic(&owner);
    outer->SetParent(Form);
    inner->SetParent(outer);
    graphic->SetParent(inner);
    ASSERT_EQ(owner.GetComponentCount(), 2);
    bool announced = false;
    outer->MessageHook = [&](TMessage& m) {
        if (m.Msg == WM_DESTROY)
            announced = inner->IsInState(csDestroying) && graphic->IsInState(csDestroying);
    };
    outer->Free();
    EXPECT_EQ(owner.GetComponentCount(), 0);
    EXPECT_EQ(Form->GetControlCount(), 0);
}

TEST_F(WindowLife, InsertingAndRemovingIsAnnouncedToTheParents) {
    std::vector<std::pair<UINT, LPARAM>> seen;
    Form->MessageHook = [&](TMessage& m) {
        if (m.Msg == CM_CONTROLLISTCHANGE || m.Msg == CM_CONTROLCHANGE) seen.emplace_back(m.Msg, m.LParam);
    };
    auto* outer = Make<TProbeWindow>({0, 0, 50, 50});
    EXPECT_EQ(seen, (std::vector<std::pair<UINT, LPARAM>>{{CM_CONTROLLISTCHANGE, 1}, {CM_CONTROLCHANGE, 1}}));
    seen.clear();
    auto* inner = Make<TProbeGraphic>({0, 0, 5, 5}, outer);
    inner->Free();
    EXPECT_EQ(seen,
              (std::vector<std::pair<UINT, LPARAM>>{{CM_CONTROLLISTCHANGE, 1}, {CM_CONTROLLISTCHANGE, 0}}))
        << "changes deeper down go up the tree";
}

TEST_F(WindowLife, EnabledIsThatOfTheWindow) {
    auto* window = Make<TProbeWindow>({0, 0, 10, 10});
    window->SetEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(window->WindowHandle()));
    window->RecreateWnd();
    EXPECT_FALSE(IsWindowEnabled(window->WindowHandle()));
    window->SetEnabled(true);
    EXPECT_TRUE(IsWindowEnabled(window->WindowHandle()));
}

TEST_F(WindowLife, AnExceptionStopsInTheWindowProcedure) {
    auto* window = Make<TProbeWindow>({0, 0, 50, 50});
    window->OnClick = [](TObject*) { throw EInvalidOperation(L"from a click"); };
    Input.ClickAt(window->WindowHandle(), 5, 5);
    EXPECT_EQ(std::exchange(Services.Errors, {}), std::vector<String>{L"from a click"});
    window->PaintHook = [] { throw EInvalidOperation(L"from painting"); };
    window->Invalidate();
    PumpAll();
    EXPECT_EQ(std::exchange(Services.Errors, {}), std::vector<String>{L"from painting"});
    EXPECT_EQ(GetUpdateRect(window->WindowHandle(), nullptr, FALSE), 0)
        << "it is not painted again and again";
    EXPECT_THROW(window->Repaint(), EInvalidOperation) << "who calls directly gets it directly";
}

TEST_F(WindowLife, APopupIsShownWithoutAParentAndLeavesTheFocus) {
    auto* window = Make<TProbeWindow>({0, 0, 50, 50});
    window->SetFocus();
    THintWindow hint(nullptr);
    const TRect size = hint.CalcHintRect(200, L"some words of a hint that need two lines or more");
    EXPECT_LE(size.Right, 206);
    const TRect oneLine = hint.CalcHintRect(1000, L"x");
    EXPECT_GT(size.Bottom, oneLine.Bottom);
    TRect place = oneLine;
    place.Offset(5000, -50);
    hint.ActivateHint(place, L"x");
    EXPECT_TRUE(IsWindowVisible(hint.WindowHandle()));
    EXPECT_EQ(hint.GetLeft() + hint.GetWidth(), GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(hint.GetTop(), 0);
    EXPECT_TRUE(window->Focused());
    EXPECT_EQ(SendMessageW(hint.WindowHandle(), WM_NCHITTEST, 0, 0), HTTRANSPARENT);
    hint.ReleaseHandle();
    EXPECT_FALSE(hint.HandleAllocated());
    EXPECT_EQ(GetShortHint(L"short|long"), L"short");
    EXPECT_EQ(GetLongHint(L"short|long"), L"long");
    EXPECT_EQ(GetLongHint(L"both"), L"both");
}

}  // namespace
}  // namespace test
