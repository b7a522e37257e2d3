#include "skin/masking/PictureMaskingPanel.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Picture.h"
#include "skin/surfaces/FlickerFreePanel.h"

namespace qv7skin {

const TMetaClass& TCustomPictureMaskingPanel::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomPictureMaskingPanel>(
        L"TCustomPictureMaskingPanel", TCustomMaskingPanel::StaticClass());
    return meta;
}

void TCustomPictureMaskingPanel::Mask() {
    TCustomMaskingPanel::Mask();
    if (!GetMasked()) return;
    try {
        if (!FImage) {
            FImage = new TImage(nullptr);
            FImage->FreeNotification(this);
            FImage->SetParent(GetMaskPanel());
            FImage->SetAlign(alClient);
        }
        DrawMaskToImage(*FImage);
    } catch (...) {
        Unmask();
        throw;
    }
}

void TCustomPictureMaskingPanel::Unmask() {
    if (FImage) FImage->Free();  // `Notification` clears the reference
    TCustomMaskingPanel::Unmask();
}

void TCustomPictureMaskingPanel::DrawMaskToImage(TImage& Image) {
    Image.GetPicture().SetGraphic(CreateMask(GetMaskSize()).get());
}

void TCustomPictureMaskingPanel::Notification(TComponent* component, TOperation operation) {
    TCustomMaskingPanel::Notification(component, operation);
    if (operation == opRemove && component == FImage) FImage = nullptr;
}

}  // namespace qv7skin
