#include "platform/vcl/core/DefineClass.h"

namespace vcl::detail {

void RaiseWrongPropertyType(const wchar_t* property) {
    throw EConvertError(Format(L"Invalid value for property %s", property));
}

}  // namespace vcl::detail
