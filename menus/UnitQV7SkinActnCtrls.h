#pragma once

#include <optional>
#include <vector>

#include "menus/Namespace.h"
#include "menus/SkinActionControls.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/actions/ActionMenuBars.h"
#include "platform/vcl/menus/MainMenu.h"

/// The classic main menu of a form, shown by an action main menu bar in the skin.
namespace qv7skin {

class TMainMenuReplacement;

/// Stands for a menu item without an action of its own: running it clicks the item.
class TABMenuAction : public TCustomAction {
public:
    explicit TABMenuAction(TComponent* AOwner) : TCustomAction(AOwner) {}
    ~TABMenuAction() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The item; not owned, null after it was freed.
    [[nodiscard]] TMenuItem* GetMenuItem() const { return FMenuItem; }
    void SetMenuItem(TMenuItem* Value);

    /// Whatever has the focus, the menu item is what counts.
    bool HandlesTarget(TObject*) override { return true; }
    void ExecuteTarget(TObject* Target) override;

protected:
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    friend class TMainMenuReplacement;
    TMenuItem* FMenuItem = nullptr;
    TMainMenuReplacement* FHolder = nullptr;  ///< Hears of the end: the action list may free the action.
};

/// The replacement, the menu item, the replacement's identifier, and whether the item is enabled, to be
/// turned off.
using TIsItemEnabledEvent = TEvent<void(TObject*, TMenuItem*, const GUID&, bool&)>;

/// Mirrors a main menu into the first entry of an action manager, which an action main menu bar shows in the
/// skin. The main menu stays what counts: its items are read when their submenu opens, and what the user
/// chooses clicks the item. Menu, manager and bar are not owned and may be freed before the replacement.
/// Handlers that it calls may free it.
class TMainMenuReplacement : public TObject, private TGuarded {
public:
    /// Fills the bar. It takes the bar's `OnPopup`, `OnExitMenuLoop` and `OnGetControlClass` for itself. It
    /// does nothing without a menu, a manager or a bar (null).
    TMainMenuReplacement(TMainMenu* AMainMenu, TActionManager* AActionManager,
                         TActionMainMenuBar* AActionMainMenuBar, const GUID& AGuid,
                         const TIsItemEnabledEvent& AOnIsItemEnabled = nullptr);
    ~TMainMenuReplacement() override;

    /// Fills the bar anew when the number of items in the menu's bar or one of their captions, case aside,
    /// has changed.
    void UpdateActionMainMenuBar(TMainMenu* AMainMenu);
    /// Adds a client for each item of the submenu of `MenuItem`. `Root` says that they are those of the bar;
    /// whether an item gets an action depends on its own place only.
    void LoadMenu(TCustomActionList& ActionList, TActionClients& Clients, TMenuItem& MenuItem, bool Root);
    /// Fills the submenu of a control that is going to drop down, once in each use of the menu. The item's
    /// `OnClick` runs first.
    void BuildSubMenu(TCustomActionControl& Control);
    /// The item's own switch, unless the callback turns it off; false when uninitialised.
    [[nodiscard]] bool IsItemEnabled(TMenuItem& Item);
    /// Ends all work: from here on nothing happens any more. Called before the bar is torn down.
    void Uninitialize() { FUninitialized = true; }
    [[nodiscard]] bool GetUninitialized() const { return FUninitialized; }
    [[nodiscard]] const GUID& GetGuid() const { return FGuid; }
    /// The actions that stand for menu items now.
    [[nodiscard]] const std::vector<TABMenuAction*>& Actions() const { return FActions; }

private:
    friend class TABMenuAction;

    /// False when there is nothing to work on any more.
    [[nodiscard]] bool CanWork() const;
    [[nodiscard]] TActionBarItem& BarEntry() const;
    [[nodiscard]] bool NeedsRebuild(const TMainMenu& Menu) const;
    void FreeActions();
    void AddClients(TCustomActionList& ActionList, TActionClients& Clients, TMenuItem& MenuItem);
    void AddClient(TCustomActionList& ActionList, TActionClients& Clients, TMenuItem& Item);
    void AddAction(TCustomActionList& ActionList, TActionClientItem& Client, TMenuItem& Item);
    void LoadSubMenu(TActionClientItem& Client, TMenuItem& Item);
    void DoActionMainMenuBarPopup(TObject* Sender, TCustomActionControl* Control);
    void DoActionMainMenuBarExitMenuLoop(TObject* Sender, bool Cancelled);
    void DoActionMainMenuBarGetControlClass(TCustomActionBar* Sender, TActionClient* Client,
                                            const TMetaClass*& ControlClass);

    TMainMenu* FMainMenu;
    TActionManager* FActionManager;
    TActionMainMenuBar* FActionMainMenuBar;
    std::vector<TABMenuAction*> FActions;  ///< Owned.

public:
    /// Asked whether an item is enabled that is so by itself; may be unset.
    TIsItemEnabledEvent OnIsItemEnabled;

private:
    GUID FGuid;
    bool FUninitialized = false;
    std::optional<TLifeGuard> FManagerGuard;
    std::optional<TLifeGuard> FBarGuard;
    std::vector<int> FEmptied;  ///< Numbers of clients in the bar whose submenu was empty when it opened.
};

}  // namespace qv7skin
