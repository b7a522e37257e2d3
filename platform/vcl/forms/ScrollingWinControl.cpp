#include "platform/vcl/forms/ScrollingWinControl.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TScrollingWinControl::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TScrollingWinControl>(L"TScrollingWinControl", TWinControl::StaticClass());
    return meta;
}

TScrollingWinControl::TScrollingWinControl(TComponent* AOwner) : TWinControl(AOwner) {
    ControlStyle.Include(csAcceptsControls);
}

}  // namespace vcl
