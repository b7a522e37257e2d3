#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/actions/ActionMenuBars.h"
#include "platform/vcl/actions/ActionMenuItems.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using Names = std::vector<std::wstring>;

class ActionMainMenuBarTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Manager = new TActionManager(&Form());
        Bar = Make<TActionMainMenuBar>({0, 0, 400, 24});
        Entry = Manager->GetActionBars().Add();
        TActionClientItem* file = AddClient(Entry->GetItems(), L"&File");
        AddClient(file->GetItems(), L"&Open");
        AddClient(file->GetItems(), L"-");
        AddClient(file->GetItems(), L"&Save");
        TActionClientItem* edit = AddClient(Entry->GetItems(), L"&Edit");
        AddClient(edit->GetItems(), L"&Copy");
        TActionClientItem* more = AddClient(edit->GetItems(), L"&More");
        AddClient(more->GetItems(), L"&Deep");
        Entry->SetActionBar(Bar);
        Editor = Make<TEdit>({10, 60, 100, 90});
        Editor->SetFocus();
        Bar->OnExitMenuLoop = [this](TObject*, bool cancelled) {
            ++Exits;
            Cancelled = cancelled;
        };
        Bar->OnPopup = [this](TObject*, TCustomActionControl* control) {
            Popups.push_back(control->ItemCaption());
        };
    }
    /// A client whose action notes its caption in `Ran`; separators and parents too.
    TActionClientItem* AddClient(TActionClients& clients, const std::wstring& caption) {
        auto* action = new TAction(&Form());
        action->SetCaption(caption);
        action->SetActionList(Manager);
        action->SetOnExecute([this, caption](TObject*) { Ran.push_back(caption); });
        TActionClientItem* client = clients.Add();
        client->SetAction(action);
        return client;
    }
    [[nodiscard]] static POINT Center(const TCustomActionControl* control) {
        return control->ClientToScreen({control->GetWidth() / 2, control->GetHeight() / 2});
    }
    [[nodiscard]] POINT OnBar(std::size_t index) const { return Center(Bar->ActionControls()[index]); }
    [[nodiscard]] POINT InMenu(std::size_t level, std::size_t index) const {
        return Center(Bar->OpenMenus()[level]->ActionControls()[index]);
    }
    [[nodiscard]] static Names Captions(const TCustomActionBar& bar) {
        Names names;
        for (const TCustomActionControl* control : bar.ActionControls())
            names.push_back(control->ItemCaption());
        return names;
    }
    /// The caption that is highlighted in the menu of that level, or in the bar (-1).
    [[nodiscard]] std::wstring Highlighted(int level) const {
        const TCustomActionBar& bar = level < 0 ? static_cast<TCustomActionBar&>(*Bar)
                                                : *Bar->OpenMenus()[static_cast<std::size_t>(level)];
        for (const TCustomActionControl* control : bar.ActionControls())
            if (control->GetSelected()) return control->ItemCaption();
        return {};
    }
    [[nodiscard]] std::size_t Levels() const { return Bar->OpenMenus().size(); }

    TActionManager* Manager = nullptr;
    TActionMainMenuBar* Bar = nullptr;
    TActionBarItem* Entry = nullptr;
    TEdit* Editor = nullptr;
    Names Ran;
    Names Popups;
    int Exits = 0;
    bool Cancelled = false;
};

TEST_F(ActionMainMenuBarTest, TheBarShowsAButtonForEachVisibleItem) {
    EXPECT_EQ(Captions(*Bar), (Names{L"&File", L"&Edit"}));
    EXPECT_TRUE(dynamic_cast<TXPStyleMenuButton*>(Bar->ActionControls()[0]));
    EXPECT_GT(Bar->ActionControls()[1]->GetLeft(), Bar->ActionControls()[0]->GetLeft());
    Entry->GetItems().GetItem(0)->SetVisible(false);
    EXPECT_EQ(Captions(*Bar), Names{L"&Edit"});
    Entry->SetActionBar(nullptr);
    EXPECT_TRUE(Bar->ActionControls().empty());
}

TEST_F(ActionMainMenuBarTest, MarginsAndSpacingPlaceTheButtons) {
    Bar->SetHorzMargin(6);
    Bar->SetVertMargin(2);
    Bar->SetSpacing(3);
    const auto& controls = Bar->ActionControls();
    EXPECT_EQ(controls[0]->GetLeft(), 6);
    EXPECT_EQ(controls[0]->GetTop(), 2);
    EXPECT_EQ(controls[1]->GetLeft(), 6 + controls[0]->GetWidth() + 3);
    EXPECT_EQ(Bar->GetHeight(), controls[0]->GetHeight() + 4);
}

TEST_F(ActionMainMenuBarTest, ABarWithoutAWindowWaitsForItsPlace) {
    TActionMainMenuBar bar(nullptr);
    Entry->SetActionBar(&bar);
    EXPECT_EQ(Captions(bar), (Names{L"&File", L"&Edit"}));
    bar.SetParent(&Form());
    EXPECT_GT(bar.ActionControls()[1]->GetLeft(), 0);
}

TEST_F(ActionMainMenuBarTest, APressOpensAndAClickChooses) {
    Input.MoveTo(OnBar(0));
    Input.Press();
    ASSERT_EQ(Levels(), 1U);
    Input.Release();
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(*Bar->OpenMenus()[0]), (Names{L"&Open", L"-", L"&Save"}));
    EXPECT_EQ(Popups, Names{L"&File"});
    Input.MoveTo(InMenu(0, 2));
    EXPECT_EQ(Highlighted(0), L"&Save");
    Input.Click();
    EXPECT_EQ(Ran, Names{L"&Save"});
    EXPECT_EQ(Exits, 1);
    EXPECT_FALSE(Cancelled);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_EQ(Levels(), 0U);
    EXPECT_TRUE(Editor->Focused());
}

TEST_F(ActionMainMenuBarTest, PressDragAndReleaseChooses) {
    Input.MoveTo(OnBar(0));
    Input.Press();
    ASSERT_EQ(Levels(), 1U);
    Input.MoveTo(InMenu(0, 0));
    Input.Release();
    EXPECT_EQ(Ran, Names{L"&Open"});
}

TEST_F(ActionMainMenuBarTest, MovingAlongTheOpenBarSlides) {
    Input.MoveTo(OnBar(0));
    Input.Click();
    ASSERT_EQ(Levels(), 1U);
    Input.MoveTo(OnBar(1));
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(*Bar->OpenMenus()[0]), (Names{L"&Copy", L"&More"}));
    Input.MoveTo(InMenu(0, 1));
    ASSERT_TRUE(PumpUntil([&] { return Levels() == 2; }));
    Input.MoveTo(InMenu(1, 0));
    Input.Click();
    EXPECT_EQ(Ran, Names{L"&Deep"});
}

TEST_F(ActionMainMenuBarTest, SubmenusOpenAndCloseAWhileAfterTheMouse) {
    Input.MoveTo(OnBar(1));
    Input.Click();
    Input.MoveTo(InMenu(0, 1));
    EXPECT_EQ(Highlighted(0), L"&More");
    EXPECT_EQ(Levels(), 1U);
    ASSERT_TRUE(PumpUntil([&] { return Levels() == 2; }));
    Input.MoveTo(InMenu(0, 0));
    EXPECT_EQ(Highlighted(0), L"&Copy");
    EXPECT_EQ(Levels(), 2U);
    ASSERT_TRUE(PumpUntil([&] { return Levels() == 1; }));
    EXPECT_EQ(Highlighted(0), L"&Copy");
    EXPECT_EQ(Popups, (Names{L"&Edit", L"&More"}));
}

TEST_F(ActionMainMenuBarTest, APressOpensASubmenuAtOnce) {
    Input.MoveTo(OnBar(1));
    Input.Click();
    Input.MoveTo(InMenu(0, 1));
    Input.Press();
    ASSERT_EQ(Levels(), 2U);
    Input.Release();
    EXPECT_EQ(Levels(), 2U);
    Input.MoveTo(InMenu(1, 0));
    Input.Click();
    EXPECT_EQ(Ran, Names{L"&Deep"});
}

TEST_F(ActionMainMenuBarTest, TheWayIntoASubmenuMayCrossOtherItems) {
    Input.MoveTo(OnBar(1));
    Input.Click();
    Input.MoveTo(InMenu(0, 1));
    Input.Click();
    ASSERT_EQ(Levels(), 2U);
    Input.MoveTo(InMenu(0, 0));
    Input.MoveTo(InMenu(1, 0));
    EXPECT_EQ(Highlighted(0), L"&More");
    EXPECT_EQ(Highlighted(1), L"&Deep");
    ASSERT_EQ(Levels(), 2U);
    Input.Click();
    EXPECT_EQ(Ran, Names{L"&Deep"});
}

TEST_F(ActionMainMenuBarTest, KeysGoOnFromWhereTheMouseIs) {
    Input.MoveTo(OnBar(1));
    Input.Click();
    Input.MoveTo(InMenu(0, 1));
    Input.Click();
    ASSERT_EQ(Levels(), 2U);
    Input.MoveTo(InMenu(0, 0));
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Levels(), 1U);
    EXPECT_EQ(Highlighted(0), L"&More");
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Levels(), 2U);
    EXPECT_EQ(Highlighted(1), L"&Deep");
}

TEST_F(ActionMainMenuBarTest, ASecondPressOnTheButtonCloses) {
    Input.MoveTo(OnBar(0));
    Input.Click();
    ASSERT_EQ(Levels(), 1U);
    Input.Click();
    EXPECT_EQ(Levels(), 0U);
    EXPECT_EQ(Exits, 1);
    EXPECT_TRUE(Cancelled);
}

TEST_F(ActionMainMenuBarTest, APressElsewhereClosesAndGoesThrough) {
    int clicks = 0;
    auto* button = Make<TButton>({10, 120, 100, 150});
    button->OnClick = [&](TObject*) { ++clicks; };
    Input.MoveTo(OnBar(0));
    Input.Click();
    ASSERT_EQ(Levels(), 1U);
    Input.ClickAt(button->GetHandle(), 5, 5);
    EXPECT_EQ(Levels(), 0U);
    EXPECT_TRUE(Cancelled);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ActionMainMenuBarTest, F10AndArrowsWalkTheBar) {
    Input.KeyPress(VK_F10);
    ASSERT_TRUE(Bar->GetInMenuLoop());
    EXPECT_EQ(Highlighted(-1), L"&File");
    EXPECT_EQ(Levels(), 0U);
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Highlighted(-1), L"&Edit");
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Highlighted(-1), L"&File");
    Input.KeyPress(VK_DOWN);
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Highlighted(0), L"&Open");
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Highlighted(0), L"&Save");
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Highlighted(0), L"&Open");
    Input.KeyPress(VK_END);
    EXPECT_EQ(Highlighted(0), L"&Save");
    Input.KeyPress(VK_LEFT);
    EXPECT_EQ(Captions(*Bar->OpenMenus()[0]), (Names{L"&Copy", L"&More"}));
    Input.KeyPress(VK_UP);
    EXPECT_EQ(Highlighted(0), L"&More");
    Input.KeyPress(VK_RIGHT);
    ASSERT_EQ(Levels(), 2U);
    EXPECT_EQ(Highlighted(1), L"&Deep");
    Input.KeyPress(VK_LEFT);
    EXPECT_EQ(Levels(), 1U);
    Input.KeyPress(VK_RIGHT);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Ran, Names{L"&Deep"});
    EXPECT_EQ(Editor->GetText(), L"");
}

TEST_F(ActionMainMenuBarTest, AltAloneEntersAndLeaves) {
    Input.KeyPress(VK_MENU);
    EXPECT_TRUE(Bar->GetInMenuLoop());
    Input.KeyPress(VK_MENU);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_EQ(Exits, 1);
}

TEST_F(ActionMainMenuBarTest, AltWithALetterOpensAndLettersChoose) {
    Input.Chord({VK_MENU}, 'E');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Highlighted(0), L"&Copy");
    Input.KeyPress('M');
    ASSERT_EQ(Levels(), 2U);
    Input.KeyPress('D');
    EXPECT_EQ(Ran, Names{L"&Deep"});
    EXPECT_EQ(Editor->GetText(), L"");
}

TEST_F(ActionMainMenuBarTest, EscapeGoesBackLevelByLevel) {
    Input.Chord({VK_MENU}, 'E');
    Input.KeyPress('M');
    ASSERT_EQ(Levels(), 2U);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Levels(), 1U);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Levels(), 0U);
    EXPECT_TRUE(Bar->GetInMenuLoop());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_EQ(Exits, 1);
    EXPECT_TRUE(Cancelled);
}

TEST_F(ActionMainMenuBarTest, SharedLettersGoRound) {
    AddClient(Entry->GetItems().GetItem(0)->GetItems(), L"&Send");
    Entry->GetItems().GetItem(0)->GetItems().SetAutoHotKeys(false);
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress('S');
    EXPECT_EQ(Highlighted(0), L"&Save");
    Input.KeyPress('S');
    EXPECT_EQ(Highlighted(0), L"&Send");
    Input.KeyPress('S');
    EXPECT_EQ(Highlighted(0), L"&Save");
    EXPECT_TRUE(Ran.empty());
}

TEST_F(ActionMainMenuBarTest, ADisabledItemCannotBeChosen) {
    dynamic_cast<TAction*>(Entry->GetItems().GetItem(0)->GetItems().GetItem(0)->GetAction())
        ->SetEnabled(false);
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress(VK_RETURN);
    EXPECT_TRUE(Ran.empty());
    EXPECT_EQ(Levels(), 1U);
    Input.MoveTo(InMenu(0, 0));
    Input.Click();
    EXPECT_TRUE(Ran.empty());
    EXPECT_EQ(Levels(), 1U);
    Bar->CloseMenu();
}

TEST_F(ActionMainMenuBarTest, TheHandlerOfOnPopupMayRefillTheSubmenu) {
    Bar->OnPopup = [&](TObject*, TCustomActionControl* control) {
        TActionClients& items = control->GetActionClient()->GetItems();
        items.Clear();
        AddClient(items, L"&New");
    };
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(*Bar->OpenMenus()[0]), Names{L"&New"});
    Input.KeyPress('N');
    EXPECT_EQ(Ran, Names{L"&New"});
}

TEST_F(ActionMainMenuBarTest, ItemsMayGoWhileTheirMenuIsOpen) {
    Input.Chord({VK_MENU}, 'E');
    Input.KeyPress('M');
    ASSERT_EQ(Levels(), 2U);
    Entry->GetItems().GetItem(1)->GetItems().Clear();
    EXPECT_LE(Levels(), 1U);
    Entry->GetItems().Clear();
    EXPECT_EQ(Levels(), 0U);
    EXPECT_TRUE(Bar->ActionControls().empty());
    Bar->CloseMenu();
    EXPECT_FALSE(Bar->GetInMenuLoop());
}

TEST_F(ActionMainMenuBarTest, TheBarMayBeFreedByAnAction) {
    dynamic_cast<TAction*>(Entry->GetItems().GetItem(0)->GetItems().GetItem(0)->GetAction())
        ->SetOnExecute([&](TObject*) { delete std::exchange(Bar, nullptr); });
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress('O');
    EXPECT_EQ(Bar, nullptr);
    EXPECT_EQ(Exits, 0);
    EXPECT_EQ(Entry->GetActionBar(), nullptr);
}

TEST_F(ActionMainMenuBarTest, TheBarMayBeFreedWhileItIsOpen) {
    Input.Chord({VK_MENU}, 'E');
    Input.KeyPress('M');
    delete std::exchange(Bar, nullptr);
    Input.KeyPress('X');
    EXPECT_EQ(Editor->GetText(), L"x");
}

TEST_F(ActionMainMenuBarTest, LosingTheCaptureEndsIt) {
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    ReleaseCapture();
    EXPECT_EQ(Levels(), 0U);
    EXPECT_TRUE(Cancelled);
}

TEST_F(ActionMainMenuBarTest, TheProgramChoosesTheControls) {
    Names asked;
    Bar->OnGetControlClass = [&](TCustomActionBar*, TActionClient* client, const TMetaClass*& meta) {
        asked.push_back(dynamic_cast<TActionClientItem*>(client)->GetCaption());
        if (meta == &TXPStyleMenuButton::StaticClass()) meta = &TThemedMenuButton::StaticClass();
        if (meta == &TXPStyleMenuItem::StaticClass()) meta = &TThemedMenuItem::StaticClass();
    };
    Bar->RecreateControls();
    EXPECT_TRUE(dynamic_cast<TThemedMenuButton*>(Bar->ActionControls()[0]));
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_TRUE(dynamic_cast<TThemedMenuItem*>(Bar->OpenMenus()[0]->ActionControls()[0]));
    EXPECT_EQ(asked, (Names{L"&File", L"&Edit", L"&Open", L"-", L"&Save"}));
    Bar->CloseMenu();
    Bar->OnGetControlClass.Clear();
    Bar->SetStyle(amsThemed);
    EXPECT_TRUE(dynamic_cast<TThemedMenuButton*>(Bar->ActionControls()[0]));
}

TEST_F(ActionMainMenuBarTest, TheMenuStandsBelowItsButtonAndShowsItsItems) {
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    TActionPopupMenu* menu = Bar->OpenMenus()[0];
    RECT place{};
    GetWindowRect(menu->WindowHandle(), &place);
    const TPoint corner =
        Bar->ActionControls()[0]->ClientToScreen({0, Bar->ActionControls()[0]->GetHeight()});
    EXPECT_EQ(place.left, corner.X);
    EXPECT_EQ(place.top, corner.Y);
    EXPECT_EQ(::GetForegroundWindow(), Form().WindowHandle());
    const Pixels shown = ReadClient(menu->WindowHandle());
    EXPECT_EQ(shown.At(0, 0), ColorToRGB(clBtnShadow));
    const TRect second = menu->ActionControls()[2]->GetBoundsRect();
    EXPECT_GT(shown.Part(second).Count(clBlack), 5);
    Bar->CloseMenu();
}

TEST_F(ActionMainMenuBarTest, AMenuLongerThanTheScreenScrollsToTheHighlight) {
    TActionClients& items = Entry->GetItems().GetItem(0)->GetItems();
    for (int i = 0; i < 100; ++i)
        AddClient(items, L"Item " + std::to_wstring(i));
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    TActionPopupMenu* menu = Bar->OpenMenus()[0];
    EXPECT_LE(menu->GetHeight(), GetSystemMetrics(SM_CYSCREEN));
    Input.KeyPress(VK_END);
    const TRect last = menu->ActionControls().back()->GetBoundsRect();
    EXPECT_LE(last.Bottom, menu->GetHeight());
    EXPECT_GE(last.Top, 0);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Ran, Names{L"Item 99"});
}

class TBarForm : public TForm {
public:
    using TForm::TForm;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TBarForm>(L"TBarForm", TForm::StaticClass());
        return meta;
    }
};

TEST_F(ActionMainMenuBarTest, FormFilesHoldBarsWithTheirItems) {
    const std::initializer_list<const TMetaClass*> classes{
        &TActionManager::StaticClass(), &TAction::StaticClass(), &TActionMainMenuBar::StaticClass()};
    RegisterClasses(classes);
    const std::string manager =
        "  object Manager: TActionManager\r\n"
        "    ActionBars = <\r\n"
        "      item\r\n"
        "        Items = <\r\n"
        "          item\r\n"
        "            Items = <\r\n"
        "              item\r\n"
        "                Action = SaveAction\r\n"
        "              end\r\n"
        "              item\r\n"
        "                Caption = '-'\r\n"
        "              end>\r\n"
        "            Caption = '&File'\r\n"
        "          end>\r\n"
        "        ActionBar = Bar\r\n"
        "      end>\r\n"
        "    object SaveAction: TAction\r\n"
        "      Caption = '&Save'\r\n"
        "    end\r\n"
        "  end\r\n";
    const std::string text =
        "object Form: TBarForm\r\n  object Bar: TActionMainMenuBar\r\n    ActionManager = Manager\r\n  "
        "end\r\n" +
        manager + "end\r\n";
    {
        TBarForm form(nullptr);
        const TFormDocument document = ParseFormText(FromUtf8(text));
        TReader(document).ReadRootComponent(&form);
        auto* bar = dynamic_cast<TActionMainMenuBar*>(form.FindComponent(L"Bar"));
        ASSERT_NE(bar, nullptr);
        EXPECT_EQ(Captions(*bar), Names{L"&File"});
        TActionClientItem* client = bar->ActionControls()[0]->GetActionClient();
        EXPECT_EQ(client->GetItems().GetCount(), 2);
        EXPECT_EQ(client->GetItems().GetItem(0)->GetCaption(), L"&Save");
        const std::string written = FormToText(TWriter().WriteRootComponent(form));
        EXPECT_NE(written.find(manager), std::string::npos) << written;
    }
    for (const TMetaClass* meta : classes)
        UnRegisterClass(*meta);
}

}  // namespace
}  // namespace test
