#pragma once

#include <vector>

#include "platform/vcl/core/Persistent.h"

namespace vcl {

class TCollection;

/// One item of a collection: belongs to it, is freed by it, and tells it about changes.
class TCollectionItem : public TPersistent {
public:
    /// Appends itself to the collection (null: stands alone).
    explicit TCollectionItem(TCollection* ACollection);
    /// Leaves its collection.
    ~TCollectionItem() override;

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TCollection* GetCollection() const { return FCollection; }
    /// Moves the item to the end of another collection, or out of its own (null). Raises EListError when the
    /// other one holds items of another class.
    virtual void SetCollection(TCollection* collection);
    /// A number that no other item of the collection has or had; it stays when items move.
    [[nodiscard]] int GetID() const { return FID; }
    /// The place in the collection, or -1 without one.
    [[nodiscard]] int GetIndex() const;
    virtual void SetIndex(int index);
    /// What a designer shows in its list of items.
    [[nodiscard]] virtual String GetDisplayName() const { return ClassName(); }
    virtual void SetDisplayName(const String&) { Changed(false); }

    [[nodiscard]] TPersistent* GetOwner() const override;
    [[nodiscard]] String GetNamePath() const override;

protected:
    /// Setters call it after a change: the collection's `Update` hears of this item, or of all of them.
    void Changed(bool allItems);

private:
    friend class TCollection;
    TCollection* FCollection = nullptr;
    int FID = 0;
};

enum class TCollectionNotification { cnAdded, cnExtracting, cnDeleting };
using enum TCollectionNotification;

/// A list of items of one class that form files hold and designers edit. Index errors raise EListError "List
/// index out of bounds (n)".
class TCollection : public TPersistent {
public:
    /// `itemClass` is the class that `Add` makes; it outlives the collection.
    explicit TCollection(const TMetaClass& itemClass) : FItemClass(&itemClass) {}
    ~TCollection() override;

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] const TMetaClass& GetItemClass() const { return *FItemClass; }
    [[nodiscard]] int GetCount() const { return static_cast<int>(FItems.size()); }
    [[nodiscard]] TCollectionItem* GetItem(int index) const;
    /// Assigns to the item at the index.
    void SetItem(int index, const TCollectionItem* value);
    [[nodiscard]] TCollectionItem* operator[](int index) const { return GetItem(index); }
    /// Makes an item at the end. Raises EInvalidOperation when the item class is abstract.
    TCollectionItem* Add();
    TCollectionItem* Insert(int index);
    void Delete(int index);
    /// Frees all items, the last one first.
    void Clear();
    [[nodiscard]] TCollectionItem* FindItemID(int id) const;

    /// Holds `Update` back until the matching EndUpdate, which calls it once for all items.
    virtual void BeginUpdate();
    virtual void EndUpdate();
    /// Takes copies of the items of another collection.
    void Assign(const TPersistent* source) override;

    [[nodiscard]] String GetNamePath() const override;

protected:
    friend class TCollectionItem;

    [[nodiscard]] int GetUpdateCount() const { return FUpdateCount; }
    /// Called after changes of one item, or of the collection as a whole (null).
    virtual void Update(TCollectionItem*) {}
    /// Called when an item has come in, before it goes out, and before it is freed. An item that is deleted
    /// directly, not through the collection, is half destroyed at cnExtracting.
    virtual void Notify(TCollectionItem*, TCollectionNotification) {}
    void Changed();

private:
    void InsertItem(TCollectionItem* item);
    void RemoveItem(TCollectionItem* item);
    void MoveItem(int from, int to);
    /// The name of the owner's property that holds the collection; empty when there is none.
    [[nodiscard]] String PropertyName() const;

    const TMetaClass* FItemClass;
    std::vector<TCollectionItem*> FItems;
    int FUpdateCount = 0;
    int FNextID = 0;
    bool FAdding = false;
};

/// A collection that knows whom it belongs to, for designers and form files.
class TOwnedCollection : public TCollection {
public:
    TOwnedCollection(TPersistent* AOwner, const TMetaClass& itemClass)
        : TCollection(itemClass), FOwner(AOwner) {}

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    [[nodiscard]] TPersistent* GetOwner() const override { return FOwner; }

private:
    TPersistent* FOwner;
};

}  // namespace vcl
