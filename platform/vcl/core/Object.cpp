#include "platform/vcl/core/Object.h"

#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/MetaClass.h"

namespace vcl {

TObject::TObject() {
    TLedger::AddObject(this);
}

TObject::~TObject() {
    TLedger::RemoveObject(this);
}

const TMetaClass& TObject::ClassType() const {
    return StaticClass();
}

const TMetaClass& TObject::StaticClass() {
    static const TMetaClass meta(L"TObject", nullptr, nullptr);
    return meta;
}

String TObject::ClassName() const {
    return ClassType().ClassName();
}

bool TObject::InheritsFrom(const TMetaClass& ancestor) const {
    return ClassType().InheritsFrom(ancestor);
}

}  // namespace vcl
