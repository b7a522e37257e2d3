#include "platform/vcl/streaming/PropertyAddress.h"

#include "platform/vcl/core/Collection.h"

namespace vcl {

TPersistent* TPropertyAddress::Object() const {
    TPersistent* object = Component;
    for (const TStep& step : Steps) {
        if (const auto* nested = std::get_if<const TPublishedProperty*>(&step)) {
            const TPropertyValue value = (*nested)->Get(*object);
            const auto* next = std::get_if<TPersistent*>(&value);
            object = next ? *next : nullptr;
        } else {
            const auto* collection = dynamic_cast<const TCollection*>(object);
            object = collection ? collection->FindItemID(std::get<int>(step)) : nullptr;
        }
        if (!object) return nullptr;
    }
    return object;
}

}  // namespace vcl
