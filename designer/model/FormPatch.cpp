#include "designer/model/FormPatch.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace designer {
namespace {

using TIndex = std::unordered_map<StringView, const TFormObject*>;

/// The children by name; none when one has no name of its own.
std::optional<TIndex> ByName(const TFormObject& object) {
    TIndex index;
    for (const TFormObject& child : object.Children)
        if (child.Name.empty() || child.Kind != TFormObjectKind::Object ||
            !index.emplace(child.Name, &child).second)
            return std::nullopt;
    return index;
}

class TComparison {
public:
    explicit TComparison(TFormPatch& patch) : FPatch(patch) {}

    /// Notes what changes in an object that both files have; `component` is its name, empty for the form.
    bool Compare(const TFormObject& from, const TFormObject& to, const String& component,
                 TFormObject& changes) {
        if (from.ClassName != to.ClassName || from.Kind != to.Kind || from.ChildPos != to.ChildPos)
            return false;
        changes.Kind = TFormObjectKind::Inherited;
        changes.Name = to.Name;
        changes.ClassName = to.ClassName;
        CompareProperties(from, to, component, changes);
        return CompareChildren(from, to, component, changes);
    }

private:
    void CompareProperties(const TFormObject& from, const TFormObject& to, const String& component,
                           TFormObject& changes) {
        for (const TFormProperty& property : to.Properties) {
            const TFormProperty* old = from.FindProperty(property.Name);
            if (!old || !(*old == property)) changes.Properties.push_back(property);
        }
        for (const TFormProperty& property : from.Properties)
            if (!to.FindProperty(property.Name)) FPatch.Resets.push_back({component, property.Name});
    }

    bool CompareChildren(const TFormObject& from, const TFormObject& to, const String& component,
                         TFormObject& changes) {
        const auto old = ByName(from);
        const auto next = ByName(to);
        if (!old || !next) return false;

        std::vector<StringView> order;  // as it becomes without further ado
        for (const TFormObject& child : from.Children) {
            if (next->contains(child.Name))
                order.push_back(child.Name);
            else
                FPatch.Removed.push_back(child.Name);
        }
        for (const TFormObject& child : to.Children) {
            const auto place = old->find(child.Name);
            if (place == old->end()) {
                order.push_back(child.Name);
                changes.Children.push_back(child);
                continue;
            }
            TFormObject childChanges;
            if (!Compare(*place->second, child, child.Name, childChanges)) return false;
            if (!childChanges.Properties.empty() || !childChanges.Children.empty())
                changes.Children.push_back(std::move(childChanges));
        }
        if (!std::ranges::equal(order, to.Children, {}, {},
                                [](const TFormObject& c) { return StringView(c.Name); }))
            NoteOrder(to, component);
        return true;
    }

    void NoteOrder(const TFormObject& to, const String& component) {
        TFormPatch::TOrder& order = FPatch.Orders.emplace_back();
        order.Parent = component;
        for (const TFormObject& child : to.Children)
            order.Children.push_back(child.Name);
    }

    TFormPatch& FPatch;
};

}  // namespace

std::optional<TFormPatch> TFormPatch::Between(const TFormDocument& from, const TFormDocument& to) {
    TFormPatch patch;
    if (!TComparison(patch).Compare(from.Root, to.Root, {}, patch.Changes)) return std::nullopt;
    return patch;
}

}  // namespace designer
