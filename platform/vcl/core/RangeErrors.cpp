#include "platform/vcl/core/RangeErrors.h"

#include "platform/vcl/core/Exceptions.h"

namespace vcl {

void RaiseOutOfRange(std::int64_t minimum, std::int64_t maximum) {
    throw EInvalidOperation(Format(L"Value must be between %d and %d", minimum, maximum));
}

}  // namespace vcl
