#pragma once

#include <memory>

#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/MenuTypes.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace vcl {

class TCanvas;
class TChangeLink;
class TCustomImageList;
class TFont;
struct TMessage;

/// What main and popup menus have in common: items, images, and the answers to the system's menu messages.
/// It is the second base of menu components, since what forms and controls need of menus comes first.
class TMenu : public TGuarded {
public:
    virtual ~TMenu();

    /// The menu as a component.
    [[nodiscard]] TComponent& Component() const { return FComponent; }
    /// The topmost item, whose submenu is the menu; owned.
    [[nodiscard]] TMenuItem& GetItems() const { return *FItems; }
    /// The system's menu with all items; owned.
    [[nodiscard]] HMENU GetHandle() { return FItems->GetHandle(); }
    /// Whether mnemonics are made unique, and needless separators left out, when the menu is shown.
    [[nodiscard]] TMenuAutoFlag GetAutoHotkeys() const { return FItems->GetAutoHotkeys(); }
    void SetAutoHotkeys(TMenuAutoFlag value) { FItems->SetAutoHotkeys(value); }
    [[nodiscard]] TMenuAutoFlag GetAutoLineReduction() const { return FItems->GetAutoLineReduction(); }
    void SetAutoLineReduction(TMenuAutoFlag value) { FItems->SetAutoLineReduction(value); }
    /// Images that items name by their index; not owned. With images all items are drawn by the program.
    [[nodiscard]] TCustomImageList* GetImages() const { return FImages; }
    void SetImages(TCustomImageList* value);
    /// Whether items are measured and drawn by the program, by their handlers or as the framework does.
    [[nodiscard]] bool GetOwnerDraw() const { return FOwnerDraw; }
    void SetOwnerDraw(bool value);

    /// The item with the command, the submenu's handle or the short cut, at any depth; null when there is
    /// none.
    [[nodiscard]] TMenuItem* FindItem(std::uintptr_t value, TFindItemKind kind) const;
    /// Clicks the item with the command; false when there is none.
    bool DispatchCommand(WORD command);
    /// Prepares the submenu for being shown: raises the `OnClick` of its item and updates actions. False when
    /// it is not of this menu.
    bool DispatchPopup(HMENU handle);

    /// True for a menu that stands in a window's bar.
    [[nodiscard]] virtual bool IsMenuBar() const { return false; }
    /// True while a window shows it as its bar.
    [[nodiscard]] virtual bool IsInWindow() const { return false; }

    /// Raised after an item changed.
    TMenuChangeEvent OnChange;

protected:
    /// `component` is the menu itself.
    explicit TMenu(TComponent& component);
    /// Runs the item whose short cut the key message is. Handlers of the submenus on the way run first, as if
    /// the menu had been opened. An item that is disabled takes the key and does nothing.
    bool RunShortCut(TMessage& message);
    /// Answers a message about menus that the owner's window got: WM_INITMENUPOPUP, WM_UNINITMENUPOPUP,
    /// WM_COMMAND, WM_MENUSELECT, WM_MENUCHAR, WM_MEASUREITEM, WM_DRAWITEM.
    bool HandleMessage(HWND window, TMessage& message);
    /// For the component's `Notification`, `Loaded`, `GetChildren`, `SetChildOrder`.
    void NotifyRemoval(const TComponent* component);
    void ItemsLoaded();
    void VisitItems(const std::function<void(TComponent*)>& visit) const;
    /// Called after an item changed; `source` null: everything.
    virtual void DoChange(TMenuItem* source, bool rebuild);

private:
    friend class TMenuItem;
    friend class TPopupWindow;

    void ItemChanged(TMenuItem& item, bool rebuild);
    void ImagesChanged(TObject* sender);
    [[nodiscard]] bool Has(const TMenuItem* item) const;
    [[nodiscard]] TMenuItem* FindOpened(HMENU handle) const;
    [[nodiscard]] TFont& MenuFont();
    /// What an item can be wide at most: the part of the screen that menus open on.
    [[nodiscard]] int WidestItem(HWND window);
    bool WmInitMenuPopup(const TMessage& message);
    bool WmMenuSelect(const TMessage& message);
    bool WmMenuChar(TMessage& message);
    bool WmMeasureItem(HWND window, TMessage& message);
    bool WmDrawItem(TMessage& message);

    TComponent& FComponent;
    TMenuItem* FItems;
    TCustomImageList* FImages = nullptr;
    std::unique_ptr<TChangeLink> FImagesLink;
    std::unique_ptr<TFont> FFont;
    int FWidestItem = -1;  ///< As looked up last; below 0 when it has to be.
    bool FOwnerDraw = false;
};

}  // namespace vcl
