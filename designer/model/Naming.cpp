#include "designer/model/Naming.h"

#include <algorithm>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Identifiers.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/streaming/UnknownComponent.h"

namespace designer {
namespace {

/// The first event of the component that calls a method of that name; null when there is none.
const TPublishedProperty* EventOf(TComponent& component, StringView method) {
    for (const TPublishedProperty* row : component.ClassType().AllProperties()) {
        if (row->Kind() != TPropertyKind::Event) continue;
        const String* name = row->Event(component)->MethodName();
        if (name && SameText(*name, method)) return row;
    }
    return nullptr;
}

/// The same among the form and its components.
const TPublishedProperty* EventIn(const TComponent& root, StringView method) {
    const TPublishedProperty* found = EventOf(const_cast<TComponent&>(root), method);
    for (int i = 0; !found && i < root.GetComponentCount(); ++i)
        found = EventOf(*root.GetComponent(i), method);
    return found;
}

}  // namespace

String FreeName(StringView className, const std::function<bool(const String&)>& isTaken) {
    if (className.size() > 1 && className.front() == L'T') className.remove_prefix(1);
    for (int number = 1;; ++number) {
        String name = String(className) + IntToStr(number);
        if (!isTaken(name)) return name;
    }
}

String FreeName(StringView className, const TComponent& root) {
    return FreeName(className, [&root](const String& name) {
        return SameText(name, root.GetName()) || root.FindComponent(name) != nullptr ||
               IsHeldByPlaceholder(root, name);
    });
}

bool IsHeldByPlaceholder(const TComponent& root, StringView name) {
    for (int i = 0; i < root.GetComponentCount(); ++i) {
        const auto* unknown = dynamic_cast<const TUnknownComponent*>(root.GetComponent(i));
        if (unknown && unknown->GetObject().FindObject(name)) return true;
    }
    return false;
}

bool IsMethodName(const TComponent& root, StringView name) {
    return EventIn(root, name) != nullptr;
}

void CheckMethodName(const TComponent& root, const TPublishedProperty& event, const String& name) {
    if (!IsValidIdent(name)) throw EConvertError(Format(L"'%s' ist kein Name einer Methode", name));
    if (SameText(name, root.GetName()) || root.FindComponent(name))
        throw EConvertError(Format(L"%s heißt schon eine Komponente", name));
    const TPublishedProperty* other = EventIn(root, name);
    if (other && other->EventType() != event.EventType())
        throw EConvertError(
            Format(L"%s heißt schon die Methode eines Ereignisses anderer Art (%s)", name, other->Name()));
}

}  // namespace designer
