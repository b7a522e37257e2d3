#include "platform/vcl/controls/SizeConstraints.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TSizeConstraints::StaticClass() {
    using C = TSizeConstraints;
    static const TMetaClass meta = DefineClass<C>(L"TSizeConstraints", TPersistent::StaticClass())
                                       .Property(L"MaxHeight", &C::GetMaxHeight, &C::SetMaxHeight, 0)
                                       .Property(L"MaxWidth", &C::GetMaxWidth, &C::SetMaxWidth, 0)
                                       .Property(L"MinHeight", &C::GetMinHeight, &C::SetMinHeight, 0)
                                       .Property(L"MinWidth", &C::GetMinWidth, &C::SetMinWidth, 0);
    return meta;
}

void TSizeConstraints::SetMinWidth(int value) {
    value = std::max(value, 0);
    SetLimits(FMinWidth, FMaxWidth, value, FMaxWidth > 0 ? std::max(FMaxWidth, value) : 0);
}

void TSizeConstraints::SetMinHeight(int value) {
    value = std::max(value, 0);
    SetLimits(FMinHeight, FMaxHeight, value, FMaxHeight > 0 ? std::max(FMaxHeight, value) : 0);
}

void TSizeConstraints::SetMaxWidth(int value) {
    value = std::max(value, 0);
    SetLimits(FMinWidth, FMaxWidth, value > 0 ? std::min(FMinWidth, value) : FMinWidth, value);
}

void TSizeConstraints::SetMaxHeight(int value) {
    value = std::max(value, 0);
    SetLimits(FMinHeight, FMaxHeight, value > 0 ? std::min(FMinHeight, value) : FMinHeight, value);
}

void TSizeConstraints::Assign(const TPersistent* source) {
    const auto* other = dynamic_cast<const TSizeConstraints*>(source);
    if (!other) return TPersistent::Assign(source);
    if (other == this) return;
    FMinWidth = other->FMinWidth;
    FMinHeight = other->FMinHeight;
    FMaxWidth = other->FMaxWidth;
    FMaxHeight = other->FMaxHeight;
    OnChange(this);
}

void TSizeConstraints::SetLimits(int& minimum, int& maximum, int newMinimum, int newMaximum) {
    if (minimum == newMinimum && maximum == newMaximum) return;
    minimum = newMinimum;
    maximum = newMaximum;
    OnChange(this);
}

}  // namespace vcl
