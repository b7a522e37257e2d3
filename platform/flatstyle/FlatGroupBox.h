#pragma once

#include "platform/flatstyle/FlatColors.h"
#include "platform/vcl/controls/CustomControl.h"

namespace flatstyle {

/// A frame with a caption in its upper line, for other controls. The access key of the caption moves the
/// focus to the first of them.
///
/// Colours by index: 0 the line (0x008396A0 at first).
class TFlatGroupBox : public TCustomControl {
public:
    explicit TFlatGroupBox(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    static constexpr int BorderColorIndex = 0;
    [[nodiscard]] TColor GetColors(int Index) const { return FColors.Get(Index); }
    void SetColors(int Index, TColor Value);
    [[nodiscard]] TColor GetColorBorder() const { return GetColors(BorderColorIndex); }
    void SetColorBorder(TColor Value) { SetColors(BorderColorIndex, Value); }

protected:
    void Dispatch(TMessage& message) override;
    void AdjustClientRect(TRect& rect) override;
    void Paint() override;
    void Resize() override;

private:
    [[nodiscard]] int CaptionHeight();

    TFlatColors<1> FColors{{0x008396A0}};
};

}  // namespace flatstyle
