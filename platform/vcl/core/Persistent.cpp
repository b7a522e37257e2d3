#include "platform/vcl/core/Persistent.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TPersistent::StaticClass() {
    static const TMetaClass meta = DefineClass<TPersistent>(L"TPersistent", TObject::StaticClass());
    return meta;
}

void TPersistent::Assign(const TPersistent* source) {
    if (!source) RaiseAssignError(nullptr);
    source->AssignTo(this);
}

void TPersistent::AssignTo(TPersistent* dest) const {
    dest->RaiseAssignError(this);
}

String TPersistent::GetNamePath() const {
    const TPersistent* owner = GetOwner();
    return owner ? owner->GetNamePath() : ClassName();
}

void TPersistent::RaiseAssignError(const TPersistent* source) const {
    throw EConvertError(
        Format(L"Cannot assign a %s to a %s", source ? source->ClassName() : String(L"nil"), ClassName()));
}

}  // namespace vcl
