#include "skin/masking/MaskingPanelEllipse.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {
namespace {

void SetPenAndBrush(TCanvas& canvas, TColor color) {
    canvas.GetPen().SetColor(color);
    canvas.GetBrush().SetColor(color);
}

}  // namespace

const TMetaClass& TMaskingPanelEllipse::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TMaskingPanelEllipse>(L"TMaskingPanelEllipse", TCustomMaskingPanel::StaticClass());
    return meta;
}

std::unique_ptr<TBitmap> TMaskingPanelEllipse::CreateMask(TSize Size) {
    const TRect whole(0, 0, Size.Width, Size.Height);
    auto mask = std::make_unique<TBitmap>(Size.Width, Size.Height, pf24bit);
    TCanvas& canvas = mask->GetCanvas();
    SetPenAndBrush(canvas, Control ? Control->GetBrush().GetColor() : TColor{clWhite});
    canvas.FillRect(whole);
    SetPenAndBrush(canvas, TransparentColor);
    canvas.Ellipse(whole);
    return mask;
}

}  // namespace qv7skin
