#pragma once

#include <optional>
#include <string>

#include "platform/vcl/streaming/FormFloat.h"

namespace vcl {

/// A decimal number: the digits with a point behind the first one, times ten to the power of `Exponent`.
struct TDecimal {
    bool Negative = false;
    std::string Digits;  ///< Without leading zeros; empty for zero.
    int Exponent = 0;
};

/// The number rounded to that many digits, half to even, exactly.
[[nodiscard]] TDecimal ExtendedToDecimal(const TExtended& value, int digits);
/// The nearest 80-bit number, half to even, exactly; nothing when it is too big.
[[nodiscard]] std::optional<TExtended> DecimalToExtended(const TDecimal& decimal);

}  // namespace vcl
