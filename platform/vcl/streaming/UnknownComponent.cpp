#include "platform/vcl/streaming/UnknownComponent.h"

#include "platform/vcl/core/DefineClass.h"

#include <utility>

namespace vcl {

const TMetaClass& TUnknownComponent::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TUnknownComponent>(L"TUnknownComponent", TComponent::StaticClass());
    return meta;
}

TUnknownComponent::TUnknownComponent(TComponent* AOwner, TComponent* parent, int index, TFormObject object)
    : TComponent(AOwner), FObject(std::move(object)), FParent(parent), FIndex(index) {
    if (parent) parent->FreeNotification(this);
}

void TUnknownComponent::SetName(const String& value) {
    TComponent::SetName(value);
    FObject.Name = value;
}

void TUnknownComponent::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation == opRemove && component == FParent) FParent = nullptr;
}

}  // namespace vcl
