#include "platform/vcl/actions/Action.h"

#include <algorithm>

#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/actions/ShortCutList.h"
#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

// --- actions of lists

const TMetaClass& TContainedAction::StaticClass() {
    using C = TContainedAction;
    static const TMetaClass meta = DefineClass<C>(L"TContainedAction", TBasicAction::StaticClass())
                                       .Property(L"Category", &C::GetCategory, &C::SetCategory, String());
    return meta;
}

TContainedAction::~TContainedAction() {
    if (FActionList) FActionList->TakeOut(this);
}

void TContainedAction::SetActionList(TCustomActionList* value) {
    if (value == FActionList) return;
    if (FActionList) FActionList->TakeOut(this);
    if (value) value->Add(this);
}

int TContainedAction::GetIndex() const {
    if (!FActionList) return -1;
    const auto& actions = FActionList->FActions;
    return static_cast<int>(std::find(actions.begin(), actions.end(), this) - actions.begin());
}

void TContainedAction::SetIndex(int value) {
    if (!FActionList) return;
    auto& actions = FActionList->FActions;
    value = std::clamp(value, 0, FActionList->GetActionCount() - 1);
    std::erase(actions, this);
    actions.insert(actions.begin() + value, this);
    FActionList->Change();
}

void TContainedAction::SetCategory(const String& value) {
    if (value == FCategory) return;
    FCategory = value;
    if (FActionList) FActionList->Change();
}

TComponent* TContainedAction::GetParentComponent() const {
    return FActionList;
}

void TContainedAction::SetParentComponent(TComponent* value) {
    if (auto* list = dynamic_cast<TCustomActionList*>(value)) SetActionList(list);
}

bool TContainedAction::Execute() {
    const TLifeGuard guard(*this);
    const auto handledBy = [&](bool handled) { return handled || !guard.IsAlive(); };
    if (FActionList && handledBy(FActionList->ExecuteAction(this))) return true;
    if (handledBy(AppServices().ExecuteAction(this))) return true;
    if (handledBy(TBasicAction::Execute())) return true;
    for (TObject* target : AppServices().ActionTargets()) {
        if (!HandlesTarget(target)) continue;
        ExecuteTarget(target);
        return true;
    }
    return false;
}

bool TContainedAction::Update() {
    const TLifeGuard guard(*this);
    const auto handledBy = [&](bool handled) { return handled || !guard.IsAlive(); };
    if (FActionList && handledBy(FActionList->UpdateAction(this))) return true;
    if (handledBy(AppServices().UpdateAction(this))) return true;
    if (handledBy(TBasicAction::Update())) return true;
    for (TObject* target : AppServices().ActionTargets()) {
        if (!HandlesTarget(target)) continue;
        UpdateTarget(target);
        return true;
    }
    return false;
}

// --- actions with values

const TMetaClass& TCustomAction::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomAction>(L"TCustomAction", TContainedAction::StaticClass());
    return meta;
}

TCustomAction::TCustomAction(TComponent* AOwner) : TContainedAction(AOwner) {}

TCustomAction::~TCustomAction() = default;

bool TCustomAction::Execute() {
    const TLifeGuard guard(*this);
    if (GetActionList() && GetActionList()->GetState() != asNormal) return false;
    Update();
    if (!guard.IsAlive()) return true;
    if (!GetEnabled()) return false;
    if (GetAutoCheck() && (!GetChecked() || GetGroupIndex() == 0)) SetChecked(!GetChecked());
    return !guard.IsAlive() || TContainedAction::Execute();
}

bool TCustomAction::Update() {
    if (GetActionList() && GetActionList()->GetState() != asNormal) return false;
    const TLifeGuard guard(*this);
    const bool handled = TContainedAction::Update();
    if (!handled && guard.IsAlive() && FDisableIfNoHandler && GetEnabled() && !GetOnExecute())
        SetEnabled(false);
    return handled;
}

template <class V, class Given>
void TCustomAction::Store(V TActionValues::*field, const V& value, void (TBasicActionLink::*tell)(Given)) {
    if (FValues.*field == value) return;
    const TLifeGuard guard(*this);
    // Links compare with the former value, which therefore still stands.
    const V next = value;
    for (TBasicActionLink* link : std::vector(Links())) {
        const auto& living = Links();
        if (std::find(living.begin(), living.end(), link) != living.end()) (link->*tell)(next);
        if (!guard.IsAlive()) return;
    }
    FValues.*field = next;
    Change();
}

void TCustomAction::SetCaption(const String& value) {
    Store(&TActionValues::Caption, value, &TBasicActionLink::SetCaption);
}

void TCustomAction::SetChecked(bool value) {
    if (value == GetChecked()) return;
    const TLifeGuard guard(*this);
    Store(&TActionValues::Checked, value, &TBasicActionLink::SetChecked);
    if (guard.IsAlive() && value && GetGroupIndex() > 0) TurnOthersOff();
}

void TCustomAction::TurnOthersOff() {
    if (!GetActionList()) return;
    for (int i = 0; i < GetActionList()->GetActionCount(); ++i) {
        auto* other = dynamic_cast<TCustomAction*>(GetActionList()->GetAction(i));
        if (other && other != this && other->GetGroupIndex() == GetGroupIndex()) other->SetChecked(false);
    }
}

void TCustomAction::SetAutoCheck(bool value) {
    Store(&TActionValues::AutoCheck, value, &TBasicActionLink::SetAutoCheck);
}

void TCustomAction::SetEnabled(bool value) {
    if (GetActionList() && GetActionList()->GetState() == asSuspendedEnabled) value = true;
    Store(&TActionValues::Enabled, value, &TBasicActionLink::SetEnabled);
}

void TCustomAction::SetVisible(bool value) {
    Store(&TActionValues::Visible, value, &TBasicActionLink::SetVisible);
}

void TCustomAction::SetHint(const String& value) {
    Store(&TActionValues::Hint, value, &TBasicActionLink::SetHint);
}

void TCustomAction::SetImageIndex(int value) {
    Store(&TActionValues::ImageIndex, value, &TBasicActionLink::SetImageIndex);
}

void TCustomAction::SetShortCut(TShortCut value) {
    Store(&TActionValues::ShortCut, value, &TBasicActionLink::SetShortCut);
}

void TCustomAction::SetGroupIndex(int value) {
    if (value == GetGroupIndex()) return;
    const TLifeGuard guard(*this);
    Store(&TActionValues::GroupIndex, value, &TBasicActionLink::SetGroupIndex);
    if (guard.IsAlive() && GetChecked() && value > 0) TurnOthersOff();
}

void TCustomAction::SetHelpContext(int value) {
    Store(&TActionValues::HelpContext, value, &TBasicActionLink::SetHelpContext);
}

TShortCutList& TCustomAction::GetSecondaryShortCuts() const {
    if (!FSecondaryShortCuts)
        const_cast<TCustomAction*>(this)->FSecondaryShortCuts = std::make_unique<TShortCutList>();
    return *FSecondaryShortCuts;
}

void TCustomAction::SetSecondaryShortCuts(const TShortCutList& value) {
    GetSecondaryShortCuts().Assign(&value);
}

bool TCustomAction::IsSecondaryShortCutsStored() const {
    return FSecondaryShortCuts && FSecondaryShortCuts->GetCount() > 0;
}

// --- actions of forms

const TMetaClass& TAction::StaticClass() {
    using C = TAction;
    static const TMetaClass meta =
        DefineClass<C>(L"TAction", TCustomAction::StaticClass())
            .Property(L"AutoCheck", &C::GetAutoCheck, &C::SetAutoCheck, false)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption, String())
            .Property(L"Checked", &C::GetChecked, &C::SetChecked, false)
            .Property(L"DisableIfNoHandler", &C::GetDisableIfNoHandler, &C::SetDisableIfNoHandler, true)
            .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
            .Property(L"GroupIndex", &C::GetGroupIndex, &C::SetGroupIndex, 0)
            .Property(L"HelpContext", &C::GetHelpContext, &C::SetHelpContext, 0)
            .Property(L"Hint", &C::GetHint, &C::SetHint, String())
            .Property(L"ImageIndex", &C::GetImageIndex, &C::SetImageIndex, -1)
            .Property(L"ShortCut", &C::GetShortCut, &C::SetShortCut, 0)
            .Property(L"SecondaryShortCuts", &C::GetSecondaryShortCuts, &C::SetSecondaryShortCuts)
            .Stored(&C::IsSecondaryShortCutsStored)
            .Property(L"Visible", &C::GetVisible, &C::SetVisible, true)
            .Event(L"OnExecute", &C::FOnExecute)
            .Event(L"OnUpdate", &C::OnUpdate);
    return meta;
}

TAction::TAction(TComponent* AOwner) : TCustomAction(AOwner) {
    SetDisableIfNoHandler(true);
}

}  // namespace vcl
