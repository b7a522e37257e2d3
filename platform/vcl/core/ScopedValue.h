#pragma once

#include <utility>

namespace vcl {

/// Gives a variable a value for the length of a scope, and its former one back at the end. The variable has
/// to outlive the scope.
template <class T>
class TScopedValue {
public:
    TScopedValue(T& variable, T value) : FVariable(variable), FFormer(std::exchange(variable, value)) {}
    TScopedValue(const TScopedValue&) = delete;
    TScopedValue& operator=(const TScopedValue&) = delete;
    ~TScopedValue() { FVariable = FFormer; }

private:
    T& FVariable;
    T FFormer;
};

}  // namespace vcl
