#include "header/UnitQV7SkinHeaderChevron.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinToolbar.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

HWND OpenMenuWindow() {
    const HWND window = FindWindowW(MAKEINTRESOURCEW(32768), nullptr);
    return window && IsWindowVisible(window) ? window : nullptr;
}

/// A chevron and a menu of the system, worked as a user would.
class ChevronMenuTest : public probes::HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        FMenu = std::make_unique<TPopupMenu>(nullptr);
    }
    void TearDown() override {
        FMenu.reset();
        HeaderTest::TearDown();
    }
    /// Fills the menu with the captions of the items; choosing one selects that item and shows it.
    void ListItems(TQV7SkinHeaderControl& control) {
        FMenu->GetItems().Clear();
        for (int i = 0; i < control.GetItems().GetCount(); ++i) {
            auto* const entry = new TMenuItem(FMenu.get());
            entry->SetCaption(control.GetItems()[i]->GetCaption());
            entry->OnClick = [&control, i](TObject*) {
                control.SetSelectedItem(control.GetItems()[i]);
                control.ScrollInView(i);
            };
            FMenu->GetItems().Add(entry);
        }
    }
    /// Once the menu is open: notes where, then presses the keys.
    void WhenOpen(const std::vector<WORD>& keys) {
        test::When([] { return OpenMenuWindow() != nullptr; },
                   [this] { GetWindowRect(OpenMenuWindow(), &FPlace); });
        for (const WORD key : keys)
            test::Later([this, key] { Input.KeyPress(key); });
    }

    std::unique_ptr<TPopupMenu> FMenu;
    RECT FPlace{};
};

TEST_F(ChevronMenuTest, AnItemThatDoesNotFitIsChosenFromTheMenu) {
    for (int i = 0; i < 12; ++i)
        AddTab(L"Tab number " + IntToStr(i));
    FMenu->OnPopup = [this](TObject*) { ListItems(*Header); };
    Header->SetChevronDropDown(FMenu.get());
    Input.MoveTo(Header->GetChevron().GetHandle(), 8, 10);
    WhenOpen({VK_UP, VK_RETURN});
    Input.Click();
    ASSERT_TRUE(test::PumpUntil([&] { return Header->GetSelectedItem() != nullptr; }));
    EXPECT_EQ(Header->GetSelectedItem(), Items()[11]);
    EXPECT_FALSE(Header->GetItemRect(11).IsEmpty());
    EXPECT_LE(Header->GetItemRect(11).Right, 300);
    EXPECT_EQ(FPlace.left, Input.Position().x);
    EXPECT_EQ(FPlace.top, Input.Position().y);
}

TEST_F(ChevronMenuTest, TheToolbarsMenuOpensBelowItsChevronAndEndsAtItsEdge) {
    auto* const bar = Make<TQV7SkinToolbar>({20, 80, 320, 114});
    for (int i = 0; i < 12; ++i)
        bar->GetItems().Add(new TQV7SkinToolbutton(L"Button " + IntToStr(i)));
    test::PumpAll();
    auto& chevron = dynamic_cast<TQV7SkinToolbarChevron&>(bar->GetChevron());
    FMenu->OnPopup = [&](TObject*) { ListItems(*bar); };
    bar->SetChevronDropDown(FMenu.get());
    Input.MoveTo(chevron.GetHandle(), 7, 10);
    WhenOpen({VK_ESCAPE});
    Input.Click();
    ASSERT_TRUE(test::PumpUntil([&] { return FPlace.right > 0 && !OpenMenuWindow(); }));
    const TPoint corner = chevron.ClientToScreen({15, 34});
    EXPECT_EQ(FPlace.right, corner.X);
    EXPECT_EQ(FPlace.top, corner.Y);
    EXPECT_EQ(chevron.GetImageState(), TQV7SkinToolbarChevron::isHovered);
    EXPECT_EQ(bar->GetSelectedItem(), nullptr);
}

TEST_F(ChevronMenuTest, TheItemsMayAllGoWhileTheMenuIsOpen) {
    for (int i = 0; i < 12; ++i)
        AddTab(L"Tab number " + IntToStr(i));
    FMenu->OnPopup = [this](TObject*) {
        ListItems(*Header);
        Items().Clear();
    };
    Header->SetChevronDropDown(FMenu.get());
    Input.MoveTo(Header->GetChevron().GetHandle(), 8, 10);
    WhenOpen({VK_ESCAPE});
    Input.Click();
    ASSERT_TRUE(test::PumpUntil([&] { return FPlace.right > 0 && !OpenMenuWindow(); }));
    test::PumpAll();
    EXPECT_FALSE(Header->GetChevronVisible());
}

}  // namespace
}  // namespace qv7skin
