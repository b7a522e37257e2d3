#include "menus/UnitQV7SkinActnCtrls.h"

#include "menus/MenuItemPainter.h"
#include "tests/menus/ReplacementFixture.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;
using Names = std::vector<std::wstring>;

class MainMenuReplacementTest : public ReplacementTest {};

TEST_F(MainMenuReplacementTest, TheBarMirrorsTheTopmostItems) {
    Bar->SetSpacing(9);
    Replace();
    EXPECT_EQ(Captions(*Bar), (Names{L"&File", L"&Edit"}));
    EXPECT_EQ(Bar->GetVertMargin(), 2);
    EXPECT_EQ(Bar->GetHorzMargin(), 6);
    EXPECT_EQ(Bar->GetSpacing(), 0);
    EXPECT_FALSE(Clients().GetAutoHotKeys());
    TActionClientItem* file = Clients().GetItem(0);
    EXPECT_EQ(MenuItemOf(file), File);
    ASSERT_EQ(file->GetItems().GetCount(), 1);
    EXPECT_EQ(MenuItemOf(file->GetItems().GetItem(0)), nullptr);
    EXPECT_TRUE(Replacement->Actions().empty());
    EXPECT_EQ(Manager->GetActionCount(), 0);
    SetMenuItemOf(*file, nullptr);
    EXPECT_EQ(MenuItemOf(file), nullptr);
    EXPECT_EQ(file->GetTag(), 0);
    EXPECT_EQ(MenuItemOf(nullptr), nullptr);
}

TEST_F(MainMenuReplacementTest, TheControlsAreThoseOfTheSkin) {
    Replace();
    EXPECT_TRUE(dynamic_cast<TQV7StyleMenuButton*>(Bar->ActionControls()[0]));
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    for (TCustomActionControl* control : OpenMenu().ActionControls())
        EXPECT_TRUE(dynamic_cast<TQV7StyleMenuItem*>(control));
    Bar->CloseMenu();
    Bar->SetStyle(amsThemed);
    EXPECT_TRUE(dynamic_cast<TQV7StyleThemedMenuButton*>(Bar->ActionControls()[0]));
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_TRUE(dynamic_cast<TQV7StyleThemedMenuItem*>(OpenMenu().ActionControls()[0]));
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, AChoiceClicksTheClassicItem) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Save"}));
    Input.KeyPress('S');
    EXPECT_EQ(Clicked, Names{L"&Save"});
    EXPECT_EQ(Levels(), 0U);
}

TEST_F(MainMenuReplacementTest, TheMouseReachesTheDeepestItem) {
    Replace();
    const auto moveTo = [&](const TCustomActionControl* control) {
        Input.MoveTo(control->ClientToScreen({control->GetWidth() / 2, control->GetHeight() / 2}));
    };
    moveTo(Bar->ActionControls()[1]);
    Input.Click();
    ASSERT_EQ(Levels(), 1U);
    moveTo(OpenMenu().ActionControls()[1]);
    ASSERT_TRUE(PumpUntil([&] { return Levels() == 2; }));
    moveTo(OpenMenu(1).ActionControls()[0]);
    Input.Click();
    EXPECT_EQ(Clicked, Names{L"&Deep"});
    EXPECT_EQ(Openings[Edit], 1);
    EXPECT_EQ(Openings[More], 1);
}

TEST_F(MainMenuReplacementTest, ProxiesTakeOverWhatTheItemSays) {
    Save->SetShortCut(ShortCut('S', {ssCtrl}));
    Save->SetImageIndex(4);
    Save->SetHelpContext(7);
    Save->SetTag(99);
    Save->SetGroupIndex(5);
    Save->SetChecked(true);
    Save->SetAutoCheck(true);
    Open->SetEnabled(false);
    Replace();
    Input.Chord({VK_MENU}, 'F');
    TActionClients& items = Clients().GetItem(0)->GetItems();
    ASSERT_EQ(items.GetCount(), 3);
    const auto* action = dynamic_cast<TABMenuAction*>(items.GetItem(2)->GetAction());
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->GetMenuItem(), Save);
    EXPECT_EQ(action->GetActionList(), Manager);
    EXPECT_EQ(action->GetTag(), 99);
    EXPECT_EQ(action->GetImageIndex(), 4);
    EXPECT_EQ(action->GetHelpContext(), 7);
    EXPECT_TRUE(action->GetChecked());
    EXPECT_TRUE(action->GetAutoCheck());
    EXPECT_EQ(action->GetCaption(), L"&Save");
    EXPECT_EQ(action->GetShortCut(), ShortCut('S', {ssCtrl}));
    EXPECT_EQ(action->GetGroupIndex(), 5);
    EXPECT_TRUE(action->GetVisible());
    EXPECT_TRUE(action->GetEnabled());
    EXPECT_FALSE(dynamic_cast<const TABMenuAction&>(*items.GetItem(0)->GetAction()).GetEnabled());
    EXPECT_EQ(items.GetItem(2)->GetShortCut(), ShortCut('S', {ssCtrl}));
    EXPECT_EQ(items.GetItem(2)->GetImageIndex(), 4);
    EXPECT_EQ(items.GetItem(2)->GetHelpContext(), 7);
    EXPECT_TRUE(items.GetItem(2)->IsEnabled());
    EXPECT_FALSE(items.GetItem(0)->IsEnabled());
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, CaptionlessItemsThoseWithActionsAndTopmostOnesGetNoProxy) {
    TAction action(nullptr);
    action.SetCaption(L"&Save");
    int runs = 0;
    action.SetOnExecute([&](TObject*) { ++runs; });
    Save->SetAction(&action);
    Open->SetCaption(L"");
    Replace();
    EXPECT_TRUE(Replacement->Actions().empty());
    Input.Chord({VK_MENU}, 'F');
    TActionClients& items = Clients().GetItem(0)->GetItems();
    EXPECT_EQ(items.GetItem(0)->GetAction(), nullptr);
    EXPECT_EQ(items.GetItem(2)->GetAction(), &action);
    EXPECT_EQ(Replacement->Actions().size(), 1U);  // The separator's.
    Input.KeyPress('S');
    EXPECT_EQ(runs, 1);
    Save->SetAction(nullptr);
}

// --- rebuilding

TEST_F(MainMenuReplacementTest, AMenuThatMatchesIsNotRebuilt) {
    Replace();
    TActionClientItem* file = Clients().GetItem(0);
    Save->SetCaption(L"&Store");
    AddItem(*File, L"&New");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Clients().GetItem(0), file);
    EXPECT_EQ(Clients().GetItem(0)->GetID(), 0);
}

TEST_F(MainMenuReplacementTest, AnotherCaseIsNoChangeAndAnotherNameIs) {
    Replace();
    const int id = Clients().GetItem(0)->GetID();
    File->SetCaption(L"&FILE");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Clients().GetItem(0)->GetID(), id);
    EXPECT_EQ(Clients().GetItem(0)->GetCaption(), L"&File");
    Edit->SetCaption(L"&Other");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_NE(Clients().GetItem(0)->GetID(), id);
    EXPECT_EQ(Captions(*Bar), (Names{L"&FILE", L"&Other"}));
}

TEST_F(MainMenuReplacementTest, AnotherNumberOfItemsRebuilds) {
    Replace();
    AddItem(Menu->GetItems(), L"&Help");
    EXPECT_EQ(Captions(*Bar), (Names{L"&File", L"&Edit"}));
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Captions(*Bar), (Names{L"&File", L"&Edit", L"&Help"}));
}

TEST_F(MainMenuReplacementTest, ASubmenuIsBuiltOnceInEachUseOfTheMenu) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress(VK_RIGHT);
    Input.KeyPress(VK_LEFT);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Save"}));
    EXPECT_EQ(Openings[File], 1);
    EXPECT_EQ(Openings[Edit], 1);
    Input.KeyPress(VK_F10);
    ASSERT_EQ(Levels(), 0U);
    Save->SetCaption(L"&Store");
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Openings[File], 2);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Store"}));
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, LeavingTheMenuFreesTheProxies) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Replacement->Actions().size(), 3U);
    EXPECT_EQ(Manager->GetActionCount(), 3);
    Input.KeyPress(VK_F10);
    EXPECT_TRUE(Replacement->Actions().empty());
    EXPECT_EQ(Manager->GetActionCount(), 0);
    ASSERT_EQ(Clients().GetItem(0)->GetItems().GetCount(), 1);
    EXPECT_EQ(MenuItemOf(Clients().GetItem(0)->GetItems().GetItem(0)), nullptr);
}

TEST_F(MainMenuReplacementTest, TheHandlerMayFillTheSubmenuFirst) {
    File->OnClick = [&](TObject*) {
        File->Clear();
        AddItem(*File, L"&New");
    };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Captions(OpenMenu()), Names{L"&New"});
    Input.KeyPress('N');
    EXPECT_EQ(Clicked, Names{L"&New"});
}

TEST_F(MainMenuReplacementTest, MnemonicsAndSeparatorsArePutInOrder) {
    Open->SetCaption(L"Open");
    AddItem(*File, L"-");
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Save"}));
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, TheBarMayBeFilledAnewWhileItIsOpen) {
    Replace();
    File->OnClick = [&](TObject*) {
        delete Edit;
        Edit = nullptr;
        Replacement->UpdateActionMainMenuBar(Menu);
    };
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Captions(*Bar), Names{L"&File"});
    EXPECT_FALSE(Bar->GetInMenuLoop());
    File->OnClick.Clear();
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, AnItemMayGoBeforeItIsChosen) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    delete Save;
    Input.KeyPress('S');
    EXPECT_TRUE(Clicked.empty());
    EXPECT_EQ(Levels(), 0U);
}

// --- enabled state

TEST_F(MainMenuReplacementTest, TheCallbackMayTurnAnItemOff) {
    Open->SetEnabled(false);
    Names asked;
    const TIsItemEnabledEvent ask = [&](TObject* sender, TMenuItem* item, const GUID& guid, bool& enabled) {
        EXPECT_TRUE(IsEqualGUID(guid, Identifier));
        EXPECT_TRUE(dynamic_cast<TMainMenuReplacement*>(sender));
        EXPECT_TRUE(enabled);
        asked.push_back(item->GetCaption());
        if (item == Save) enabled = false;
    };
    Replacement = std::make_unique<TMainMenuReplacement>(Menu, Manager, Bar, Identifier, ask);
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(asked, (Names{L"-", L"&Save"}));
    Input.KeyPress('S');
    EXPECT_TRUE(Clicked.empty());
    EXPECT_FALSE(Replacement->IsItemEnabled(*Save));
    EXPECT_FALSE(Replacement->IsItemEnabled(*Open));
    EXPECT_TRUE(Replacement->IsItemEnabled(*Copy));
    Bar->CloseMenu();
}

// --- the end

TEST_F(MainMenuReplacementTest, UninitialisedNothingHappensAnyMore) {
    Replace();
    Replacement->Uninitialize();
    EXPECT_FALSE(Replacement->IsItemEnabled(*Copy));
    AddItem(Menu->GetItems(), L"&Help");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Captions(*Bar), (Names{L"&File", L"&Edit"}));
    Replacement->LoadMenu(*Manager, Clients(), *File, false);
    EXPECT_EQ(Clients().GetCount(), 2);
    Replacement->BuildSubMenu(*Bar->ActionControls()[0]);
    EXPECT_EQ(Clients().GetItem(0)->GetItems().GetCount(), 1);
    EXPECT_EQ(Openings[File], 0);
    Bar->RecreateControls();
    EXPECT_FALSE(dynamic_cast<TQV7StyleMenuButton*>(Bar->ActionControls()[0]));
}

TEST_F(MainMenuReplacementTest, MenuManagerAndBarMayGoFirst) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    delete Bar;
    delete Menu;
    delete Manager;
    Replacement->UpdateActionMainMenuBar(nullptr);
    Replacement.reset();
}

TEST_F(MainMenuReplacementTest, WithoutTheReplacementTheBarWorksOn) {
    Replace();
    Replacement.reset();
    EXPECT_FALSE(Bar->OnPopup);
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress(VK_F10);
    EXPECT_FALSE(Bar->GetInMenuLoop());
}

TEST_F(MainMenuReplacementTest, AProxyForgetsAFreedItem) {
    TABMenuAction action(nullptr);
    EXPECT_TRUE(action.HandlesTarget(nullptr));
    action.ExecuteTarget(nullptr);
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(L"x");
    item->OnClick = [this](TObject* sender) { NoteClick(sender); };
    action.SetMenuItem(item);
    action.ExecuteTarget(nullptr);
    EXPECT_EQ(Clicked, Names{L"x"});
    delete item;
    EXPECT_EQ(action.GetMenuItem(), nullptr);
    action.ExecuteTarget(nullptr);
}

// --- pixels

TEST_F(MainMenuReplacementTest, ItemsArePaintedByTheInstalledPainter) {
    Save->SetChecked(true);
    Replace();
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    TActionPopupMenu& menu = OpenMenu();
    int width = 0;
    int height = 0;
    QV7SkinMenuItemPainter()->MeasureItem(*Save, menu.GetCanvas(), width, height);
    const TCustomActionControl* save = menu.ActionControls()[2];
    EXPECT_EQ(save->GetHeight(), height);
    EXPECT_GE(save->GetWidth(), width);
    const Pixels shown = ReadClient(menu.WindowHandle());
    const Pixels drawn = Drawn(save->GetWidth(), save->GetHeight(), 0, [&](HDC dc) {
        TCanvas canvas;
        canvas.SetHandle(dc);
        QV7SkinMenuItemPainter()->DrawItem(*Save, canvas, {0, 0, save->GetWidth(), save->GetHeight()}, false,
                                           true);
        canvas.SetHandle(nullptr);
    });
    EXPECT_TRUE(SamePixels(shown.Part(save->GetBoundsRect()), drawn));
    EXPECT_EQ(drawn.At(10, 1), 0x00F0EAE7U);
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, AnItemThatTheCallbackTurnsOffLooksDisabled) {
    Replace();
    Replacement->OnIsItemEnabled = [&](TObject*, TMenuItem* item, const GUID&, bool& enabled) {
        enabled = enabled && item != Save;
    };
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    TActionPopupMenu& menu = OpenMenu();
    const Pixels shown = ReadClient(menu.WindowHandle());
    EXPECT_EQ(shown.Part(menu.ActionControls()[2]->GetBoundsRect()).Count(clBlack), 0);
    EXPECT_GT(shown.Part(menu.ActionControls()[2]->GetBoundsRect()).Count(0x00DEC5D8), 5);
    EXPECT_TRUE(Save->GetEnabled());
    Bar->CloseMenu();
}

TEST_F(MainMenuReplacementTest, TheHighlightedCaptionOfTheBarIsAGradient) {
    Replace();
    Input.KeyPress(VK_F10);
    const Pixels shown = ReadClient(Bar->WindowHandle());
    const TRect place = Bar->ActionControls()[0]->GetBoundsRect();
    EXPECT_EQ(shown.At(place.Left, place.Top + 5), 0x00C5C5C5U);
    EXPECT_NE(shown.At(place.Left + 2, place.Top + 2), shown.At(place.Left + 2, place.Bottom - 3));
    const TRect other = Bar->ActionControls()[1]->GetBoundsRect();
    EXPECT_EQ(shown.At(other.Left, other.Top + 5), ColorToRGB(Bar->GetColor()));
    Bar->CloseMenu();
}

}  // namespace
}  // namespace test
