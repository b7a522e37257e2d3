#pragma once

#include <vector>

#include "platform/vcl/core/Object.h"

namespace vcl {

/// A list of objects that frees what leaves it when `OwnsObjects` is set. Index errors raise EListError
/// "List index out of bounds (n)".
class TObjectList : public TObject {
public:
    explicit TObjectList(bool AOwnsObjects = true) : FOwnsObjects(AOwnsObjects) {}
    ~TObjectList() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetCount() const { return static_cast<int>(FItems.size()); }
    [[nodiscard]] bool GetOwnsObjects() const { return FOwnsObjects; }
    void SetOwnsObjects(bool value) { FOwnsObjects = value; }
    [[nodiscard]] int GetCapacity() const { return static_cast<int>(FItems.capacity()); }
    /// Makes room for at least that many; never shrinks below the count (EListError).
    void SetCapacity(int capacity);

    [[nodiscard]] TObject* GetItem(int index) const;
    /// Replaces an entry, freeing the old object when owning.
    void SetItem(int index, TObject* object);
    [[nodiscard]] TObject* operator[](int index) const { return GetItem(index); }
    /// Appends and returns the index.
    int Add(TObject* object);
    void Insert(int index, TObject* object);
    void Delete(int index);
    /// Removes the object (freeing it when owning) and returns its former index, -1 when it is not in the
    /// list.
    int Remove(TObject* object);
    /// Takes the object out without freeing it; null when it is not in the list.
    TObject* Extract(TObject* object);
    [[nodiscard]] int IndexOf(const TObject* object) const;
    void Move(int currentIndex, int newIndex);
    void Exchange(int a, int b);
    /// Empties the list from the end, freeing the objects when owning.
    void Clear();

    [[nodiscard]] const std::vector<TObject*>& Items() const { return FItems; }

private:
    void CheckIndex(int index, int limit) const;
    std::vector<TObject*> FItems;
    bool FOwnsObjects;
};

}  // namespace vcl
