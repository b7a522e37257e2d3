#include "skin/lists/NotifyEventList.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

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
