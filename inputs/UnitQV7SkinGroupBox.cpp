#include "inputs/UnitQV7SkinGroupBox.h"

#include "inputs/InputColors.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TQV7SkinGroupBox::StaticClass() {
    using C = TQV7SkinGroupBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinGroupBox", TFlatGroupBox::StaticClass())
            .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, InputLight)
            .Identifiers(ColorIdentifiers());
    return meta;
}

TQV7SkinGroupBox::TQV7SkinGroupBox(TComponent* AOwner) : TFlatGroupBox(AOwner) {
    SetColors(BorderColorIndex, InputLight);
}

}  // namespace qv7skin
