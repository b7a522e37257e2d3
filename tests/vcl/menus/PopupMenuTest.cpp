#include "platform/vcl/menus/PopupMenu.h"

#include "platform/vcl/stdctrls/Edit.h"
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

TEST_F(PopupMenuTest, TheAlignmentSaysWhereTheMenuLiesToItsPoint) {
    for (const TPopupAlignment alignment : {paLeft, paCenter, paRight}) {
        Menu->SetAlignment(alignment);
        RECT place{};
        WhenOpen([&] {
            GetWindowRect(OpenMenuWindow(), &place);
            Input.KeyPress(VK_ESCAPE);
        });
        Menu->Popup(500, 300);
        const int middle = (place.left + place.right) / 2;
        const int expected = alignment == paLeft ? place.left : (alignment == paRight ? place.right : middle);
        EXPECT_NEAR(expected, 500, 1);
        EXPECT_EQ(place.top, 300);
        EXPECT_EQ(Menu->GetPopupPoint(), TPoint(500, 300));
    }
}

TEST_F(PopupMenuTest, TheTrackButtonSaysWhetherTheRightButtonChooses) {
    for (const TTrackButton button : {tbLeftButton, tbRightButton}) {
        Menu->SetTrackButton(button);
        Input.MoveTo({100, 100});
        WhenOpen([&] { Input.MoveTo(EntryCenter(OpenMenu(), 1)); });
        WhenHighlighted(1, [&] { Input.Click(MouseButton::Right); });
        if (button == tbLeftButton) Later([] { EndMenu(); });
        Open();
        PumpAll();
        EXPECT_EQ(Clicked, button == tbRightButton ? Names{L"Copy"} : Names());
        Clicked.clear();
    }
}

TEST_F(PopupMenuTest, OpeningAndClosingAreTold) {
    Names events;
    Menu->OnPopup = [&](TObject* sender) {
        EXPECT_EQ(sender, Menu.get());
        events.push_back(L"popup");
        AddItem(Menu->GetItems(), L"&Late");
    };
    Menu->OnClose = [&](TObject*) { events.push_back(Clicked.empty() ? L"close" : L"clicked before"); };
    Keys({'L'});
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(events, (Names{L"popup", L"close"}));
    EXPECT_EQ(Clicked, Names{L"Late"});
}

TEST_F(PopupMenuTest, ItsShortCutsWorkWhereItIsThePopupMenu) {
    auto* panel = Make<TPanel>({0, 0, 200, 200});
    auto* inside = Make<TEdit>({10, 10, 100, 40}, panel);
    auto* outside = Make<TEdit>({210, 10, 300, 40});
    panel->SetPopupMenu(Menu.get());
    Paste->SetShortCut(VK_F7);
    outside->SetFocus();
    Input.KeyPress(VK_F7);
    EXPECT_TRUE(Clicked.empty());
    inside->SetFocus();
    Input.KeyPress(VK_F7);
    EXPECT_EQ(Clicked, Names{L"Paste"});
    Paste->SetEnabled(false);
    Input.KeyPress(VK_F7);
    EXPECT_EQ(Clicked, Names{L"Paste"});
}

TEST_F(PopupMenuTest, AMenuMayBeRebuiltByItsOwnItem) {
    Cut->OnClick = [&](TObject*) {
        Menu->GetItems().Clear();
        AddItem(Menu->GetItems(), L"&New");
    };
    Keys({'U'});
    Open();
    EXPECT_TRUE(PumpUntil([&] { return Menu->GetItems().GetCount() == 1; }));
    Keys({'N'});
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"New"});
}

TEST_F(PopupMenuTest, ASubmenuMayBeFilledAsItOpens) {
    TMenuItem* sub = AddItem(Menu->GetItems(), L"&Sub");
    AddItem(*sub, L"Placeholder");
    sub->OnClick = [&](TObject*) {
        sub->Clear();
        for (const wchar_t* caption : {L"&First", L"Second", L"Third"})
            AddItem(*sub, caption);
    };
    Keys({'S', 'T'});
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Third"});
}

}  // namespace
}  // namespace test
