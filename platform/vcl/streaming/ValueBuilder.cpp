#include "platform/vcl/streaming/ValueBuilder.h"

#include "platform/vcl/core/Exceptions.h"

#include <cmath>
#include <utility>

namespace vcl {

TFormFloat FiniteFloat(double value) {
    if (!std::isfinite(value)) throw EWriteError(L"Form files can't hold numbers that are not finite");
    return TFormFloat(value);
}

void TValueBuilder::WriteFloat(double value) {
    Add(FiniteFloat(value));
}

void TValueBuilder::WriteListEnd() {
    if (FOpen.empty()) throw EWriteError(L"A list ends that has not begun");
    TFormList list = std::move(FOpen.back());
    FOpen.pop_back();
    Add(std::move(list));
}

void TValueBuilder::Add(TFormValue::TContent content) {
    auto& values = FOpen.empty() ? FDone : FOpen.back().Values;
    values.push_back({std::move(content), {}});
}

TFormValue TValueBuilder::Take() {
    if (!FOpen.empty() || FDone.size() != 1) throw EWriteError(L"A property must have one value");
    TFormValue value = std::move(FDone.front());
    FDone.clear();
    return value;
}

}  // namespace vcl
