#include "platform/vcl/graphics/Pen.h"

#include <tuple>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "platform/vcl/graphics/SharedHandles.h"

namespace vcl {
namespace {

using TPenKey = std::tuple<TPenStyle, int, TColor>;

TSharedHandles<TPenKey, TPenHandle>& SharedPens() {
    static auto& pens = *new TSharedHandles<TPenKey, TPenHandle>;
    return pens;
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TPenStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"psSolid",      L"psDash",  L"psDot",        L"psDashDot",
                                               L"psDashDotDot", L"psClear", L"psInsideFrame"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TPenMode>::Names() {
    static constexpr const wchar_t* names[] = {
        L"pmBlack",       L"pmWhite",      L"pmNop",         L"pmNot",        L"pmCopy",  L"pmNotCopy",
        L"pmMergePenNot", L"pmMaskPenNot", L"pmMergeNotPen", L"pmMaskNotPen", L"pmMerge", L"pmNotMerge",
        L"pmMask",        L"pmNotMask",    L"pmXor",         L"pmNotXor"};
    return names;
}

const TMetaClass& TPen::StaticClass() {
    static const TMetaClass meta = DefineClass<TPen>(L"TPen", TPersistent::StaticClass())
                                       .Property(L"Color", &TPen::GetColor, &TPen::SetColor, clBlack)
                                       .Identifiers(ColorIdentifiers())
                                       .Property(L"Mode", &TPen::GetMode, &TPen::SetMode, pmCopy)
                                       .Property(L"Style", &TPen::GetStyle, &TPen::SetStyle, psSolid)
                                       .Property(L"Width", &TPen::GetWidth, &TPen::SetWidth, 1);
    return meta;
}

void TPen::Assign(const TPersistent* source) {
    const TPen plain;
    const auto* pen = source ? dynamic_cast<const TPen*>(source) : &plain;
    if (!pen) {
        TPersistent::Assign(source);
        return;
    }
    if (std::tie(FColor, FWidth, FStyle, FMode) ==
        std::tie(pen->FColor, pen->FWidth, pen->FStyle, pen->FMode))
        return;
    FColor = pen->FColor;
    FWidth = pen->FWidth;
    FStyle = pen->FStyle;
    FMode = pen->FMode;
    FShared = pen->FShared;
    FSharedColor = pen->FSharedColor;
    Changed();
}

void TPen::SetColor(TColor value) {
    if (FColor == value) return;
    FColor = value;
    FShared.reset();
    Changed();
}

void TPen::SetWidth(int value) {
    if (FWidth == value || value < 0) return;
    FWidth = value;
    FShared.reset();
    Changed();
}

void TPen::SetStyle(TPenStyle value) {
    if (FStyle == value) return;
    FStyle = value;
    FShared.reset();
    Changed();
}

void TPen::SetMode(TPenMode value) {
    if (FMode == value) return;
    FMode = value;
    Changed();
}

const TSharedPen& TPen::GetShared() const {
    // A system colour may have changed since the handle was made.
    const TColor color = ColorToRGB(FColor);
    if (!FShared || color != FSharedColor) {
        FShared = SharedPens().Get({FStyle, FWidth, color}, [&] {
            return TPenHandle(CheckHandle(::CreatePen(static_cast<int>(FStyle), FWidth, color)));
        });
        FSharedColor = color;
    }
    return FShared;
}

}  // namespace vcl
