#include "inputs/UnitQV7SkinRadioButton.h"

#include "inputs/InputColors.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TQV7SkinRadioButton::StaticClass() {
    using C = TQV7SkinRadioButton;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinRadioButton", TFlatRadioButton::StaticClass())
            .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, InputLight)
            .Identifiers(ColorIdentifiers());
    return meta;
}

TQV7SkinRadioButton::TQV7SkinRadioButton(TComponent* AOwner) : TFlatRadioButton(AOwner) {
    SetColors(BorderColorIndex, InputLight);
}

void TQV7SkinRadioButton::DrawRadio() {
    TFlatRadioButton::DrawRadio();
}

}  // namespace qv7skin
