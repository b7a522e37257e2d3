#include "menus/MenuItemPainter.h"
#include "platform/vcl/graphics/ImageList.h"
#include "tests/menus/ReplacementFixture.h"
#include "tests/support/FilledBitmap.h"
#include "tests/support/PixelProbe.h"

// What users and hosts do with a mirrored menu while it is open, and how it looks in both styles.

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;
using Names = std::vector<std::wstring>;

class MirroredMenuTest : public ReplacementTest {};

TEST_F(MirroredMenuTest, AnItemThatChecksItselfDoesSoOnce) {
    Save->SetAutoCheck(true);
    std::vector<bool> seen;
    Save->OnClick = [&](TObject*) { seen.push_back(Save->GetChecked()); };
    Replace();
    for (int round = 0; round < 2; ++round) {
        Input.Chord({VK_MENU}, 'F');
        Input.KeyPress('S');
    }
    EXPECT_EQ(seen, (std::vector<bool>{true, false}));
    EXPECT_FALSE(Save->GetChecked());
}

TEST_F(MirroredMenuTest, OneItemOfARadioGroupIsChecked) {
    for (TMenuItem* item : {Open, Save}) {
        item->SetRadioItem(true);
        item->SetAutoCheck(true);
        item->SetGroupIndex(4);
    }
    Open->SetChecked(true);
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress('S');
    EXPECT_TRUE(Save->GetChecked());
    EXPECT_FALSE(Open->GetChecked());
    Input.Chord({VK_MENU}, 'F');
    TActionClients& items = Clients().GetItem(0)->GetItems();
    EXPECT_FALSE(items.GetItem(0)->IsChecked());
    EXPECT_TRUE(items.GetItem(2)->IsChecked());
    Bar->CloseMenu();
}

TEST_F(MirroredMenuTest, AMenuMayBeRebuiltByTheItemThatWasChosen) {
    Save->OnClick = [&](TObject*) {
        File->Clear();
        AddItem(*File, L"&New");
    };
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Input.KeyPress('S');
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    EXPECT_EQ(Captions(OpenMenu()), Names{L"&New"});
    Input.KeyPress('N');
    EXPECT_EQ(Clicked, Names{L"&New"});
}

TEST_F(MirroredMenuTest, AnotherMainMenuMayComeWhileTheBarIsOpen) {
    auto* second = new TMainMenu(&Form());
    AddItem(*AddItem(second->GetItems(), L"&Second"), L"&Inside");
    Replace();
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    Replacement->UpdateActionMainMenuBar(second);
    EXPECT_FALSE(Bar->GetInMenuLoop());
    EXPECT_EQ(Captions(*Bar), Names{L"&Second"});
    delete Menu;
    Input.Chord({VK_MENU}, 'S');
    ASSERT_EQ(Levels(), 1U);
    Input.KeyPress('I');
    EXPECT_EQ(Clicked, (Names{L"&Second", L"&Inside"}));
}

TEST_F(MirroredMenuTest, TheReplacementMayGoWhileItsMenuIsOpen) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    Replacement.reset();
    EXPECT_EQ(Manager->GetActionCount(), 0);
    Input.KeyPress('S');
    EXPECT_TRUE(Clicked.empty());
    Bar->CloseMenu();
}

TEST_F(MirroredMenuTest, UninitialisedTheEndOfTheLoopLeavesTheSubmenus) {
    Replace();
    Input.Chord({VK_MENU}, 'F');
    Replacement->Uninitialize();
    Input.KeyPress(VK_F10);
    EXPECT_EQ(Clients().GetItem(0)->GetItems().GetCount(), 3);
    EXPECT_EQ(Replacement->Actions().size(), 3U);
}

TEST_F(MirroredMenuTest, AManagerThatIsBeingLoadedIsNotFilled) {
    TActionManager manager(nullptr);
    manager.BeginLoading();
    TMainMenuReplacement replacement(Menu, &manager, Bar, Identifier);
    EXPECT_TRUE(Bar->ActionControls().empty());
    manager.EndLoading();
    replacement.UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Captions(*Bar), (Names{L"&File", L"&Edit"}));
}

TEST_F(MirroredMenuTest, ControlsThatAreNoneOfTheFrameworksFourAreLeftAlone) {
    Replace();
    TActionClientItem* client = Clients().GetItem(0);
    for (const TMetaClass* meta :
         {&TCustomMenuItem::StaticClass(), &TCustomMenuButton::StaticClass(),
          &TQV7StyleMenuItem::StaticClass(), static_cast<const TMetaClass*>(nullptr)}) {
        const TMetaClass* chosen = meta;
        Bar->OnGetControlClass(Bar, client, chosen);
        EXPECT_EQ(chosen, meta);
    }
}

TEST_F(MirroredMenuTest, AnItemsPlaceDecidesWhetherItGetsAnAction) {
    Replace();
    for (const bool isRoot : {false, true}) {
        TActionClients& clients = Clients().GetItem(0)->GetItems();
        clients.Clear();
        Replacement->LoadMenu(*Manager, clients, *File, isRoot);
        EXPECT_EQ(Replacement->Actions().size(), 3U) << isRoot;
        EXPECT_FALSE(clients.GetAutoHotKeys());
        clients.Clear();
        Replacement->LoadMenu(*Manager, clients, Menu->GetItems(), isRoot);
        EXPECT_EQ(Replacement->Actions().size(), 3U) << isRoot;
        clients.Clear();
        Input.Chord({VK_MENU}, 'E');
        Bar->CloseMenu();
        EXPECT_TRUE(Replacement->Actions().empty());
    }
}

TEST_F(MirroredMenuTest, CaptionsAreComparedAsTheLocaleDoes) {
    File->SetCaption(L"&\u00c4ndern");
    Replace();
    const int id = Clients().GetItem(0)->GetID();
    File->SetCaption(L"&\u00e4NDERN");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_EQ(Clients().GetItem(0)->GetID(), id);
    File->SetCaption(L"&Andern");
    Replacement->UpdateActionMainMenuBar(Menu);
    EXPECT_NE(Clients().GetItem(0)->GetID(), id);
}

TEST_F(MirroredMenuTest, HiddenItemsStayHidden) {
    Save->SetVisible(false);
    Replace();
    Input.Chord({VK_MENU}, 'F');
    // The separator above has nothing to separate any more.
    EXPECT_EQ(Captions(OpenMenu()), Names{L"&Open"});
    const TActionClients& items = Clients().GetItem(0)->GetItems();
    for (const int hidden : {1, 2}) {
        EXPECT_FALSE(items.GetItem(hidden)->GetVisible());
        EXPECT_FALSE(dynamic_cast<const TABMenuAction&>(*items.GetItem(hidden)->GetAction()).GetVisible());
    }
    Bar->CloseMenu();
}

class MirroredLookTest : public ReplacementTest, public testing::WithParamInterface<TActionMenuStyle> {
protected:
    void SetUp() override {
        ReplacementTest::SetUp();
        Bar->SetStyle(GetParam());
        Save->SetHint(L"Writes the text");
        Save->SetShortCut(ShortCut('S', {ssCtrl}));
        Line->SetHint(L"Heading");
    }
    void TearDown() override {
        SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainterNice());
        ReplacementTest::TearDown();
    }
    /// What the bar shows beside its captions.
    [[nodiscard]] COLORREF BarGround() const {
        return ColorToRGB(GetParam() == amsThemed ? clMenuBar : Bar->GetColor());
    }
};

TEST_P(MirroredLookTest, EachItemLooksAsThePainterDrawsIt) {
    for (TQV7SkinMenuItemPainter* painter :
         {new TQV7SkinMenuItemPainter(),
          static_cast<TQV7SkinMenuItemPainter*>(new TQV7SkinMenuItemPainterNice())}) {
        SetQV7SkinMenuItemPainter(painter);
        Replace();
        Input.Chord({VK_MENU}, 'F');
        Input.KeyPress(VK_END);
        ASSERT_EQ(Levels(), 1U);
        const Pixels shown = ReadClient(OpenMenu().WindowHandle());
        const auto& controls = OpenMenu().ActionControls();
        for (int i = 0; i < File->GetCount(); ++i) {
            const TRect place = controls[static_cast<std::size_t>(i)]->GetBoundsRect();
            const Pixels drawn = Drawn(place.Width(), place.Height(), 0, [&](HDC dc) {
                TCanvas canvas;
                canvas.SetHandle(dc);
                int width = 0;
                int height = 0;
                painter->MeasureItem(*File->GetItem(i), canvas, width, height);
                EXPECT_EQ(place.Height(), height);
                EXPECT_GE(place.Width(), width + 12);
                painter->DrawItem(*File->GetItem(i), canvas, {0, 0, place.Width(), place.Height()}, i == 2,
                                  true);
                canvas.SetHandle(nullptr);
            });
            EXPECT_TRUE(SamePixels(shown.Part(place), drawn)) << i;
        }
        Bar->CloseMenu();
        Replacement.reset();
    }
}

TEST_P(MirroredLookTest, WhatTheCallbackTurnsOffLooksAsItWouldDisabled) {
    TImageList images(nullptr);
    const FilledBitmap picture(16, 16, clRed);
    images.Add(&picture, nullptr);
    for (const int kind : {0, 1, 2, 3}) {
        Menu->SetImages(kind == 3 ? &images : nullptr);
        Save->SetImageIndex(0);
        Save->SetDefault(kind == 1);
        Save->SetRadioItem(kind == 2);
        Save->SetChecked(kind > 0);
        if (kind == 3) AddItem(*Save, L"&Below");
        std::vector<Pixels> looks;
        for (const bool byCallback : {false, true}) {
            Save->SetEnabled(byCallback);
            Replace();
            Replacement->OnIsItemEnabled = [&](TObject*, TMenuItem* item, const GUID&, bool& enabled) {
                enabled = enabled && item != Save;
            };
            Input.Chord({VK_MENU}, 'F');
            Input.KeyPress(VK_END);
            ASSERT_EQ(Levels(), 1U);
            looks.push_back(ReadClient(OpenMenu().WindowHandle()));
            Bar->CloseMenu();
            Replacement.reset();
        }
        EXPECT_TRUE(SamePixels(looks[1], looks[0])) << kind;
        EXPECT_EQ(looks[0].Count(clRed) > 0, kind == 3);
    }
    Menu->SetImages(nullptr);
}

TEST_P(MirroredLookTest, CaptionsInTheBarAreDrawnByThePainter) {
    Bar->SetColor(0x00C0FFEE);
    Replace();
    Input.KeyPress(VK_F10);
    const Pixels shown = ReadClient(Bar->WindowHandle());
    for (std::size_t i = 0; i < 2; ++i) {
        const TCustomActionControl& control = *Bar->ActionControls()[i];
        const TRect place = control.GetBoundsRect();
        const Pixels drawn = Drawn(place.Width(), place.Height(), BarGround(), [&](HDC dc) {
            TCanvas canvas;
            canvas.SetHandle(dc);
            QV7SkinMenuItemPainter()->DrawMainMenuRootItem(
                control.ItemCaption(), canvas, {0, 0, place.Width(), place.Height()}, i == 0, true);
            canvas.SetHandle(nullptr);
        });
        EXPECT_TRUE(SamePixels(shown.Part(place), drawn)) << i;
    }
    EXPECT_EQ(shown.At(shown.Width() - 1, 0), BarGround());
    // Moved away, the highlight leaves nothing behind.
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(ReadClient(Bar->WindowHandle()).At(Bar->ActionControls()[0]->GetLeft(), 5), BarGround());
    Bar->CloseMenu();
}

TEST_P(MirroredLookTest, ACaptionWithADisabledActionIsPale) {
    TAction action(nullptr);
    action.SetCaption(L"&Edit");
    action.SetEnabled(false);
    Edit->SetAction(&action);
    Replace();
    Input.KeyPress(VK_F10);
    for (const bool isSelected : {false, true}) {
        const Pixels shown = ReadClient(Bar->WindowHandle());
        const Pixels caption = shown.Part(Bar->ActionControls()[1]->GetBoundsRect());
        EXPECT_EQ(Bar->ActionControls()[1]->GetSelected(), isSelected);
        EXPECT_GT(caption.Count(0x00DEC5D8), 5);
        EXPECT_EQ(caption.Count(clBlack), 0);
        EXPECT_EQ(caption.At(0, 5), BarGround());
        Input.KeyPress(VK_RIGHT);
    }
    Bar->CloseMenu();
    Edit->SetAction(nullptr);
}

TEST_P(MirroredLookTest, WithoutAPainterTheControlsLookAsThoseOfTheFramework) {
    SetQV7SkinMenuItemPainter(nullptr);
    Replace();
    Input.Chord({VK_MENU}, 'F');
    ASSERT_EQ(Levels(), 1U);
    const Pixels shown = ReadClient(OpenMenu().WindowHandle());
    const TRect save = OpenMenu().ActionControls()[2]->GetBoundsRect();
    const COLORREF ground = GetParam() == amsThemed ? ColorToRGB(clMenu) : 0x00FFFFFF;
    EXPECT_EQ(shown.At(save.Right - 3, save.Top + 2), ground);
    EXPECT_EQ(shown.Count(0x00FAFAFA), 0);
    Input.KeyPress('S');
    EXPECT_EQ(Clicked, Names{L"&Save"});
}

INSTANTIATE_TEST_SUITE_P(Styles, MirroredLookTest, testing::Values(amsXPStyle, amsThemed),
                         [](const auto& style) { return style.param == amsThemed ? "Themed" : "XP"; });

}  // namespace
}  // namespace test
