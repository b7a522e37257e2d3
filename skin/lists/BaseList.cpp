#include "skin/lists/BaseList.h"

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

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

}  // namespace qv7skin
