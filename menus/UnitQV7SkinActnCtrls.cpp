#include "menus/UnitQV7SkinActnCtrls.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {
namespace {

/// A guard of an object that may be missing.
template <class Object>
std::optional<TLifeGuard> GuardOf(const Object* object) {
    if (!object) return std::nullopt;
    return TLifeGuard(*object);
}

bool IsAlive(const std::optional<TLifeGuard>& guard) {
    return guard && guard->IsAlive();
}

}  // namespace

// --- the action that stands for a menu item

const TMetaClass& TABMenuAction::StaticClass() {
    static const TMetaClass meta = DefineClass<TABMenuAction>(L"TABMenuAction", TCustomAction::StaticClass());
    return meta;
}

TABMenuAction::~TABMenuAction() {
    if (FHolder) std::erase(FHolder->FActions, this);
    SetMenuItem(nullptr);
}

void TABMenuAction::SetMenuItem(TMenuItem* Value) {
    if (Value == FMenuItem) return;
    if (FMenuItem) FMenuItem->RemoveFreeNotification(this);
    FMenuItem = Value;
    if (Value) Value->FreeNotification(this);
}

void TABMenuAction::ExecuteTarget(TObject*) {
    if (FMenuItem) FMenuItem->Click();
}

void TABMenuAction::Notification(TComponent* Component, TOperation Operation) {
    TCustomAction::Notification(Component, Operation);
    if (Operation == opRemove && Component == FMenuItem) FMenuItem = nullptr;
}

// --- the replacement

TMainMenuReplacement::TMainMenuReplacement(TMainMenu* AMainMenu, TActionManager* AActionManager,
                                           TActionMainMenuBar* AActionMainMenuBar, const GUID& AGuid,
                                           const TIsItemEnabledEvent& AOnIsItemEnabled)
    : FMainMenu(AMainMenu),
      FActionManager(AActionManager),
      FActionMainMenuBar(AActionMainMenuBar),
      OnIsItemEnabled(AOnIsItemEnabled),
      FGuid(AGuid),
      FManagerGuard(GuardOf(AActionManager)),
      FBarGuard(GuardOf(AActionMainMenuBar)) {
    if (!FActionMainMenuBar) return;
    FActionMainMenuBar->OnPopup = {this, &TMainMenuReplacement::DoActionMainMenuBarPopup};
    FActionMainMenuBar->OnExitMenuLoop = {this, &TMainMenuReplacement::DoActionMainMenuBarExitMenuLoop};
    FActionMainMenuBar->OnGetControlClass = {this, &TMainMenuReplacement::DoActionMainMenuBarGetControlClass};
    UpdateActionMainMenuBar(FMainMenu);
}

TMainMenuReplacement::~TMainMenuReplacement() {
    FreeActions();
    if (!IsAlive(FBarGuard)) return;
    const auto release = [this](auto& event) {
        if (event.ObjectPart() == dynamic_cast<void*>(this)) event.Clear();
    };
    release(FActionMainMenuBar->OnPopup);
    release(FActionMainMenuBar->OnExitMenuLoop);
    release(FActionMainMenuBar->OnGetControlClass);
}

void TMainMenuReplacement::FreeActions() {
    while (!FActions.empty())
        delete FActions.back();
}

bool TMainMenuReplacement::CanWork() const {
    return !FUninitialized && IsAlive(FManagerGuard) && IsAlive(FBarGuard);
}

TActionBarItem& TMainMenuReplacement::BarEntry() const {
    TActionBars& bars = FActionManager->GetActionBars();
    return bars.GetCount() > 0 ? *bars.GetItem(0) : *bars.Add();
}

bool TMainMenuReplacement::NeedsRebuild(const TMainMenu& Menu) const {
    const TActionClients& clients = BarEntry().GetItems();
    const TMenuItem& items = Menu.GetItems();
    if (clients.GetCount() != items.GetCount()) return true;
    for (int i = 0; i < clients.GetCount(); ++i)
        if (CompareText(clients.GetItem(i)->GetCaption(), items.GetItem(i)->GetCaption()) != 0) return true;
    return false;
}

void TMainMenuReplacement::UpdateActionMainMenuBar(TMainMenu* AMainMenu) {
    if (!CanWork() || !AMainMenu || FActionManager->IsInState(csLoading) || !NeedsRebuild(*AMainMenu)) return;
    TActionBarItem& entry = BarEntry();
    const TLifeGuard guard(*this);
    const TLifeGuard entryGuard(entry);
    const TLifeGuard menuGuard(*AMainMenu);
    // What hears of the end of the loop may free anything.
    FActionMainMenuBar->CloseMenu();
    if (!guard.IsAlive() || !CanWork() || !entryGuard.IsAlive() || !menuGuard.IsAlive()) return;
    entry.GetItems().Clear();
    entry.SetActionBar(nullptr);
    LoadMenu(*FActionManager, entry.GetItems(), AMainMenu->GetItems(), true);
    entry.SetActionBar(FActionMainMenuBar);
    FActionMainMenuBar->SetVertMargin(2);
    FActionMainMenuBar->SetHorzMargin(6);
    FActionMainMenuBar->SetSpacing(0);
}

void TMainMenuReplacement::LoadMenu(TCustomActionList& ActionList, TActionClients& Clients,
                                    TMenuItem& MenuItem, bool) {
    if (!CanWork()) return;
    MenuItem.RethinkHotkeys();
    MenuItem.RethinkLines();
    Clients.SetAutoHotKeys(false);
    const TLifeGuard clientsGuard(Clients.Client());
    Clients.BeginUpdate();
    try {
        AddClients(ActionList, Clients, MenuItem);
    } catch (...) {
        if (clientsGuard.IsAlive()) Clients.EndUpdate();
        throw;
    }
    if (clientsGuard.IsAlive()) Clients.EndUpdate();
}

void TMainMenuReplacement::AddClients(TCustomActionList& ActionList, TActionClients& Clients,
                                      TMenuItem& MenuItem) {
    const TLifeGuard guard(*this);
    const TLifeGuard listGuard(ActionList);
    const TLifeGuard clientsGuard(Clients.Client());
    const TLifeGuard itemGuard(MenuItem);
    for (int i = 0; i < MenuItem.GetCount(); ++i) {
        AddClient(ActionList, Clients, *MenuItem.GetItem(i));
        // The host was asked about the item, and may have freed what is worked on.
        if (!guard.IsAlive() || !CanWork()) return;
        if (!listGuard.IsAlive() || !clientsGuard.IsAlive() || !itemGuard.IsAlive()) return;
    }
}

void TMainMenuReplacement::AddClient(TCustomActionList& ActionList, TActionClients& Clients,
                                     TMenuItem& Item) {
    TActionClientItem& client = *Clients.Add();
    client.SetCaption(Item.GetCaption());
    SetMenuItemOf(client, &Item);
    client.SetAction(Item.GetAction());
    client.SetVisible(Item.GetVisible());
    // A place holder: the submenu itself is read when it opens.
    if (Item.GetCount() > 0) client.GetItems().Add();
    const TLifeGuard clientGuard(client);
    const TLifeGuard itemGuard(Item);
    const bool isTopmost = !Item.GetParent() || !Item.GetParent()->GetParent();
    if (!isTopmost && !Item.GetCaption().empty() && !Item.GetAction()) AddAction(ActionList, client, Item);
    if (!clientGuard.IsAlive() || !itemGuard.IsAlive()) return;
    client.SetCaption(Item.GetCaption());
    client.SetImageIndex(Item.GetImageIndex());
    client.SetHelpContext(Item.GetHelpContext());
    client.SetShortCut(Item.GetShortCut());
    client.SetVisible(Item.GetVisible());
}

void TMainMenuReplacement::AddAction(TCustomActionList& ActionList, TActionClientItem& Client,
                                     TMenuItem& Item) {
    auto& action = *new TABMenuAction(nullptr);
    action.FHolder = this;
    FActions.push_back(&action);
    action.SetMenuItem(&Item);
    action.SetActionList(&ActionList);
    action.SetTag(Item.GetTag());
    action.SetImageIndex(Item.GetImageIndex());
    action.SetHelpContext(Item.GetHelpContext());
    action.SetVisible(Item.GetVisible());
    action.SetChecked(Item.GetChecked());
    action.SetCaption(Item.GetCaption());
    action.SetShortCut(Item.GetShortCut());
    const TLifeGuard guard(action);
    const TLifeGuard clientGuard(Client);
    const TLifeGuard itemGuard(Item);
    const bool isEnabled = IsItemEnabled(Item);
    if (!guard.IsAlive() || !clientGuard.IsAlive() || !itemGuard.IsAlive()) return;
    action.SetEnabled(isEnabled);
    action.SetAutoCheck(Item.GetAutoCheck());
    action.SetChecked(Item.GetChecked());
    action.SetGroupIndex(Item.GetGroupIndex());
    Client.SetAction(&action);
    Client.SetImageIndex(Item.GetImageIndex());
    Client.SetShortCut(Item.GetShortCut());
}

void TMainMenuReplacement::BuildSubMenu(TCustomActionControl& Control) {
    TActionClientItem* client = Control.GetActionClient();
    if (!CanWork() || !client || !client->HasItems()) return;
    if (MenuItemOf(client->GetItems().GetItem(0))) return;
    TMenuItem* item = MenuItemOf(client);
    const TLifeGuard guard(*this);
    const TLifeGuard clientGuard(*client);
    if (item) item->OnClick(item);
    // The handler may have freed the item or the replacement, or torn the bar down.
    if (!guard.IsAlive() || !CanWork() || !clientGuard.IsAlive()) return;
    item = MenuItemOf(client);
    client->GetItems().Clear();
    if (item) LoadSubMenu(*client, *item);
}

void TMainMenuReplacement::LoadSubMenu(TActionClientItem& Client, TMenuItem& Item) {
    const TLifeGuard guard(*this);
    const TLifeGuard clientGuard(Client);
    try {
        Item.RethinkHotkeys();
        LoadMenu(*FActionManager, Client.GetItems(), Item, false);
    } catch (...) {
        // Half a submenu must not be taken for the whole: it is read again when it opens next.
        if (clientGuard.IsAlive()) {
            Client.GetItems().Clear();
            Client.GetItems().Add();
        }
        throw;
    }
    if (guard.IsAlive() && clientGuard.IsAlive() && !Client.HasItems() && !Client.GetParentItem())
        FEmptied.push_back(Client.GetID());
}

bool TMainMenuReplacement::IsItemEnabled(TMenuItem& Item) {
    if (FUninitialized) return false;
    bool enabled = Item.GetEnabled();
    if (enabled) OnIsItemEnabled(this, &Item, FGuid, enabled);
    return enabled;
}

void TMainMenuReplacement::DoActionMainMenuBarPopup(TObject*, TCustomActionControl* Control) {
    if (CanWork() && Control) BuildSubMenu(*Control);
}

void TMainMenuReplacement::DoActionMainMenuBarExitMenuLoop(TObject*, bool) {
    if (!CanWork()) return;
    TActionClients& clients = BarEntry().GetItems();
    for (int i = 0; i < clients.GetCount(); ++i) {
        TActionClientItem& client = *clients.GetItem(i);
        const TMenuItem* item = MenuItemOf(&client);
        // The submenu may have been empty this time, or the item may have got one since.
        const bool wasEmpty = std::find(FEmptied.begin(), FEmptied.end(), client.GetID()) != FEmptied.end();
        if (!client.HasItems() && !wasEmpty && !(item && item->GetCount() > 0)) continue;
        client.GetItems().Clear();
        client.GetItems().Add();
    }
    FEmptied.clear();
    FreeActions();
}

void TMainMenuReplacement::DoActionMainMenuBarGetControlClass(TCustomActionBar*, TActionClient*,
                                                              const TMetaClass*& ControlClass) {
    if (!CanWork()) return;
    const std::pair<const TMetaClass*, const TMetaClass*> replaced[] = {
        {&TXPStyleMenuItem::StaticClass(), &TQV7StyleMenuItem::StaticClass()},
        {&TXPStyleMenuButton::StaticClass(), &TQV7StyleMenuButton::StaticClass()},
        {&TThemedMenuItem::StaticClass(), &TQV7StyleThemedMenuItem::StaticClass()},
        {&TThemedMenuButton::StaticClass(), &TQV7StyleThemedMenuButton::StaticClass()}};
    for (const auto& [frameworks, skins] : replaced)
        if (ControlClass == frameworks) {
            ControlClass = skins;
            return;
        }
}

}  // namespace qv7skin
