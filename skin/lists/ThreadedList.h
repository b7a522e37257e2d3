#pragma once

#include <memory>

#include "platform/vcl/core/ObjectList.h"
#include "platform/vcl/core/SyncObjs.h"
#include "skin/Namespace.h"

namespace qv7skin {

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

}  // namespace qv7skin
