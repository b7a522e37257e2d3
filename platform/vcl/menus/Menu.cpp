#include "platform/vcl/menus/Menu.h"

#include <algorithm>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MenuCommands.h"

namespace vcl {

TMenu::TMenu(TComponent& component) : FComponent(component), FItems(new TMenuItem(&component)) {
    FItems->FMenu = this;
    FItems->FAutoHotkeys = maAutomatic;
    FItems->FAutoLineReduction = maAutomatic;
}

TMenu::~TMenu() {
    if (!FItems) return;
    FItems->FMenu = nullptr;
    delete FItems;
}

void TMenu::NotifyRemoval(const TComponent* component) {
    if (component == FItems) FItems = nullptr;
    if (component == FImages) SetImages(nullptr);
}

void TMenu::ItemsLoaded() {
    FItems->MarkAllStale();
    ItemChanged(*FItems, true);
}

void TMenu::VisitItems(const std::function<void(TComponent*)>& visit) const {
    FItems->GetChildren(visit, nullptr);
}

void TMenu::SetImages(TCustomImageList* value) {
    if (value == FImages) return;
    FImages = value;
    if (value) {
        value->FreeNotification(&FComponent);
        if (!FImagesLink) {
            FImagesLink = std::make_unique<TChangeLink>();
            FImagesLink->OnChange = {this, &TMenu::ImagesChanged};
        }
        value->RegisterChanges(FImagesLink.get());
    } else {
        FImagesLink.reset();
    }
    ImagesChanged(nullptr);
}

void TMenu::ImagesChanged(TObject*) {
    if (!FItems) return;
    FItems->MarkAllStale();
    ItemChanged(*FItems, true);
}

void TMenu::SetOwnerDraw(bool value) {
    if (value == FOwnerDraw) return;
    FOwnerDraw = value;
    FItems->MarkAllStale();
    ItemChanged(*FItems, true);
}

void TMenu::ItemChanged(TMenuItem& item, bool rebuild) {
    if (FComponent.IsInState(csDestroying) || FComponent.IsInState(csLoading)) return;
    const TLifeGuard guard(*this);
    const bool isStale = item.FStale;
    for (TMenuItem* list : {&item, item.FParent}) {
        if (list && list->NeedsSyncNow()) list->SyncHandle();
    }
    if (TMenuItem* holder = FItems->FMergedInto) {
        // What the own bar was told the other one was not.
        item.FStale = isStale;
        if (holder->NeedsSyncNow()) holder->SyncHandle();
        if (holder->FMenu) holder->FMenu->DoChange(holder, rebuild);
        if (!guard.IsAlive()) return;
    }
    DoChange(&item, rebuild);
}

void TMenu::DoChange(TMenuItem* source, bool rebuild) {
    OnChange(&FComponent, source, rebuild);
}

// --- finding

bool TMenu::Has(const TMenuItem* item) const {
    const TMenuItem* top = item;
    while (top && top->FParent)
        top = top->FParent;
    return top && (top == FItems || top == FItems->FMerged);
}

namespace {

template <class Fits>
TMenuItem* FindBelow(const TMenuItem& parent, const Fits& fits) {
    for (int i = 0; i < parent.GetCount(); ++i) {
        TMenuItem* item = parent.GetItem(i);
        if (fits(*item)) return item;
        if (TMenuItem* found = FindBelow(*item, fits)) return found;
    }
    return nullptr;
}

}  // namespace

TMenuItem* TMenu::FindItem(std::uintptr_t value, TFindItemKind kind) const {
    const auto find = [&](const auto& fits) -> TMenuItem* {
        if (TMenuItem* found = FindBelow(*FItems, fits)) return found;
        return FItems->FMerged ? FindBelow(*FItems->FMerged, fits) : nullptr;
    };
    switch (kind) {
        case fkCommand: {
            TMenuItem* item = value <= 0xFFFF ? FindMenuCommand(static_cast<WORD>(value)) : nullptr;
            return item && Has(item) ? item : nullptr;
        }
        case fkHandle:
            if (value == 0) return nullptr;
            return find([&](const TMenuItem& item) {
                return reinterpret_cast<std::uintptr_t>(item.PresentHandle()) == value;
            });
        case fkShortCut:
            if (value == scNone) return nullptr;
            return find([&](const TMenuItem& item) { return item.GetShortCut() == value; });
    }
    return nullptr;
}

TMenuItem* TMenu::FindOpened(HMENU handle) const {
    if (handle && FItems->PresentHandle() == handle) return FItems;
    return FindItem(reinterpret_cast<std::uintptr_t>(handle), fkHandle);
}

// --- acting

bool TMenu::DispatchCommand(WORD command) {
    TMenuItem* item = FindItem(command, fkCommand);
    if (!item) return false;
    item->Click();
    return true;
}

bool TMenu::DispatchPopup(HMENU handle) {
    TMenuItem* item = FindOpened(handle);
    if (!item) return false;
    const TLifeGuard menuGuard(*this);
    const TLifeGuard guard(*item);
    item->SetOpen(true);
    if (item != FItems && !FComponent.IsInState(csDesigning)) item->Click();
    for (int i = 0; guard.IsAlive() && i < item->GetCount(); ++i)
        item->GetItem(i)->InitiateAction();
    if (guard.IsAlive() && menuGuard.IsAlive()) item->SyncHandle();
    return true;
}

bool TMenu::RunShortCut(TMessage& message) {
    const TShortCut wanted = ShortCutFromMessage(message);
    if (wanted == scNone || FComponent.IsInState(csDesigning)) return false;
    const TLifeGuard menuGuard(*this);
    TMenuItem* item = FindItem(wanted, fkShortCut);
    // Handlers of the submenus may change or move the item; each is asked once.
    std::vector<WORD> asked;
    while (item) {
        TMenuItem* next = nullptr;
        for (TMenuItem* above = item->GetParent(); above && above->GetParent(); above = above->GetParent()) {
            if (!above->GetEnabled()) return true;
            if (std::find(asked.begin(), asked.end(), above->GetCommand()) == asked.end()) next = above;
        }
        if (!next) break;
        asked.push_back(next->GetCommand());
        next->Click();
        if (!menuGuard.IsAlive()) return true;
        item = FindItem(wanted, fkShortCut);
    }
    if (!item) return !asked.empty();
    const TLifeGuard guard(*item);
    item->InitiateAction();
    if (guard.IsAlive()) item->Click();
    return true;
}

// --- messages

bool TMenu::HandleMessage(HWND window, TMessage& message) {
    switch (message.Msg) {
        case WM_COMMAND:
            return message.LParam == 0 && DispatchCommand(message.WParamLo());
        case WM_INITMENUPOPUP:
            return HIWORD(message.LParam) == 0 && WmInitMenuPopup(message);
        case WM_UNINITMENUPOPUP:
            if (TMenuItem* item = FindOpened(reinterpret_cast<HMENU>(message.WParam))) {
                item->SetOpen(false);
                return true;
            }
            return false;
        case WM_MENUSELECT:
            return WmMenuSelect(message);
        case WM_MENUCHAR:
            return WmMenuChar(message);
        case WM_MEASUREITEM:
            return WmMeasureItem(window, message);
        case WM_DRAWITEM:
            return WmDrawItem(message);
        default:
            return false;
    }
}

bool TMenu::WmInitMenuPopup(const TMessage& message) {
    // The user may have chosen another font or screen since the last time.
    FFont.reset();
    FWidestItem = -1;
    return DispatchPopup(reinterpret_cast<HMENU>(message.WParam));
}

bool TMenu::WmMenuSelect(const TMessage& message) {
    const WORD flags = message.WParamHi();
    const auto handle = reinterpret_cast<HMENU>(message.LParam);
    if (flags == 0xFFFF && !handle) {
        AppServices().SetHint({});
        return false;
    }
    const TMenuItem* item = nullptr;
    if ((flags & MF_SYSMENU) == 0) {
        if ((flags & MF_POPUP) == 0) {
            item = FindItem(message.WParamLo(), fkCommand);
        } else if (const HMENU sub = ::GetSubMenu(handle, message.WParamLo())) {
            item = FindItem(reinterpret_cast<std::uintptr_t>(sub), fkHandle);
        }
    }
    AppServices().SetHint(item ? GetLongHint(item->GetHint()) : String());
    return item != nullptr;
}

bool TMenu::WmMenuChar(TMessage& message) {
    const TMenuItem* open = FindOpened(reinterpret_cast<HMENU>(message.LParam));
    if (!open) return false;
    const wchar_t key = UpperCase(String(1, static_cast<wchar_t>(message.WParamLo()))).front();
    const std::vector<TMenuItem*> items = open->ShownItems();
    std::vector<UINT> places;
    UINT selected = 0;
    bool hasSelected = false;
    for (UINT i = 0; i < items.size(); ++i) {
        if (GetHotkey(items[i]->GetCaption()) == key) places.push_back(i);
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STATE;
        if (::GetMenuItemInfoW(open->PresentHandle(), i, TRUE, &info) && (info.fState & MFS_HILITE) != 0) {
            selected = i;
            hasSelected = true;
        }
    }
    if (places.empty()) return false;
    if (places.size() == 1) {
        message.Result = MAKELRESULT(places.front(), MNC_EXECUTE);
        return true;
    }
    // Several items share the key: it goes round among them.
    UINT next = places.front();
    for (const UINT place : places) {
        if (!hasSelected || place <= selected) continue;
        next = place;
        break;
    }
    message.Result = MAKELRESULT(next, MNC_SELECT);
    return true;
}

}  // namespace vcl
