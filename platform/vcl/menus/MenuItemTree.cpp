#include <algorithm>

#include "platform/vcl/menus/Menu.h"
#include "platform/vcl/menus/MenuItem.h"

// The items of a submenu.

namespace vcl {

TMenuItem* TMenuItem::GetItem(int index) const {
    if (index < 0 || index >= GetCount()) throw EListError(Format(L"List index out of bounds (%d)", index));
    return FItems[static_cast<std::size_t>(index)];
}

TMenu* TMenuItem::GetParentMenu() const {
    const TMenuItem* top = this;
    while (top->FParent)
        top = top->FParent;
    return top->FMenu;
}

void TMenuItem::Add(std::initializer_list<TMenuItem*> items) {
    for (TMenuItem* item : items)
        Add(item);
}

void TMenuItem::Insert(int index, TMenuItem* item) {
    if (index < 0 || index > GetCount()) throw EListError(Format(L"List index out of bounds (%d)", index));
    if (item->FParent || item->FMenu) throw EMenuError(L"Menu inserted twice");
    for (const TMenuItem* above = this; above; above = above->FParent)
        if (above == item) throw EMenuError(L"Menu inserted twice");
    FItems.insert(FItems.begin() + index, item);
    item->FParent = this;
    item->FStale = true;
    if (item->FChecked && item->FRadioItem && !item->IsInState(csReading)) item->TurnSiblingsOff();
    Changed(true);
}

void TMenuItem::TakeOut(TMenuItem* item) {
    DropEntry(*item);
    std::erase(FItems, item);
    item->FParent = nullptr;
    item->FLeftOut = false;
}

void TMenuItem::Delete(int index) {
    TakeOut(GetItem(index));
    Changed(true);
}

void TMenuItem::Remove(TMenuItem* item) {
    const int index = IndexOf(item);
    if (index < 0) throw EMenuError(L"Sub-menu is not in menu");
    Delete(index);
}

void TMenuItem::Clear() {
    const TLifeGuard guard(*this);
    while (guard.IsAlive() && !FItems.empty())
        FItems.back()->Free();
}

int TMenuItem::IndexOf(const TMenuItem* item) const {
    const auto found = std::find(FItems.begin(), FItems.end(), item);
    return found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
}

TMenuItem* TMenuItem::Find(StringView caption) const {
    const auto found = std::find_if(FItems.begin(), FItems.end(), [&](const TMenuItem* item) {
        return SameCaption(item->FCaption, caption);
    });
    return found == FItems.end() ? nullptr : *found;
}

void TMenuItem::SetMenuIndex(int value) {
    if (!FParent) return;
    TMenuItem* parent = FParent;
    const int last = parent->GetCount() - 1;
    value = std::clamp(value, 0, last);
    const int present = GetMenuIndex();
    if (value == present) return;
    auto& items = parent->FItems;
    items.erase(items.begin() + present);
    items.insert(items.begin() + value, this);
    parent->Changed(true);
}

int TMenuItem::NewBottomLine() {
    const int index = GetCount();
    auto* line = new TMenuItem(GetOwner());
    line->SetCaption(cLineCaption);
    Add(line);
    return index;
}

int TMenuItem::NewTopLine() {
    NewBottomLine();
    FItems.back()->SetMenuIndex(0);
    return 0;
}

int TMenuItem::InsertNewLineBefore(TMenuItem* item) {
    const int index = IndexOf(item);
    if (index < 0) throw EMenuError(L"Sub-menu is not in menu");
    NewBottomLine();
    FItems.back()->SetMenuIndex(index);
    return index;
}

int TMenuItem::InsertNewLineAfter(TMenuItem* item) {
    const int index = IndexOf(item);
    if (index < 0) throw EMenuError(L"Sub-menu is not in menu");
    NewBottomLine();
    FItems.back()->SetMenuIndex(index + 1);
    return index + 1;
}

TComponent* TMenuItem::GetParentComponent() const {
    if (FParent && FParent->FMenu) return &FParent->FMenu->Component();
    return FParent;
}

void TMenuItem::SetParentComponent(TComponent* value) {
    if (FParent) FParent->Remove(this);
    if (auto* menu = dynamic_cast<TMenu*>(value)) return menu->GetItems().Add(this);
    if (auto* item = dynamic_cast<TMenuItem*>(value)) item->Add(this);
}

void TMenuItem::GetChildren(const std::function<void(TComponent*)>& visit, TComponent*) {
    for (TMenuItem* item : std::vector(FItems))
        visit(item);
}

void TMenuItem::SetChildOrder(TComponent* child, int order) {
    if (auto* item = dynamic_cast<TMenuItem*>(child)) item->SetMenuIndex(order);
}

}  // namespace vcl
