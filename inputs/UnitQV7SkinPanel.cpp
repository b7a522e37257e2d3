#include "inputs/UnitQV7SkinPanel.h"

#include "inputs/InputColors.h"
#include "platform/flatstyle/FlatPanelRows.h"

namespace qv7skin {

const TMetaClass& TQV7SkinPanel::StaticClass() {
    static const TMetaClass meta =
        FlatPanelRows(DefineClass<TQV7SkinPanel>(L"TQV7SkinPanel", TFlatPanel::StaticClass()), InputLight,
                      InputLight, false, true);
    return meta;
}

TQV7SkinPanel::TQV7SkinPanel(TComponent* AOwner) : TFlatPanel(AOwner) {
    SetColor(InputLight);
    SetColors(HighLightColorIndex, InputLight);
    SetColors(ShadowColorIndex, InputLight);
    SetParentBackground(false);
    SetParentDoubleBuffered(true);
    // Ends taking it over from the parent.
    SetDoubleBuffered(true);
}

}  // namespace qv7skin
