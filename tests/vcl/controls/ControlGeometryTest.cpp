#include "platform/vcl/core/Exceptions.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class ControlGeometry : public ControlsTest {};

TEST_F(ControlGeometry, AWindowGetsTheBoundsThatWereSetBeforeItWasMade) {
    auto* window = Make<TProbeWindow>({10, 20, 60, 50});
    ASSERT_TRUE(window->HandleAllocated());
    RECT r{};
    GetWindowRect(window->WindowHandle(), &r);
    MapWindowPoints(nullptr, Form->WindowHandle(), reinterpret_cast<POINT*>(&r), 2);
    EXPECT_EQ(TRect(r), TRect(10, 20, 60, 50));
}

TEST_F(ControlGeometry, SetBoundsMovesTheWindowAndRaisesOneResize) {
    auto* window = Make<TProbeWindow>({10, 20, 60, 50});
    window->Resizes = 0;
    window->SetBounds(15, 25, 80, 40);
    EXPECT_EQ(window->Resizes, 1);
    EXPECT_EQ(window->GetBoundsRect(), TRect(15, 25, 95, 65));
    EXPECT_EQ(window->GetClientRect(), TRect(0, 0, 80, 40));
    window->SetBounds(16, 26, 80, 40);
    EXPECT_EQ(window->Resizes, 1);
}

TEST_F(ControlGeometry, AWindowMovedByTheSystemTellsItsControl) {
    auto* window = Make<TProbeWindow>({10, 20, 60, 50});
    SetWindowPos(window->WindowHandle(), nullptr, 5, 6, 70, 80, SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(window->GetBoundsRect(), TRect(5, 6, 75, 86));
}

TEST_F(ControlGeometry, NegativeSizesCountAsNothing) {
    auto* graphic = Make<TProbeGraphic>({10, 20, 60, 50});
    graphic->SetBounds(1, 2, -3, -4);
    EXPECT_EQ(graphic->GetBoundsRect(), TRect(1, 2, 1, 2));
}

TEST_F(ControlGeometry, PointsTravelBetweenClientParentAndScreen) {
    auto* window = Make<TProbeWindow>({10, 20, 110, 120});
    auto* graphic = Make<TProbeGraphic>({5, 6, 50, 50}, window);
    const TPoint screen{100 + 10 + 5 + 1, 100 + 20 + 6 + 2};
    EXPECT_EQ(graphic->ClientToScreen({1, 2}), screen);
    EXPECT_EQ(graphic->ScreenToClient(screen), TPoint(1, 2));
    EXPECT_EQ(graphic->ClientToParent({1, 2}), TPoint(6, 8));
    EXPECT_EQ(graphic->ClientToParent({1, 2}, Form), TPoint(16, 28));
    EXPECT_EQ(graphic->ParentToClient({16, 28}, Form), TPoint(1, 2));
}

TEST_F(ControlGeometry, WithoutAParentThereIsNoPlaceOnTheScreen) {
    TProbeGraphic graphic(nullptr);
    graphic.SetName(L"Lonely");
    try {
        (void)graphic.ClientToScreen({0, 0});
        FAIL();
    } catch (const EInvalidOperation& e) {
        EXPECT_EQ(e.Message(), L"Control 'Lonely' has no parent window");
    }
    TProbeWindow window(nullptr);
    EXPECT_THROW((void)window.GetHandle(), EInvalidOperation);
    EXPECT_THROW(window.SetFocus(), EInvalidOperation);
}

TEST_F(ControlGeometry, ReadingGeometryMakesNoWindow) {
    TProbeWindow window(nullptr);
    window.SetBounds(0, 0, 70, 30);
    EXPECT_EQ(window.GetClientRect(), TRect(0, 0, 70, 30));
    auto* hidden = new TProbeWindow(nullptr);
    hidden->SetVisible(false);
    hidden->SetBounds(0, 0, 70, 30);
    hidden->SetParent(Form);
    EXPECT_EQ(hidden->GetClientWidth(), 70);
    EXPECT_FALSE(hidden->HandleAllocated());
}

TEST_F(ControlGeometry, ClientSizeCountsWithoutTheBevel) {
    auto* window = Make<TProbeWindow>({0, 0, 100, 50});
    window->SetBevelKind(bkTile);
    window->SetBevelWidth(2);
    EXPECT_EQ(window->GetClientRect(), TRect(0, 0, 92, 42));
    window->SetClientWidth(60);
    EXPECT_EQ(window->GetWidth(), 68);
    window->SetBevelEdges({beLeft});
    EXPECT_EQ(window->GetClientRect(), TRect(0, 0, 64, 50));
    TProbeWindow alone(nullptr);
    alone.SetBounds(0, 0, 30, 30);
    alone.SetBevelKind(bkFlat);
    EXPECT_EQ(alone.GetClientRect(), TRect(0, 0, 26, 26));
}

TEST_F(ControlGeometry, ConstraintsLimitEverySize) {
    auto* window = Make<TProbeWindow>({0, 0, 100, 50});
    window->GetConstraints().SetMinWidth(120);
    EXPECT_EQ(window->GetWidth(), 120);
    window->GetConstraints().SetMaxHeight(30);
    EXPECT_EQ(window->GetHeight(), 30);
    window->SetBounds(0, 0, 10, 300);
    EXPECT_EQ(window->GetBoundsRect(), TRect(0, 0, 120, 30));
    window->GetConstraints().SetMaxWidth(80);
    EXPECT_EQ(window->GetConstraints().GetMinWidth(), 80);
    EXPECT_EQ(window->GetWidth(), 80);
}

TEST_F(ControlGeometry, CanResizeChangesOrRefusesASize) {
    auto* graphic = Make<TProbeGraphic>({0, 0, 100, 50});
    graphic->OnCanResize = [](TObject*, int& width, int&, bool& accept) {
        accept = width < 200;
        width = width / 10 * 10;
    };
    graphic->SetBounds(3, 4, 87, 50);
    EXPECT_EQ(graphic->GetBoundsRect(), TRect(3, 4, 83, 54));
    graphic->SetBounds(0, 0, 300, 50);
    EXPECT_EQ(graphic->GetBoundsRect(), TRect(3, 4, 83, 54));
}

TEST_F(ControlGeometry, AutoSizeFollowsTheChildren) {
    auto* window = Make<TProbeWindow>({0, 0, 100, 50});
    auto* child = Make<TProbeGraphic>({10, 10, 40, 30}, window);
    window->SetAutoSize(true);
    EXPECT_EQ(window->GetBoundsRect(), TRect(0, 0, 40, 30));
    child->SetBounds(20, 20, 50, 60);
    EXPECT_EQ(window->GetBoundsRect(), TRect(0, 0, 70, 80));
}

TEST_F(ControlGeometry, NoControlStandsInItself) {
    auto* outer = Make<TProbeWindow>({0, 0, 100, 50});
    auto* inner = Make<TProbeWindow>({0, 0, 50, 50}, outer);
    EXPECT_THROW(outer->SetParent(inner), EInvalidOperation);
    EXPECT_THROW(outer->SetParent(outer), EInvalidOperation);
    EXPECT_EQ(outer->GetParent(), Form);
}

}  // namespace
}  // namespace test
