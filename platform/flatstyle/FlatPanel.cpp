#include "platform/flatstyle/FlatPanel.h"

#include "platform/flatstyle/FlatPanelRows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Frame3D.h"

namespace flatstyle {

const TMetaClass& TFlatPanel::StaticClass() {
    static const TMetaClass meta =
        FlatPanelRows(DefineClass<TFlatPanel>(L"TFlatPanel", TCustomPanel::StaticClass()), clBtnFace,
                      TColor{0x008396A0}, false, false);
    return meta;
}

TFlatPanel::TFlatPanel(TComponent* AOwner) : TCustomPanel(AOwner) {
    // Room for the line.
    SetBevelOuter(bvSpace);
}

void TFlatPanel::SetColors(int Index, TColor Value) {
    if (FColors.Set(Index, Value)) Invalidate();
}

void TFlatPanel::Paint() {
    TCustomPanel::Paint();
    TRect rect = GetClientRect();
    Frame3D(GetCanvas(), rect, GetColors(HighLightColorIndex), GetColors(ShadowColorIndex), 1);
}

}  // namespace flatstyle
