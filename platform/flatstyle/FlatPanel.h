#pragma once

#include "platform/flatstyle/FlatColors.h"
#include "platform/vcl/stdctrls/Panel.h"

namespace flatstyle {

/// A panel with a line of one pixel around it.
///
/// Colours by index: 0 the line at the left and the upper edge, 1 that at the right and the lower edge; both
/// 0x008396A0 at first.
class TFlatPanel : public TCustomPanel {
public:
    explicit TFlatPanel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    static constexpr int HighLightColorIndex = 0;
    static constexpr int ShadowColorIndex = 1;
    [[nodiscard]] TColor GetColors(int Index) const { return FColors.Get(Index); }
    void SetColors(int Index, TColor Value);
    [[nodiscard]] TColor GetColorHighLight() const { return GetColors(HighLightColorIndex); }
    void SetColorHighLight(TColor Value) { SetColors(HighLightColorIndex, Value); }
    [[nodiscard]] TColor GetColorShadow() const { return GetColors(ShadowColorIndex); }
    void SetColorShadow(TColor Value) { SetColors(ShadowColorIndex, Value); }

protected:
    void Paint() override;

private:
    TFlatColors<2> FColors{{0x008396A0, 0x008396A0}};
};

}  // namespace flatstyle
