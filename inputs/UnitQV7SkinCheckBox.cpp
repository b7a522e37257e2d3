#include "inputs/UnitQV7SkinCheckBox.h"

#include "inputs/InputColors.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace qv7skin {
namespace {

/// The sign's ground with mouse or focus; its green and red bytes are those of the light colour, exchanged.
constexpr TColor HotGround = 0x00F0E7EA;
constexpr int SignWidth = 16;
constexpr int Room = 4;

}  // namespace

const TMetaClass& TQV7SkinCheckBox::StaticClass() {
    using C = TQV7SkinCheckBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinCheckBox", TFlatCheckBox::StaticClass())
            .Property(L"ColorFocused", &C::GetColorFocused, &C::SetColorFocused, HotGround)
            .Identifiers(ColorIdentifiers())
            .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, InputLight)
            .Identifiers(ColorIdentifiers());
    return meta;
}

TQV7SkinCheckBox::TQV7SkinCheckBox(TComponent* AOwner) : TFlatCheckBox(AOwner) {
    SetColors(BorderColorIndex, InputLight);
    SetColors(FocusedColorIndex, HotGround);
}

int TQV7SkinCheckBox::GetTextWidth() {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    return MeasureText(canvas, GetCaption(), DT_SINGLELINE).Width;
}

void TQV7SkinCheckBox::AutoSizeNow() {
    SetWidth(GetTextWidth() + SignWidth + Room);
}

void TQV7SkinCheckBox::DrawCheckRect() {
    TFlatCheckBox::DrawCheckRect();
}

}  // namespace qv7skin
