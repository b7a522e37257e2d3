#include "platform/vcl/stdctrls/Bevel.h"

#include <array>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Frame3D.h"

namespace vcl {
namespace {

constexpr std::array StyleNames{L"bsLowered", L"bsRaised"};
constexpr std::array ShapeNames{L"bsBox",      L"bsFrame",     L"bsTopLine", L"bsBottomLine",
                                L"bsLeftLine", L"bsRightLine", L"bsSpacer"};

}  // namespace

std::span<const wchar_t* const> TEnumNames<TBevelStyle>::Names() {
    return StyleNames;
}
std::span<const wchar_t* const> TEnumNames<TBevelShape>::Names() {
    return ShapeNames;
}

const TMetaClass& TBevel::StaticClass() {
    using C = TBevel;
    static const TMetaClass meta =
        DefineClass<C>(L"TBevel", TGraphicControl::StaticClass())
            .With(PlacementRows)
            .Property(L"ParentShowHint", &C::GetParentShowHint, &C::SetParentShowHint, true)
            .Property(L"Shape", &C::GetShape, &C::SetShape, TBevelShape::bsBox)
            .Property(L"ShowHint", &C::GetShowHint, &C::SetShowHint)
            .Stored(&C::IsShowHintStored)
            .Property(L"Style", &C::GetStyle, &C::SetStyle, TBevelStyle::bsLowered)
            .Property(L"Visible", &C::GetVisible, &C::SetVisible, true);
    return meta;
}

TBevel::TBevel(TComponent* AOwner) : TGraphicControl(AOwner) {
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    SetBounds(0, 0, 50, 50);
}

void TBevel::SetStyle(TBevelStyle value) {
    if (value == FStyle) return;
    FStyle = value;
    Invalidate();
}

void TBevel::SetShape(TBevelShape value) {
    if (value == FShape) return;
    FShape = value;
    Invalidate();
}

void TBevel::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    const bool lowered = FStyle == TBevelStyle::bsLowered;
    const TColor first = lowered ? clBtnShadow : clBtnHighlight;
    const TColor second = lowered ? clBtnHighlight : clBtnShadow;
    const int w = GetWidth();
    const int h = GetHeight();
    // Two lines side by side: the first at the upper left, the second below or right of it.
    const auto line = [&](const TRect& a, const TRect& b) {
        canvas.GetBrush().SetColor(first);
        canvas.FillRect(a);
        canvas.GetBrush().SetColor(second);
        canvas.FillRect(b);
    };
    TRect rect = GetClientRect();
    switch (FShape) {
        case TBevelShape::bsBox:
            Frame3D(canvas, rect, first, second, 1);
            break;
        case TBevelShape::bsFrame: {
            // A groove: a sunken frame with a raised one inside.
            Frame3D(canvas, rect, first, second, 1);
            Frame3D(canvas, rect, second, first, 1);
            break;
        }
        case TBevelShape::bsTopLine:
            line({0, 0, w, 1}, {0, 1, w, 2});
            break;
        case TBevelShape::bsBottomLine:
            line({0, h - 2, w, h - 1}, {0, h - 1, w, h});
            break;
        case TBevelShape::bsLeftLine:
            line({0, 0, 1, h}, {1, 0, 2, h});
            break;
        case TBevelShape::bsRightLine:
            line({w - 2, 0, w - 1, h}, {w - 1, 0, w, h});
            break;
        case TBevelShape::bsSpacer:
            break;
    }
}

}  // namespace vcl
