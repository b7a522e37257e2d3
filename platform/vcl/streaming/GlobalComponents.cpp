#include "platform/vcl/streaming/GlobalComponents.h"

#include <algorithm>
#include <vector>

namespace vcl {
namespace {

std::vector<TFindGlobalComponent>& Finders() {
    static std::vector<TFindGlobalComponent> finders;
    return finders;
}

}  // namespace

void RegisterFindGlobalComponent(TFindGlobalComponent find) {
    auto& finders = Finders();
    if (std::ranges::find(finders, find) == finders.end()) finders.push_back(find);
}

void UnRegisterFindGlobalComponent(TFindGlobalComponent find) {
    std::erase(Finders(), find);
}

TComponent* FindGlobalComponent(StringView name) {
    for (const TFindGlobalComponent find : Finders()) {
        if (TComponent* found = find(name)) return found;
    }
    return nullptr;
}

TComponent* FindNestedComponent(TComponent& root, StringView path) {
    TComponent* component = &root;
    while (component && !path.empty()) {
        const std::size_t point = std::min(path.find(L'.'), path.size());
        const StringView name = path.substr(0, point);
        TComponent* next = component->FindComponent(name);
        if (!next && SameText(name, L"Owner")) next = component;
        component = next;
        path.remove_prefix(std::min(point + 1, path.size()));
    }
    return component;
}

}  // namespace vcl
