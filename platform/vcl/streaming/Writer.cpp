#include "platform/vcl/streaming/Writer.h"

#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/UnknownComponent.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

namespace vcl {

TFormDocument TWriter::WriteRootComponent(TComponent& root, TComponent* ancestor) {
    FScope = {&root, &root};
    FAncestorScope = {ancestor, ancestor};
    FUnknown.clear();
    for (int i = 0; i < root.GetComponentCount(); ++i) {
        if (const auto* unknown = dynamic_cast<const TUnknownComponent*>(root.GetComponent(i)))
            FUnknown.push_back(unknown);
    }
    return {WriteComponent(root, ancestor, true), {}};
}

TFormObject TWriter::WriteComponent(TComponent& component, TComponent* ancestor, bool isRoot) {
    TFormObject object;
    object.Name = component.GetName();
    object.ClassName = component.ClassName();
    if (ancestor) object.Kind = TFormObjectKind::Inherited;
    if (isRoot || !component.IsInState(csInline)) {
        WriteContents(object, component, ancestor);
        return object;
    }

    // Names in a frame mean its own components.
    const TScope scope = std::exchange(FScope, {FScope.Root, &component});
    const TScope ancestorScope = FAncestorScope;
    std::unique_ptr<TComponent> fresh;
    if (ancestor) {
        FAncestorScope.LookupRoot = ancestor;
    } else {
        object.Kind = TFormObjectKind::Inline;
        if (OnFindAncestor) ancestor = OnFindAncestor(component);
        if (!ancestor) {
            fresh.reset(component.ClassType().Create(nullptr));
            ancestor = fresh.get();
        }
        FAncestorScope = {ancestor, ancestor};
    }
    WriteContents(object, component, ancestor);
    FScope = scope;
    FAncestorScope = ancestorScope;
    return object;
}

void TWriter::WriteContents(TFormObject& object, TComponent& component, TComponent* ancestor) {
    component.SetState(csWriting, true);
    const std::unique_ptr<TComponent, void (*)(TComponent*)> writing(
        &component, [](TComponent* written) { written->SetState(csWriting, false); });
    FProperties.clear();
    WriteProperties(FProperties, component, ancestor, {});
    AppendUnread(FProperties, component);
    object.Properties.assign(std::make_move_iterator(FProperties.begin()),
                             std::make_move_iterator(FProperties.end()));
    WriteChildren(object, component, ancestor);
    InsertUnknown(object, component);
}

void TWriter::WriteChildren(TFormObject& object, TComponent& component, TComponent* ancestor) {
    const auto children = ChildrenOf(component, FScope);
    const auto expected = ExpectedOrder(children, ancestor);
    for (std::size_t i = 0; i < children.size(); ++i) {
        TComponent* ancestorChild = AncestorOf(*children[i]);
        TFormObject child = WriteComponent(*children[i], ancestorChild, false);
        if (children[i] != expected[i]) child.ChildPos = static_cast<std::int32_t>(i);
        const bool unchanged =
            ancestorChild && child.Properties.empty() && child.Children.empty() && !child.ChildPos;
        if (!unchanged) object.Children.push_back(std::move(child));
    }
}

std::vector<TComponent*> TWriter::ChildrenOf(TComponent& component, const TScope& scope) const {
    std::vector<TComponent*> children;
    const auto visit = [&children](TComponent* child) {
        if (!dynamic_cast<TUnknownComponent*>(child)) children.push_back(child);
    };
    component.GetChildren(visit, scope.LookupRoot);
    return children;
}

TComponent* TWriter::AncestorOf(const TComponent& child) const {
    TComponent* found =
        FAncestorScope.LookupRoot ? FAncestorScope.LookupRoot->FindComponent(child.GetName()) : nullptr;
    return found && &found->ClassType() == &child.ClassType() ? found : nullptr;
}

std::vector<TComponent*> TWriter::ExpectedOrder(const std::vector<TComponent*>& children,
                                                TComponent* ancestor) const {
    if (!ancestor) return children;
    // Readers leave inherited components in their order and put new ones behind them.
    const auto ancestors = ChildrenOf(*ancestor, FAncestorScope);
    const auto place = [&](const TComponent* child) {
        return std::ranges::find(ancestors, AncestorOf(*child)) - ancestors.begin();
    };
    std::vector<TComponent*> expected = children;
    std::ranges::stable_sort(expected, {}, place);
    return expected;
}

void TWriter::InsertUnknown(TFormObject& object, const TComponent& component) const {
    for (const TUnknownComponent* unknown : FUnknown) {
        if (unknown->GetParentComponent() != &component) continue;
        const auto place = std::min(static_cast<std::size_t>(unknown->GetIndex()), object.Children.size());
        std::optional<TFormObject> written = unknown->GetObject();
        if (const TUnknownComponent* inherited = InheritedUnknown(*unknown))
            written = unknown->ChangesFrom(*inherited);
        if (written)
            object.Children.insert(object.Children.begin() + static_cast<std::ptrdiff_t>(place),
                                   *std::move(written));
    }
}

const TUnknownComponent* TWriter::InheritedUnknown(const TUnknownComponent& unknown) const {
    const TComponent* root = FAncestorScope.Root;
    if (!root || unknown.GetName().empty()) return nullptr;
    return dynamic_cast<const TUnknownComponent*>(root->FindComponent(unknown.GetName()));
}

void TWriter::AppendUnread(TProperties& properties, const TComponent& component) const {
    if (!UnreadProperties) return;
    for (const TUnreadProperty& unread : *UnreadProperties) {
        const auto sameName = [&](const TFormProperty& other) {
            return SameText(other.Name, unread.Property.Name);
        };
        if (unread.Component == &component && std::ranges::none_of(properties, sameName))
            properties.push_back(unread.Property);
    }
}

}  // namespace vcl
