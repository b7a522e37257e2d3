#include "platform/vcl/streaming/Reader.h"

#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/GlobalComponents.h"
#include "platform/vcl/streaming/PendingReferences.h"
#include "platform/vcl/streaming/ReaderTry.h"
#include "platform/vcl/streaming/UnknownComponent.h"

#include <optional>
#include <utility>

namespace vcl {

TReader::TReader(const TFormDocument& document)
    : FDocument(document),
      FPlace(document.FileName),
      FFileName(std::make_shared<String>(document.FileName)) {}

TReader::~TReader() = default;

void TReader::Report(TFormProblem problem) {
    if (!CollectProblems) throw EFormError(std::move(problem));
    FProblems.push_back(std::move(problem));
}

TComponent* TReader::ReadRootComponent(TComponent* root, TComponent* owner) {
    TLoadSession own;
    TLoadSession* outer = FJoined ? FJoined : root ? TLoadSession::ToJoin(*root) : nullptr;
    FSession = outer ? outer : &own;
    FRoot = root;
    const std::size_t first = FSession->Entries().size();
    try {
        ReadRoot(owner);
        SetReferences();
        ResolvePendingReferences(FRoot);
        if (!outer) FSession->Complete(*FRoot, [this](TFormProblem problem) { Report(std::move(problem)); });
    } catch (...) {
        FSession->Abandon(first);
        if (root) RemovePendingReferences(*root);
        throw;
    }
    return FRoot;
}

void TReader::ReadRoot(TComponent* owner) {
    const TFormObject& object = FDocument.Root;
    if (FRoot) {
        FSession->Add({FRoot, object.Position, FFileName, false});
    } else {
        const TFormPlace::TScope scope(FPlace, object);
        FRoot = &Create(object, owner);
    }
    // A frame is named by the form that it is made for.
    if (!TLoadSession::ToJoin(*FRoot)) NameRoot();
    ReadContents(object, *FRoot, *FRoot);
}

void TReader::NameRoot() {
    const String& wanted = FDocument.Root.Name;
    if (wanted.empty() || SameText(wanted, FRoot->GetName())) return;
    const auto taken = [this](const String& name) {
        const TComponent* global = FindGlobalComponent(name);
        const TComponent* sibling = FRoot->GetOwner() ? FRoot->GetOwner()->FindComponent(name) : nullptr;
        return (global && global != FRoot) || (sibling && sibling != FRoot);
    };
    String name = wanted;
    for (int number = 1; taken(name); ++number)
        name = Format(L"%s_%d", wanted, number);
    const TFormPlace::TScope scope(FPlace, FDocument.Root);
    Try(FDocument.Root.Position, TFormProblemKind::DuplicateName, [&] { FRoot->SetName(name); });
}

void TReader::ReadContents(const TFormObject& object, TComponent& component, TComponent& lookupRoot) {
    const TFormPlace::TScope scope(FPlace, object);
    component.SetState(csReading, true);
    const std::unique_ptr<TComponent, void (*)(TComponent*)> reading(
        &component, [](TComponent* read) { read->SetState(csReading, false); });
    FLookupRoot = &lookupRoot;
    FAddress = {&component, {}, nullptr};
    ReadProperties(object.Properties, component);

    std::vector<std::pair<TComponent*, int>> places;
    int index = 0;
    for (const TFormObject& child : object.Children) {
        TComponent* made = ReadChild(child, component, lookupRoot, index++);
        if (made && child.ChildPos) places.emplace_back(made, *child.ChildPos);
    }
    for (const auto& [child, place] : places)
        Try(object.Position, TFormProblemKind::Failed,
            [&, c = child, p = place] { component.SetChildOrder(c, p); });
}

TComponent* TReader::ReadChild(const TFormObject& object, TComponent& parent, TComponent& lookupRoot,
                               int index) {
    if (OverridesUnknown(object, lookupRoot, index)) return nullptr;
    TComponent* component = nullptr;
    {
        const TFormPlace::TScope scope(FPlace, object);
        const bool made = Try(object.Position, TFormProblemKind::Failed,
                              [&] { component = &MakeOrFind(object, lookupRoot); });
        if (!made) {
            auto* unknown = new TUnknownComponent(FRoot, &parent, index, object);
            FSession->Add({unknown, object.Position, FFileName, true});
            if (!FRoot->FindComponent(object.Name)) unknown->SetName(object.Name);
            return nullptr;
        }
        if (object.Kind != TFormObjectKind::Inherited) {
            Try(object.Position, TFormProblemKind::DuplicateName, [&] {
                CheckField(object, *component);
                component->SetName(object.Name);
            });
            Try(object.Position, TFormProblemKind::Failed, [&] { component->SetParentComponent(&parent); });
        }
    }
    ReadContents(object, *component, component->IsInState(csInline) ? *component : lookupRoot);
    return component;
}

/// An inherited object that could not be made either takes in what this one says about it.
bool TReader::OverridesUnknown(const TFormObject& object, const TComponent& lookupRoot, int index) {
    if (object.Kind != TFormObjectKind::Inherited) return false;
    auto* unknown = dynamic_cast<TUnknownComponent*>(lookupRoot.FindComponent(object.Name));
    if (!unknown || !SameText(unknown->GetObject().ClassName, object.ClassName)) return false;
    unknown->Override(object, index);
    return true;
}

TComponent& TReader::MakeOrFind(const TFormObject& object, TComponent& lookupRoot) {
    if (object.Kind == TFormObjectKind::Inherited) return FindInherited(object, lookupRoot);
    std::optional<TLoadSession::TInlineScope> frame;
    if (object.Kind == TFormObjectKind::Inline) frame.emplace(*FSession, FRoot);
    TComponent& component = Create(object, FRoot);
    if (frame) component.SetState(csInline, true);
    return component;
}

TComponent& TReader::Create(const TFormObject& object, TComponent* owner) {
    const TMetaClass& meta = ClassOf(object);
    if (!meta.CanCreate())
        FPlace.Fail(TFormProblemKind::UnknownClass, object.Position,
                    Format(L"Class %s is abstract", meta.ClassName()));
    TComponent* component = meta.Create(owner);
    FSession->Add({component, object.Position, FFileName, true});
    return *component;
}

TComponent& TReader::FindInherited(const TFormObject& object, TComponent& lookupRoot) {
    TComponent* component = lookupRoot.FindComponent(object.Name);
    if (!component)
        FPlace.Fail(TFormProblemKind::MissingAncestor, object.Position,
                    Format(L"No ancestor has a component named %s", object.Name));
    if (!SameText(component->ClassName(), object.ClassName))
        FPlace.Fail(
            TFormProblemKind::MissingAncestor, object.Position,
            Format(L"The ancestor's component is a %s, not a %s", component->ClassName(), object.ClassName));
    return *component;
}

/// Raises when the owner has a field of the component's name that can't hold it.
void TReader::CheckField(const TFormObject& object, const TComponent& component) const {
    const TPublishedField* field = component.GetOwner()->ClassType().FindField(object.Name);
    if (field && !component.InheritsFrom(field->Class()))
        FPlace.Fail(TFormProblemKind::WrongType, object.Position,
                    Format(L"%s of %s holds a %s, not a %s", object.Name, component.GetOwner()->ClassName(),
                           field->Class().ClassName(), component.ClassName()));
}

const TMetaClass& TReader::ClassOf(const TFormObject& object) {
    const TMetaClass*& meta = FClasses[object.ClassName];
    if (!meta && OnFindClass) meta = OnFindClass(object.ClassName);
    if (!meta) meta = GetClass(object.ClassName);
    if (!meta)
        FPlace.Fail(TFormProblemKind::UnknownClass, object.Position,
                    Format(L"Class %s not found", object.ClassName));
    return *meta;
}

}  // namespace vcl
