#pragma once

#include <memory>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/ObjectList.h"
#include "skin/Namespace.h"

namespace qv7skin {

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
