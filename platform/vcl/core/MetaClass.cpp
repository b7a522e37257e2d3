#include "platform/vcl/core/MetaClass.h"

#include <algorithm>

#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

TMetaClass::TMetaClass(const wchar_t* name, const TMetaClass* parent, Factory factory)
    : FName(name), FParent(parent), FFactory(factory) {}

TMetaClass::TMetaClass(TMetaClass&&) noexcept = default;
TMetaClass::~TMetaClass() = default;

bool TMetaClass::InheritsFrom(const TMetaClass& ancestor) const {
    const TMetaClass* meta = this;
    while (meta && meta != &ancestor)
        meta = meta->FParent;
    return meta != nullptr;
}

std::vector<const TPublishedProperty*> TMetaClass::AllProperties() const {
    std::vector<const TPublishedProperty*> all;
    if (FParent) all = FParent->AllProperties();
    for (const auto& row : FProperties) {
        const auto replaced = std::ranges::find_if(
            all, [&](const TPublishedProperty* other) { return SameText(other->Name(), row->Name()); });
        if (replaced != all.end())
            *replaced = row.get();
        else
            all.push_back(row.get());
    }
    return all;
}

const TPublishedProperty* TMetaClass::FindProperty(StringView name) const {
    for (const TMetaClass* meta = this; meta; meta = meta->FParent) {
        for (const auto& row : meta->FProperties) {
            if (SameText(row->Name(), name)) return row.get();
        }
    }
    return nullptr;
}

const TPublishedMethod* TMetaClass::FindMethod(StringView name) const {
    for (const TMetaClass* meta = this; meta; meta = meta->FParent) {
        for (const TPublishedMethod& method : meta->FMethods) {
            if (SameText(method.Name, name)) return &method;
        }
    }
    return nullptr;
}

const TPublishedField* TMetaClass::FindField(StringView name) const {
    for (const TMetaClass* meta = this; meta; meta = meta->FParent) {
        for (const TPublishedField& field : meta->FFields) {
            if (SameText(field.Name, name)) return &field;
        }
    }
    return nullptr;
}

}  // namespace vcl
