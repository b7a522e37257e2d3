#include "platform/vcl/actions/ActionManager.h"

#include "platform/vcl/actions/ActionBar.h"
#include "platform/vcl/actions/ActionClients.h"
#include "platform/vcl/actions/ActionListRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/ImageList.h"

namespace vcl {

const TMetaClass& TCustomActionManager::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomActionManager>(L"TCustomActionManager", TCustomActionList::StaticClass());
    return meta;
}

const TMetaClass& TActionManager::StaticClass() {
    using C = TActionManager;
    static const TMetaClass meta = DefineClass<C>(L"TActionManager", TCustomActionManager::StaticClass())
                                       .Property(L"ActionBars", &C::GetActionBars, &C::SetActionBars)
                                       .With(ActionListRows);
    return meta;
}

TCustomActionManager::TCustomActionManager(TComponent* AOwner)
    : TCustomActionList(AOwner), FActionBars(std::make_unique<TActionBars>(this)) {}

TCustomActionManager::~TCustomActionManager() {
    Destroying();
    FActionBars->Clear();
}

void TCustomActionManager::SetActionBars(const TActionBars& value) {
    FActionBars->Assign(&value);
}

void TCustomActionManager::Notification(TComponent* component, TOperation operation) {
    TCustomActionList::Notification(component, operation);
    // The owner hears of this very manager before it has its bars.
    if (operation != opRemove || !FActionBars) return;
    for (int i = 0; i < FActionBars->GetCount(); ++i) {
        TActionBarItem* item = FActionBars->GetItem(i);
        if (item->GetActionBar() == component) item->SetActionBar(nullptr);
    }
}

}  // namespace vcl
