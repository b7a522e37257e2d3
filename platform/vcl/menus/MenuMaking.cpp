#include "platform/vcl/menus/MenuMaking.h"

#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/menus/PopupMenu.h"

namespace vcl {

TMenuItem* NewItem(const String& caption, TShortCut shortCut, bool checked, bool enabled,
                   const TNotifyEvent& onClick, int helpContext, const String& name) {
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(caption);
    item->SetShortCut(shortCut);
    item->SetChecked(checked);
    item->SetEnabled(enabled);
    item->OnClick = onClick;
    item->SetHelpContext(helpContext);
    item->SetName(name);
    return item;
}

TMenuItem* NewLine() {
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(cLineCaption);
    return item;
}

TMenuItem* NewSubMenu(const String& caption, int helpContext, const String& name,
                      std::initializer_list<TMenuItem*> items, bool enabled) {
    TMenuItem* item = NewItem(caption, scNone, false, enabled, nullptr, helpContext, name);
    item->Add(items);
    return item;
}

TMainMenu* NewMenu(TComponent* owner, const String& name, std::initializer_list<TMenuItem*> items) {
    auto* menu = new TMainMenu(owner);
    menu->SetName(name);
    menu->GetItems().Add(items);
    return menu;
}

TPopupMenu* NewPopupMenu(TComponent* owner, const String& name, TPopupAlignment alignment, bool autoPopup,
                         std::initializer_list<TMenuItem*> items) {
    auto* menu = new TPopupMenu(owner);
    menu->SetName(name);
    menu->SetAlignment(alignment);
    menu->SetAutoPopup(autoPopup);
    menu->GetItems().Add(items);
    return menu;
}

}  // namespace vcl
