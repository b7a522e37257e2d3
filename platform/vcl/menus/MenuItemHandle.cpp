#include <algorithm>

#include "platform/vcl/menus/Menu.h"
#include "platform/vcl/menus/MenuItem.h"

// The system's menu of an item and its entries.

namespace vcl {
void TMenuItem::EmptyHandle() {
    FEntries.clear();
    while (FHandle && ::RemoveMenu(FHandle.Get(), 0, MF_BYPOSITION)) {
    }
}

void TMenuItem::MarkAllStale() {
    FStale = true;
    for (TMenuItem* item : FItems)
        item->MarkAllStale();
}

HMENU TMenuItem::GetHandle() {
    if (!FHandle) {
        const bool isBar = FMenu && FMenu->IsMenuBar();
        FHandle.Reset(isBar ? ::CreateMenu() : ::CreatePopupMenu());
        if (!FHandle) throw EOutOfResources(L"Out of system resources");
        FEntries.clear();
        for (TMenuItem* item : FItems)
            item->FStale = true;
    }
    SyncHandle();
    return FHandle.Get();
}

bool TMenuItem::NeedsSyncNow() const {
    return FHandle && (IsOpen() || (FMenu && FMenu->IsInWindow()));
}

std::vector<TMenuItem*> TMenuItem::ShownItems() const {
    const auto shown = [](const TMenuItem& parent) {
        std::vector<TMenuItem*> items;
        std::copy_if(parent.FItems.begin(), parent.FItems.end(), std::back_inserter(items),
                     [](const TMenuItem* item) { return item->GetVisible(); });
        return items;
    };
    std::vector<TMenuItem*> result = shown(*this);
    if (!FMerged) return result;
    // Both lists are in the order of their groups; a group of the other menu takes the place of ours.
    std::vector<TMenuItem*> others = shown(*FMerged);
    for (TMenuItem* other : others)
        std::erase_if(result, [&](const TMenuItem* own) { return own->FGroupIndex == other->FGroupIndex; });
    for (TMenuItem* other : others) {
        const auto place = std::find_if(result.begin(), result.end(), [&](const TMenuItem* own) {
            return own->FGroupIndex > other->FGroupIndex;
        });
        result.insert(place, other);
    }
    return result;
}

void TMenuItem::MergeWith(TMenuItem* other) {
    if (other == FMerged || other == this) return;
    if (FMerged) FMerged->FMergedInto = nullptr;
    FMerged = other;
    EmptyHandle();
    if (other) {
        if (other->FMergedInto) other->FMergedInto->MergeWith(nullptr);
        other->FMergedInto = this;
        other->PutInOrder();
    }
    Changed(true);
}

MENUITEMINFOW TMenuItem::EntryInfo(String& text) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_DATA | MIIM_STRING;
    if (FBreak == mbBreak) info.fType |= MFT_MENUBREAK;
    if (FBreak == mbBarBreak) info.fType |= MFT_MENUBARBREAK;
    if (FRadioItem) info.fType |= MFT_RADIOCHECK;
    if (IsLine()) info.fType |= MFT_SEPARATOR;
    if (IsOwnerDrawn()) info.fType |= MFT_OWNERDRAW;
    if (FChecked) info.fState |= MFS_CHECKED;
    if (FDefault) info.fState |= MFS_DEFAULT;
    // A separator can't be chosen and would else be drawn as a disabled one.
    if (!FEnabled && !IsLine()) info.fState |= MFS_DISABLED;
    info.wID = FCommand;
    info.dwItemData = FCommand;
    info.hSubMenu = FItems.empty() ? nullptr : GetHandle();
    text = FCaption;
    const String shortCut = ShortCutToText(FShortCut);
    const bool isInBar = FParent && FParent->FMenu && FParent->FMenu->IsMenuBar();
    if (!shortCut.empty() && !isInBar && FItems.empty()) text += L'\t' + shortCut;
    info.dwTypeData = text.data();
    return info;
}

void TMenuItem::SyncHandle() {
    PutInOrder();
    const std::vector<TMenuItem*> items = ShownItems();
    std::vector<WORD> entries;
    entries.reserve(items.size());
    for (const TMenuItem* item : items)
        entries.push_back(item->FCommand);
    const bool anew = entries != FEntries;
    if (anew) {
        EmptyHandle();
        FEntries = entries;
    }
    UINT place = 0;
    for (TMenuItem* item : items) {
        if (!item->FItems.empty() && !item->FHandle) item->FStale = true;
        if (anew || item->FStale) {
            String text;
            const MENUITEMINFOW info = item->EntryInfo(text);
            if (anew)
                ::InsertMenuItemW(FHandle.Get(), place, TRUE, &info);
            else
                ::SetMenuItemInfoW(FHandle.Get(), place, TRUE, &info);
            item->FStale = false;
        } else if (item->FHandle) {
            item->SyncHandle();
        }
        ++place;
    }
}

void TMenuItem::DropEntry(TMenuItem& item) {
    TMenuItem* holder = FMergedInto ? FMergedInto : this;
    const auto found = std::find(holder->FEntries.begin(), holder->FEntries.end(), item.FCommand);
    if (!holder->FHandle || found == holder->FEntries.end()) return;
    ::RemoveMenu(holder->FHandle.Get(), static_cast<UINT>(found - holder->FEntries.begin()), MF_BYPOSITION);
    holder->FEntries.erase(found);
}

}  // namespace vcl
