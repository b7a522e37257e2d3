#pragma once

#include "platform/vcl/core/Exceptions.h"

namespace vcl {

/// A number was divided by zero.
class EZeroDivide : public Exception {
public:
    EZeroDivide() : Exception(L"Floating point division by zero") {}
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EZeroDivide"; }
};

}  // namespace vcl
