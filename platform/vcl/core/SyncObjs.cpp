#include "platform/vcl/core/SyncObjs.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TCriticalSection::StaticClass() {
    static const TMetaClass meta = DefineClass<TCriticalSection>(L"TCriticalSection", TObject::StaticClass());
    return meta;
}

TCriticalSection::TCriticalSection() {
    InitializeCriticalSection(&FSection);
}

TCriticalSection::~TCriticalSection() {
    DeleteCriticalSection(&FSection);
}

}  // namespace vcl
