#include "skin/lists/RecordStatus.h"

#include "platform/vcl/core/DefineClass.h"

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TRecStatus>::Names() {
    static constexpr const wchar_t* names[] = {L"rsUnchanged", L"rsNew", L"rsUpdated", L"rsDeleted"};
    return names;
}

namespace qv7skin {
namespace {

/// Reading the status keeps it, which changes nothing that others see.
TRecStatus PublishedStatus(const TRecStatusBase& record) {
    return const_cast<TRecStatusBase&>(record).GetStatus();
}

}  // namespace

const TMetaClass& TBase::StaticClass() {
    static const TMetaClass meta = DefineClass<TBase>(L"TBase", TObject::StaticClass());
    return meta;
}

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

}  // namespace qv7skin
