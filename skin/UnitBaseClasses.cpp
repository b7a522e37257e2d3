#include "skin/UnitBaseClasses.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "skin/UnitQV7SkinConsts.h"

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TRecStatus>::Names() {
    static constexpr const wchar_t* names[] = {L"rsUnchanged", L"rsNew", L"rsUpdated", L"rsDeleted"};
    return names;
}

namespace qv7skin {

// --- TLstBase

const TMetaClass& TLstBase::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TLstBase>(L"TLstBase", TObject::StaticClass())
            .Property(L"Count", &TLstBase::GetCount, nullptr)
            .Property(L"OwnsObjects", &TLstBase::GetOwnsObjects, &TLstBase::SetOwnsObjects);
    return meta;
}

TLstBase::TLstBase(bool iOwnsObjects) : FList(std::make_unique<TObjectList>(iOwnsObjects)) {}

TLstBase::~TLstBase() = default;

void TLstBase::Clear() {
    FList->Clear();
    Changed();
}

void TLstBase::ClearWithoutFree() {
    const bool owns = GetOwnsObjects();
    SetOwnsObjects(false);
    FList->Clear();
    SetOwnsObjects(owns);
    Changed();
}

void TLstBase::Delete(int iIndex) {
    FList->Delete(iIndex);
    Changed();
}

TObject* TLstBase::Extract(int iIndex) {
    return Extract(FList->GetItem(iIndex));
}

TObject* TLstBase::Extract(TObject* Object) {
    TObject* extracted = FList->Extract(Object);
    if (extracted) Changed();
    return extracted;
}

void TLstBase::Move(int CurrentIndex, int NewIndex) {
    FList->Move(CurrentIndex, NewIndex == -1 ? GetCount() - 1 : NewIndex);
    Changed();
}

void TLstBase::Reverse() {
    auto reversed = std::make_unique<TObjectList>(GetOwnsObjects());
    reversed->SetCapacity(GetCount());
    for (int i = GetCount() - 1; i >= 0; --i)
        reversed->Add(FList->GetItem(i));
    FList->SetOwnsObjects(false);
    FList = std::move(reversed);
    Changed();
}

// --- TThreadedLstBase

namespace {

/// Holds the lock of a list for one step, also when the step raises.
class TListLock {
public:
    explicit TListLock(TThreadedLstBase& list) : FList(list), FObjects(list.Enter()) {}
    ~TListLock() { FList.Leave(); }
    TListLock(const TListLock&) = delete;
    TListLock& operator=(const TListLock&) = delete;
    TObjectList* operator->() const { return FObjects; }

private:
    TThreadedLstBase& FList;
    TObjectList* FObjects;
};

}  // namespace

const TMetaClass& TThreadedLstBase::StaticClass() {
    static const TMetaClass meta = DefineClass<TThreadedLstBase>(L"TThreadedLstBase", TObject::StaticClass());
    return meta;
}

TThreadedLstBase::TThreadedLstBase(bool iOwnsObjects)
    : FLock(std::make_unique<TCriticalSection>()), FList(std::make_unique<TObjectList>(iOwnsObjects)) {}

TThreadedLstBase::~TThreadedLstBase() = default;

TObjectList* TThreadedLstBase::Enter() {
    FLock->Enter();
    ++FEnterCounter;
    return FList.get();
}

TObjectList* TThreadedLstBase::TryEnter() {
    if (!FLock->TryEnter()) return nullptr;
    ++FEnterCounter;
    return FList.get();
}

void TThreadedLstBase::Leave() {
    --FEnterCounter;
    FLock->Leave();
}

void TThreadedLstBase::Clear() {
    TListLock(*this)->Clear();
}

void TThreadedLstBase::Delete(int iIndex) {
    TListLock(*this)->Delete(iIndex);
}

int TThreadedLstBase::Count() {
    return TListLock(*this)->GetCount();
}

int TThreadedLstBase::IndexOf(const TObject* Object) {
    return TListLock(*this)->IndexOf(Object);
}

// --- TLstChangeLog

const TMetaClass& TLstChangeLog::StaticClass() {
    static const TMetaClass meta = DefineClass<TLstChangeLog>(L"TLstChangeLog", TObject::StaticClass());
    return meta;
}

TLstChangeLog::TLstChangeLog() : FOwnList(std::make_unique<TObjectList>()) {}

TLstChangeLog::TLstChangeLog(TLstBase* iLstCloned, TLstBase* iLstUpd, TLstBase* iLstDel) : TLstChangeLog() {
    FLstCloned = iLstCloned;
    FLstUpd = iLstUpd;
    FLstDel = iLstDel;
}

TLstChangeLog::~TLstChangeLog() = default;

void TLstChangeLog::NeedLists() const {
    if (!FLstCloned || !FLstUpd || !FLstDel)
        throw EInvalidOperation(ClassName() + L" keeps no book without its lists");
}

void TLstChangeLog::InsertRec(TObject* Object) {
    NeedLists();
    if (FLstCloned->IndexOf(Object) >= 0)
        throw Exception(ClassName() + LoadSkinString(resObjectAlreadyInList));
    FLstCloned->Add(Object);
}

void TLstChangeLog::UpdateRec(TObject* Object) {
    NeedLists();
    if (FLstUpd->IndexOf(Object) < 0) FLstUpd->Add(Object);
}

void TLstChangeLog::DeleteRec(TObject* Object) {
    NeedLists();
    if (FLstCloned->IndexOf(Object) < 0) throw Exception(ClassName() + LoadSkinString(resObjectNotInList));
    FLstDel->Add(Object);
    FLstCloned->Extract(Object);
    if (FLstUpd->IndexOf(Object) >= 0) FLstUpd->Extract(Object);
}

void TLstChangeLog::Clear() {
    NeedLists();
    FLstUpd->Clear();
    FLstCloned->Clear();
    FLstDel->Clear();
}

// --- TBase and TRecStatusBase

const TMetaClass& TBase::StaticClass() {
    static const TMetaClass meta = DefineClass<TBase>(L"TBase", TObject::StaticClass());
    return meta;
}

namespace {

/// Reading the status keeps it, which changes nothing that others see.
TRecStatus PublishedStatus(const TRecStatusBase& record) {
    return const_cast<TRecStatusBase&>(record).GetStatus();
}

}  // namespace

const TMetaClass& TRecStatusBase::StaticClass() {
    static const TMetaClass meta = DefineClass<TRecStatusBase>(L"TRecStatusBase", TBase::StaticClass())
                                       .Property(L"Status", &PublishedStatus, nullptr);
    return meta;
}

TRecStatus TRecStatusBase::GetStatus() {
    if (FStatus != rsDeleted) FStatus = IsNew() ? rsNew : IsChanged() ? rsUpdated : rsUnchanged;
    return FStatus;
}

void TRecStatusBase::Commit() {
    DoCommit();
    FStatus = rsUnchanged;
    FBKUPStatus = rsUnchanged;
}

void TRecStatusBase::Rollback() {
    FStatus = FBKUPStatus;
    DoRollback();
}

void TRecStatusBase::Clear() {
    FStatus = rsUnchanged;
    FBKUPStatus = rsUnchanged;
    DoClear();
}

void TRecStatusBase::CopyStatus(TRecStatusBase& Other) {
    FStatus = Other.GetStatus();
    FBKUPStatus = Other.FBKUPStatus;
}

// --- Listeners

const TMetaClass& TNotifyEventItem::StaticClass() {
    static const TMetaClass meta = DefineClass<TNotifyEventItem>(L"TNotifyEventItem", TObject::StaticClass());
    return meta;
}

TNotifyEventItem::TNotifyEventItem(TNotifyEvent iNotifyEvent, int Tag)
    : FTag(Tag), FNotifyEvent(std::move(iNotifyEvent)) {}

const TMetaClass& TNotifyEventList::StaticClass() {
    static const TMetaClass meta = DefineClass<TNotifyEventList>(L"TNotifyEventList", TObject::StaticClass())
                                       .Property(L"Count", &TNotifyEventList::GetCount, nullptr);
    return meta;
}

TNotifyEventList::TNotifyEventList(bool iDeleteFromListAfterNotify)
    : FItems(std::make_unique<TObjectList>()), FDeleteFromListAfterNotify(iDeleteFromListAfterNotify) {}

TNotifyEventList::~TNotifyEventList() = default;

TNotifyEventItem* TNotifyEventList::GetNotifyEvents(int Index) const {
    return static_cast<TNotifyEventItem*>(FItems->GetItem(Index));
}

void TNotifyEventList::Add(const TNotifyEvent& iNotifyEvent, int Tag) {
    auto item = std::make_unique<TNotifyEventItem>(iNotifyEvent, Tag);
    FItems->Add(item.get());
    item.release();
}

int TNotifyEventList::IndexOf(const TNotifyEvent& iNotifyEvent) const {
    const void* listener = iNotifyEvent.ObjectPart();
    for (int i = GetCount() - 1; i >= 0; --i) {
        const TNotifyEvent& event = GetNotifyEvents(i)->GetNotifyEvent();
        if (event.ObjectPart() == listener && (listener || event == iNotifyEvent)) return i;
    }
    return -1;
}

void TNotifyEventList::Remove(const TNotifyEvent& iNotifyEvent) {
    const int index = IndexOf(iNotifyEvent);
    if (index >= 0) FItems->Delete(index);
}

void TNotifyEventList::Clear() {
    FItems->Clear();
}

void TNotifyEventList::TellAll(TObject* Sender, int iNotifyOnlyTag, TTeller Tell) {
    const TLifeGuard list(*this);
    for (int i = GetCount() - 1; i >= 0;) {
        TNotifyEventItem* item = GetNotifyEvents(i);
        if (item->GetTag() != iNotifyOnlyTag) {
            --i;
            continue;
        }
        const TLifeGuard listener(*item);
        const bool stays = Tell(*item, Sender);
        if (!list.IsAlive()) return;
        if (!listener.IsAlive()) {
            i = std::min(i, GetCount()) - 1;
            continue;
        }
        // Others may have left the list, so that the listener stands elsewhere now.
        i = FItems->IndexOf(item);
        if (!stays || FDeleteFromListAfterNotify) FItems->Delete(i);
        --i;
    }
}

void TNotifyEventList::DoNotify(TObject* Sender, int iNotifyOnlyTag) {
    TellAll(Sender, iNotifyOnlyTag, [](TNotifyEventItem& item, TObject* sender) {
        item.DoNotify(sender);
        return true;
    });
}

const TMetaClass& TNotifyEventListSecure::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TNotifyEventListSecure>(L"TNotifyEventListSecure", TNotifyEventList::StaticClass());
    return meta;
}

void TNotifyEventListSecure::DoNotify(TObject* Sender, int iNotifyOnlyTag) {
    TellAll(Sender, iNotifyOnlyTag, [](TNotifyEventItem& item, TObject* sender) {
        try {
            item.DoNotify(sender);
            return true;
        } catch (...) {
            return false;
        }
    });
}

}  // namespace qv7skin
