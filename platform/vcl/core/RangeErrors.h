#pragma once

#include <cstdint>

namespace vcl {

/// Raises EInvalidOperation "Value must be between <minimum> and <maximum>".
[[noreturn]] void RaiseOutOfRange(std::int64_t minimum, std::int64_t maximum);

}  // namespace vcl
