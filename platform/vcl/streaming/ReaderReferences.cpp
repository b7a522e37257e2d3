#include "platform/vcl/streaming/GlobalComponents.h"
#include "platform/vcl/streaming/PendingReferences.h"
#include "platform/vcl/streaming/ReaderTry.h"
#include "platform/vcl/streaming/UnknownComponent.h"

#include <algorithm>
#include <utility>

namespace vcl {

void TReader::NoteReference(const TPublishedProperty& row, const TFormProperty& property) {
    const String& name = property.Value.As<TFormIdent>()->Name;
    TReference reference{FAddress, FLookupRoot, name, {}, FTopProperty};
    reference.Address.Property = &row;
    reference.Problem = FPlace.Problem(TFormProblemKind::UnknownReference, property.Value.Position,
                                       Format(L"No component named %s", name));
    FReferences.push_back(std::move(reference));
}

void TReader::SetReferences() {
    // The list grows no more, and a setter may free components that it names.
    for (const TReference& reference : FReferences)
        SetReference(reference);
    FReferences.clear();
    // References that could not be set come last, but stand among the others in the file.
    std::ranges::stable_sort(FUnread, {}, [](const TUnreadProperty& unread) {
        return std::pair(unread.Property.Position.Line, unread.Property.Position.Column);
    });
}

void TReader::SetReference(const TReference& reference) {
    TPersistent* object = reference.Address.Object();
    if (!object) return;
    bool mayComeLater = false;
    TComponent* target = FindTarget(reference, mayComeLater);
    if (!target && mayComeLater) return AddPendingReference(reference.Address, reference.Name);
    const auto keep = [&] {
        if (reference.Source) FUnread.push_back({reference.Address.Component, *reference.Source});
    };
    const auto report = [&](String text) {
        TFormProblem problem = reference.Problem;
        problem.Text = std::move(text);
        keep();
        Report(std::move(problem));
    };
    if (IsUnknown(target, reference.Name)) return keep();
    if (!target) return report(reference.Problem.Text);
    const TMetaClass* wanted = reference.Address.Property->ObjectClass();
    if (wanted && !target->InheritsFrom(*wanted))
        return report(
            Format(L"%s is a %s, not a %s", reference.Name, target->ClassName(), wanted->ClassName()));
    try {
        reference.Address.Property->Set(*object, static_cast<TPersistent*>(target));
    } catch (const Exception& error) {
        report(error.Message());
    }
}

/// True for what an object stands for, or holds, that could not be made: its own problem has been noted.
bool TReader::IsUnknown(const TComponent* target, StringView name) const {
    if (target) return dynamic_cast<const TUnknownComponent*>(target) != nullptr;
    const StringView last = name.substr(name.rfind(L'.') + 1);
    for (int i = 0; i < FRoot->GetComponentCount(); ++i) {
        const auto* unknown = dynamic_cast<const TUnknownComponent*>(FRoot->GetComponent(i));
        if (unknown && unknown->GetObject().FindObject(last)) return true;
    }
    return false;
}

TComponent* TReader::FindTarget(const TReference& reference, bool& mayComeLater) const {
    const StringView name = reference.Name;
    if (TComponent* found = FindNestedComponent(*reference.LookupRoot, name)) return found;
    if (TComponent* found = FindNestedComponent(*FRoot, name)) return found;
    const std::size_t point = std::min(name.find(L'.'), name.size());
    const StringView first = name.substr(0, point);
    const StringView rest = name.substr(std::min(point + 1, name.size()));
    if (SameText(first, FRoot->GetName()) || SameText(first, FDocument.Root.Name))
        return FindNestedComponent(*FRoot, rest);
    if (TComponent* other = FindGlobalComponent(first)) return FindNestedComponent(*other, rest);
    mayComeLater = point < name.size() && !FRoot->FindComponent(first);
    return nullptr;
}

}  // namespace vcl
