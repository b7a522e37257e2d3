#include "platform/vcl/menus/MainMenu.h"

#include <algorithm>

#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/WindowProbe.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;
using Names = std::vector<std::wstring>;

class MainMenuTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        Menu = new TMainMenu(&Form());
        File = AddItem(Menu->GetItems(), L"&File");
        Open = AddItem(*File, L"&Open");
        Save = AddItem(*File, L"&Save");
        Edit = AddItem(Menu->GetItems(), L"&Edit");
        Copy = AddItem(*Edit, L"&Copy");
        for (TMenuItem* top : {File, Edit})
            top->OnClick.Clear();
        Form().SetMenu(Menu);
        Editor = Make<TEdit>({20, 20, 200, 50});
        Editor->SetFocus();
    }
    /// What the bar shows.
    [[nodiscard]] Names Bar() { return EntryTexts(GetMenu(Form().GetHandle())); }

    TMainMenu* Menu = nullptr;
    TMenuItem* File = nullptr;
    TMenuItem* Open = nullptr;
    TMenuItem* Save = nullptr;
    TMenuItem* Edit = nullptr;
    TMenuItem* Copy = nullptr;
    TEdit* Editor = nullptr;
};

TEST_F(MainMenuTest, TheBarShowsTheTopmostItems) {
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Edit"}));
    AddItem(Menu->GetItems(), L"&Help");
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Edit", L"&Help"}));
    Edit->SetVisible(false);
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Help"}));
    File->SetCaption(L"&Datei");
    EXPECT_EQ(Bar(), (Names{L"&Datei", L"&Help"}));
}

TEST_F(MainMenuTest, AnEmptyMenuHasNoBar) {
    const int full = Form().GetClientHeight();
    delete File;
    delete Edit;
    EXPECT_EQ(GetMenu(Form().GetHandle()), nullptr);
    EXPECT_GT(Form().GetClientHeight(), full);
    AddItem(Menu->GetItems(), L"&New");
    EXPECT_EQ(Bar(), Names{L"&New"});
    EXPECT_EQ(Form().GetClientHeight(), full);
}

TEST_F(MainMenuTest, AltAndALetterOpenASubmenu) {
    Later([&] { Input.Chord({VK_MENU}, 'E'); });
    WhenOpen([&] { Input.KeyPress('C'); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Copy"});
    EXPECT_TRUE(Editor->Focused());
}

TEST_F(MainMenuTest, F10ArrowsAndEnterWalkTheBar) {
    Later([&] { Input.KeyPress(VK_F10); });
    When([&] { return HighlightedEntry(GetMenu(Form().GetHandle())) == 0; },
         [&] { Input.KeyPress(VK_DOWN); });
    WhenOpen([&] { Input.KeyPress(VK_RIGHT); });
    When([&] { return HighlightedEntry(GetMenu(Form().GetHandle())) == 1; },
         [&] { Input.KeyPress(VK_LEFT); });
    When(
        [&] {
            return HighlightedEntry(GetMenu(Form().GetHandle())) == 0 && OpenMenu() == File->PresentHandle();
        },
        [&] { Input.KeyPress(VK_DOWN); });
    WhenHighlighted(1, [&] { Input.KeyPress(VK_RETURN); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Save"});
}

TEST_F(MainMenuTest, TheMouseOpensSlidesAndChooses) {
    const HMENU bar = GetMenu(Form().GetHandle());
    const auto place = [&](int index) {
        RECT r{};
        GetMenuItemRect(Form().GetHandle(), bar, static_cast<UINT>(index), &r);
        return POINT{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    };
    Later([&] {
        Input.MoveTo(place(0));
        Input.Press();
    });
    WhenOpen([&] {
        Input.Release();
        Input.MoveTo(place(1));
    });
    When([&] { return OpenMenu() == Edit->PresentHandle(); },
         [&] { Input.MoveTo(EntryCenter(OpenMenu(), 0)); });
    WhenHighlighted(0, [&] { Input.Click(); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Copy"});
}

TEST_F(MainMenuTest, AShortCutClicksItsItem) {
    Save->SetShortCut(ShortCut('S', {ssCtrl}));
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_EQ(Clicked, Names{L"Save"});
    Input.KeyPress('S');
    EXPECT_EQ(Clicked, Names{L"Save"});
    EXPECT_EQ(Editor->GetText(), L"s");
}

TEST_F(MainMenuTest, HandlersOfTheSubmenusRunBeforeTheShortCut) {
    Save->SetShortCut(VK_F5);
    Save->SetEnabled(false);
    Names order;
    File->OnClick = [&](TObject*) {
        order.push_back(L"File");
        Save->SetEnabled(true);
    };
    Input.KeyPress(VK_F5);
    EXPECT_EQ(order, Names{L"File"});
    EXPECT_EQ(Clicked, Names{L"Save"});
}

TEST_F(MainMenuTest, AHandlerMayMoveTheItemOfTheShortCut) {
    Save->SetShortCut(VK_F5);
    int edits = 0;
    File->OnClick = [&](TObject*) {
        File->Remove(Save);
        Edit->Add(Save);
    };
    Edit->OnClick = [&](TObject*) { ++edits; };
    Input.KeyPress(VK_F5);
    EXPECT_EQ(Clicked, Names{L"Save"});
    EXPECT_EQ(edits, 1);
}

TEST_F(MainMenuTest, ADisabledItemTakesItsShortCutAndDoesNothing) {
    Copy->SetShortCut(ShortCut('V', {ssCtrl}));
    Copy->SetEnabled(false);
    bool reached = false;
    Editor->OnKeyDown = [&](TObject*, WORD& key, TShiftState) { reached = reached || key == 'V'; };
    Input.Chord({VK_CONTROL}, 'V');
    EXPECT_TRUE(Clicked.empty());
    EXPECT_FALSE(reached);
    Copy->SetEnabled(true);
    Edit->SetEnabled(false);
    Input.Chord({VK_CONTROL}, 'V');
    EXPECT_TRUE(Clicked.empty());
}

TEST_F(MainMenuTest, ASubmenuMayBeRebuiltByItsOwnHandler) {
    File->OnClick = [&](TObject*) {
        File->Clear();
        AddItem(*File, L"&New one");
        AddItem(*File, L"&Last one");
    };
    Later([&] { Input.Chord({VK_MENU}, 'F'); });
    WhenOpen([&] {
        EXPECT_EQ(EntryTexts(OpenMenu()), (Names{L"&New one", L"&Last one"}));
        Input.KeyPress('L');
    });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Last one"});
}

TEST_F(MainMenuTest, AnItemMayFreeItselfWhenItIsClicked) {
    Save->SetShortCut(VK_F5);
    Save->OnClick = [](TObject* sender) { delete sender; };
    Input.KeyPress(VK_F5);
    EXPECT_EQ(File->GetCount(), 1);
    Later([&] { Input.Chord({VK_MENU}, 'F'); });
    Open->OnClick = [&](TObject*) {
        Clicked.push_back(L"last");
        delete Menu;
    };
    WhenOpen([&] { Input.KeyPress('O'); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Form().GetMenu(), nullptr);
    EXPECT_EQ(GetMenu(Form().GetHandle()), nullptr);
}

TEST_F(MainMenuTest, TheMenuMayBeReplacedWhileItsBarIsOpen) {
    auto* second = new TMainMenu(&Form());
    AddItem(second->GetItems(), L"&Second");
    Later([&] { Input.Chord({VK_MENU}, 'F'); });
    WhenOpen([&] { Form().SetMenu(second); });
    EXPECT_TRUE(PumpUntil([&] { return OpenMenuWindow() == nullptr && Form().GetMenu() == second; }));
    EXPECT_EQ(Bar(), Names{L"&Second"});
}

TEST_F(MainMenuTest, AFreedMenuLeavesNothingOpenBehind) {
    Later([&] { Input.Chord({VK_MENU}, 'F'); });
    WhenOpen([&] { delete Menu; });
    EXPECT_TRUE(PumpUntil([&] { return !OpenMenuWindow() && Form().GetMenu() == nullptr; }));
}

TEST_F(MainMenuTest, HighlightedItemsShowTheirLongHint) {
    Save->SetHint(L"Short|Saves the text");
    File->SetHint(L"Files");
    Names hints;
    Application().OnHint = [&](TObject*) { hints.push_back(Application().GetHint()); };
    Later([&] { Input.Chord({VK_MENU}, 'F'); });
    WhenOpen([&] { Input.KeyPress(VK_DOWN); });
    WhenHighlighted(1, [&] { Input.KeyPress(VK_ESCAPE); });
    Later([&] { Input.KeyPress(VK_ESCAPE); });
    EXPECT_TRUE(PumpUntil([&] { return !hints.empty() && hints.back().empty(); }));
    Application().OnHint.Clear();
    EXPECT_NE(std::find(hints.begin(), hints.end(), L"Saves the text"), hints.end());
    EXPECT_NE(std::find(hints.begin(), hints.end(), L"Files"), hints.end());
}

TEST_F(MainMenuTest, TheBarSurvivesANewWindow) {
    Form().RecreateWnd();
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Edit"}));
    AddItem(Menu->GetItems(), L"&Help");
    EXPECT_EQ(Bar().size(), 3U);
}

// --- merging

TEST_F(MainMenuTest, MergedItemsTakeThePlaceOfTheirGroup) {
    File->SetGroupIndex(1);
    Edit->SetGroupIndex(3);
    TMainMenu other(nullptr);
    TMenuItem* between = AddItem(other.GetItems(), L"&Between");
    between->SetGroupIndex(2);
    TMenuItem* instead = AddItem(other.GetItems(), L"&Instead");
    instead->SetGroupIndex(3);
    instead->SetShortCut(VK_F7);
    Menu->Merge(&other);
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Between", L"&Instead"}));
    Input.KeyPress(VK_F7);
    EXPECT_EQ(Clicked, Names{L"Instead"});
    between->SetVisible(false);
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Instead"}));
    Menu->Unmerge(&other);
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Edit"}));
}

TEST_F(MainMenuTest, AFreedMenuLeavesTheOneItWasMergedInto) {
    {
        TMainMenu other(nullptr);
        AddItem(AddItem(other.GetItems(), L"&Guest")[0], L"&Inner");
        other.GetItems().GetItem(0)->SetGroupIndex(9);
        Menu->Merge(&other);
        EXPECT_EQ(Bar().size(), 3U);
    }
    EXPECT_EQ(Bar(), (Names{L"&File", L"&Edit"}));
}

}  // namespace
}  // namespace test
