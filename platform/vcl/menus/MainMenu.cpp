#include "platform/vcl/menus/MainMenu.h"

#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/menus/MenuRows.h"

namespace vcl {

const TMetaClass& TMainMenu::StaticClass() {
    using C = TMainMenu;
    static const TMetaClass meta = DefineClass<C>(L"TMainMenu", TWindowMenu::StaticClass())
                                       .With(MenuRows)
                                       .Property(L"AutoMerge", &C::GetAutoMerge, &C::SetAutoMerge, false);
    return meta;
}

TMainMenu::TMainMenu(TComponent* AOwner) : TWindowMenu(AOwner), TMenu(static_cast<TWindowMenu&>(*this)) {}

TMainMenu::~TMainMenu() {
    Destroying();
    EndLoop();
}

/// A bar that goes while the user works it must not be used further by the system.
void TMainMenu::EndLoop() {
    if (GetItems().IsOpen()) ::EndMenu();
}

void TMainMenu::SetAutoMerge(bool value) {
    if (value == FAutoMerge) return;
    FAutoMerge = value;
    if (FWindow) ::SendMessageW(FWindow, CM_MENUCHANGED, 0, 0);
}

void TMainMenu::Merge(TMainMenu* other) {
    TMenuItem* items = other ? &other->GetItems() : nullptr;
    if (items != GetItems().GetMerged()) EndLoop();
    GetItems().MergeWith(items);
}

TWindowMenu* TMainMenu::GetMergedMenu() const {
    const TMenuItem* items = GetItems().GetMerged();
    TMenu* menu = items ? items->GetParentMenu() : nullptr;
    return menu ? dynamic_cast<TWindowMenu*>(&menu->Component()) : nullptr;
}

void TMainMenu::Unmerge(TMainMenu* other) {
    if (other && GetItems().GetMerged() == &other->GetItems()) Merge(nullptr);
}

HMENU TMainMenu::GetMenuHandle() {
    return GetItems().ShownItems().empty() ? nullptr : GetHandle();
}

void TMainMenu::SetWindowHandle(HWND window) {
    if (window != FWindow) EndLoop();
    FWindow = window;
    if (window) ::DrawMenuBar(window);
}

bool TMainMenu::HandleMenuMessage(TMessage& message) {
    if (!FWindow) return false;
    if (message.Msg == WM_ENTERMENULOOP || message.Msg == WM_EXITMENULOOP)
        GetItems().SetOpen(message.Msg == WM_ENTERMENULOOP && message.WParam == 0);
    return HandleMessage(FWindow, message);
}

void TMainMenu::Notification(TComponent* component, TOperation operation) {
    TWindowMenu::Notification(component, operation);
    if (operation == opRemove) NotifyRemoval(component);
}

void TMainMenu::Loaded() {
    TWindowMenu::Loaded();
    ItemsLoaded();
}

void TMainMenu::GetChildren(const std::function<void(TComponent*)>& visit, TComponent*) {
    VisitItems(visit);
}

void TMainMenu::SetChildOrder(TComponent* child, int order) {
    GetItems().SetChildOrder(child, order);
}

void TMainMenu::DoChange(TMenuItem* source, bool rebuild) {
    const TLifeGuard guard(*this);
    if (FWindow) {
        const bool isInBar = !source || source == &GetItems() || source->GetParent() == &GetItems();
        // A bar that becomes empty goes, and one that gets its first item comes.
        if (rebuild) ::SendMessageW(FWindow, CM_MENUCHANGED, 0, 0);
        if (guard.IsAlive() && FWindow && isInBar) ::DrawMenuBar(FWindow);
    }
    if (guard.IsAlive()) TMenu::DoChange(source, rebuild);
}

}  // namespace vcl
