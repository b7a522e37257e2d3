#include "skin/lists/ThreadedList.h"

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {
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

}  // namespace qv7skin
