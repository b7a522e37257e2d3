#include "header/items/HeaderItems.h"

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TQV7SkinHeaderItems::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinHeaderItems>(L"TQV7SkinHeaderItems", TLstBase::StaticClass());
    return meta;
}

TQV7SkinHeaderItems::TQV7SkinHeaderItems(THeaderItemHost* AOwner) : TLstBase(true), FOwner(AOwner) {}

TQV7SkinHeaderItems::~TQV7SkinHeaderItems() {
    DisownAll();
}

int TQV7SkinHeaderItems::Add(TQV7SkinHeaderItemCustom* Item) {
    if (Item->FOwner) Item->FOwner->ReleaseItem(*Item);
    const int index = TLstBase::Add(Item);
    Item->SetOwner(FOwner);
    if (!FOwner) {
        CheckForItemCountChanges();
        return index;
    }
    const TLifeGuard guard = FOwner->HostGuard();
    CheckForItemCountChanges();
    if (guard.IsAlive()) FOwner->Repaint();
    return index;
}

void TQV7SkinHeaderItems::Delete(int Index) {
    GetItems(Index)->SetOwner(nullptr);
    TLstBase::Delete(Index);
    ItemsLeft();
}

TQV7SkinHeaderItemCustom* TQV7SkinHeaderItems::Extract(TObject* Item) {
    auto* const item = static_cast<TQV7SkinHeaderItemCustom*>(TLstBase::Extract(Item));
    if (!item) return nullptr;
    item->SetOwner(nullptr);
    ItemsLeft();
    return item;
}

TQV7SkinHeaderItemCustom* TQV7SkinHeaderItems::Extract(int Index) {
    return static_cast<TQV7SkinHeaderItemCustom*>(TLstBase::Extract(Index));
}

void TQV7SkinHeaderItems::Clear() {
    DisownAll();
    TLstBase::Clear();
    ItemsLeft();
}

void TQV7SkinHeaderItems::ClearWithoutFree() {
    DisownAll();
    TLstBase::ClearWithoutFree();
    ItemsLeft();
}

void TQV7SkinHeaderItems::CheckForItemCountChanges() {
    if (GetCount() == FLastCount) return;
    if (!FOwner) {
        OnCountChanged(this);
    } else {
        const TLifeGuard guard = FOwner->HostGuard();
        OnCountChanged(this);
        if (!guard.IsAlive()) return;
    }
    FLastCount = GetCount();
}

/// Items that leave do not turn to the control any more.
void TQV7SkinHeaderItems::DisownAll() {
    for (int i = 0; i < GetCount(); ++i)
        GetItems(i)->SetOwner(nullptr);
}

void TQV7SkinHeaderItems::ItemsLeft() {
    if (!FOwner) return CheckForItemCountChanges();
    const TLifeGuard guard = FOwner->HostGuard();
    CheckForItemCountChanges();
    if (guard.IsAlive()) FOwner->Invalidate();
}

}  // namespace qv7skin
