#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;

/// Menus that controls open by themselves.
class ContextMenuTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        Form();
        Menu = std::make_unique<TPopupMenu>(nullptr);
        AddItem(Menu->GetItems(), L"Item");
        Menu->OnPopup = [this](TObject*) {
            Opened.push_back(Menu->GetPopupComponent());
            // Once it stands on the screen it closes again.
            WhenOpen([this] { Input.KeyPress(VK_ESCAPE); });
        };
    }
    void TearDown() override {
        Menu.reset();
        MenuTest::TearDown();
    }

    std::unique_ptr<TPopupMenu> Menu;
    std::vector<TComponent*> Opened;
};

TEST_F(ContextMenuTest, ARightClickOpensTheMenuOfTheControl) {
    auto* button = Make<TButton>({20, 20, 120, 50});
    button->SetPopupMenu(Menu.get());
    Input.ClickAt(button->GetHandle(), 5, 6, MouseButton::Right);
    EXPECT_TRUE(PumpUntil([&] { return !Opened.empty(); }));
    EXPECT_EQ(Opened, std::vector<TComponent*>{button});
    EXPECT_EQ(Menu->GetPopupPoint(), button->ClientToScreen({5, 6}));
}

TEST_F(ContextMenuTest, AControlWithoutAMenuLeavesItToItsParent) {
    auto* panel = Make<TPanel>({0, 0, 200, 200});
    auto* button = Make<TButton>({20, 20, 120, 50}, panel);
    panel->SetPopupMenu(Menu.get());
    Input.ClickAt(button->GetHandle(), 5, 6, MouseButton::Right);
    EXPECT_TRUE(PumpUntil([&] { return !Opened.empty(); }));
    EXPECT_EQ(Opened, std::vector<TComponent*>{panel});
}

TEST_F(ContextMenuTest, AControlWithoutAWindowOpensItsOwn) {
    auto* label = Make<TLabel>({20, 20, 120, 50});
    label->SetCaption(L"Label");
    label->SetPopupMenu(Menu.get());
    Input.ClickAt(Form().GetHandle(), 22, 24, MouseButton::Right);
    EXPECT_TRUE(PumpUntil([&] { return !Opened.empty(); }));
    EXPECT_EQ(Opened, std::vector<TComponent*>{label});
}

class ContextMenuKeyTest : public ContextMenuTest, public testing::WithParamInterface<WORD> {
protected:
    /// Presses the menu key or Shift+F10 on the control, whose menu must open at its corner.
    void Check(TWinControl* control) {
        control->SetPopupMenu(Menu.get());
        control->SetFocus();
        if (GetParam() == VK_APPS)
            Input.KeyPress(VK_APPS);
        else
            Input.Chord({VK_SHIFT}, VK_F10);
        EXPECT_TRUE(PumpUntil([&] { return !Opened.empty(); }));
        EXPECT_EQ(Opened, std::vector<TComponent*>{control});
        EXPECT_EQ(Menu->GetPopupPoint(), control->ClientToScreen({0, 0}));
    }
};

TEST_P(ContextMenuKeyTest, OpensTheMenuOfAButton) {
    Check(Make<TButton>({20, 20, 120, 50}));
}

TEST_P(ContextMenuKeyTest, OpensTheMenuOfAnEdit) {
    Check(Make<TEdit>({20, 60, 120, 90}));
}

TEST_P(ContextMenuKeyTest, OpensTheMenuOfAMemo) {
    Check(Make<TMemo>({20, 100, 120, 150}));
}

TEST_P(ContextMenuKeyTest, OpensTheMenuOfTheForm) {
    Check(&Form());
}

INSTANTIATE_TEST_SUITE_P(Keys, ContextMenuKeyTest, testing::Values(WORD{VK_APPS}, WORD{VK_F10}),
                         [](const auto& key) { return key.param == VK_APPS ? "MenuKey" : "ShiftF10"; });

TEST_F(ContextMenuTest, KeysReachTheMenuOfTheParent) {
    auto* panel = Make<TPanel>({0, 0, 200, 200});
    auto* button = Make<TButton>({20, 20, 120, 50}, panel);
    panel->SetPopupMenu(Menu.get());
    button->SetFocus();
    Input.KeyPress(VK_APPS);
    EXPECT_TRUE(PumpUntil([&] { return !Opened.empty(); }));
    EXPECT_EQ(Opened, std::vector<TComponent*>{panel});
}

TEST_F(ContextMenuTest, WithoutAutoPopupNothingOpens) {
    auto* button = Make<TButton>({20, 20, 120, 50});
    button->SetPopupMenu(Menu.get());
    Menu->SetAutoPopup(false);
    button->SetFocus();
    Input.KeyPress(VK_APPS);
    Input.ClickAt(button->GetHandle(), 5, 6, MouseButton::Right);
    PumpAll();
    EXPECT_TRUE(Opened.empty());
}

TEST_F(ContextMenuTest, AHandlerOfTheControlMayOpenItsOwn) {
    auto* button = Make<TButton>({20, 20, 120, 50});
    button->SetPopupMenu(Menu.get());
    TPoint place;
    button->OnContextPopup = [&](TObject*, TPoint pos, bool& handled) {
        place = pos;
        handled = true;
    };
    Input.ClickAt(button->GetHandle(), 5, 6, MouseButton::Right);
    EXPECT_TRUE(PumpUntil([&] { return place == TPoint(5, 6); }));
    EXPECT_TRUE(Opened.empty());
}

}  // namespace
}  // namespace test
