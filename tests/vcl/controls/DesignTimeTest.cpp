#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class DesignTime : public ControlsTest {
protected:
    template <class T>
    T* Designed(const TRect& bounds) {
        auto* control = new T(nullptr);
        control->SetDesigning(true);
        control->SetBoundsRect(bounds);
        control->SetParent(Form);
        return control;
    }
};

TEST_F(DesignTime, TheDesignerSeesMessagesFirst) {
    auto* window = Designed<TProbeWindow>({0, 0, 50, 50});
    int clicks = 0;
    window->OnClick = [&](TObject*) { ++clicks; };
    Input.ClickAt(window->WindowHandle(), 5, 5);
    EXPECT_EQ(clicks, 0);
    const auto& seen = Form->DesignMessages;
    EXPECT_NE(std::find(seen.begin(), seen.end(), WM_LBUTTONDOWN), seen.end());
}

TEST_F(DesignTime, AtRunTimeThereIsNoDesigner) {
    auto* window = Make<TProbeWindow>({0, 0, 50, 50});
    Input.ClickAt(window->WindowHandle(), 5, 5);
    EXPECT_TRUE(Form->DesignMessages.empty());
}

TEST_F(DesignTime, InvisibleControlsStayInSight) {
    auto* window = Designed<TProbeWindow>({0, 0, 50, 50});
    auto* graphic = Designed<TProbeGraphic>({60, 0, 90, 50});
    window->SetVisible(false);
    graphic->SetVisible(false);
    EXPECT_TRUE(IsWindowVisible(window->WindowHandle()));
    graphic->Paints = 0;
    PumpAll();
    graphic->Invalidate();
    PumpAll();
    EXPECT_GT(graphic->Paints, 0);
    EXPECT_EQ(Form->ControlAtPos({65, 5}, false), graphic);
    auto* shy = Designed<TProbeWindow>({100, 0, 150, 50});
    shy->ControlStyle.Include(csNoDesignVisible);
    shy->SetVisible(false);
    EXPECT_FALSE(IsWindowVisible(shy->WindowHandle()));
}

TEST_F(DesignTime, DisabledControlsCanStillBeClicked) {
    auto* window = Designed<TProbeWindow>({0, 0, 50, 50});
    window->SetEnabled(false);
    EXPECT_TRUE(IsWindowEnabled(window->WindowHandle()));
    window->RecreateWnd();
    EXPECT_TRUE(IsWindowEnabled(window->WindowHandle()));
    EXPECT_FALSE(window->GetEnabled());
}

TEST_F(DesignTime, ThePointerHasTheArrow) {
    auto* window = Designed<TProbeWindow>({0, 0, 50, 50});
    window->SetCursor(crHandPoint);
    Input.MoveTo(window->WindowHandle(), 5, 5);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(DesignTime, EnterAndLeaveAreNotRaised) {
    auto* window = Designed<TProbeWindow>({0, 0, 50, 50});
    int entered = 0;
    window->OnMouseEnter = [&](TObject*) { ++entered; };
    Input.MoveTo(window->WindowHandle(), 5, 5);
    EXPECT_EQ(entered, 0);
}

TEST_F(DesignTime, WhileAFormIsReadNothingShowsOrMoves) {
    auto* window = new TProbeWindow(nullptr);
    window->BeginLoading();
    window->SetBounds(0, 0, 50, 50);
    window->SetParent(Form);
    auto* child = Make<TProbeGraphic>({0, 0, 5, 5}, window);
    child->SetAlign(alClient);
    window->SetWidth(80);
    EXPECT_FALSE(window->HandleAllocated());
    EXPECT_EQ(window->Resizes, 0);
    EXPECT_EQ(child->GetWidth(), 5);
    window->EndLoading();
    EXPECT_TRUE(IsWindowVisible(window->WindowHandle()));
    EXPECT_EQ(child->GetBoundsRect(), TRect(0, 0, 80, 50));
}

}  // namespace
}  // namespace test
