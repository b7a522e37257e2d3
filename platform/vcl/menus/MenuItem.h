#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Handles.h"
#include "platform/vcl/menus/MenuTypes.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace vcl {

class TBitmap;
class TChangeLink;
class TCustomImageList;
class TMenu;
class TMenuActionLink;

/// An entry of a menu, with the entries of its submenu. An item belongs to its parent item, which frees it;
/// the topmost one is the `Items` of a menu.
///
/// The system's menu is made when it is first needed and follows the items: the bar of a window and a menu
/// that is open at once, all others when they are opened next. Any handler may free items or the menu.
///
/// Freed in its own event: whoever calls out keeps a `TLifeGuard`.
class TMenuItem : public TComponent, public TGuarded {
public:
    explicit TMenuItem(TComponent* AOwner);
    ~TMenuItem() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    // --- the tree (MenuItemTree.cpp). Indexes outside of it raise EListError.
    [[nodiscard]] int GetCount() const { return static_cast<int>(FItems.size()); }
    [[nodiscard]] TMenuItem* GetItem(int index) const;
    [[nodiscard]] TMenuItem* operator[](int index) const { return GetItem(index); }
    /// The item in whose submenu this one stands; null for the topmost one.
    [[nodiscard]] TMenuItem* GetParent() const { return FParent; }
    /// The menu, or null for an item that stands in none.
    [[nodiscard]] TMenu* GetParentMenu() const;
    /// Puts an item at the end. Raises EMenuError "Menu inserted twice" for an item that has a parent.
    void Add(TMenuItem* item) { Insert(GetCount(), item); }
    void Add(std::initializer_list<TMenuItem*> items);
    void Insert(int index, TMenuItem* item);
    /// Takes the item out without freeing it.
    void Delete(int index);
    /// The same; raises EMenuError "Sub-menu is not in menu".
    void Remove(TMenuItem* item);
    /// Frees all items of the submenu.
    void Clear();
    [[nodiscard]] int IndexOf(const TMenuItem* item) const;
    /// The item of the submenu with that caption, mnemonics and case aside; null when there is none.
    [[nodiscard]] TMenuItem* Find(StringView caption) const;
    /// The place in the parent, or -1. Setting it moves the item.
    [[nodiscard]] int GetMenuIndex() const { return FParent ? FParent->IndexOf(this) : -1; }
    void SetMenuIndex(int value);
    /// Adds a separator at the end or the start of the submenu, which frees it.
    int NewBottomLine();
    int NewTopLine();
    /// Adds a separator beside an item of the submenu; returns its place.
    int InsertNewLineBefore(TMenuItem* item);
    int InsertNewLineAfter(TMenuItem* item);
    [[nodiscard]] bool HasParent() const override { return FParent != nullptr; }
    [[nodiscard]] TComponent* GetParentComponent() const override;
    void SetParentComponent(TComponent* value) override;
    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;
    void SetChildOrder(TComponent* child, int order) override;

    // --- what it shows and does (MenuItem.cpp)
    /// The text; `&` marks the mnemonic, "-" makes a separator.
    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& value);
    /// True for separators.
    [[nodiscard]] bool IsLine() const { return FCaption == cLineCaption; }
    [[nodiscard]] bool GetChecked() const { return FChecked; }
    /// Of items with `RadioItem` and the same `GroupIndex`, one is checked: it turns the others off.
    void SetChecked(bool value);
    /// Whether a click checks the item, or unchecks it when it is no radio item.
    [[nodiscard]] bool GetAutoCheck() const { return FAutoCheck; }
    void SetAutoCheck(bool value);
    [[nodiscard]] bool GetRadioItem() const { return FRadioItem; }
    void SetRadioItem(bool value);
    /// Which radio items belong together; in menu bars, where items of another menu come in (0 to 255).
    [[nodiscard]] int GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int value);
    /// Shown bold; a double click on the parent would choose it. One item of a submenu can be it.
    [[nodiscard]] bool GetDefault() const { return FDefault; }
    void SetDefault(bool value);
    [[nodiscard]] bool GetEnabled() const { return FEnabled; }
    void SetEnabled(bool value);
    /// False also for a separator that is left out because it would stand beside another one or at an end.
    [[nodiscard]] bool GetVisible() const { return FVisible && !FLeftOut; }
    void SetVisible(bool value);
    [[nodiscard]] TShortCut GetShortCut() const { return FShortCut; }
    void SetShortCut(TShortCut value);
    [[nodiscard]] const String& GetHint() const { return FHint; }
    void SetHint(const String& value) { FHint = value; }
    [[nodiscard]] int GetHelpContext() const { return FHelpContext; }
    void SetHelpContext(int value) { FHelpContext = value; }
    [[nodiscard]] TMenuBreak GetBreak() const { return FBreak; }
    void SetBreak(TMenuBreak value);
    /// The image in the image list (-1: none); shown left of the caption.
    [[nodiscard]] int GetImageIndex() const { return FImageIndex; }
    void SetImageIndex(int value);
    /// A picture of the item's own, for items without one of the image list.
    [[nodiscard]] TBitmap& GetBitmap() const;
    void SetBitmap(const TBitmap& value);
    /// Images for this item's submenu and below, instead of those of the menu; not owned.
    [[nodiscard]] TCustomImageList* GetSubMenuImages() const { return FSubMenuImages; }
    void SetSubMenuImages(TCustomImageList* value);
    /// The image list that holds this item's image; null when there is none.
    [[nodiscard]] TCustomImageList* GetImageList() const;
    [[nodiscard]] TBasicAction* GetAction() const;
    /// Links the item to an action, which gives it its values.
    void SetAction(TBasicAction* value);
    /// Does what the user's choice does: checks, then runs the handler or the action. Nothing while disabled.
    virtual void Click();
    /// Lets the linked action bring itself up to date.
    void InitiateAction();
    /// The number of its WM_COMMAND.
    [[nodiscard]] WORD GetCommand() const { return FCommand; }

    // --- hot keys and separators (MenuItemOrder.cpp)
    [[nodiscard]] TMenuItemAutoFlag GetAutoHotkeys() const { return FAutoHotkeys; }
    void SetAutoHotkeys(TMenuItemAutoFlag value);
    [[nodiscard]] TMenuItemAutoFlag GetAutoLineReduction() const { return FAutoLineReduction; }
    void SetAutoLineReduction(TMenuItemAutoFlag value);
    /// Gives the items of the submenu mnemonics of their own: the first item with a mnemonic keeps it, others
    /// get the first free letter or digit of their caption. True when a caption changed.
    bool RethinkHotkeys();
    /// Leaves out separators at the ends of the submenu and beside another one. True when that changed one.
    bool RethinkLines();

    // --- the system's menu (MenuItemHandle.cpp)
    /// The submenu, made when there is none and brought up to date; owned by the item.
    [[nodiscard]] HMENU GetHandle();
    [[nodiscard]] bool HandleAllocated() const { return static_cast<bool>(FHandle); }
    /// The submenu as far as it was made; never makes or changes it.
    [[nodiscard]] HMENU PresentHandle() const { return FHandle.Get(); }
    /// The items that a menu on the screen shows, in order, with those merged in.
    [[nodiscard]] std::vector<TMenuItem*> ShownItems() const;
    /// Shows the items of another menu's topmost item, too: each run of a `GroupIndex` replaces the items of
    /// that number here. Null ends it. Not owned.
    void MergeWith(TMenuItem* other);
    [[nodiscard]] TMenuItem* GetMerged() const { return FMerged; }

    // --- drawing (MenuItemDrawing.cpp)
    /// True when the item is measured and drawn by the program.
    [[nodiscard]] bool IsOwnerDrawn() const;
    /// Width and height in pixels, without what the system adds for its submenu arrow.
    void Measure(TCanvas& canvas, int& width, int& height);
    void Draw(TCanvas& canvas, const TRect& rect, TOwnerDrawState state);

    // --- rules for form files
    [[nodiscard]] bool IsCaptionStored() const;
    [[nodiscard]] bool IsCheckedStored() const;
    [[nodiscard]] bool IsAutoCheckStored() const;
    [[nodiscard]] bool IsEnabledStored() const;
    [[nodiscard]] bool IsVisibleStored() const;
    [[nodiscard]] bool IsHintStored() const;
    [[nodiscard]] bool IsImageIndexStored() const;
    [[nodiscard]] bool IsShortCutStored() const;
    [[nodiscard]] bool IsGroupIndexStored() const;
    [[nodiscard]] bool IsHelpContextStored() const;
    [[nodiscard]] bool IsOnClickStored() const;
    [[nodiscard]] bool IsBitmapStored() const;
    /// The switch of the host, whatever the present place of a separator makes of it.
    [[nodiscard]] bool GetOwnVisible() const { return FVisible; }

    /// Raised by `Click`; for an item with a submenu before that opens, where the handler may change it.
    TNotifyEvent OnClick;
    /// Draws the item when it is owner-drawn.
    TMenuDrawItemEvent OnDrawItem;
    TAdvancedMenuDrawItemEvent OnAdvancedDrawItem;
    TMenuMeasureItemEvent OnMeasureItem;

protected:
    void Notification(TComponent* component, TOperation operation) override;
    void Loaded() override;
    /// Takes over the values of the linked action, with `checkDefaults` only where the item's are still at
    /// their default. Later changes come through the link, one by one.
    virtual void ActionChange(TObject* sender, bool checkDefaults);
    /// Draws the item without a handler's help.
    virtual void DrawDefault(TCanvas& canvas, const TRect& rect, TOwnerDrawState state);
    virtual void MeasureDefault(TCanvas& canvas, int& width, int& height);

private:
    friend class TMainMenu;
    friend class TMenu;
    friend class TMenuActionLink;

    template <class V>
    bool Store(V& field, const V& value);
    void PictureChanged(TObject* sender);
    void TurnSiblingsOff();
    /// Announces a change of this item; `rebuild`: its submenu has other items.
    void Changed(bool rebuild);
    void TakeOut(TMenuItem* item);
    [[nodiscard]] bool IsOpen() const;
    void SetOpen(bool value);
    // MenuItemOrder.cpp
    [[nodiscard]] bool IsAutomatic(TMenuItemAutoFlag TMenuItem::*flag) const;
    void PutInOrder();
    // MenuItemHandle.cpp
    void SyncHandle();
    void DropEntry(TMenuItem& item);
    /// Takes all entries out of the system's menu; their submenus stay with their items.
    void EmptyHandle();
    void MarkAllStale();
    [[nodiscard]] bool NeedsSyncNow() const;
    /// What the system is told of the item; `text` stays while it is used.
    [[nodiscard]] MENUITEMINFOW EntryInfo(String& text);

    TMenu* FMenu = nullptr;  ///< Of the topmost item: its menu.
    TMenuItem* FParent = nullptr;
    TMenuItem* FMerged = nullptr;
    TMenuItem* FMergedInto = nullptr;
    std::vector<TMenuItem*> FItems;
    TMenuHandle FHandle;
    std::vector<WORD> FEntries;  ///< The commands of the entries of the system's menu, in order.
    String FCaption;
    String FHint;
    std::unique_ptr<TMenuActionLink> FActionLink;
    std::unique_ptr<TBitmap> FBitmap;
    std::unique_ptr<TChangeLink> FImagesLink;
    TCustomImageList* FSubMenuImages = nullptr;
    WORD FCommand;
    TShortCut FShortCut = scNone;
    int FGroupIndex = 0;
    int FHelpContext = 0;
    int FImageIndex = -1;
    TMenuBreak FBreak = mbNone;
    TMenuItemAutoFlag FAutoHotkeys = maParent;
    TMenuItemAutoFlag FAutoLineReduction = maParent;
    bool FAutoCheck = false;
    bool FChecked = false;
    bool FRadioItem = false;
    bool FDefault = false;
    bool FEnabled = true;
    bool FVisible = true;
    bool FLeftOut = false;
    unsigned FOpenLoop = 0;  ///< The loop in which the user works its submenu.
    bool FStale = true;      ///< The entry in the parent's menu has to be told anew.
};

/// A menu is built in a way that can't be.
class EMenuError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EMenuError"; }
};

}  // namespace vcl
