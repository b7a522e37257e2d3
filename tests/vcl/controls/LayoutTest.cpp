#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class Layout : public ControlsTest {
protected:
    TProbeGraphic* Child(TAlign align, const TRect& bounds) {
        auto* child = Make<TProbeGraphic>(bounds);
        child->SetAlign(align);
        return child;
    }
};

struct AlignCase {
    const char* Name;
    TAlign Align;
    TRect First;   ///< Of a child of 50 x 20 that was there before,
    TRect Second;  ///< and of one of 30 x 10 behind it.
};

class AlignTable : public ControlsTest, public testing::WithParamInterface<AlignCase> {};

TEST_P(AlignTable, PlacesTwoChildrenOneAfterTheOther) {
    const AlignCase& expected = GetParam();
    // The form has 400 x 300 pixels.
    auto* first = Make<TProbeGraphic>(expected.Align == alRight || expected.Align == alBottom
                                          ? TRect::OfSize(350, 280, 50, 20)
                                          : TRect::OfSize(0, 0, 50, 20));
    first->SetAlign(expected.Align);
    auto* second = Make<TProbeGraphic>(TRect::OfSize(100, 100, 30, 10));
    second->SetAlign(expected.Align);
    EXPECT_EQ(first->GetBoundsRect(), expected.First);
    EXPECT_EQ(second->GetBoundsRect(), expected.Second);
}

INSTANTIATE_TEST_SUITE_P(Layout, AlignTable,
                         testing::Values(AlignCase{"Top", alTop, {0, 0, 400, 20}, {0, 20, 400, 30}},
                                         AlignCase{
                                             "Bottom", alBottom, {0, 280, 400, 300}, {0, 270, 400, 280}},
                                         AlignCase{"Left", alLeft, {0, 0, 50, 300}, {50, 0, 80, 300}},
                                         AlignCase{"Right", alRight, {350, 0, 400, 300}, {320, 0, 350, 300}},
                                         AlignCase{"Client", alClient, {0, 0, 400, 300}, {0, 0, 400, 300}}),
                         [](const auto& info) { return info.param.Name; });

TEST_F(Layout, EdgesComeInTheOrderTopBottomLeftRightClient) {
    auto* client = Child(alClient, {0, 0, 10, 10});
    auto* right = Child(alRight, {0, 0, 40, 10});
    auto* left = Child(alLeft, {0, 0, 30, 10});
    auto* bottom = Child(alBottom, {0, 0, 10, 20});
    auto* top = Child(alTop, {0, 0, 10, 10});
    EXPECT_EQ(top->GetBoundsRect(), TRect(0, 0, 400, 10));
    EXPECT_EQ(bottom->GetBoundsRect(), TRect(0, 280, 400, 300));
    EXPECT_EQ(left->GetBoundsRect(), TRect(0, 10, 30, 280));
    EXPECT_EQ(right->GetBoundsRect(), TRect(360, 10, 400, 280));
    EXPECT_EQ(client->GetBoundsRect(), TRect(30, 10, 360, 280));
}

TEST_F(Layout, TheChildThatMovedDecidesAtEqualPlaces) {
    auto* first = Child(alTop, {0, 0, 10, 20});
    auto* second = Child(alTop, {0, 100, 10, 130});
    ASSERT_EQ(second->GetTop(), 20);
    second->SetTop(0);
    EXPECT_EQ(second->GetTop(), 0);
    EXPECT_EQ(first->GetTop(), 30);
}

TEST_F(Layout, HiddenChildrenTakeNoPlace) {
    auto* top = Child(alTop, {0, 0, 10, 20});
    auto* client = Child(alClient, {0, 0, 10, 10});
    top->Hide();
    EXPECT_EQ(client->GetBoundsRect(), TRect(0, 0, 400, 300));
    top->Show();
    EXPECT_EQ(client->GetBoundsRect(), TRect(0, 20, 400, 300));
}

TEST_F(Layout, WaitsForTheLastEnable) {
    auto* client = Child(alClient, {0, 0, 10, 10});
    Form->DisableAlign();
    Form->DisableAlign();
    auto* top = Child(alTop, {0, 0, 10, 20});
    Form->EnableAlign();
    EXPECT_EQ(top->GetWidth(), 10);
    Form->EnableAlign();
    EXPECT_EQ(top->GetWidth(), 400);
    EXPECT_EQ(client->GetTop(), 20);
}

TEST_F(Layout, ConstraintsCountAtTheirEdge) {
    auto* bottom = Child(alBottom, {0, 0, 10, 20});
    auto* client = Child(alClient, {0, 0, 10, 10});
    bottom->GetConstraints().SetMinHeight(50);
    EXPECT_EQ(bottom->GetBoundsRect(), TRect(0, 250, 400, 300));
    EXPECT_EQ(client->GetBoundsRect(), TRect(0, 0, 400, 250));
}

TEST_F(Layout, BorderWidthKeepsAMargin) {
    auto* client = Child(alClient, {0, 0, 10, 10});
    Form->SetBorderWidth(5);
    EXPECT_EQ(client->GetBoundsRect(), TRect(5, 5, 395, 295));
}

struct AnchorCase {
    const char* Name;
    TAnchors Anchors;
    TRect After;  ///< Of (10, 20, 110, 70) when the parent grows from 400 x 300 to 500 x 360.
};

class AnchorTable : public ControlsTest, public testing::WithParamInterface<AnchorCase> {};

TEST_P(AnchorTable, KeepsTheDistances) {
    auto* child = Make<TProbeWindow>({10, 20, 110, 70});
    child->SetAnchors(GetParam().Anchors);
    Form->SetBounds(0, 0, 500, 360);
    EXPECT_EQ(child->GetBoundsRect(), GetParam().After);
    Form->SetBounds(0, 0, 400, 300);
    EXPECT_EQ(child->GetBoundsRect(), TRect(10, 20, 110, 70)) << "and back";
}

INSTANTIATE_TEST_SUITE_P(
    Layout, AnchorTable,
    testing::Values(AnchorCase{"LeftTop", {akLeft, akTop}, {10, 20, 110, 70}},
                    AnchorCase{"RightBottom", {akRight, akBottom}, {110, 80, 210, 130}},
                    AnchorCase{"LeftRight", {akLeft, akTop, akRight}, {10, 20, 210, 70}},
                    AnchorCase{"TopBottom", {akLeft, akTop, akBottom}, {10, 20, 110, 130}},
                    AnchorCase{"All", {akLeft, akTop, akRight, akBottom}, {10, 20, 210, 130}},
                    // The middle (60, 45) keeps its share: 60 * 5 / 4 and 45 * 6 / 5.
                    AnchorCase{"None", {}, {25, 29, 125, 79}}),
    [](const auto& info) { return info.param.Name; });

TEST_F(Layout, AnchorsSurviveAParentThatBecomesTooSmall) {
    auto* child = Make<TProbeWindow>({10, 20, 390, 70});
    child->SetAnchors({akLeft, akTop, akRight});
    for (int width = 400; width >= 0; width -= 40)
        Form->SetWidth(width);
    EXPECT_EQ(child->GetWidth(), 0);
    Form->SetWidth(400);
    EXPECT_EQ(child->GetBoundsRect(), TRect(10, 20, 390, 70));
}

TEST_F(Layout, AnchorsHoldBeforeTheWindowIsMade) {
    TProbeWindow parent(nullptr);
    parent.SetBounds(0, 0, 100, 100);
    auto* child = Make<TProbeWindow>({70, 70, 100, 100}, &parent);
    child->SetAnchors({akRight, akBottom});
    parent.SetBounds(0, 0, 200, 150);
    EXPECT_EQ(child->GetBoundsRect(), TRect(170, 120, 200, 150));
    parent.SetParent(Form);
    ASSERT_TRUE(child->HandleAllocated());
    EXPECT_EQ(child->GetBoundsRect(), TRect(170, 120, 200, 150));
}

/// Its frame is known only to the system.
class TFramedWindow : public TProbeWindow {
public:
    using TProbeWindow::TProbeWindow;

protected:
    void CreateParams(TCreateParams& params) override {
        TProbeWindow::CreateParams(params);
        params.Style |= WS_DLGFRAME;
    }
};

TEST_F(Layout, AFrameThatAppearsWithTheWindowMovesNoAnchoredChild) {
    auto* parent = new TFramedWindow(nullptr);
    parent->SetBounds(0, 0, 200, 100);
    auto* anchored = Make<TProbeGraphic>({150, 50, 190, 90}, parent);
    anchored->SetAnchors({akRight, akBottom});
    auto* filling = Make<TProbeGraphic>({0, 0, 1, 1}, parent);
    filling->SetAlign(alClient);
    parent->SetParent(Form);
    ASSERT_LT(parent->GetClientWidth(), 200);
    EXPECT_EQ(anchored->GetBoundsRect(), TRect(150, 50, 190, 90));
    EXPECT_EQ(filling->GetBoundsRect(), parent->GetClientRect());
    parent->SetWidth(210);
    EXPECT_EQ(anchored->GetLeft(), 160);
}

TEST_F(Layout, AnchorsFollowTheAlignmentUntilTheyAreSet) {
    auto* child = Child(alTop, {0, 0, 10, 10});
    EXPECT_EQ(child->GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    EXPECT_EQ(child->GetAlignAnchors(), child->GetAnchors());
    child->SetAlign(alNone);
    EXPECT_EQ(child->GetAnchors(), (TAnchors{akLeft, akTop}));
    child->SetAnchors({akRight});
    child->SetAlign(alLeft);
    EXPECT_EQ(child->GetAnchors(), TAnchors{akRight});
    EXPECT_EQ(child->GetAlignAnchors(), (TAnchors{akLeft, akTop, akBottom}));
}

TEST_F(Layout, AControlThatTurnsTakesItsThicknessAlong) {
    auto* bar = Child(alTop, {0, 0, 10, 25});
    ASSERT_EQ(bar->GetBoundsRect(), TRect(0, 0, 400, 25));
    bar->SetAlign(alRight);
    EXPECT_EQ(bar->GetBoundsRect(), TRect(375, 0, 400, 300));
    bar->SetAlign(alLeft);
    EXPECT_EQ(bar->GetBoundsRect(), TRect(0, 0, 25, 300));
    bar->SetAlign(alBottom);
    EXPECT_EQ(bar->GetBoundsRect(), TRect(0, 275, 400, 300));
    bar->SetAlign(alClient);
    bar->SetAlign(alLeft);
    EXPECT_EQ(bar->GetBoundsRect(), TRect(0, 0, 400, 300)) << "what filled the form has no thickness";
}

TEST_F(Layout, AControlFreedWhileItTurnsDoesNoHarm) {
    auto* bar = Child(alTop, {0, 0, 10, 25});
    bar->OnResize = [&](TObject*) {
        if (bar) std::exchange(bar, nullptr)->Free();
    };
    bar->SetAlign(alLeft);
    EXPECT_EQ(Form->GetControlCount(), 0);
}

TEST_F(Layout, ScrollByMovesBothKindsOfChildren) {
    auto* graphic = Make<TProbeGraphic>({10, 20, 30, 40});
    auto* window = Make<TProbeWindow>({50, 60, 70, 80});
    Form->ScrollBy(-5, 7);
    EXPECT_EQ(graphic->GetBoundsRect(), TRect(5, 27, 25, 47));
    EXPECT_EQ(window->GetBoundsRect(), TRect(45, 67, 65, 87));
}

TEST_F(Layout, AChildFreedByAResizeEventStopsNothing) {
    auto* first = Child(alTop, {0, 0, 10, 20});
    auto* second = Child(alTop, {0, 50, 10, 70});
    auto* third = Child(alTop, {0, 90, 10, 110});
    first->OnResize = [&](TObject*) {
        if (second) std::exchange(second, nullptr)->Free();
    };
    Form->SetWidth(500);
    EXPECT_EQ(third->GetBoundsRect(), TRect(0, 20, 500, 40));
}

}  // namespace
}  // namespace test
