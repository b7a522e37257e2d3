#include "skin/surfaces/FlickerFreePanel.h"

#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TFlickerFreePanel::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TFlickerFreePanel>(L"TFlickerFreePanel", TPanel::StaticClass());
    return meta;
}

TFlickerFreePanel::TFlickerFreePanel(TComponent* AOwner) : TPanel(AOwner) {
    SetDoubleBuffered(true);
}

}  // namespace qv7skin
