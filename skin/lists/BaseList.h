#pragma once

#include <memory>

#include "platform/vcl/core/ObjectList.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// A list of objects behind a narrow interface; descendants add what is typed: how objects get in and out.
/// Index errors raise EListError as the framework's list does.
class TLstBase : public TObject {
public:
    /// With `iOwnsObjects` the list frees what is deleted from it and what is left in it at its end.
    explicit TLstBase(bool iOwnsObjects);
    ~TLstBase() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetCount() const { return FList->GetCount(); }
    [[nodiscard]] bool GetOwnsObjects() const { return FList->GetOwnsObjects(); }
    void SetOwnsObjects(bool Value) { FList->SetOwnsObjects(Value); }

    /// Empties the list, freeing the objects when owning.
    virtual void Clear();
    /// Empties the list; the objects live on and are the caller's.
    virtual void ClearWithoutFree();
    /// Deletes the entry, freeing the object when owning.
    virtual void Delete(int iIndex);
    /// The first index of the object, or -1.
    [[nodiscard]] int IndexOf(const TObject* Object) const { return FList->IndexOf(Object); }
    /// Takes the object at the index out of the list without freeing it, by the other `Extract`.
    virtual TObject* Extract(int iIndex);
    /// Takes the object out of the list without freeing it; null when it is not there.
    virtual TObject* Extract(TObject* Object);
    /// Moves an entry; -1 as `NewIndex` is the end of the list.
    void Move(int CurrentIndex, int NewIndex);
    /// Turns the order around; frees nothing.
    void Reverse();

protected:
    friend class TLstChangeLog;

    /// Called after each change that one of the operations above made.
    virtual void Changed() {}

    int Add(TObject* Object) { return FList->Add(Object); }
    void Insert(int iIndex, TObject* Object) { FList->Insert(iIndex, Object); }
    [[nodiscard]] TObject* GetObject(int iIndex) const { return FList->GetItem(iIndex); }

private:
    std::unique_ptr<TObjectList> FList;
};

}  // namespace qv7skin
