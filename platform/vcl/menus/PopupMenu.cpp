#include "platform/vcl/menus/PopupMenu.h"

#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/menus/MenuLoop.h"
#include "platform/vcl/menus/MenuRows.h"
#include "platform/vcl/menus/PopupWindow.h"

namespace vcl {

const TMetaClass& TPopupMenu::StaticClass() {
    using C = TPopupMenu;
    static const TMetaClass meta =
        DefineClass<C>(L"TPopupMenu", TContextMenu::StaticClass())
            .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, paLeft)
            .With(MenuRows)
            .Property(L"AutoPopup", &C::GetAutoPopup, &C::SetAutoPopup, true)
            .Property(L"HelpContext", &C::GetHelpContext, &C::SetHelpContext, 0)
            .Property(L"MenuAnimation", &C::GetMenuAnimation, &C::SetMenuAnimation, TMenuAnimations())
            .Property(L"TrackButton", &C::GetTrackButton, &C::SetTrackButton, tbRightButton)
            .Event(L"OnClose", &C::OnClose)
            .Event(L"OnPopup", &C::OnPopup);
    return meta;
}

TPopupMenu::TPopupMenu(TComponent* AOwner) : TContextMenu(AOwner), TMenu(static_cast<TContextMenu&>(*this)) {
    TPopupWindow::Enter(this);
}

TPopupMenu::~TPopupMenu() {
    Destroying();
    if (FShown) ::EndMenu();
    TPopupWindow::Leave(this);
}

UINT TPopupMenu::TrackFlags() const {
    UINT flags = 0;
    switch (FAlignment) {
        case paLeft:
            flags |= TPM_LEFTALIGN;
            break;
        case paRight:
            flags |= TPM_RIGHTALIGN;
            break;
        case paCenter:
            flags |= TPM_CENTERALIGN;
            break;
    }
    flags |= FTrackButton == tbRightButton ? TPM_RIGHTBUTTON : TPM_LEFTBUTTON;
    if (FMenuAnimation.Contains(maLeftToRight)) flags |= TPM_HORPOSANIMATION;
    if (FMenuAnimation.Contains(maRightToLeft)) flags |= TPM_HORNEGANIMATION;
    if (FMenuAnimation.Contains(maTopToBottom)) flags |= TPM_VERPOSANIMATION;
    if (FMenuAnimation.Contains(maBottomToTop)) flags |= TPM_VERNEGANIMATION;
    if (FMenuAnimation.Contains(maNone)) flags |= TPM_NOANIMATION;
    return flags;
}

void TPopupMenu::Popup(int x, int y) {
    const TLifeGuard guard(static_cast<TMenu&>(*this));
    FPopupPoint = {x, y};
    DoPopup();
    if (!guard.IsAlive()) return;
    const HMENU menu = GetHandle();
    FShown = true;
    ::TrackPopupMenuEx(menu, TrackFlags(), x, y, TPopupWindow::Handle(), nullptr);
    EndMenuLoop();
    if (!guard.IsAlive()) return;
    FShown = false;
    OnClose(this);
}

void TPopupMenu::CloseMenu() {
    ::EndMenu();
}

void TPopupMenu::Notification(TComponent* component, TOperation operation) {
    TContextMenu::Notification(component, operation);
    if (operation == opRemove) NotifyRemoval(component);
}

void TPopupMenu::Loaded() {
    TContextMenu::Loaded();
    ItemsLoaded();
}

void TPopupMenu::GetChildren(const std::function<void(TComponent*)>& visit, TComponent*) {
    VisitItems(visit);
}

void TPopupMenu::SetChildOrder(TComponent* child, int order) {
    GetItems().SetChildOrder(child, order);
}

}  // namespace vcl
