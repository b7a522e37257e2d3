#pragma once

#include "explorerbar/items/ExplorerItem.h"
#include "skin/UnitBaseClasses.h"

namespace qv7skin {

/// The items of one group, from top to bottom. The list owns them. What leaves the list has no group any
/// more. The bar measures and repaints after each change, or at the end of its `BeginUpdate` and `EndUpdate`.
class TQV7SkinExplorerItems : public TLstBase {
public:
    /// `Owner` is the group of the items; it may be null for a list of its own.
    explicit TQV7SkinExplorerItems(TQV7SkinExplorerGroup* Owner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TQV7SkinExplorerGroup* GetOwner() const { return FOwner; }
    /// Index errors raise EListError.
    [[nodiscard]] TQV7SkinExplorerItemCustom* GetItems(int Index) const {
        return static_cast<TQV7SkinExplorerItemCustom*>(GetObject(Index));
    }
    [[nodiscard]] TQV7SkinExplorerItemCustom* operator[](int Index) const { return GetItems(Index); }

    /// Appends an item, which is the list's from then on, and returns its index.
    int Add(TQV7SkinExplorerItemCustom* Item);
    void Insert(int Index, TQV7SkinExplorerItemCustom* Item);
    void Delete(int Index) override;
    void Clear() override;
    void ClearWithoutFree() override;
    /// Takes an item out of the list; it is the caller's then.
    TQV7SkinExplorerItemCustom* Extract(int Index) override;
    /// The same; null when it is not in the list.
    TQV7SkinExplorerItemCustom* Extract(TObject* Object) override;

protected:
    void Changed() override;

private:
    void MarkChanged();
    void Settle();
    void ReleaseAll();

    TQV7SkinExplorerGroup* FOwner;
};

}  // namespace qv7skin
