#include "designer/window/StructureBar.h"

#include <set>

#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/controls/ControlTypes.h"

namespace designer {
namespace {

String LineOf(const TComponent& component, StringView className) {
    return Format(L"%s: %s", component.GetName(), className);
}

}  // namespace

void TStructureBar::AddContents(TComponent& parent, std::vector<TGroupContent>& contents) const {
    TGroupContent content;
    parent.GetChildren([&content](TComponent* child) { content.Children.push_back(child); },
                       &FDocument.Root());
    const bool isRoot = &parent == &FDocument.Root();
    if (content.Children.empty() && !isRoot) return;
    content.Title = isRoot ? LineOf(parent, FDocument.Form().FormClassName()) : parent.GetName();
    const std::vector<TComponent*> children = content.Children;
    contents.push_back(std::move(content));
    for (TComponent* child : children)
        AddContents(*child, contents);
}

std::vector<TStructureBar::TGroupContent> TStructureBar::Contents() const {
    std::vector<TGroupContent> contents;
    AddContents(FDocument.Root(), contents);
    return contents;
}

void TStructureBar::UpdateComponents() {
    const std::vector<TGroupContent> contents = Contents();
    String structure;
    for (const TGroupContent& content : contents) {
        structure += content.Title + L'\n';
        for (const TComponent* child : content.Children)
            structure +=
                Format(L"%s %x %d\n", LineOf(*child, child->ClassName()),
                       reinterpret_cast<std::uintptr_t>(child), FDocument.Form().IsInherited(*child));
    }
    if (structure == FShown) return UpdateSelection();
    FShown = std::move(structure);

    std::set<String> closed;
    for (int i = 0; i < FBar.GetGroups().GetCount(); ++i)
        if (FBar.GetGroups()[i]->IsClosed()) closed.insert(FBar.GetGroups()[i]->GetTitle());
    FBar.BeginUpdate();
    FLinks.clear();
    FBar.GetGroups().Clear();
    for (const TGroupContent& content : contents) {
        TQV7SkinExplorerGroup* group = FBar.GetGroups().Add(content.Title, false);
        for (TComponent* child : content.Children) {
            auto* link = new TQV7SkinExplorerItemLink(LineOf(*child, child->ClassName()), {});
            link->SetWordWrap(false);
            link->OnClick = [this, name = child->GetName()](TObject*) { Choose(name); };
            group->GetItems().Add(link);
            FLinks.emplace(child, TEntry{link, FDocument.Form().IsInherited(*child)});
        }
        if (closed.contains(content.Title)) group->OpenClose();
    }
    FBar.EndUpdate();
    UpdateSelection();
}

void TStructureBar::UpdateSelection() {
    for (const auto& [component, entry] : FLinks) {
        TFontStyles style = entry.IsInherited ? TFontStyles{fsItalic} : TFontStyles{};
        if (FDocument.Selection().Contains(component)) style = style + TFontStyles{fsBold};
        entry.Link->SetFontStyle(style);
    }
}

void TStructureBar::Choose(const String& name) {
    if (TComponent* component = FDocument.Root().FindComponent(name))
        FDocument.Selection().SetOnly(component);
}

}  // namespace designer
