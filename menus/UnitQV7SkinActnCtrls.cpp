#include "menus/UnitQV7SkinActnCtrls.h"

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

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
      FManagerGuard(*AActionManager),
      FBarGuard(*AActionMainMenuBar) {
    FActionMainMenuBar->OnPopup = {this, &TMainMenuReplacement::DoActionMainMenuBarPopup};
    FActionMainMenuBar->OnExitMenuLoop = {this, &TMainMenuReplacement::DoActionMainMenuBarExitMenuLoop};
    FActionMainMenuBar->OnGetControlClass = {this, &TMainMenuReplacement::DoActionMainMenuBarGetControlClass};
    UpdateActionMainMenuBar(FMainMenu);
}

TMainMenuReplacement::~TMainMenuReplacement() {
    FreeActions();
    if (!FBarGuard.IsAlive()) return;
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
    return !FUninitialized && FManagerGuard.IsAlive() && FBarGuard.IsAlive();
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
    FActionMainMenuBar->CloseMenu();
    if (!CanWork()) return;
    entry.GetItems().Clear();
    entry.SetActionBar(nullptr);
    LoadMenu(*FActionManager, entry.GetItems(), AMainMenu->GetItems(), true);
    entry.SetActionBar(FActionMainMenuBar);
    FActionMainMenuBar->SetVertMargin(2);
    FActionMainMenuBar->SetHorzMargin(6);
    FActionMainMenuBar->SetSpacing(0);
}

void TMainMenuReplacement::LoadMenu(TCustomActionList& ActionList, TActionClients& Clients,
                                    TMenuItem& MenuItem, bool Root) {
    if (!CanWork()) return;
    MenuItem.RethinkHotkeys();
    MenuItem.RethinkLines();
    Clients.SetAutoHotKeys(false);
    const bool isBar = Root || !MenuItem.GetParent();
    Clients.BeginUpdate();
    for (int i = 0; i < MenuItem.GetCount(); ++i) {
        TMenuItem& child = *MenuItem.GetItem(i);
        TActionClientItem& client = *Clients.Add();
        client.SetCaption(child.GetCaption());
        SetMenuItemOf(client, &child);
        client.SetAction(child.GetAction());
        client.SetVisible(child.GetVisible());
        // A place holder: the submenu itself is read when it opens.
        if (child.GetCount() > 0) client.GetItems().Add();
        if (!isBar && !child.GetCaption().empty() && !child.GetAction()) AddAction(ActionList, client, child);
        client.SetCaption(child.GetCaption());
        client.SetImageIndex(child.GetImageIndex());
        client.SetHelpContext(child.GetHelpContext());
        client.SetShortCut(child.GetShortCut());
        client.SetVisible(child.GetVisible());
    }
    Clients.EndUpdate();
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
    action.SetEnabled(IsItemEnabled(Item));
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
    if (!item) return;
    const TLifeGuard guard(*client);
    item->OnClick(item);
    // The handler may have freed the item, or torn the bar down.
    if (!CanWork() || !guard.IsAlive()) return;
    item = MenuItemOf(client);
    client->GetItems().Clear();
    if (!item) return;
    item->RethinkHotkeys();
    LoadMenu(*FActionManager, client->GetItems(), *item, false);
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
        if (!client.HasItems()) continue;
        client.GetItems().Clear();
        client.GetItems().Add();
    }
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
