#include "designer/model/DesignRoot.h"

#include "designer/model/Naming.h"
#include "platform/vcl/core/Exceptions.h"

namespace designer {

TDesignRoot::TDesignRoot() : TForm(nullptr) {
    SetDesigning(true);
}

void TDesignRoot::Notification(TComponent* component, TOperation operation) {
    TForm::Notification(component, operation);
    if (operation == opRemove) OnRemove(component);
}

void TDesignRoot::ValidateRename(TComponent* component, const String& current, const String& next) {
    TForm::ValidateRename(component, current, next);
    // What files hold is taken as it is, and who leaves gives up his name.
    const bool isEdit = component && component->GetOwner() == this && !component->IsInState(csLoading) &&
                        !component->IsInState(csDestroying) && !IsInState(csLoading);
    if (!isEdit || next.empty() || SameText(current, next)) return;
    if (IsHeldByPlaceholder(*this, next))
        throw EComponentError(Format(L"A component named %s already exists", next));
    if (current.empty()) return;
    if (IsMethodName(*this, next)) throw EComponentError(Format(L"%s heißt schon eine Methode", next));
    OnRename(current, next);
}

}  // namespace designer
