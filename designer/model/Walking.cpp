#include "designer/model/Walking.h"

#include <algorithm>

namespace designer {
namespace {

void AddChildren(TComponent& parent, TComponent& root, std::vector<TComponent*>& components) {
    std::vector<TComponent*> children;
    parent.GetChildren([&children](TComponent* child) { children.push_back(child); }, &root);
    for (TComponent* child : children) {
        components.push_back(child);
        AddChildren(*child, root, components);
    }
}

}  // namespace

std::vector<TComponent*> ComponentsInOrder(const TDesignDocument& document) {
    std::vector<TComponent*> components;
    AddChildren(document.Root(), document.Root(), components);
    return components;
}

void ChooseNext(TDesignDocument& document, int step) {
    const std::vector<TComponent*> components = ComponentsInOrder(document);
    // The form takes the place before the first.
    const int count = static_cast<int>(components.size()) + 1;
    const auto leader = std::ranges::find(components, document.Selection().Leader());
    const int present = leader == components.end() ? 0 : static_cast<int>(leader - components.begin()) + 1;
    const int next = (present + step % count + count) % count;
    if (next == 0)
        document.Selection().Clear();
    else
        document.Selection().SetOnly(components[static_cast<std::size_t>(next) - 1]);
}

void ChooseParent(TDesignDocument& document) {
    const TComponent* leader = document.Selection().Leader();
    TComponent* parent = leader ? leader->GetParentComponent() : nullptr;
    if (!parent || parent == &document.Root())
        document.Selection().Clear();
    else
        document.Selection().SetOnly(parent);
}

}  // namespace designer
