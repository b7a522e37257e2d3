#include "tests/package/Furnishing.h"

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "header/UnitQV7SkinHeaderControl.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "platform/vcl/actions/Action.h"
#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/StringList.h"
#include "platform/vcl/forms/ApplicationEvents.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/menus/ShortCuts.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/Splitter.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

/// An event that is no published one: an item's.
template <class Event, class... Args>
SceneEvent ItemEvent(const char* name, Event& event, TEvent<void(Args...)>) {
    return {name, [&event](const std::function<void()>& action) {
                event = TEvent<void(Args...)>([action](Args...) { action(); });
            }};
}

void FillTexts(TComponent& subject) {
    for (const TPublishedProperty* row : subject.ClassType().AllProperties()) {
        if (row->Kind() == TPropertyKind::Nested) {
            auto* lines = dynamic_cast<TStrings*>(std::get<TPersistent*>(row->Get(subject)));
            for (int i = 0; lines && i < 30; ++i)
                lines->Add(L"Line " + IntToStr(i));
        }
        if (row->Kind() == TPropertyKind::String && SameText(row->Name(), L"Caption"))
            row->Set(subject, String(L"&Subject"));
        if (SameText(row->Name(), L"AllowDblClick")) row->Set(subject, std::int64_t{true});
    }
}

Furniture Fill(TQV7SkinExplorerBar& bar) {
    bar.BeginUpdate();
    TQV7SkinExplorerItemLink* link = nullptr;
    for (int g = 0; g < 3; ++g) {
        TQV7SkinExplorerItems& items = bar.GetGroups().Add(L"Group " + IntToStr(g), g == 0)->GetItems();
        for (int i = 0; i < 3; ++i) {
            auto* added = new TQV7SkinExplorerItemLink(L"Link " + IntToStr(i), L"Hint");
            items.Add(added);
            if (!link) link = added;
        }
        items.Add(new TQV7SkinExplorerItemCheckBox(L"Box", 0, String(), true, true, true));
        items.Add(new TQV7SkinExplorerItemStaticText(L"Text"));
    }
    bar.EndUpdate();
    return {{ItemEvent("Link.OnClick", link->OnClick, TNotifyEvent()),
             ItemEvent("Link.OnEnter", link->OnEnter, TNotifyEvent()),
             ItemEvent("Link.OnLeave", link->OnLeave, TNotifyEvent())},
            [&bar, link] {
                const TRect place = link->ClipRect();
                return bar.GetPaintBox().ClientToScreen({place.Left + 2, (place.Top + place.Bottom) / 2});
            }};
}

Furniture Fill(TQV7SkinHeaderControl& header) {
    TQV7SkinHeaderItemTabExt* first = nullptr;
    for (int i = 0; i < 12; ++i) {
        auto* tab = new TQV7SkinHeaderItemTabExt(bckgrndStandard, L"Tab " + IntToStr(i));
        tab->SetState({i == 0 ? tesAnimated : tesLocked});
        header.GetItems().Add(tab);
        if (!first) first = tab;
    }
    header.SetAllowItemDrag(true);
    header.SetAllowItemUndock(true);
    return {{ItemEvent("Tab.OnClick", first->OnClick, THeaderItemClickEvent()),
             ItemEvent("Tab.OnEnter", first->OnEnter, THeaderItemEvent()),
             ItemEvent("Tab.OnLeave", first->OnLeave, THeaderItemEvent()),
             ItemEvent("Tab.OnUndock", first->OnUndock, THeaderItemEvent())},
            [&header] {
                return header.ClientToScreen({20, 10});
            }};
}

/// A button all over the place that the action stands behind.
void PutButton(TCustomForm& form, TWinControl& place, TCustomAction& action) {
    auto* button = new TButton(&form);
    button->SetParent(&place);
    button->SetAlign(alClient);
    button->SetAction(&action);
}

TMenuItem& AddItem(TMenu& menu, const String& caption, TShortCut shortCut) {
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(caption);
    item->SetShortCut(shortCut);
    menu.GetItems().Add(item);
    return *item;
}

Furniture Fill(TMenu& menu) {
    TMenuItem& first = AddItem(menu, L"&First", ShortCut('K', {ssCtrl}));
    AddItem(menu, L"&Second", 0);
    return {{EventOf(*TMenuItem::StaticClass().FindProperty(L"OnClick"), first)}, {}};
}

}  // namespace

Furniture Furnish(TComponent& subject, TCustomForm& form, TWinControl& place) {
    FillTexts(subject);
    if (auto* bar = dynamic_cast<TQV7SkinExplorerBar*>(&subject)) return Fill(*bar);
    if (auto* header = dynamic_cast<TQV7SkinHeaderControl*>(&subject)) return Fill(*header);
    if (auto* timer = dynamic_cast<TTimer*>(&subject)) timer->SetInterval(10);
    if (auto* drop = dynamic_cast<TCustomQV7SkinComboBoxCustomDropDown*>(&subject)) {
        if (!drop->GetDropDownForm()) {
            auto* popup = new TQV7SkinPopupForm(&form);
            (new TEdit(popup))->SetParent(popup);
            drop->SetDropDownForm(popup);
        }
    }
    if (auto* action = dynamic_cast<TCustomAction*>(&subject)) PutButton(form, place, *action);
    if (dynamic_cast<TApplicationEvents*>(&subject) || dynamic_cast<TCustomActionList*>(&subject)) {
        auto* action = new TAction(&form);
        action->SetActionList(dynamic_cast<TCustomActionList*>(&subject));
        // Without a handler it would be disabled.
        action->SetOnExecute([](TObject*) {});
        PutButton(form, place, *action);
    }
    if (auto* tree = dynamic_cast<TCustomQV7SkinTreeComboBox*>(&subject))
        tree->GetTreeItems().AddChild(tree->GetTreeItems().Add(nullptr, L"Parent"), L"Child");
    if (auto* splitter = dynamic_cast<TSplitter*>(&subject)) {
        auto* side = new TPanel(&form);
        side->SetParent(&place);
        side->SetAlign(alLeft);
        splitter->SetLeft(side->GetWidth());
        splitter->SetAlign(alLeft);
    }
    if (auto* preview = dynamic_cast<TCustomForm*>(&subject)) preview->SetKeyPreview(true);
    if (auto* item = dynamic_cast<TMenuItem*>(&subject)) {
        auto* menu = new TPopupMenu(&form);
        menu->SetOwnerDraw(true);
        menu->GetItems().Add(item);
        place.SetPopupMenu(menu);
    }
    if (auto* menu = dynamic_cast<TPopupMenu*>(&subject)) {
        place.SetPopupMenu(menu);
        return Fill(*menu);
    }
    if (auto* menu = dynamic_cast<TMainMenu*>(&subject)) {
        form.SetMenu(menu);
        return Fill(*menu);
    }
    return {};
}

void Empty(TComponent& subject) {
    if (auto* bar = dynamic_cast<TQV7SkinExplorerBar*>(&subject)) return bar->GetGroups().Clear();
    if (auto* header = dynamic_cast<TQV7SkinHeaderControl*>(&subject)) return header->GetItems().Clear();
    if (auto* tree = dynamic_cast<TCustomQV7SkinTreeComboBox*>(&subject)) return tree->GetTreeItems().Clear();
    if (auto* menu = dynamic_cast<TMenu*>(&subject)) return menu->GetItems().Clear();
    if (auto* drop = dynamic_cast<TCustomQV7SkinComboBoxCustomDropDown*>(&subject))
        return drop->SetDropDownForm(nullptr);
    for (const TPublishedProperty* row : subject.ClassType().AllProperties()) {
        if (row->Kind() != TPropertyKind::Nested) continue;
        if (auto* lines = dynamic_cast<TStrings*>(std::get<TPersistent*>(row->Get(subject))))
            return lines->Clear();
    }
}

}  // namespace test
