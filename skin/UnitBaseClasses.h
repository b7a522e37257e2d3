#pragma once

#include <memory>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/ObjectList.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/SyncObjs.h"
#include "skin/Namespace.h"

/// Lists of objects, and lists of listeners, on which the controls of the package build theirs.
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

/// A list of objects for several threads, behind a lock that its holder may enter again. What takes more than
/// one step stands between `Enter` and `Leave`; the operations below lock for themselves.
class TThreadedLstBase : public TObject {
public:
    explicit TThreadedLstBase(bool iOwnsObjects);
    ~TThreadedLstBase() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Waits for the lock and lends the list until `Leave`.
    TObjectList* Enter();
    /// As `Enter` when no other thread holds the lock; null otherwise, without waiting.
    [[nodiscard]] TObjectList* TryEnter();
    void Leave();
    /// How often the lock is held; reliable for the thread that holds it.
    [[nodiscard]] int GetEnterCounter() const { return FEnterCounter; }

    void Clear();
    void Delete(int iIndex);
    [[nodiscard]] int Count();
    [[nodiscard]] int IndexOf(const TObject* Object);

private:
    std::unique_ptr<TCriticalSection> FLock;
    int FEnterCounter = 0;
    std::unique_ptr<TObjectList> FList;
};

/// Keeps book of the changes to a list of records: what is inserted goes into the list itself, what is
/// updated or deleted is noted in two further lists. All three are the caller's. A log without lists
/// raises EInvalidOperation when it is used.
class TLstChangeLog : public TObject {
public:
    TLstChangeLog();
    TLstChangeLog(TLstBase* iLstCloned, TLstBase* iLstUpd, TLstBase* iLstDel);
    ~TLstChangeLog() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Appends a record to the current ones. Raises Exception (class name and a German text) when it is there
    /// already.
    void InsertRec(TObject* Object);
    /// Notes that a record was changed, once; whether it is a current one does not matter.
    void UpdateRec(TObject* Object);
    /// Moves a record from the current ones to the deleted ones; it is no updated one any more. Raises
    /// Exception (class name and a German text) when it is no current record.
    void DeleteRec(TObject* Object);
    /// Empties the three lists; those that own their objects free them.
    void Clear();

private:
    void NeedLists() const;

    std::unique_ptr<TObjectList> FOwnList;
    TLstBase* FLstCloned = nullptr;
    TLstBase* FLstUpd = nullptr;
    TLstBase* FLstDel = nullptr;
};

/// The common ancestor of records.
class TBase : public TObject {
public:
    TBase() = default;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// How a record stands to what is stored of it.
enum class TRecStatus { rsUnchanged, rsNew, rsUpdated, rsDeleted };
using enum TRecStatus;

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TRecStatus> {
    static std::span<const wchar_t* const> Names();
};

namespace qv7skin {

/// A record that knows whether it is new, changed or deleted, and can go back to its last commit.
/// Descendants answer the questions and act; they mark a record as deleted with `FStatus`.
class TRecStatusBase : public TBase {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// `rsDeleted` once it is that; else reckoned anew from the record's answers, and kept.
    [[nodiscard]] TRecStatus GetStatus();
    /// Lets the record commit; it is unchanged then.
    void Commit();
    /// Goes back to the status of the last commit, then lets the record roll back.
    void Rollback();
    /// The record is unchanged, then it clears itself.
    void Clear();
    /// Takes over the status of another record, and what it would roll back to.
    void CopyStatus(TRecStatusBase& Other);

protected:
    [[nodiscard]] virtual bool IsNew() const = 0;
    /// Asked only when the record is not new.
    [[nodiscard]] virtual bool IsChanged() const = 0;
    virtual void DoCommit() = 0;
    virtual void DoRollback() = 0;
    virtual void DoClear() = 0;

    TRecStatus FStatus = rsUnchanged;
    TRecStatus FBKUPStatus = rsUnchanged;  ///< The status of the last commit.
};

/// One listener of a list of listeners.
class TNotifyEventItem : public TObject, private TGuarded {
public:
    TNotifyEventItem(TNotifyEvent iNotifyEvent, int Tag);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetTag() const { return FTag; }
    [[nodiscard]] const TNotifyEvent& GetNotifyEvent() const { return FNotifyEvent; }
    void DoNotify(TObject* Sender) { FNotifyEvent(Sender); }

private:
    friend class TNotifyEventList;
    int FTag;
    TNotifyEvent FNotifyEvent;
};

/// Listeners, each with a tag that says what it listens for. Listeners may come and go while they are being
/// told; one that goes is not told any more, one that comes waits for the next time.
class TNotifyEventList : public TObject, private TGuarded {
public:
    /// With `iDeleteFromListAfterNotify` each listener is told once.
    explicit TNotifyEventList(bool iDeleteFromListAfterNotify);
    ~TNotifyEventList() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetCount() const { return FItems->GetCount(); }
    [[nodiscard]] TNotifyEventItem* GetNotifyEvents(int Index) const;

    /// Appends a listener, also one that is there already.
    void Add(const TNotifyEvent& iNotifyEvent, int Tag);
    /// The highest index of a listener that is the same object, whichever of its methods is bound; -1 when
    /// there is none. Callables without an object are found by themselves.
    [[nodiscard]] int IndexOf(const TNotifyEvent& iNotifyEvent) const;
    /// Deletes the listener that `IndexOf` finds.
    void Remove(const TNotifyEvent& iNotifyEvent);
    void Clear();
    /// Tells all listeners with the tag, the last one first. An error of a listener ends the round.
    virtual void DoNotify(TObject* Sender, int iNotifyOnlyTag);

protected:
    /// Tells one listener; false when it is to leave the list for good.
    using TTeller = bool (*)(TNotifyEventItem& Item, TObject* Sender);
    void TellAll(TObject* Sender, int iNotifyOnlyTag, TTeller Tell);

private:
    std::unique_ptr<TObjectList> FItems;
    bool FDeleteFromListAfterNotify;
};

/// Listeners whose errors are theirs: one that raises is deleted from the list, and the round goes on.
class TNotifyEventListSecure : public TNotifyEventList {
public:
    using TNotifyEventList::TNotifyEventList;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void DoNotify(TObject* Sender, int iNotifyOnlyTag) override;
};

}  // namespace qv7skin
