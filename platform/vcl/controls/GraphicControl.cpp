#include "platform/vcl/controls/GraphicControl.h"

#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TGraphicControl::StaticClass() {
    static const TMetaClass meta = DefineClass<TGraphicControl>(L"TGraphicControl", TControl::StaticClass());
    return meta;
}

TGraphicControl::TGraphicControl(TComponent* AOwner)
    : TControl(AOwner), FCanvas(std::make_unique<TControlCanvas>(this)) {}

TGraphicControl::~TGraphicControl() = default;

TCanvas& TGraphicControl::GetCanvas() const {
    return *FCanvas;
}

void TGraphicControl::Dispatch(TMessage& message) {
    if (message.Msg != WM_PAINT) return TControl::Dispatch(message);
    if (!message.WParam) return;
    const TCanvasBinding binding(*FCanvas, *this, reinterpret_cast<HDC>(message.WParam));
    Paint();
}

}  // namespace vcl
