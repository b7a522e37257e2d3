#include "skin/masking/SkinContainer.h"

#include "platform/vcl/core/DefineClass.h"
#include "skin/masking/MaskingPanelImagesFromResource.h"

namespace qv7skin {

const TMetaClass& TCustomQV7SkinContainer::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomQV7SkinContainer>(L"TCustomQV7SkinContainer", TCustomPanel::StaticClass());
    return meta;
}

TCustomQV7SkinContainer::TCustomQV7SkinContainer(TComponent* AOwner) : TCustomPanel(AOwner) {
    SetDoubleBuffered(false);
    SetHeight(25);
    SetWidth(100);
    SetBevelOuter(bvNone);
    SetColor(0x00FFFFFF);
}

TCustomQV7SkinContainer::~TCustomQV7SkinContainer() = default;

void TCustomQV7SkinContainer::Paint() {
    TCustomPanel::Paint();
    if (FMaskingPanel) return;
    FMaskingPanel = std::make_unique<TMaskingPanelImagesFromResource>(nullptr);
    FMaskingPanel->Control = this;
    FMaskingPanel->SetWhiteBackground(FWhiteBackground);
    FMaskingPanel->Mask();
}

void TCustomQV7SkinContainer::Resize() {
    TCustomPanel::Resize();
    if (!FMaskingPanel) return;
    FMaskingPanel->Unmask();
    FMaskingPanel->Mask();
}

bool TCustomQV7SkinContainer::GetWhiteBackground() const {
    return FMaskingPanel ? FMaskingPanel->GetWhiteBackground() : FWhiteBackground;
}

void TCustomQV7SkinContainer::SetWhiteBackground(bool Value) {
    if (FMaskingPanel) FMaskingPanel->SetWhiteBackground(Value);
    FWhiteBackground = Value;
}

void TCustomQV7SkinContainer::Dispatch(TMessage& message) {
    if (message.Msg == WM_ERASEBKGND)
        message.Result = 1;  // the panel paints its whole area
    else
        TCustomPanel::Dispatch(message);
}

}  // namespace qv7skin
