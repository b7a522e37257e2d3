#include "menus/UnitQV7SkinActnCtrls.h"
#include "tests/menus/ReplacementFixture.h"
#include "tests/support/FreedMemory.h"

// What handlers of the host may do while a menu is mirrored: fail, and free what is worked on.

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;
using Names = std::vector<std::wstring>;

class ReplacementHandlersTest : public ReplacementTest {
protected:
    /// Opens the file menu, with the handler in place of the callback that is asked for `Save`.
    void OpenAsking(const std::function<void()>& handler) {
        Replacement->OnIsItemEnabled = [this, handler](TObject*, TMenuItem* item, const GUID&, bool&) {
            if (item == Save) handler();
        };
        Input.Chord({VK_MENU}, 'F');
    }
    [[nodiscard]] TActionClients& FileClients() { return Clients().GetItem(0)->GetItems(); }
    [[nodiscard]] bool HasPlaceHolder(int index) {
        TActionClientItem& client = *Clients().GetItem(index);
        return client.HasItems() && client.GetItems().GetCount() == 1 &&
               !MenuItemOf(client.GetItems().GetItem(0));
    }
};

// --- nothing there

TEST_F(ReplacementHandlersTest, WithoutManagerBarOrMenuNothingHappens) {
    for (int missing = 0; missing < 3; ++missing) {
        TMainMenuReplacement replacement(missing == 0 ? nullptr : Menu, missing == 1 ? nullptr : Manager,
                                         missing == 2 ? nullptr : Bar, Identifier);
        if (missing > 0) replacement.UpdateActionMainMenuBar(Menu);
        replacement.UpdateActionMainMenuBar(nullptr);
        EXPECT_TRUE(Bar->ActionControls().empty()) << missing;
        EXPECT_TRUE(replacement.IsItemEnabled(*Open));
    }
    EXPECT_FALSE(Bar->OnPopup);
}

// --- errors

TEST_F(ReplacementHandlersTest, AfterAnErrorOfTheItemTheMenuIsReadAnew) {
    Save->OnClick = [](TObject*) { throw EInvalidOperation(L"no"); };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress('S');
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: no"});
    Errors.clear();
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_TRUE(Replacement->Actions().empty());
    EXPECT_TRUE(HasPlaceHolder(0));
    Save->SetCaption(L"&Store");
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Store"}));
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, AfterAnErrorOfTheSubmenuItIsAskedAgain) {
    int tries = 0;
    File->OnClick = [&](TObject*) {
        if (++tries == 1) throw EInvalidOperation(L"not yet");
    };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: not yet"});
    Errors.clear();
    EXPECT_EQ(Levels(), 0U);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(tries, 2);
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Save"}));
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, AfterAnErrorOfTheCallbackTheSubmenuIsReadAgain) {
    Replace();
    int tries = 0;
    OpenAsking([&] {
        if (++tries == 1) throw EInvalidOperation(L"who knows");
    });
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: who knows"});
    Errors.clear();
    EXPECT_EQ(Levels(), 0U);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_TRUE(HasPlaceHolder(0));
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Save"}));
    // What changes in an open menu still shows.
    FileClients().GetItem(2)->SetCaption(L"&Store");
    FileClients().Add()->SetCaption(L"&More");
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Store", L"&More"}));
    Bar->CloseMenu();
    EXPECT_TRUE(Replacement->Actions().empty());
    EXPECT_EQ(Manager->GetActionCount(), 0);
}

// --- the end in a handler

TEST_F(ReplacementHandlersTest, TheReplacementMayGoWhenASubmenuOpens) {
    const FreedMemory guard;
    File->OnClick = [&](TObject*) { Replacement.reset(); };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    EXPECT_EQ(Manager->GetActionCount(), 0);
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, TheItemMayGoWhenItsSubmenuOpens) {
    const FreedMemory guard;
    File->OnClick = [&](TObject*) { delete File; };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Levels(), 0U);
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, TheReplacementMayGoWhenItAsks) {
    const FreedMemory guard;
    Replace();
    OpenAsking([&] { Replacement.reset(); });
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    EXPECT_EQ(Manager->GetActionCount(), 0);
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, TheReplacementMayGoInTheItemThatWasChosen) {
    const FreedMemory guard;
    Save->OnClick = [&](TObject*) { Replacement.reset(); };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress('S');
    EXPECT_EQ(Replacement, nullptr);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
}

TEST_F(ReplacementHandlersTest, TheItemThatIsAskedForMayGo) {
    const FreedMemory guard;
    Replace();
    OpenAsking([&] {
        delete Save;
        Save = nullptr;
    });
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    Bar->CloseMenu();
    EXPECT_TRUE(Replacement->Actions().empty());
}

TEST_F(ReplacementHandlersTest, UninitialisedWhenItAsksItReadsNoMore) {
    Replace();
    Replacement->OnIsItemEnabled = [this](TObject*, TMenuItem*, const GUID&, bool&) {
        Replacement->Uninitialize();
    };
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(FileClients().GetCount(), 1);
    Bar->CloseMenu();
    EXPECT_EQ(FileClients().GetCount(), 1);
}

TEST_F(ReplacementHandlersTest, TheWholeMenuMayGoWhenItAsks) {
    const FreedMemory guard;
    Replace();
    OpenAsking([&] {
        delete Menu;
        Menu = nullptr;
    });
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, BarAndManagerMayGoWhenItAsks) {
    const FreedMemory guard;
    Replace();
    OpenAsking([&] {
        delete Bar;
        Bar = nullptr;
        delete Manager;
        Manager = nullptr;
    });
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    EXPECT_TRUE(Replacement->Actions().empty());
}

TEST_F(ReplacementHandlersTest, TheBarMayBeFilledAnewWhenItAsks) {
    const FreedMemory guard;
    Replace();
    OpenAsking([&] {
        Replacement->OnIsItemEnabled.Clear();
        File->SetCaption(L"&New");
        Replacement->UpdateActionMainMenuBar(Menu);
    });
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    EXPECT_TRUE(Errors.empty());
    EXPECT_EQ(Captions(*Bar), (Names{L"&New", L"&Edit"}));
    Input.Chord({VK_MENU}, 'N');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), (Names{L"&Open", L"-", L"&Save"}));
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, TheReplacementMayGoWhenTheBarIsFilledAnew) {
    const FreedMemory guard;
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Bar->OnExitMenuLoop = [&](TObject*, bool) { Replacement.reset(); };
    File->SetCaption(L"&New");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Replacement, nullptr);
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
}

// --- submenus that come and go

TEST_F(ReplacementHandlersTest, NothingOpensForItemsThatAreGone) {
    Replace();
    Input.Chord({VK_MENU}, 'E');
    delete More;
    Input.KeyPress('M');
    EXPECT_EQ(Levels(), 1U);
    Bar->CloseMenu();
    delete Menu;
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Levels(), 0U);
    Bar->CloseMenu();
    EXPECT_FALSE(Clients().GetItem(0)->HasItems());
}

TEST_F(ReplacementHandlersTest, ASubmenuThatWasEmptyOnceOpensAgain) {
    bool isEmpty = true;
    File->OnClick = [&](TObject*) {
        File->Clear();
        if (!isEmpty) AddItem(*File, L"&New");
    };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    EXPECT_EQ(Levels(), 0U);
    Bar->CloseMenu();
    EXPECT_TRUE(HasPlaceHolder(0));
    isEmpty = false;
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), Names{L"&New"});
    Bar->CloseMenu();
}

TEST_F(ReplacementHandlersTest, AnItemAtTheTopWithoutASubmenuGetsOneWithTheNextUse) {
    TMenuItem* help = AddItem(Menu->GetItems(), L"&Help");
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Bar->CloseMenu();
    EXPECT_FALSE(Clients().GetItem(2)->HasItems());
    Input.Chord({VK_MENU}, 'H');
    EXPECT_TRUE(Clicked.empty());
    AddItem(*help, L"&About");
    Input.Chord({VK_MENU}, 'F');
    Bar->CloseMenu();
    EXPECT_TRUE(HasPlaceHolder(2));
    Input.Chord({VK_MENU}, 'H');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), Names{L"&About"});
    Bar->CloseMenu();
}

}  // namespace
}  // namespace test
