#include "designer/model/DesignedForm.h"

#include <algorithm>
#include <utility>

#include "designer/model/FormPatch.h"
#include "designer/model/References.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Identifiers.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/streaming/UnknownComponent.h"
#include "platform/vcl/streaming/Writer.h"

namespace designer {
namespace {

/// A property of an object, or of one that it holds.
struct TPropertyPlace {
    TPersistent* Holder = nullptr;
    const TPublishedProperty* Row = nullptr;
};

TPropertyPlace FindProperty(TPersistent& object, StringView path) {
    TPersistent* holder = &object;
    for (std::size_t point = path.find(L'.'); point != StringView::npos; point = path.find(L'.')) {
        const TPublishedProperty* row = holder->ClassType().FindProperty(path.substr(0, point));
        if (!row || row->Kind() != TPropertyKind::Nested) return {};
        holder = std::get<TPersistent*>(row->Get(*holder));
        if (!holder) return {};
        path.remove_prefix(point + 1);
    }
    return {holder, holder->ClassType().FindProperty(path)};
}

/// Gives the property the value that form files leave out; false when there is none.
bool ResetProperty(TPersistent& object, StringView path) {
    const TPropertyPlace place = FindProperty(object, path);
    if (!place.Row || place.Row->IsReadOnly()) return false;
    switch (place.Row->Kind()) {
        case TPropertyKind::Event:
            place.Row->Event(*place.Holder)->Clear();
            return true;
        case TPropertyKind::Component:
            place.Row->Set(*place.Holder, static_cast<TPersistent*>(nullptr));
            return true;
        case TPropertyKind::Nested:
            return false;
        default:
            if (const auto value = place.Row->DefaultFor(*place.Holder)) {
                place.Row->Set(*place.Holder, *value);
                return true;
            }
            return false;
    }
}

void ReplaceNumber(TFormObject& object, StringView name, int value) {
    const auto place =
        std::ranges::find_if(object.Properties, [&](const auto& p) { return SameText(p.Name, name); });
    if (place != object.Properties.end()) place->Value.Content = std::int64_t{value};
}

void RemoveProperty(TFormObject& object, StringView name) {
    std::erase_if(object.Properties, [&](const auto& p) { return SameText(p.Name, name); });
}

/// No form stands there.
constexpr int NoPlace = -30'000;

/// What can't be read of a form.
struct TUnreadParts {
    std::vector<TFormProblem> Problems;
    std::vector<TUnreadProperty> Properties;
};

template <class T>
void Append(std::vector<T>& parts, const std::vector<T>& more) {
    parts.insert(parts.end(), more.begin(), more.end());
}

/// Reads what the document holds into the form; adds what can't be read to `unread`.
void Read(const TFormDocument& document, TDesignRoot& root, TUnreadParts& unread) {
    TReader reader(document);
    reader.CollectProblems = true;
    reader.ReadRootComponent(&root);
    Append(unread.Problems, reader.GetProblems());
    Append(unread.Properties, reader.GetUnreadProperties());
}

/// Reads what the ancestors of a form bring along.
TUnreadParts ReadAncestors(const std::vector<TFormDocument>& ancestors, TDesignRoot& root) {
    TUnreadParts unread;
    for (const TFormDocument& ancestor : ancestors)
        Read(ancestor, root, unread);
    return unread;
}

/// True when both stand in components of the same name, or on the form itself.
bool HaveSameParent(const TComponent& a, const TComponent& b) {
    const TComponent* parentA = a.GetParentComponent();
    const TComponent* parentB = b.GetParentComponent();
    const bool isOnForm = !parentA || parentA == a.GetOwner();
    if (isOnForm || !parentB || parentB == b.GetOwner())
        return isOnForm == (!parentB || parentB == b.GetOwner());
    return parentA->GetName() == parentB->GetName();
}

}  // namespace

TDesignedForm::TDesignedForm() {
    TFormDocument document;
    document.Root.Name = L"Form1";
    document.Root.ClassName = L"TForm1";
    Load(document);
    FRoot->SetCaption(L"Form1");
}

TDesignedForm::~TDesignedForm() = default;

void TDesignedForm::Load(const TFormDocument& document) {
    const bool inherits = document.Root.Kind == TFormObjectKind::Inherited;
    if (inherits && FAncestors.empty())
        throw EFormError({.Kind = TFormProblemKind::MissingAncestor,
                          .FileName = document.FileName,
                          .Position = document.Root.Position,
                          .Path = document.Root.Name,
                          .Property = {},
                          .Text = L"Das Formular, von dem dieses erbt, fehlt"});
    auto root = std::make_unique<TDesignRoot>();
    TUnreadParts inherited;
    if (inherits) inherited = ReadAncestors(FAncestors, *root);
    TUnreadParts own;
    Read(document, *root, own);
    // Other forms of this program may have the name, which does not matter here.
    if (!document.Root.Name.empty()) root->SetName(document.Root.Name);

    FInherits = inherits;
    FFormClassName = document.Root.ClassName;
    FPlace = {root->GetLeft(), root->GetTop()};
    FProblems = std::move(own.Problems);
    Append(FProblems, inherited.Problems);
    FUnread = std::move(own.Properties);
    FInheritedUnread = std::move(inherited.Properties);
    Adopt(std::move(root));
}

void TDesignedForm::Adopt(std::unique_ptr<TDesignRoot> root) {
    if (FRoot) {
        root->SetBounds(FRoot->GetLeft(), FRoot->GetTop(), root->GetWidth(), root->GetHeight());
        root->SetDesignHook(FRoot->GetDesignHook());
        root->SetParentWindow(FRoot->GetParentWindow());
    }
    root->OnRemove = {this, &TDesignedForm::NoteRemoved};
    root->OnRename = {this, &TDesignedForm::NoteRenamed};
    // The old components go with the root that leaves here.
    std::swap(FRoot, root);
}

void TDesignedForm::Load(const TFormDocument& document, std::vector<TFormDocument> ancestors) {
    std::unique_ptr<TDesignRoot> ancestor;
    TPoint place;
    if (!ancestors.empty()) {
        ancestor = std::make_unique<TDesignRoot>();
        ReadAncestors(ancestors, *ancestor);
        place = {ancestor->GetLeft(), ancestor->GetTop()};
        // The designer shows the form elsewhere: its place is always written, and compared by itself.
        ancestor->SetBounds(NoPlace, NoPlace, ancestor->GetWidth(), ancestor->GetHeight());
    }
    std::swap(FAncestors, ancestors);
    try {
        Load(document);
    } catch (...) {
        std::swap(FAncestors, ancestors);
        throw;
    }
    FAncestor = std::move(ancestor);
    FAncestorPlace = place;
}

bool TDesignedForm::Patch(const TFormDocument& from, const TFormDocument& to) {
    if (!FProblems.empty() || from.Root.Name != to.Root.Name) return false;
    std::optional<TFormPatch> patch = TFormPatch::Between(from, to);
    if (!patch) return false;
    const auto find = [this](const String& name) -> TComponent* {
        return name.empty() ? FRoot.get() : FRoot->FindComponent(name);
    };
    try {
        for (const String& name : patch->Removed)
            if (TComponent* component = find(name)) component->Free();
        for (const TFormPatch::TReset& reset : patch->Resets) {
            TComponent* component = find(reset.Component);
            if (!component || !ResetProperty(*component, reset.Property)) return false;
        }
        const TPoint corner{FRoot->GetLeft(), FRoot->GetTop()};
        TFormDocument changes{std::move(patch->Changes), to.FileName};
        TReader(changes).ReadRootComponent(FRoot.get());
        if (changes.Root.FindProperty(L"Left")) FPlace.X = FRoot->GetLeft();
        if (changes.Root.FindProperty(L"Top")) FPlace.Y = FRoot->GetTop();
        FRoot->SetBounds(corner.X, corner.Y, FRoot->GetWidth(), FRoot->GetHeight());
        for (const TFormPatch::TOrder& order : patch->Orders) {
            TComponent* parent = find(order.Parent);
            for (int i = 0; const String& name : order.Children)
                if (TComponent* child = find(name)) parent->SetChildOrder(child, i++);
        }
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

TFormDocument TDesignedForm::WriteWith(TComponent* ancestor,
                                       const std::vector<TUnreadProperty>& unread) const {
    TWriter writer;
    writer.UnreadProperties = &unread;
    TFormDocument document = writer.WriteRootComponent(*FRoot, ancestor);
    document.Root.ClassName = FFormClassName;
    ReplaceNumber(document.Root, L"Left", FPlace.X);
    ReplaceNumber(document.Root, L"Top", FPlace.Y);
    return document;
}

TFormDocument TDesignedForm::Write() const {
    if (!FInherits) return WriteWith(nullptr, FUnread);
    TFormDocument document = WriteWith(FAncestor.get(), FUnread);
    if (FPlace.X == FAncestorPlace.X) RemoveProperty(document.Root, L"Left");
    if (FPlace.Y == FAncestorPlace.Y) RemoveProperty(document.Root, L"Top");
    return document;
}

TFormDocument TDesignedForm::WriteWhole() const {
    // Of a property that both could not read the form's own comes first, and only once.
    std::vector<TUnreadProperty> unread = FUnread;
    Append(unread, FInheritedUnread);
    return WriteWith(nullptr, unread);
}

bool TDesignedForm::IsInherited(const TComponent& component) const {
    return FInherits && component.GetOwner() == FRoot.get() && !component.GetName().empty() &&
           FAncestor->FindComponent(component.GetName());
}

String TDesignedForm::MissingInherited() const {
    for (int i = 0; FInherits && i < FAncestor->GetComponentCount(); ++i) {
        const TComponent& wanted = *FAncestor->GetComponent(i);
        const TComponent* present = FRoot->FindComponent(wanted.GetName());
        if (wanted.GetName().empty()) continue;
        if (!present || &present->ClassType() != &wanted.ClassType() || !HaveSameParent(*present, wanted))
            return wanted.GetName();
    }
    return {};
}

void TDesignedForm::SetFormClassName(const String& name) {
    if (!IsValidIdent(name)) throw EComponentError(Format(L"'%s' is not a valid component name", name));
    FFormClassName = name;
}

void TDesignedForm::FreeOrphans() {
    for (int i = FRoot->GetComponentCount() - 1; i >= 0; --i) {
        auto* unknown = dynamic_cast<TUnknownComponent*>(FRoot->GetComponent(i));
        if (unknown && !unknown->GetParentComponent()) unknown->Free();
    }
}

void TDesignedForm::NoteRemoved(TComponent* component) {
    const auto isItsOwn = [component](const TUnreadProperty& unread) {
        return unread.Component == component;
    };
    std::erase_if(FUnread, isItsOwn);
    std::erase_if(FInheritedUnread, isItsOwn);
    // What could be read forgets the component by itself. A form that is replaced takes nothing along.
    const bool isGivenUp = component->GetOwner() == FRoot.get() && !FRoot->IsInState(csDestroying);
    if (isGivenUp && !component->GetName().empty())
        std::erase_if(FUnread, [component](const TUnreadProperty& unread) {
            return RefersTo(unread.Property.Value, component->GetName());
        });
    OnRemove(component);
}

/// What could be read follows by itself.
void TDesignedForm::NoteRenamed(const String& present, const String& next) {
    const TNewNames names{{present, next}};
    for (TUnreadProperty& unread : FUnread)
        FollowNames(unread.Property.Value, names);
    for (int i = 0; i < FRoot->GetComponentCount(); ++i)
        if (auto* unknown = dynamic_cast<TUnknownComponent*>(FRoot->GetComponent(i)))
            FollowNames(unknown->GetObject(), names);
}

}  // namespace designer
