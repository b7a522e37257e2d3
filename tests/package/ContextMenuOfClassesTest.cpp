#include <algorithm>
#include <memory>

#include "platform/vcl/forms/Form.h"
#include "platform/vcl/menus/MenuMaking.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "tests/package/ClassScene.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/FormTest.h"

// The popup menu of every control that is registered, whoever brings it.

namespace test {
namespace {

using namespace vcl;

bool MenuIsOpen() {
    const HWND window = FindWindowW(MAKEINTRESOURCEW(32768), nullptr);
    return window && IsWindowVisible(window);
}

TClassList ControlClasses() {
    TClassList classes = CreatableClasses();
    std::erase_if(classes, [](const TMetaClass* meta) {
        return !meta->InheritsFrom(TControl::StaticClass()) || meta->InheritsFrom(TCustomForm::StaticClass());
    });
    return classes;
}

class ContextMenuOfClasses : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
public:
    static void SetUpTestSuite() {
        // Fonts and pens that stay once a window of the class was painted.
        BeforeSnapshots([] { (void)WindowWith(*GetParam()); });
    }

protected:
    /// A shown form with a control of the class, as a form file makes it.
    static std::unique_ptr<TForm> WindowWith(const TMetaClass& meta) {
        auto window = std::make_unique<TForm>(nullptr);
        const String text =
            L"object Window: TForm\r\n  Left = 100\r\n  Top = 100\r\n  ClientWidth = 300\r\n"
            L"  ClientHeight = 200\r\n  object Subject: " +
            String(meta.ClassName()) +
            L"\r\n    Left = 20\r\n    Top = 20\r\n    Width = 180\r\n    Height = 60\r\n"
            L"  end\r\nend\r\n";
        TReader(ParseFormText(text)).ReadRootComponent(window.get());
        window->Show();
        window->Update();
        return window;
    }
    void SetUp() override {
        FormTest::SetUp();
        Window = WindowWith(*GetParam());
        Subject = dynamic_cast<TControl*>(Window->FindComponent(L"Subject"));
        ASSERT_NE(Subject, nullptr);
        Menu = std::make_unique<TPopupMenu>(nullptr);
        Menu->GetItems().Add(NewItem(L"Item", scNone, false, true, nullptr, 0, {}));
        Menu->OnPopup = [this](TObject*) { Opened.push_back(Menu->GetPopupComponent()); };
        Subject->SetPopupMenu(Menu.get());
    }
    void TearDown() override {
        Window.reset();
        Menu.reset();
        FormTest::TearDown();
    }
    /// The step has to open the menu of the control, and no other one.
    void ExpectToOpen(const std::function<void()>& step, const char* name) {
        bool wasOpen = false;
        const std::function<void()> close = [&] {
            wasOpen = true;
            EndMenu();
            When(&MenuIsOpen, close);
        };
        When(&MenuIsOpen, close);
        step();
        EXPECT_TRUE(PumpUntil([&] { return wasOpen && !MenuIsOpen(); })) << name;
        DropSteps();
        EXPECT_EQ(Opened, std::vector<TComponent*>{Subject}) << name;
        Opened.clear();
    }

    std::unique_ptr<TForm> Window;
    std::unique_ptr<TPopupMenu> Menu;
    TControl* Subject = nullptr;
    std::vector<TComponent*> Opened;

private:
    CalendarFonts FCalendarFonts;
};

TEST_P(ContextMenuOfClasses, OpensByTheRightButton) {
    const POINT middle =
        Subject->ClientToScreen({Subject->GetClientWidth() / 2, Subject->GetClientHeight() / 2});
    Input.MoveTo(middle);
    ExpectToOpen([this] { Input.Click(MouseButton::Right); }, "right button");
    // Inputs that drop down do so by any button.
    SetActiveWindow(Window->GetHandle());
    PumpAll();
}

TEST_P(ContextMenuOfClasses, OpensByTheKeyboard) {
    auto* control = dynamic_cast<TWinControl*>(Subject);
    if (!control || !control->CanFocus()) return;
    control->SetFocus();
    ExpectToOpen([this] { Input.KeyPress(VK_APPS); }, "menu key");
    ExpectToOpen([this] { Input.Chord({VK_SHIFT}, VK_F10); }, "Shift+F10");
}

INSTANTIATE_TEST_SUITE_P(All, ContextMenuOfClasses, testing::ValuesIn(ControlClasses()),
                         [](const auto& meta) {
                             const String name = meta.param->ClassName();
                             return std::string(name.begin(), name.end());
                         });

}  // namespace
}  // namespace test
