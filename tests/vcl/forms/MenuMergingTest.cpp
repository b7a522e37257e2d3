#include "platform/vcl/forms/MenuMerging.h"

#include "platform/vcl/menus/MainMenu.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;
using Names = std::vector<std::wstring>;

/// A main form with a menu, and a second form whose menu merges into it.
class MenuMergingTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        Application().SetMainForm(&Form());
        Main = AddMenu(Form(), {L"&File", L"&Window"}, {0, 5});
        Second = MakeForm();
        Guest = AddMenu(*Second, {L"&Picture"}, {3});
        Guest->SetAutoMerge(true);
    }
    void TearDown() override {
        Third.reset();
        Second.reset();
        Application().SetMainForm(nullptr);
        MenuTest::TearDown();
    }
    std::unique_ptr<TForm> MakeForm() {
        auto form = std::make_unique<TForm>(nullptr);
        form->SetBounds(200, 250, 300, 200);
        return form;
    }
    TMainMenu* AddMenu(TForm& form, const Names& captions, const std::vector<int>& groups) {
        auto* menu = new TMainMenu(&form);
        for (std::size_t i = 0; i < captions.size(); ++i) {
            TMenuItem* item = AddItem(menu->GetItems(), captions[i]);
            item->SetGroupIndex(groups[i]);
            item->OnClick.Clear();
            AddItem(*item, L"&Inside " + StripHotkey(captions[i]));
        }
        form.SetMenu(menu);
        return menu;
    }
    [[nodiscard]] static Names BarOf(TForm& form) {
        const HMENU menu = GetMenu(form.GetHandle());
        return menu ? EntryTexts(menu) : Names();
    }
    static inline const Names OwnBar{L"&File", L"&Window"};
    static inline const Names MergedBar{L"&File", L"&Picture", L"&Window"};

    TMainMenu* Main = nullptr;
    TMainMenu* Guest = nullptr;
    std::unique_ptr<TForm> Second;
    std::unique_ptr<TForm> Third;
};

TEST_F(MenuMergingTest, TheMenuOfTheFormInUseStandsInTheBarOfTheMainForm) {
    EXPECT_EQ(BarOf(Form()), OwnBar);
    Second->Show();
    EXPECT_EQ(BarOf(Form()), MergedBar);
    EXPECT_EQ(BarOf(*Second), Names());
    EXPECT_EQ(Main->GetMergedMenu(), Guest);
    // The user reaches the bar: it stays while the main form is active.
    SetActiveWindow(Form().GetHandle());
    EXPECT_EQ(BarOf(Form()), MergedBar);
    Second->Hide();
    EXPECT_EQ(BarOf(Form()), OwnBar);
    Second->Show();
    EXPECT_EQ(BarOf(Form()), MergedBar);
}

TEST_F(MenuMergingTest, TheUserChoosesAnItemInTheMergedBar) {
    Second->Show();
    SetActiveWindow(Form().GetHandle());
    Later([&] { Input.Chord({VK_MENU}, 'P'); });
    WhenOpen([&] {
        EXPECT_EQ(EntryTexts(OpenMenu()), Names{L"&Inside Picture"});
        Input.KeyPress('I');
    });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked, Names{L"Inside Picture"});
}

TEST_F(MenuMergingTest, ShortCutsOfBothMenusWorkOnce) {
    Guest->GetItems()[0]->GetItem(0)->SetShortCut(VK_F7);
    Main->GetItems()[0]->GetItem(0)->SetShortCut(VK_F8);
    Second->Show();
    for (TForm* form : {Second.get(), &Form()}) {
        SetActiveWindow(form->GetHandle());
        Input.KeyPress(VK_F7);
        Input.KeyPress(VK_F8);
    }
    EXPECT_EQ(Clicked, (Names{L"Inside Picture", L"Inside File", L"Inside Picture", L"Inside File"}));
}

TEST_F(MenuMergingTest, TheFormUsedLastIsTheOneThatIsMerged) {
    Third = MakeForm();
    AddMenu(*Third, {L"&Table"}, {3})->SetAutoMerge(true);
    Second->Show();
    Third->Show();
    EXPECT_EQ(BarOf(Form()), (Names{L"&File", L"&Table", L"&Window"}));
    SetActiveWindow(Second->GetHandle());
    EXPECT_EQ(BarOf(Form()), MergedBar);
    Third.reset();
    EXPECT_EQ(BarOf(Form()), MergedBar);
    Second.reset();
    EXPECT_EQ(BarOf(Form()), OwnBar);
}

TEST_F(MenuMergingTest, WithoutAutoMergeEachFormHasItsBar) {
    Second->Show();
    Guest->SetAutoMerge(false);
    EXPECT_EQ(BarOf(Form()), OwnBar);
    EXPECT_EQ(BarOf(*Second), Names{L"&Picture"});
    const int height = Second->GetClientHeight();
    Guest->SetAutoMerge(true);
    EXPECT_EQ(BarOf(Form()), MergedBar);
    EXPECT_EQ(BarOf(*Second), Names());
    EXPECT_GT(Second->GetClientHeight(), height);
}

TEST_F(MenuMergingTest, WhereThereIsNothingToMergeIntoTheFormHasABar) {
    Form().SetMenu(nullptr);
    Second->Show();
    EXPECT_EQ(BarOf(*Second), Names{L"&Picture"});
    Form().SetMenu(Main);
    EXPECT_EQ(BarOf(*Second), Names());
    EXPECT_EQ(BarOf(Form()), MergedBar);
    Application().SetMainForm(Second.get());
    EXPECT_EQ(BarOf(*Second), Names{L"&Picture"});
    EXPECT_EQ(BarOf(Form()), OwnBar);
    Application().SetMainForm(&Form());
}

TEST_F(MenuMergingTest, AnotherMenuOfTheMainFormKeepsTheGuest) {
    Second->Show();
    TMainMenu* other = AddMenu(Form(), {L"&Other"}, {0});
    EXPECT_EQ(Form().GetMenu(), other);
    EXPECT_EQ(BarOf(Form()), (Names{L"&Other", L"&Picture"}));
    EXPECT_EQ(Main->GetMergedMenu(), nullptr);
}

TEST_F(MenuMergingTest, TheMainFormMayBeGoneOrGetItsMenuLate) {
    Second->Show();
    delete Guest;
    EXPECT_EQ(BarOf(Form()), OwnBar);
    Guest = AddMenu(*Second, {L"&Picture"}, {3});
    Guest->SetAutoMerge(true);
    EXPECT_EQ(BarOf(Form()), MergedBar);
    delete Main;
    EXPECT_EQ(BarOf(Form()), Names());
    EXPECT_EQ(BarOf(*Second), Names{L"&Picture"});
}

TEST_F(MenuMergingTest, AModalFormHasABarOfItsOwn) {
    Names shown;
    Names main;
    When([&] { return Second->GetActive(); },
         [&] {
             shown = BarOf(*Second);
             main = BarOf(Form());
             Second->SetModalResult(mrOk);
         });
    Second->ShowModal();
    EXPECT_EQ(shown, Names{L"&Picture"});
    EXPECT_EQ(main, OwnBar);
    Second->Show();
    EXPECT_EQ(BarOf(*Second), Names());
    EXPECT_EQ(BarOf(Form()), MergedBar);
}

TEST_F(MenuMergingTest, ChangesOfTheGuestShowInTheBar) {
    Second->Show();
    TMenuItem* picture = Guest->GetItems()[0];
    picture->SetCaption(L"P&hoto");
    EXPECT_EQ(BarOf(Form()), (Names{L"&File", L"P&hoto", L"&Window"}));
    TMenuItem* more = AddItem(Guest->GetItems(), L"&More");
    more->SetGroupIndex(4);
    EXPECT_EQ(BarOf(Form()), (Names{L"&File", L"P&hoto", L"&More", L"&Window"}));
    delete more;
    picture->SetVisible(false);
    EXPECT_EQ(BarOf(Form()), OwnBar);
}

TEST_F(MenuMergingTest, AMenuThatHadABarOfItsOwnFollowsChangesInBoth) {
    Guest->SetAutoMerge(false);
    Second->Show();
    Main->Merge(Guest);
    EXPECT_EQ(BarOf(*Second), Names{L"&Picture"});
    EXPECT_EQ(BarOf(Form()), MergedBar);
    Guest->GetItems()[0]->SetCaption(L"P&hoto");
    EXPECT_EQ(BarOf(*Second), Names{L"P&hoto"});
    EXPECT_EQ(BarOf(Form()), (Names{L"&File", L"P&hoto", L"&Window"}));
}

}  // namespace
}  // namespace test
