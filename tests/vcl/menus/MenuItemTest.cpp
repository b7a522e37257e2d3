#include "platform/vcl/menus/MenuItem.h"

#include <algorithm>

#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/menus/MenuMaking.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;
using Names = std::vector<std::wstring>;

class MenuItemTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        Menu = std::make_unique<TPopupMenu>(nullptr);
        Root = &Menu->GetItems();
    }
    void TearDown() override {
        Menu.reset();
        MenuTest::TearDown();
    }
    std::unique_ptr<TPopupMenu> Menu;
    TMenuItem* Root = nullptr;
};

TEST_F(MenuItemTest, ItemsStandInTheirParentInOrder) {
    TMenuItem* a = AddItem(*Root, L"a");
    TMenuItem* c = AddItem(*Root, L"c");
    auto* b = new TMenuItem(nullptr);
    Root->Insert(1, b);
    EXPECT_EQ(Root->GetCount(), 3);
    EXPECT_EQ(Root->GetItem(1), b);
    EXPECT_EQ(c->GetMenuIndex(), 2);
    EXPECT_EQ(a->GetParent(), Root);
    EXPECT_EQ(a->GetParentMenu(), Menu.get());
    c->SetMenuIndex(0);
    EXPECT_EQ(Root->IndexOf(c), 0);
    Root->Remove(b);
    EXPECT_EQ(b->GetParent(), nullptr);
    EXPECT_EQ(b->GetParentMenu(), nullptr);
    delete b;
    EXPECT_EQ(Root->GetCount(), 2);
}

TEST_F(MenuItemTest, WhatCannotBeIsRaised) {
    TMenuItem* a = AddItem(*Root, L"a");
    EXPECT_THROW(Root->Add(a), EMenuError);
    EXPECT_THROW(a->Add(Root), EMenuError);
    TMenuItem stranger(nullptr);
    EXPECT_THROW(Root->Remove(&stranger), EMenuError);
    EXPECT_THROW((void)Root->GetItem(1), EListError);
    EXPECT_THROW((void)Root->GetItem(-1), EListError);
    EXPECT_THROW(Root->Insert(3, &stranger), EListError);
    EXPECT_THROW(stranger.Add(&stranger), EMenuError);
}

TEST_F(MenuItemTest, AFreedItemLeavesItsParentAndTheSystemsMenu) {
    AddItem(*Root, L"&a");
    std::unique_ptr<TMenuItem> b(AddItem(*Root, L"&b"));
    EXPECT_EQ(EntryTexts(Menu->GetHandle()), (Names{L"&a", L"&b"}));
    b.reset();
    EXPECT_EQ(Root->GetCount(), 1);
    EXPECT_EQ(EntryTexts(Menu->GetItems().PresentHandle()), Names{L"&a"});
}

TEST_F(MenuItemTest, FindIgnoresMnemonicsAndCase) {
    TMenuItem* save = AddItem(*Root, L"Sa&ve");
    EXPECT_EQ(Root->Find(L"SAVE"), save);
    EXPECT_EQ(Root->Find(L"Load"), nullptr);
}

TEST_F(MenuItemTest, SeparatorsCanBePutInAnywhere) {
    TMenuItem* a = AddItem(*Root, L"a");
    EXPECT_EQ(Root->InsertNewLineAfter(a), 1);
    EXPECT_EQ(Root->InsertNewLineBefore(a), 0);
    EXPECT_EQ(Root->NewBottomLine(), 3);
    EXPECT_EQ(Root->NewTopLine(), 0);
    EXPECT_TRUE(Root->GetItem(0)->IsLine());
    EXPECT_EQ(Root->GetItem(2), a);
    EXPECT_EQ(Root->GetCount(), 5);
}

TEST_F(MenuItemTest, ACheckedRadioItemTurnsOffThoseOfItsGroup) {
    std::vector<TMenuItem*> items;
    for (int i = 0; i < 4; ++i) {
        items.push_back(AddItem(*Root, L"r" + std::to_wstring(i)));
        items.back()->SetRadioItem(true);
        items.back()->SetGroupIndex(i == 3 ? 2 : 1);
    }
    items[3]->SetChecked(true);
    items[0]->SetChecked(true);
    items[2]->SetChecked(true);
    EXPECT_FALSE(items[0]->GetChecked());
    EXPECT_TRUE(items[2]->GetChecked());
    EXPECT_TRUE(items[3]->GetChecked());
    items[3]->SetGroupIndex(1);
    EXPECT_FALSE(items[2]->GetChecked());
}

TEST_F(MenuItemTest, AutoCheckChecksOnClick) {
    TMenuItem* item = AddItem(*Root, L"check");
    item->SetAutoCheck(true);
    item->Click();
    EXPECT_TRUE(item->GetChecked());
    item->Click();
    EXPECT_FALSE(item->GetChecked());
    EXPECT_EQ(Clicked.size(), 2U);
}

TEST_F(MenuItemTest, AClickOnACheckedRadioItemLeavesItChecked) {
    TMenuItem* item = AddItem(*Root, L"radio");
    item->SetRadioItem(true);
    item->SetAutoCheck(true);
    item->Click();
    item->Click();
    EXPECT_TRUE(item->GetChecked());
}

TEST_F(MenuItemTest, ADisabledItemDoesNotClick) {
    TMenuItem* item = AddItem(*Root, L"off");
    item->SetEnabled(false);
    item->SetAutoCheck(true);
    item->Click();
    EXPECT_TRUE(Clicked.empty());
    EXPECT_FALSE(item->GetChecked());
}

TEST_F(MenuItemTest, OneItemOfASubmenuIsTheDefault) {
    TMenuItem* a = AddItem(*Root, L"a");
    TMenuItem* b = AddItem(*Root, L"b");
    a->SetDefault(true);
    b->SetDefault(true);
    EXPECT_FALSE(a->GetDefault());
    const HMENU menu = Menu->GetHandle();
    EXPECT_TRUE(EntryState(menu, 1) & MFS_DEFAULT);
    EXPECT_FALSE(EntryState(menu, 0) & MFS_DEFAULT);
}

TEST_F(MenuItemTest, TheSystemsMenuShowsWhatTheItemsSay) {
    Menu->SetAutoHotkeys(maManual);
    TMenuItem* save = AddItem(*Root, L"Sa&ve");
    save->SetShortCut(ShortCut('S', {ssCtrl}));
    save->SetChecked(true);
    TMenuItem* off = AddItem(*Root, L"Off");
    off->SetEnabled(false);
    off->SetBreak(mbBarBreak);
    AddItem(*Root, L"Hidden")->SetVisible(false);
    TMenuItem* sub = AddItem(*Root, L"Sub");
    AddItem(*sub, L"Inner");
    const HMENU menu = Menu->GetHandle();
    EXPECT_EQ(EntryTexts(menu), (Names{L"Sa&ve\tCtrl+S", L"Off", L"Sub"}));
    EXPECT_TRUE(EntryState(menu, 0) & MFS_CHECKED);
    EXPECT_TRUE(EntryState(menu, 1) & MFS_DISABLED);
    EXPECT_EQ(GetSubMenu(menu, 2), sub->PresentHandle());
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    GetMenuItemInfoW(menu, 1, TRUE, &info);
    EXPECT_TRUE(info.fType & MFT_MENUBARBREAK);
}

TEST_F(MenuItemTest, TheSystemsMenuFollowsLaterChanges) {
    Menu->SetAutoHotkeys(maManual);
    TMenuItem* a = AddItem(*Root, L"a");
    TMenuItem* b = AddItem(*Root, L"b");
    const HMENU menu = Menu->GetHandle();
    a->SetCaption(L"A");
    b->SetVisible(false);
    TMenuItem* c = AddItem(*Root, L"c");
    TMenuItem* inner = AddItem(*c, L"inner");
    EXPECT_EQ(Menu->GetHandle(), menu);
    EXPECT_EQ(EntryTexts(menu), (Names{L"A", L"c"}));
    EXPECT_EQ(GetSubMenu(menu, 1), c->PresentHandle());
    delete inner;
    b->SetVisible(true);
    (void)Menu->GetHandle();
    EXPECT_EQ(EntryTexts(menu), (Names{L"A", L"b", L"c"}));
    EXPECT_EQ(GetSubMenu(menu, 2), nullptr);
}

TEST_F(MenuItemTest, FiveHundredItemsEachHaveACommandOfTheirOwn) {
    std::vector<WORD> commands;
    for (int i = 0; i < 500; ++i)
        commands.push_back(AddItem(*Root, L"item")->GetCommand());
    std::sort(commands.begin(), commands.end());
    EXPECT_EQ(std::adjacent_find(commands.begin(), commands.end()), commands.end());
    EXPECT_EQ(GetMenuItemCount(Menu->GetHandle()), 500);
    EXPECT_EQ(Menu->FindItem(commands[250], fkCommand)->GetCommand(), commands[250]);
}

TEST_F(MenuItemTest, ItemsAreFoundByCommandHandleAndShortCut) {
    TMenuItem* sub = AddItem(*Root, L"Sub");
    TMenuItem* inner = AddItem(*sub, L"Inner");
    inner->SetShortCut(VK_F9);
    (void)Menu->GetHandle();
    EXPECT_EQ(Menu->FindItem(inner->GetCommand(), fkCommand), inner);
    EXPECT_EQ(Menu->FindItem(VK_F9, fkShortCut), inner);
    EXPECT_EQ(Menu->FindItem(reinterpret_cast<std::uintptr_t>(sub->PresentHandle()), fkHandle), sub);
    EXPECT_EQ(Menu->FindItem(VK_F8, fkShortCut), nullptr);
    EXPECT_EQ(Menu->FindItem(0, fkShortCut), nullptr);
    EXPECT_EQ(Menu->FindItem(0, fkHandle), nullptr);
    TMenuItem stranger(nullptr);
    EXPECT_EQ(Menu->FindItem(stranger.GetCommand(), fkCommand), nullptr);
}

TEST_F(MenuItemTest, ChangesAreAnnouncedWithTheirItem) {
    TMenuItem* source = nullptr;
    bool rebuild = false;
    Menu->OnChange = [&](TObject*, TMenuItem* item, bool value) {
        source = item;
        rebuild = value;
    };
    TMenuItem* item = AddItem(*Root, L"a");
    EXPECT_EQ(source, Root);
    EXPECT_TRUE(rebuild);
    item->SetChecked(true);
    EXPECT_EQ(source, item);
    EXPECT_FALSE(rebuild);
    Menu->OnChange.Clear();
}

TEST_F(MenuItemTest, MenusAreMadeInOneExpression) {
    const std::unique_ptr<TMainMenu> main(
        NewMenu(nullptr, L"Main",
                {NewSubMenu(L"&File", 0, L"FileItem",
                            {NewItem(L"&Open", ShortCut('O', {ssCtrl}), false, true, nullptr), NewLine(),
                             NewItem(L"E&xit", scNone, true, false, nullptr, 7, L"ExitItem")})}));
    EXPECT_EQ(main->GetName(), L"Main");
    TMenuItem* file = main->GetItems().GetItem(0);
    EXPECT_EQ(file->GetCount(), 3);
    EXPECT_TRUE(file->GetItem(1)->IsLine());
    EXPECT_EQ(file->GetItem(2)->GetName(), L"ExitItem");
    EXPECT_TRUE(file->GetItem(2)->GetChecked());
    EXPECT_FALSE(file->GetItem(2)->GetEnabled());
    EXPECT_EQ(file->GetItem(2)->GetHelpContext(), 7);
    const std::unique_ptr<TPopupMenu> popup(NewPopupMenu(nullptr, L"Popup", paRight, false, {NewLine()}));
    EXPECT_EQ(popup->GetAlignment(), paRight);
    EXPECT_FALSE(popup->GetAutoPopup());
}

// --- mnemonics and separators

TEST_F(MenuItemTest, ItemsWithoutAMnemonicGetAFreeOne) {
    for (const wchar_t* caption : {L"&Cut", L"Copy", L"&Close", L"Cc", L"-", L"Fish && chips"})
        AddItem(*Root, caption);
    EXPECT_TRUE(Root->RethinkHotkeys());
    Names captions;
    for (int i = 0; i < Root->GetCount(); ++i)
        captions.push_back(Root->GetItem(i)->GetCaption());
    EXPECT_EQ(captions, (Names{L"&Cut", L"C&opy", L"C&lose", L"Cc", L"-", L"&Fish && chips"}));
    EXPECT_FALSE(Root->RethinkHotkeys());
}

TEST_F(MenuItemTest, MnemonicsAreMadeUniqueWhenTheMenuIsBuilt) {
    AddItem(*Root, L"One");
    AddItem(*Root, L"Only");
    (void)Menu->GetHandle();
    EXPECT_EQ(Root->GetItem(1)->GetCaption(), L"O&nly");
}

TEST_F(MenuItemTest, ManualMnemonicsStay) {
    Menu->SetAutoHotkeys(maManual);
    TMenuItem* sub = AddItem(*Root, L"Sub");
    AddItem(*sub, L"One");
    (void)Menu->GetHandle();
    EXPECT_EQ(sub->GetCaption(), L"Sub");
    EXPECT_EQ(sub->GetItem(0)->GetCaption(), L"One");
    sub->SetAutoHotkeys(maAutomatic);
    (void)Menu->GetHandle();
    EXPECT_EQ(sub->GetItem(0)->GetCaption(), L"&One");
}

TEST_F(MenuItemTest, SeparatorsAtTheEndsAndBesideEachOtherAreLeftOut) {
    Menu->SetAutoHotkeys(maManual);
    for (const wchar_t* caption : {L"-", L"a", L"-", L"-", L"b", L"-", L"hidden", L"-"})
        AddItem(*Root, caption);
    Root->GetItem(6)->SetVisible(false);
    EXPECT_EQ(EntryTexts(Menu->GetHandle()), (Names{L"a", L"-", L"b"}));
    EXPECT_FALSE(Root->GetItem(0)->GetVisible());
    EXPECT_TRUE(Root->GetItem(0)->GetOwnVisible());
    Root->GetItem(6)->SetVisible(true);
    EXPECT_EQ(EntryTexts(Menu->GetHandle()), (Names{L"a", L"-", L"b", L"-", L"hidden"}));
    Menu->SetAutoLineReduction(maManual);
    EXPECT_EQ(GetMenuItemCount(Menu->GetHandle()), 8);
}

}  // namespace
}  // namespace test
