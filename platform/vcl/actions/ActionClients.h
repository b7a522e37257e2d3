#pragma once

#include <memory>

#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace vcl {

class TActionClientItem;
class TActionClients;
class TCustomActionBar;
class TCustomActionControl;
class TCustomActionManager;

/// Something that shows actions: a bar, or an item in one, which may have items of its own.
class TActionClient : public TCollectionItem, public TGuarded {
public:
    explicit TActionClient(TCollection* ACollection);
    ~TActionClient() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The items below; made on first use.
    [[nodiscard]] TActionClients& GetItems() const;
    void SetItems(const TActionClients& value);
    [[nodiscard]] bool HasItems() const;
    [[nodiscard]] bool GetVisible() const { return FVisible; }
    void SetVisible(bool value);
    /// A number of the host's.
    [[nodiscard]] std::intptr_t GetTag() const { return FTag; }
    void SetTag(std::intptr_t value) { FTag = value; }
    /// The manager at the top; null outside of one.
    [[nodiscard]] TCustomActionManager* GetActionManager() const;
    /// The bar on which the items below stand now; null while they are not shown.
    [[nodiscard]] TCustomActionBar* GetItemsBar() const { return FItemsBar; }
    void Assign(const TPersistent* source) override;

protected:
    /// Called after items below changed.
    void ItemsChanged();

private:
    friend class TActionClients;
    friend class TCustomActionBar;

    std::unique_ptr<TActionClients> FItems;
    TCustomActionBar* FItemsBar = nullptr;
    std::intptr_t FTag = 0;
    bool FVisible = true;
};

/// One item of a bar or of a menu that drops down from it.
class TActionClientItem : public TActionClient {
public:
    explicit TActionClientItem(TCollection* ACollection);
    ~TActionClientItem() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TBasicAction* GetAction() const;
    /// Links the item to an action, which gives it its values; null unlinks it.
    void SetAction(TBasicAction* value);
    /// "-" or "|" makes a separator.
    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& value);
    [[nodiscard]] bool IsSeparator() const { return FCaption == L"-" || FCaption == L"|"; }
    [[nodiscard]] int GetImageIndex() const { return FImageIndex; }
    void SetImageIndex(int value);
    [[nodiscard]] TShortCut GetShortCut() const { return FShortCut; }
    void SetShortCut(TShortCut value);
    [[nodiscard]] int GetHelpContext() const { return FHelpContext; }
    void SetHelpContext(int value) { FHelpContext = value; }
    /// What the linked action says; enabled and unchecked without one.
    [[nodiscard]] bool IsEnabled() const;
    [[nodiscard]] bool IsChecked() const;
    /// True for one of several of which one is checked.
    [[nodiscard]] bool IsRadio() const;
    [[nodiscard]] String GetHint() const;
    /// The control that shows the item now; null while it is not shown.
    [[nodiscard]] TCustomActionControl* GetControl() const { return FControl; }
    /// The item whose items this one belongs to; null for the items of a bar.
    [[nodiscard]] TActionClientItem* GetParentItem() const;
    [[nodiscard]] String GetDisplayName() const override;
    void Assign(const TPersistent* source) override;

    [[nodiscard]] bool IsCaptionStored() const;
    [[nodiscard]] bool IsImageIndexStored() const;
    [[nodiscard]] bool IsShortCutStored() const;
    [[nodiscard]] bool IsHelpContextStored() const;

private:
    friend class TCustomActionControl;
    class TLink;

    [[nodiscard]] const TActionValues* Shown() const;
    void ActionChanged(TObject* sender);
    void LookChanged();

    std::unique_ptr<TLink> FLink;
    TCustomActionControl* FControl = nullptr;
    String FCaption;
    int FImageIndex = -1;
    int FHelpContext = 0;
    TShortCut FShortCut = scNone;
};

/// The items of a bar or of an item.
class TActionClients : public TOwnedCollection {
public:
    explicit TActionClients(TActionClient* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    TActionClientItem* Add();
    [[nodiscard]] TActionClientItem* GetItem(int index) const;
    [[nodiscard]] TActionClientItem* operator[](int index) const { return GetItem(index); }
    /// Whether items without a mnemonic get one when they are shown.
    [[nodiscard]] bool GetAutoHotKeys() const { return FAutoHotKeys; }
    void SetAutoHotKeys(bool value) { FAutoHotKeys = value; }
    [[nodiscard]] int GetVisibleCount() const;
    [[nodiscard]] TActionClient& Client() const { return FClient; }

protected:
    void Update(TCollectionItem* item) override;

private:
    TActionClient& FClient;
    bool FAutoHotKeys = true;
};

/// The items of one bar of a manager.
class TActionBarItem : public TActionClient {
public:
    explicit TActionBarItem(TCollection* ACollection) : TActionClient(ACollection) {}
    ~TActionBarItem() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The control that shows the items; not owned. It shows those of one entry at a time.
    [[nodiscard]] TCustomActionBar* GetActionBar() const { return GetItemsBar(); }
    void SetActionBar(TCustomActionBar* value);
};

/// The entries of a manager, one for each bar.
class TActionBars : public TOwnedCollection {
public:
    explicit TActionBars(TCustomActionManager* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    TActionBarItem* Add();
    [[nodiscard]] TActionBarItem* GetItem(int index) const;
    [[nodiscard]] TActionBarItem* operator[](int index) const { return GetItem(index); }
    [[nodiscard]] TCustomActionManager& Manager() const { return FManager; }

private:
    TCustomActionManager& FManager;
};

}  // namespace vcl
