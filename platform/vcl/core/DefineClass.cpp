#include "platform/vcl/core/DefineClass.h"

namespace vcl::detail {

void RaiseWrongPropertyType(const wchar_t* property) {
    throw EConvertError(Format(L"Invalid value for property %s", property));
}

void RaisePropertyOutOfRange(const wchar_t* property, std::int64_t value) {
    throw EConvertError(Format(L"Value %d of property %s is out of range", value, property));
}

}  // namespace vcl::detail
