#pragma once

#include "header/items/HeaderItem.h"
#include "skin/UnitBaseClasses.h"

namespace qv7skin {

/// The items of a header control in their order. The list owns them; an item that is deleted elsewhere takes
/// itself out.
class TQV7SkinHeaderItems : public TLstBase {
public:
    /// The control is not owned, it owns the list; null for a list that stands alone.
    explicit TQV7SkinHeaderItems(THeaderItemHost* AOwner);
    ~TQV7SkinHeaderItems() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The count is another than at the last look; the sender is the list.
    TNotifyEvent OnCountChanged;

    /// Appends the item, which is the list's from now on, paints the row and returns the item's index. An
    /// item of another control leaves that first.
    int Add(TQV7SkinHeaderItemCustom* Item);
    /// Frees the item. Raises EListError for an index out of range.
    void Delete(int Index) override;
    /// Takes the item out of the list without freeing it; null when it is not in it.
    TQV7SkinHeaderItemCustom* Extract(TObject* Item) override;
    TQV7SkinHeaderItemCustom* Extract(int Index) override;
    void Clear() override;
    void ClearWithoutFree() override;
    [[nodiscard]] TQV7SkinHeaderItemCustom* GetItems(int Index) const {
        return static_cast<TQV7SkinHeaderItemCustom*>(GetObject(Index));
    }
    [[nodiscard]] TQV7SkinHeaderItemCustom* operator[](int Index) const { return GetItems(Index); }
    /// Raises `OnCountChanged` when the count is another than at the last call.
    void CheckForItemCountChanges();

private:
    void DisownAll();
    void ItemsLeft();

    THeaderItemHost* FOwner;
    int FLastCount = 0;
};

}  // namespace qv7skin
