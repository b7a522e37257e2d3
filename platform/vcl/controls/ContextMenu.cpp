#include "platform/vcl/controls/ContextMenu.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TContextMenu::StaticClass() {
    static const TMetaClass meta = DefineClass<TContextMenu>(L"TContextMenu", TComponent::StaticClass());
    return meta;
}

void TContextMenu::SetPopupComponent(TComponent* value) {
    FPopupComponent = value;
    if (value) value->FreeNotification(this);
}

void TContextMenu::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation == opRemove && component == FPopupComponent) FPopupComponent = nullptr;
}

}  // namespace vcl
