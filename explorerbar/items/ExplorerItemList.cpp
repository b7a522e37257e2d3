#include "explorerbar/items/ExplorerItemList.h"

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/groups/ExplorerGroup.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TQV7SkinExplorerItems::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinExplorerItems>(L"TQV7SkinExplorerItems", TLstBase::StaticClass());
    return meta;
}

TQV7SkinExplorerItems::TQV7SkinExplorerItems(TQV7SkinExplorerGroup* Owner) : TLstBase(true), FOwner(Owner) {}

int TQV7SkinExplorerItems::Add(TQV7SkinExplorerItemCustom* Item) {
    const int index = TLstBase::Add(Item);
    MarkChanged();
    Item->SetOwner(FOwner);
    Settle();
    return index;
}

void TQV7SkinExplorerItems::Insert(int Index, TQV7SkinExplorerItemCustom* Item) {
    TLstBase::Insert(Index, Item);
    MarkChanged();
    Item->SetOwner(FOwner);
    Settle();
}

void TQV7SkinExplorerItems::Delete(int Index) {
    GetItems(Index)->SetOwner(nullptr);
    TLstBase::Delete(Index);
}

TQV7SkinExplorerItemCustom* TQV7SkinExplorerItems::Extract(int Index) {
    return Extract(GetItems(Index));
}

TQV7SkinExplorerItemCustom* TQV7SkinExplorerItems::Extract(TObject* Object) {
    const int index = IndexOf(Object);
    if (index < 0) return nullptr;
    TQV7SkinExplorerItemCustom* item = GetItems(index);
    item->SetOwner(nullptr);
    TLstBase::Extract(Object);
    return item;
}

void TQV7SkinExplorerItems::Clear() {
    ReleaseAll();
    TLstBase::Clear();
}

void TQV7SkinExplorerItems::ClearWithoutFree() {
    ReleaseAll();
    TLstBase::ClearWithoutFree();
}

void TQV7SkinExplorerItems::ReleaseAll() {
    for (int i = 0; i < GetCount(); ++i)
        GetItems(i)->SetOwner(nullptr);
}

void TQV7SkinExplorerItems::Changed() {
    MarkChanged();
    Settle();
}

void TQV7SkinExplorerItems::MarkChanged() {
    if (!FOwner) return;
    FOwner->ItemsChanged();
    if (auto* bar = FOwner->GetExBar()) bar->NeedsMeasure = true;
}

/// Repaints, unless the item that came has seen to that.
void TQV7SkinExplorerItems::Settle() {
    auto* bar = FOwner ? FOwner->GetExBar() : nullptr;
    if (bar && bar->NeedsMeasure && !bar->IsUpdating()) bar->Repaint();
}

}  // namespace qv7skin
