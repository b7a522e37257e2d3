#include "platform/vcl/controls/WindowMenu.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TWindowMenu::StaticClass() {
    static const TMetaClass meta = DefineClass<TWindowMenu>(L"TWindowMenu", TComponent::StaticClass());
    return meta;
}

}  // namespace vcl
