#include "platform/vcl/graphics/Brush.h"

#include <tuple>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "platform/vcl/graphics/SharedHandles.h"

namespace vcl {
namespace {

using TBrushKey = std::tuple<TBrushStyle, TColor>;

TSharedHandles<TBrushKey, TBrushHandle>& SharedBrushes() {
    static auto& brushes = *new TSharedHandles<TBrushKey, TBrushHandle>;
    return brushes;
}

HBRUSH MakeBrush(TBrushStyle style, TColor color) {
    if (style == bsSolid) return ::CreateSolidBrush(color);
    const int hatches[] = {HS_HORIZONTAL, HS_VERTICAL, HS_FDIAGONAL, HS_BDIAGONAL, HS_CROSS, HS_DIAGCROSS};
    return ::CreateHatchBrush(hatches[static_cast<int>(style) - static_cast<int>(bsHorizontal)], color);
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TBrushStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"bsSolid",    L"bsClear",     L"bsHorizontal",
                                               L"bsVertical", L"bsFDiagonal", L"bsBDiagonal",
                                               L"bsCross",    L"bsDiagCross"};
    return names;
}

const TMetaClass& TBrush::StaticClass() {
    static const TMetaClass meta = DefineClass<TBrush>(L"TBrush", TPersistent::StaticClass())
                                       .Property(L"Color", &TBrush::GetColor, &TBrush::SetColor, clWhite)
                                       .Identifiers(ColorIdentifiers())
                                       .Property(L"Style", &TBrush::GetStyle, &TBrush::SetStyle, bsSolid);
    return meta;
}

void TBrush::Assign(const TPersistent* source) {
    const TBrush plain;
    const auto* brush = source ? dynamic_cast<const TBrush*>(source) : &plain;
    if (!brush) {
        TPersistent::Assign(source);
        return;
    }
    if (std::tie(FColor, FStyle, FBitmap) == std::tie(brush->FColor, brush->FStyle, brush->FBitmap)) return;
    FColor = brush->FColor;
    FStyle = brush->FStyle;
    FBitmap = brush->FBitmap;
    FShared = brush->FShared;
    FSharedColor = brush->FSharedColor;
    Changed();
}

void TBrush::SetColor(TColor value) {
    const TBrushStyle style = FStyle == bsClear ? bsSolid : FStyle;
    if (FColor == value && FStyle == style) return;
    FColor = value;
    FStyle = style;
    if (!FBitmap) FShared.reset();
    Changed();
}

void TBrush::SetStyle(TBrushStyle value) {
    if (FStyle == value) return;
    FStyle = value;
    if (!FBitmap) FShared.reset();
    Changed();
}

void TBrush::SetBitmap(const TBitmap* value) {
    if (FBitmap == value) return;
    FBitmap = value;
    FShared.reset();
    Changed();
}

HBRUSH TBrush::GetHandle() const {
    const TSharedBrush& shared = GetShared();
    return shared ? shared->Get() : static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH));
}

const TSharedBrush& TBrush::GetShared() const {
    if (FBitmap) {
        if (!FShared) {
            // The handle keeps a copy of its own of the pixels.
            TBitmap copy;
            copy.Assign(FBitmap);
            FShared =
                std::make_shared<const TBrushHandle>(CheckHandle(::CreatePatternBrush(copy.GetHandle())));
        }
        return FShared;
    }
    if (FStyle == bsClear) {
        FShared.reset();
        return FShared;
    }
    // A system colour may have changed since the handle was made.
    const TColor color = ColorToRGB(FColor);
    if (!FShared || color != FSharedColor) {
        FShared = SharedBrushes().Get({FStyle, color},
                                      [&] { return TBrushHandle(CheckHandle(MakeBrush(FStyle, color))); });
        FSharedColor = color;
    }
    return FShared;
}

}  // namespace vcl
