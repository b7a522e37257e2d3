#include "platform/vcl/actions/ActionBar.h"

#include <algorithm>

#include "platform/vcl/actions/ActionControl.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TCustomActionBar::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomActionBar>(L"TCustomActionBar", TCustomControl::StaticClass());
    return meta;
}

TCustomActionBar::TCustomActionBar(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csOpaque};
    SetDoubleBuffered(true);
}

TCustomActionBar::~TCustomActionBar() {
    Destroying();
    FreeControls();
    if (FActionClient) FActionClient->FItemsBar = nullptr;
}

void TCustomActionBar::Notification(TComponent* component, TOperation operation) {
    TCustomControl::Notification(component, operation);
    if (operation == opRemove && component == FActionManager) SetActionManager(nullptr);
}

void TCustomActionBar::Loaded() {
    TCustomControl::Loaded();
    RecreateControls();
}

void TCustomActionBar::SetActionManager(TCustomActionManager* value) {
    if (value == FActionManager) return;
    FActionManager = value;
    if (value)
        value->FreeNotification(this);
    else
        SetActionClient(nullptr);
}

void TCustomActionBar::SetActionClient(TActionClient* value) {
    if (value == FActionClient) return;
    if (FActionClient) FActionClient->FItemsBar = nullptr;
    if (value && value->FItemsBar) value->FItemsBar->SetActionClient(nullptr);
    FActionClient = value;
    if (value) value->FItemsBar = this;
    RecreateControls();
}

void TCustomActionBar::ClientGoing() {
    FActionClient = nullptr;
    FreeControls();
    Invalidate();
}

void TCustomActionBar::SetHorzMargin(int value) {
    if (value == FHorzMargin) return;
    FHorzMargin = value;
    ArrangeControls();
}

void TCustomActionBar::SetVertMargin(int value) {
    if (value == FVertMargin) return;
    FVertMargin = value;
    ArrangeControls();
}

void TCustomActionBar::SetSpacing(int value) {
    if (value == FSpacing) return;
    FSpacing = value;
    ArrangeControls();
}

const TMetaClass& TCustomActionBar::GetControlClass(TActionClientItem& item) {
    const TMetaClass* chosen = &DefaultControlClass(item);
    OnGetControlClass(this, &item, chosen);
    const bool fits = chosen && chosen->InheritsFrom(TCustomActionControl::StaticClass());
    return fits && chosen->CanCreate() ? *chosen : DefaultControlClass(item);
}

void TCustomActionBar::FreeControls() {
    if (!FControls.empty() && !IsInState(csDestroying)) ControlsGoing();
    while (!FControls.empty())
        delete FControls.back();
}

void TCustomActionBar::ForgetControl(const TCustomActionControl* control) {
    std::erase(FControls, control);
}

void TCustomActionBar::RecreateControls() {
    if (IsInState(csDestroying) || IsInState(csLoading)) return;
    const TLifeGuard guard(*this);
    DisableAlign();
    FreeControls();
    if (FActionClient && FActionClient->HasItems()) {
        TActionClients& items = FActionClient->GetItems();
        for (int i = 0; i < items.GetCount(); ++i) {
            TActionClientItem* item = items.GetItem(i);
            if (!item->GetVisible()) continue;
            const TMetaClass& meta = GetControlClass(*item);
            if (!guard.IsAlive()) return;
            auto* control = dynamic_cast<TCustomActionControl*>(meta.Create(nullptr));
            FControls.push_back(control);
            control->SetParent(this);
            control->SetActionClient(item);
        }
    }
    ArrangeControls();
    EnableAlign();
    Invalidate();
}

TCustomActionControl* TCustomActionBar::ControlAt(TPoint pos) const {
    const auto found = std::find_if(
        FControls.begin(), FControls.end(),
        [&](const TCustomActionControl* control) { return control->GetBoundsRect().Contains(pos); });
    return found == FControls.end() ? nullptr : *found;
}

}  // namespace vcl
