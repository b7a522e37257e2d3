#include "skin/masking/MaskingPanelImagesFromResource.h"

#include "platform/vcl/core/DefineClass.h"
#include "skin/masking/NinePartFrame.h"

namespace qv7skin {

const TMetaClass& TMaskingPanelImagesFromResource::StaticClass() {
    using Self = TMaskingPanelImagesFromResource;
    static const TMetaClass meta =
        DefineClass<Self>(L"TMaskingPanelImagesFromResource", TCustomPictureMaskingPanel::StaticClass())
            .Property(L"WhiteBackground", &Self::GetWhiteBackground, &Self::SetWhiteBackground, false);
    return meta;
}

TMaskingPanelImagesFromResource::TMaskingPanelImagesFromResource(TComponent* AOwner)
    : TCustomPictureMaskingPanel(AOwner) {}

TMaskingPanelImagesFromResource::~TMaskingPanelImagesFromResource() = default;

void TMaskingPanelImagesFromResource::SetWhiteBackground(bool Value) {
    if (FWhiteBackground == Value) return;
    FWhiteBackground = Value;
    FPieces.reset();
    if (!GetMasked()) return;
    Unmask();
    Mask();
}

void TMaskingPanelImagesFromResource::Mask() {
    if (!GetMasked() && Control) TCustomPictureMaskingPanel::Mask();
}

std::unique_ptr<TBitmap> TMaskingPanelImagesFromResource::CreateMask(TSize Size) {
    if (!FPieces) FPieces = std::make_unique<TNinePartBitmaps>(FWhiteBackground ? L"MASKWHITE" : L"MASK");
    auto mask = std::make_unique<TBitmap>(Size.Width, Size.Height, pf24bit);
    ComposeNinePartFrame(*mask, FPieces->Pieces(), 0x00FF00FF);
    return mask;
}

}  // namespace qv7skin
