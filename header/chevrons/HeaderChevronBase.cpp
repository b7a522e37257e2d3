#include "header/chevrons/HeaderChevronBase.h"

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TQV7SkinHeaderChevronBase::StaticClass() {
    static const TMetaClass meta = DefineClass<TQV7SkinHeaderChevronBase>(
        L"TQV7SkinHeaderChevronBase", TFlickerFreePaintBox::StaticClass());
    return meta;
}

}  // namespace qv7skin
