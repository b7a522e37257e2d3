// The code of docs/manual/menus.md, line by line, and what the chapter says that it does.

#include "menus/UnitQV7SkinActnCtrls.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/actions/ActionClients.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/actions/ActionMenuBars.h"
#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/menus/MenuMaking.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "tests/manual/ChapterTest.h"

namespace {

using namespace qv7skin;

class TMainForm : public TForm {
public:
    explicit TMainForm(TComponent* AOwner) : TForm(AOwner) {
        Editor->SetBounds(10, 40, 200, 100);
        Editor->SetParent(this);
        ActionMainMenuBar->SetParent(this);
    }
    void MakeMenu() {
        auto* menu = new TQV7SkinPopupMenu(this);
        menu->GetItems().Add(
            NewItem(L"&Open", ShortCut('O', {ssCtrl}), false, true, {this, &TMainForm::OpenClick}));
        Editor->SetPopupMenu(menu);
    }
    static void LookLikeTheSystem() {
        QV7SkinMenuItemPainter()->SetIncludeDescription(false);
        SetQV7SkinMenuItemPainter(nullptr);  // menus look as the system's from now on
    }
    void ReplaceMenu() {
        FReplacement =
            std::make_unique<TMainMenuReplacement>(MainMenu, ActionManager, ActionMainMenuBar, Identifier,
                                                   TIsItemEnabledEvent(this, &TMainForm::IsItemEnabled));
    }

    void OpenClick(TObject*) { ++Opened; }
    void IsItemEnabled(TObject*, TMenuItem*, const GUID&, bool&) { ++Asked; }
    int Opened = 0;
    int Asked = 0;
    TMemo* Editor = new TMemo(this);
    TMainMenu* MainMenu = new TMainMenu(this);
    TActionManager* ActionManager = new TActionManager(this);
    TActionMainMenuBar* ActionMainMenuBar = new TActionMainMenuBar(this);
    GUID Identifier{};
    std::unique_ptr<TMainMenuReplacement> FReplacement;
};

using MenusChapterTest = test::ChapterTest<TMainForm>;

TEST_F(MenusChapterTest, ARightClickOpensTheMenu) {
    Main().MakeMenu();
    const auto isOpen = [] { return ::FindWindowW(MAKEINTATOM(32768), nullptr) != nullptr; };
    test::When(isOpen, [&] { Input.KeyPress('O'); });
    Input.ClickAt(Main().Editor->GetHandle(), 50, 50, test::MouseButton::Right);
    EXPECT_TRUE(test::PumpUntil([&] { return Main().Opened == 1; }));
}

TEST_F(MenusChapterTest, WithoutAPainterTheSystemDraws) {
    TMainForm::LookLikeTheSystem();
    EXPECT_EQ(QV7SkinMenuItemPainter(), nullptr);
    SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainterNice);
}

TEST_F(MenusChapterTest, TheBarShowsTheTopmostItems) {
    Main().MainMenu->GetItems().Add(NewSubMenu(L"&File", 0, {}, {NewItem(L"&Open", 0, false, true, {})}));
    Main().ReplaceMenu();
    EXPECT_EQ(Main().ActionMainMenuBar->GetActionClient()->GetItems().GetCount(), 1);
}

}  // namespace
