#include "platform/vcl/controls/BasicAction.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

TBasicActionLink::~TBasicActionLink() {
    SetAction(nullptr);
}

void TBasicActionLink::SetAction(TBasicAction* action) {
    if (action == FAction) return;
    if (FAction) std::erase(FAction->FLinks, this);
    FAction = action;
    if (FAction) FAction->FLinks.push_back(this);
}

bool TBasicActionLink::Execute(TComponent* component) {
    if (!FAction) return false;
    TBasicAction* action = FAction;
    const TLifeGuard guard(*action);
    action->SetActionComponent(component);
    const bool handled = action->Execute();
    if (guard.IsAlive()) action->SetActionComponent(nullptr);
    return handled;
}

bool TBasicActionLink::Update() {
    return FAction && FAction->Update();
}

void TBasicActionLink::Change() {
    OnChange(FAction);
}

const TMetaClass& TBasicAction::StaticClass() {
    static const TMetaClass meta = DefineClass<TBasicAction>(L"TBasicAction", TComponent::StaticClass());
    return meta;
}

TBasicAction::TBasicAction(TComponent* AOwner) : TComponent(AOwner) {}

TBasicAction::~TBasicAction() {
    while (!FLinks.empty())
        FLinks.back()->SetAction(nullptr);
}

bool TBasicAction::Execute() {
    if (!FOnExecute) return false;
    FOnExecute(this);
    return true;
}

bool TBasicAction::Update() {
    if (!OnUpdate) return false;
    OnUpdate(this);
    return true;
}

void TBasicAction::SetActionComponent(TComponent* value) {
    FActionComponent = value;
    if (value) value->FreeNotification(this);
}

void TBasicAction::SetOnExecute(const TNotifyEvent& value) {
    if (value == FOnExecute) return;
    for (TBasicActionLink* link : FLinks)
        link->SetOnExecute(value);
    FOnExecute = value;
    Change();
}

void TBasicAction::Change() {
    const TLifeGuard guard(*this);
    OnChange(this);
    for (std::size_t i = 0; guard.IsAlive() && i < FLinks.size(); ++i)
        FLinks[i]->Change();
}

void TBasicAction::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation == opRemove && component == FActionComponent) FActionComponent = nullptr;
}

}  // namespace vcl
