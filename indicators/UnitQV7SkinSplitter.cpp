#include "indicators/UnitQV7SkinSplitter.h"

#include <algorithm>

#include "platform/vcl/controls/PublishedRows.h"

namespace qv7skin {

// --- sizes

const TMetaClass& TQV7SkinSplitterSizeConstraints::StaticClass() {
    using T = TQV7SkinSplitterSizeConstraints;
    static const TMetaClass meta =
        DefineClass<T>(L"TQV7SkinSplitterSizeConstraints", TPersistent::StaticClass())
            .Property(L"Left", &T::GetLeft, &T::SetLeft, 0)
            .Property(L"Right", &T::GetRight, &T::SetRight, 0)
            .Property(L"Top", &T::GetTop, &T::SetTop, 0)
            .Property(L"Bottom", &T::GetBottom, &T::SetBottom, 0);
    return meta;
}

TPersistent* TQV7SkinSplitterSizeConstraints::GetOwner() const {
    return FSplitter;
}

void TQV7SkinSplitterSizeConstraints::SetConstraints(int Index, TQV7SkinSplitterConstraintSize Value) {
    Value = std::max(Value, 0);
    if (FSizes[Index] == Value) return;
    FSizes[Index] = Value;
    Change();
}

void TQV7SkinSplitterSizeConstraints::AssignTo(TPersistent* Dest) const {
    auto* other = dynamic_cast<TQV7SkinSplitterSizeConstraints*>(Dest);
    if (!other) return TPersistent::AssignTo(Dest);
    std::ranges::copy(FSizes, other->FSizes);
    other->Change();
}

void TQV7SkinSplitterSizeConstraints::Change() {
    OnChange(this);
}

// --- the splitter

const TMetaClass& TQV7SkinSplitter::StaticClass() {
    using T = TQV7SkinSplitter;
    static const TMetaClass meta =
        DefineClass<T>(L"TQV7SkinSplitter", TSplitter::StaticClass())
            .Property(L"MinConstraints", &T::GetMinConstraints, &T::SetMinConstraints);
    return meta;
}

TQV7SkinSplitter::TQV7SkinSplitter(TComponent* AOwner)
    : TSplitter(AOwner), FMinConstraints(std::make_unique<TQV7SkinSplitterSizeConstraints>(this)) {
    FMinConstraints->OnChange = {this, &TQV7SkinSplitter::DoMinConstraintsChange};
}

bool TQV7SkinSplitter::DoCanResize(int& NewSize) {
    const TWinControl* parent = GetParent();
    if (!parent) return TSplitter::DoCanResize(NewSize);
    const TQV7SkinSplitterSizeConstraints& least = *FMinConstraints;
    const auto keep = [&](int free, int nearest, int furthest, bool resizesNearest) {
        const auto keepOwn = [&](int size) { NewSize = std::max(NewSize, size); };
        const auto keepOther = [&](int size) { NewSize = std::min(NewSize, free - size); };
        if (nearest != 0) resizesNearest ? keepOwn(nearest) : keepOther(nearest);
        if (furthest != 0) resizesNearest ? keepOther(furthest) : keepOwn(furthest);
    };
    switch (GetAlign()) {
        case alLeft:
        case alRight:
            keep(parent->GetClientWidth() - GetWidth(), least.GetLeft(), least.GetRight(),
                 GetAlign() == alLeft);
            break;
        case alTop:
        case alBottom:
            keep(parent->GetClientHeight() - GetHeight(), least.GetTop(), least.GetBottom(),
                 GetAlign() == alTop);
            break;
        default:
            break;
    }
    return TSplitter::DoCanResize(NewSize);
}

}  // namespace qv7skin
