#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Font.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class ParentProperties : public ControlsTest {};

TEST_F(ParentProperties, ColorComesFromTheParentUntilItIsSet) {
    Form->SetColor(clRed);
    auto* panel = Make<TProbeWindow>({0, 0, 100, 100});
    auto* label = Make<TProbeGraphic>({0, 0, 10, 10}, panel);
    EXPECT_EQ(label->GetColor(), clRed);
    Form->SetColor(clGreen);
    EXPECT_EQ(panel->GetBrush().GetColor(), clGreen);
    EXPECT_EQ(label->GetColor(), clGreen);
    EXPECT_TRUE(label->GetParentColor());
    panel->SetColor(clBlue);
    EXPECT_FALSE(panel->GetParentColor());
    EXPECT_EQ(label->GetColor(), clBlue);
    Form->SetColor(clWhite);
    EXPECT_EQ(panel->GetColor(), clBlue);
    panel->SetParentColor(true);
    EXPECT_EQ(label->GetColor(), clWhite);
    EXPECT_FALSE(label->IsColorStored());
}

TEST_F(ParentProperties, FontComesFromTheParentUntilItIsChanged) {
    Form->GetFont().SetHeight(-20);
    auto* panel = Make<TProbeWindow>({0, 0, 100, 100});
    auto* label = Make<TProbeGraphic>({0, 0, 10, 10}, panel);
    EXPECT_EQ(label->GetFont().GetHeight(), -20);
    EXPECT_TRUE(label->GetParentFont());
    panel->GetFont().SetColor(clRed);
    EXPECT_FALSE(panel->GetParentFont());
    EXPECT_EQ(label->GetFont().GetColor(), clRed);
    EXPECT_TRUE(label->GetParentFont());
    Form->GetFont().SetHeight(-30);
    EXPECT_EQ(label->GetFont().GetHeight(), -20);
    panel->SetParentFont(true);
    EXPECT_EQ(label->GetFont().GetHeight(), -30);
    EXPECT_EQ(label->GetFont().GetColor(), Form->GetFont().GetColor());
}

TEST_F(ParentProperties, ShowHintAndDoubleBufferedFollowToo) {
    auto* panel = Make<TProbeWindow>({0, 0, 100, 100});
    auto* inner = Make<TProbeWindow>({0, 0, 10, 10}, panel);
    Form->SetShowHint(true);
    Form->SetDoubleBuffered(true);
    EXPECT_TRUE(inner->GetShowHint());
    EXPECT_TRUE(inner->GetDoubleBuffered());
    EXPECT_FALSE(inner->IsShowHintStored());
    panel->SetDoubleBuffered(false);
    EXPECT_FALSE(inner->GetDoubleBuffered());
    EXPECT_FALSE(panel->GetParentDoubleBuffered());
    panel->SetParentDoubleBuffered(true);
    EXPECT_TRUE(inner->GetDoubleBuffered());
}

TEST_F(ParentProperties, ANewParentBringsItsOwn) {
    auto* red = Make<TProbeWindow>({0, 0, 100, 100});
    red->SetColor(clRed);
    auto* blue = Make<TProbeWindow>({0, 0, 100, 100});
    blue->SetColor(clBlue);
    auto* child = Make<TProbeWindow>({0, 0, 10, 10}, red);
    child->SetParent(blue);
    EXPECT_EQ(child->GetColor(), clBlue);
    EXPECT_EQ(GetParent(child->WindowHandle()), blue->WindowHandle());
}

TEST_F(ParentProperties, TheCaptionFollowsTheNameUntilItIsSet) {
    TProbeGraphic control(nullptr);
    control.SetName(L"Label1");
    EXPECT_EQ(control.GetCaption(), L"Label1");
    control.SetName(L"Label2");
    EXPECT_EQ(control.GetCaption(), L"Label2");
    control.SetCaption(L"Text");
    control.SetName(L"Label3");
    EXPECT_EQ(control.GetCaption(), L"Text");
}

TEST_F(ParentProperties, TheTextOfAWindowIsThatOfItsControl) {
    auto* window = Make<TProbeWindow>({0, 0, 100, 100});
    int changes = 0;
    window->MessageHook = [&](TMessage& m) { changes += m.Msg == CM_TEXTCHANGED; };
    window->SetText(L"Grüße");
    wchar_t text[20] = {};
    GetWindowTextW(window->WindowHandle(), text, 20);
    EXPECT_STREQ(text, L"Grüße");
    SetWindowTextW(window->WindowHandle(), L"other");
    EXPECT_EQ(window->GetText(), L"other");
    window->SetText(L"other");
    EXPECT_EQ(changes, 1);
}

class TSampleAction : public TBasicAction {
public:
    using TBasicAction::TBasicAction;
    const TActionValues* Values() const override { return &Shown; }
    TActionValues Shown{.Caption = L"Save", .Hint = L"Saves", .Enabled = false};
};

TEST_F(ParentProperties, AnActionFillsItsClientAndIsRunByAClick) {
    TSampleAction action(nullptr);
    int runs = 0;
    TComponent* client = nullptr;
    action.SetOnExecute([&](TObject*) {
        ++runs;
        client = action.GetActionComponent();
    });
    auto* control = Make<TProbeWindow>({0, 0, 100, 100});
    control->SetAction(&action);
    EXPECT_EQ(control->GetCaption(), L"Save");
    EXPECT_EQ(control->GetHint(), L"Saves");
    EXPECT_FALSE(control->GetEnabled());
    EXPECT_FALSE(control->IsCaptionStored());
    control->SetEnabled(true);
    Input.ClickAt(control->WindowHandle(), 5, 5);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(client, control);
    int own = 0;
    control->OnClick = [&](TObject*) { ++own; };
    Input.ClickAt(control->WindowHandle(), 5, 5);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(own, 1);
}

TEST_F(ParentProperties, AnActionThatIsFreedLeavesItsClient) {
    auto* control = Make<TProbeWindow>({0, 0, 100, 100});
    {
        TSampleAction action(nullptr);
        control->SetAction(&action);
        EXPECT_EQ(control->GetAction(), &action);
    }
    EXPECT_EQ(control->GetAction(), nullptr);
}

}  // namespace
}  // namespace test
