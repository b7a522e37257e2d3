#include "platform/vcl/menus/Hotkeys.h"
#include "platform/vcl/menus/Menu.h"
#include "platform/vcl/menus/MenuItem.h"

// Mnemonics of their own for all items of a submenu; separators only where they separate.

namespace vcl {
void TMenuItem::SetAutoHotkeys(TMenuItemAutoFlag value) {
    if (value == FAutoHotkeys) return;
    FAutoHotkeys = value;
    Changed(true);
}

void TMenuItem::SetAutoLineReduction(TMenuItemAutoFlag value) {
    if (value == FAutoLineReduction) return;
    FAutoLineReduction = value;
    if (!IsAutomatic(&TMenuItem::FAutoLineReduction)) {
        for (TMenuItem* item : FItems)
            item->FLeftOut = false;
    }
    Changed(true);
}

bool TMenuItem::IsAutomatic(TMenuItemAutoFlag TMenuItem::*flag) const {
    for (const TMenuItem* item = this; item; item = item->FParent)
        if (item->*flag != maParent) return item->*flag == maAutomatic;
    return true;
}

bool TMenuItem::RethinkHotkeys() {
    if (IsInState(csDesigning)) return false;
    String taken;
    std::vector<TMenuItem*> without;
    for (TMenuItem* item : FItems) {
        if (!item->GetVisible() || item->IsLine() || item->FCaption.empty()) continue;
        const wchar_t key = GetHotkey(CaptionText(item->FCaption));
        if (key == 0 || taken.find(key) != String::npos)
            without.push_back(item);
        else
            taken += key;
    }
    bool changed = false;
    for (TMenuItem* item : without) {
        const String caption = WithFreeHotkey(item->FCaption, taken);
        if (caption == item->FCaption) continue;
        item->FCaption = caption;
        item->FStale = changed = true;
    }
    return changed;
}

bool TMenuItem::RethinkLines() {
    if (IsInState(csDesigning)) return false;
    bool changed = false;
    const auto leaveOut = [&](TMenuItem* line, bool value) {
        if (line->FLeftOut == value) return;
        line->FLeftOut = value;
        changed = true;
    };
    TMenuItem* lastLine = nullptr;
    bool lineMayStand = false;
    for (TMenuItem* item : FItems) {
        if (!item->FVisible) continue;
        if (!item->IsLine()) {
            leaveOut(item, false);
            lineMayStand = true;
            lastLine = nullptr;
            continue;
        }
        leaveOut(item, !lineMayStand);
        if (lineMayStand) lastLine = item;
        lineMayStand = false;
    }
    if (lastLine) leaveOut(lastLine, true);
    return changed;
}

void TMenuItem::PutInOrder() {
    if (IsInState(csLoading) || FItems.empty()) return;
    if (IsAutomatic(&TMenuItem::FAutoLineReduction)) RethinkLines();
    if (IsAutomatic(&TMenuItem::FAutoHotkeys)) RethinkHotkeys();
}

}  // namespace vcl
