#include "platform/vcl/controls/CustomControl.h"

#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TCustomControl::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomControl>(L"TCustomControl", TWinControl::StaticClass());
    return meta;
}

TCustomControl::TCustomControl(TComponent* AOwner)
    : TWinControl(AOwner), FCanvas(std::make_unique<TControlCanvas>(this)) {
    SetControlState(csCustomPaint, true);
}

TCustomControl::~TCustomControl() = default;

TCanvas& TCustomControl::GetCanvas() const {
    return *FCanvas;
}

void TCustomControl::PaintWindow(HDC dc) {
    const TCanvasBinding binding(*FCanvas, *this, dc);
    Paint();
}

}  // namespace vcl
