#include "designer/model/Clipping.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "designer/model/Naming.h"
#include "designer/model/References.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {
namespace {

void Collect(const TFormObject& object, const TSelection& selection, const TComponent& root, String& text) {
    for (const TFormObject& child : object.Children) {
        if (selection.Contains(root.FindComponent(child.Name)))
            text += FromUtf8(FormToText(child));
        else
            Collect(child, selection, root, text);
    }
}

/// Gives the objects of a pasted text names that are free in the form.
class TRenaming {
public:
    /// Among the components of that document.
    explicit TRenaming(const TFormDocument& document) : FDocument(document) {}

    void Rename(TFormObject& object) {
        // What a form inherits is its own where it is pasted.
        if (object.Kind == TFormObjectKind::Inherited) object.Kind = TFormObjectKind::Object;
        if (IsTaken(object.Name)) {
            String name = FreeName(object.ClassName, [this](const String& free) { return IsTaken(free); });
            FNames.emplace(object.Name, name);
            RenameCaption(object, name);
            object.Name = std::move(name);
        }
        FUsed.push_back(object.Name);
        for (TFormObject& child : object.Children)
            Rename(child);
    }

    [[nodiscard]] const TNewNames& NewNames() const { return FNames; }

private:
    [[nodiscard]] bool IsTaken(const String& name) const {
        const auto same = [&name](const String& used) { return SameText(used, name); };
        return name.empty() || SameText(name, FDocument.Root.Name) || FDocument.Root.FindObject(name) ||
               std::ranges::any_of(FUsed, same);
    }
    /// A caption that is just the name follows it.
    static void RenameCaption(TFormObject& object, const String& name) {
        for (TFormProperty& property : object.Properties) {
            auto* text = std::get_if<String>(&property.Value.Content);
            if (text && *text == object.Name && SameText(property.Name, L"Caption")) *text = name;
        }
    }

    const TFormDocument& FDocument;
    TNewNames FNames;
    std::vector<String> FUsed;
};

std::int64_t* NumberOf(TFormObject& object, StringView name) {
    const auto place = std::ranges::find_if(
        object.Properties, [&](const auto& property) { return SameText(property.Name, name); });
    return place == object.Properties.end() ? nullptr : std::get_if<std::int64_t>(&place->Value.Content);
}

/// Moves the object until none of its siblings has the same corner.
void MoveOffSiblings(TFormObject& object, std::vector<TFormObject>& siblings, int shift) {
    std::int64_t* left = NumberOf(object, L"Left");
    std::int64_t* top = NumberOf(object, L"Top");
    if (!left || !top) return;
    const auto sameCorner = [&](TFormObject& other) {
        const std::int64_t* otherLeft = NumberOf(other, L"Left");
        const std::int64_t* otherTop = NumberOf(other, L"Top");
        return otherLeft && otherTop && *otherLeft == *left && *otherTop == *top;
    };
    while (std::ranges::any_of(siblings, sameCorner)) {
        *left += shift;
        *top += shift;
    }
}

/// The object of the component in the document. A form that inherits others leaves out what it does not
/// change; such an object comes in.
TFormObject& ObjectOf(const TComponent& component, const TComponent& root, TFormDocument& document) {
    if (&component == &root) return document.Root;
    const TComponent* parent = component.GetParentComponent();
    TFormObject& above = ObjectOf(parent ? *parent : root, root, document);
    const auto found = std::ranges::find_if(
        above.Children, [&](const auto& child) { return SameText(child.Name, component.GetName()); });
    if (found != above.Children.end()) return *found;
    TFormObject& added = above.Children.emplace_back();
    added.Kind = TFormObjectKind::Inherited;
    added.Name = component.GetName();
    added.ClassName = component.ClassName();
    return added;
}

}  // namespace

String CopySelection(TDesignDocument& document) {
    String text;
    Collect(document.Form().WriteWhole().Root, document.Selection(), document.Root(), text);
    return text;
}

void PasteText(TDesignDocument& document, StringView text, const TComponent& parent, int shift) {
    const TFormDocument pasted =
        ParseFormText(L"object Clipboard: TComponent\r\n" + String(text) + L"\r\nend\r\n");
    if (pasted.Root.Children.empty()) return;
    TFormDocument changed = document.Document();
    const TFormDocument whole = document.Form().WriteWhole();
    TRenaming renaming(whole);
    std::vector<TFormObject> objects = pasted.Root.Children;
    for (TFormObject& object : objects)
        renaming.Rename(object);

    TFormObject& target = ObjectOf(parent, document.Root(), changed);
    std::vector<String> names;
    for (TFormObject& object : objects) {
        FollowNames(object, renaming.NewNames());
        if (shift > 0) MoveOffSiblings(object, target.Children, shift);
        names.push_back(object.Name);
        target.Children.push_back(std::move(object));
    }
    document.SetDocument(L"Einfügen", changed);
    document.Selection().SetNames(names, document.Root());
}

}  // namespace designer
