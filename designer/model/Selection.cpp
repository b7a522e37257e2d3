#include "designer/model/Selection.h"

#include <algorithm>
#include <utility>

namespace designer {

bool TSelection::Contains(const TComponent* component) const {
    return std::ranges::find(FItems, component) != FItems.end();
}

void TSelection::Set(std::vector<TComponent*> items) {
    if (items == FItems) return;
    FItems = std::move(items);
    OnChange();
}

void TSelection::Toggle(TComponent* component) {
    if (std::erase(FItems, component) == 0) FItems.push_back(component);
    OnChange();
}

void TSelection::Lead(TComponent* component) {
    std::vector<TComponent*> items = FItems;
    const auto place = std::ranges::find(items, component);
    if (place == items.end() || place == items.begin()) return;
    std::rotate(items.begin(), place, place + 1);
    Set(std::move(items));
}

void TSelection::Forget(const TComponent* component) {
    if (std::erase(FItems, component) != 0) OnChange();
}

std::vector<String> TSelection::Names() const {
    std::vector<String> names;
    for (const TComponent* component : FItems)
        names.push_back(component->GetName());
    return names;
}

void TSelection::SetNames(const std::vector<String>& names, const TComponent& root) {
    FItems.clear();
    for (const String& name : names)
        if (TComponent* component = root.FindComponent(name)) FItems.push_back(component);
    OnChange();
}

}  // namespace designer
