#include "platform/vcl/actions/ActionList.h"

#include <algorithm>

#include "platform/vcl/actions/ActionListRows.h"
#include "platform/vcl/actions/ShortCutList.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/ImageList.h"

namespace vcl {

std::span<const wchar_t* const> TEnumNames<TActionListState>::Names() {
    static constexpr const wchar_t* names[] = {L"asNormal", L"asSuspended", L"asSuspendedEnabled"};
    return names;
}

const TMetaClass& TCustomActionList::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomActionList>(L"TCustomActionList", TComponent::StaticClass());
    return meta;
}

const TMetaClass& TActionList::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TActionList>(L"TActionList", TCustomActionList::StaticClass()).With(ActionListRows);
    return meta;
}

TCustomActionList::TCustomActionList(TComponent* AOwner) : TComponent(AOwner) {}

TCustomActionList::~TCustomActionList() {
    Destroying();
    while (!FActions.empty())
        delete FActions.back();
}

TContainedAction* TCustomActionList::GetAction(int index) const {
    if (index < 0 || index >= GetActionCount())
        throw EListError(Format(L"List index out of bounds (%d)", index));
    return FActions[static_cast<std::size_t>(index)];
}

void TCustomActionList::Add(TContainedAction* action) {
    FActions.push_back(action);
    action->FActionList = this;
    Change();
}

void TCustomActionList::TakeOut(TContainedAction* action) {
    std::erase(FActions, action);
    action->FActionList = nullptr;
    if (!IsInState(csDestroying)) Change();
}

void TCustomActionList::Change() {
    OnChange(this);
}

void TCustomActionList::SetImages(TCustomImageList* value) {
    if (value == FImages) return;
    FImages = value;
    if (value) {
        value->FreeNotification(this);
        if (!FImagesLink) {
            FImagesLink = std::make_unique<TChangeLink>();
            FImagesLink->OnChange = {this, &TCustomActionList::ImagesChanged};
        }
        value->RegisterChanges(FImagesLink.get());
    } else {
        FImagesLink.reset();
    }
    if (!IsInState(csDestroying)) Change();
}

void TCustomActionList::ImagesChanged(TObject*) {
    Change();
}

void TCustomActionList::SetState(TActionListState value) {
    if (value == FState) return;
    FState = value;
    const TLifeGuard guard(*this);
    for (TContainedAction* action : std::vector(FActions)) {
        if (!guard.IsAlive()) return;
        if (std::find(FActions.begin(), FActions.end(), action) == FActions.end()) continue;
        auto* custom = dynamic_cast<TCustomAction*>(action);
        if (custom && value == asSuspendedEnabled) custom->SetEnabled(true);
        if (value == asNormal) action->Update();
    }
    if (guard.IsAlive()) OnStateChange(this);
}

bool TCustomActionList::IsShortCut(TMessage& message) {
    const TShortCut wanted = ShortCutFromMessage(message);
    if (wanted == scNone || FState != asNormal) return false;
    for (TContainedAction* contained : std::vector(FActions)) {
        auto* action = dynamic_cast<TCustomAction*>(contained);
        if (!action) continue;
        const bool isSecondary = action->IsSecondaryShortCutsStored() &&
                                 action->GetSecondaryShortCuts().IndexOfShortCut(wanted) >= 0;
        if (action->GetShortCut() == wanted || isSecondary) return action->HandleShortCut();
    }
    return false;
}

bool TCustomActionList::ExecuteAction(TBasicAction* action) {
    bool handled = false;
    OnExecute(action, handled);
    return handled;
}

bool TCustomActionList::UpdateAction(TBasicAction* action) {
    bool handled = false;
    OnUpdate(action, handled);
    return handled;
}

void TCustomActionList::GetChildren(const std::function<void(TComponent*)>& visit, TComponent*) {
    for (TContainedAction* action : std::vector(FActions))
        visit(action);
}

void TCustomActionList::SetChildOrder(TComponent* child, int order) {
    if (auto* action = dynamic_cast<TContainedAction*>(child)) action->SetIndex(order);
}

void TCustomActionList::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation == opRemove && component == FImages) SetImages(nullptr);
}

}  // namespace vcl
