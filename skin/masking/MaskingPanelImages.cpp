#include "skin/masking/MaskingPanelImages.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Picture.h"
#include "skin/masking/NinePartFrame.h"

namespace qv7skin {

const TMetaClass& TMaskingPanelImages::StaticClass() {
    using Self = TMaskingPanelImages;
    static const TMetaClass meta =
        DefineClass<Self>(L"TMaskingPanelImages", TCustomPictureMaskingPanel::StaticClass())
            .Field(L"ImageTopLeft", &Self::ImageTopLeft)
            .Field(L"ImageTopMiddle", &Self::ImageTopMiddle)
            .Field(L"ImageTopRight", &Self::ImageTopRight)
            .Field(L"ImageLeftMiddle", &Self::ImageLeftMiddle)
            .Field(L"ImageRightMiddle", &Self::ImageRightMiddle)
            .Field(L"ImageBottomLeft", &Self::ImageBottomLeft)
            .Field(L"ImageBottomMiddle", &Self::ImageBottomMiddle)
            .Field(L"ImageBottomRight", &Self::ImageBottomRight);
    return meta;
}

const std::array<TMaskingPanelImages::TField, AllFramePositions.size()>& TMaskingPanelImages::ImageFields() {
    using Self = TMaskingPanelImages;
    static constexpr std::array<TField, AllFramePositions.size()> fields{
        &Self::ImageTopLeft,      &Self::ImageTopMiddle,   &Self::ImageTopRight,   &Self::ImageBottomLeft,
        &Self::ImageBottomMiddle, &Self::ImageBottomRight, &Self::ImageLeftMiddle, &Self::ImageRightMiddle};
    return fields;
}

bool TMaskingPanelImages::HasAllPictures() const {
    return std::all_of(ImageFields().begin(), ImageFields().end(), [this](TField field) {
        const TImage* image = this->*field;
        const TGraphic* graphic = image ? image->GetPicture().GetGraphic() : nullptr;
        return graphic && !graphic->GetEmpty();
    });
}

void TMaskingPanelImages::Mask() {
    if (HasAllPictures()) TCustomPictureMaskingPanel::Mask();
}

std::unique_ptr<TBitmap> TMaskingPanelImages::CreateMask(TSize Size) {
    if (!HasAllPictures()) throw EInvalidOperation(L"The mask needs eight pictures");
    TNinePartPieces::Graphics graphics;
    std::transform(ImageFields().begin(), ImageFields().end(), graphics.begin(),
                   [this](TField field) { return (this->*field)->GetPicture().GetGraphic(); });
    auto mask = std::make_unique<TBitmap>(Size.Width, Size.Height, pf24bit);
    ComposeNinePartFrame(*mask, TNinePartPieces(graphics), 0x00FF00FF);
    return mask;
}

void TMaskingPanelImages::Notification(TComponent* component, TOperation operation) {
    TCustomPictureMaskingPanel::Notification(component, operation);
    if (operation != opRemove) return;
    for (const TField field : ImageFields())
        if (this->*field == component) this->*field = nullptr;
}

}  // namespace qv7skin
