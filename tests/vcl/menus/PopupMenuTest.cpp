#include "platform/vcl/menus/PopupMenu.h"

#include "platform/vcl/stdctrls/Panel.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;
using Names = std::vector<std::wstring>;

class PopupMenuTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        Form();
        Menu = std::make_unique<TPopupMenu>(nullptr);
        Cut = AddItem(Menu->GetItems(), L"C&ut");
        Copy = AddItem(Menu->GetItems(), L"&Copy");
        Paste = AddItem(Menu->GetItems(), L"&Paste");
    }
    void TearDown() override {
        Menu.reset();
        MenuTest::TearDown();
    }
    void Open() { Menu->Popup(150, 150); }

    std::unique_ptr<TPopupMenu> Menu;
    TMenuItem* Cut = nullptr;
    TMenuItem* Copy = nullptr;
    TMenuItem* Paste = nullptr;
};

TEST_F(PopupMenuTest, ArrowsAndEnterChooseAnItem) {
    Keys({VK_DOWN, VK_DOWN, VK_RETURN});
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Copy"});
}

TEST_F(PopupMenuTest, TheHandlerRunsAfterTheMenuHasClosed) {
    Keys({VK_DOWN, VK_RETURN});
    Open();
    EXPECT_TRUE(Clicked.empty());
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
}

TEST_F(PopupMenuTest, TheMouseChoosesAnItem) {
    WhenOpen([&] { Input.MoveTo(EntryCenter(OpenMenu(), 2)); });
    WhenHighlighted(2, [&] { Input.Click(); });
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Paste"});
}

TEST_F(PopupMenuTest, EscapeClosesAndChoosesNothing) {
    Keys({VK_DOWN, VK_ESCAPE});
    Open();
    PumpAll();
    EXPECT_TRUE(Clicked.empty());
    EXPECT_EQ(OpenMenuWindow(), nullptr);
}

TEST_F(PopupMenuTest, AMnemonicChoosesItsItem) {
    Keys({'P'});
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Paste"});
}

}  // namespace
}  // namespace test
